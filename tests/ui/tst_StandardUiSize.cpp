// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiEntries.h"
#include "ui/StandardUiFixture.h"

using namespace Hintreels;

namespace {

int heightOf(const QByteArray &blocks)
{
    StandardUiFixture fixture(hint(blocks));
    fixture.show();
    return fixture.view()->height();
}

} // namespace

class tst_StandardUiSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ui_keepsItsWidth_andGrowsInHeight();
    void ui_asksNoBlockForAWidth_data();
    void ui_asksNoBlockForAWidth();
    void ui_hasItsSizeAtOnce_data();
    void ui_hasItsSizeAtOnce();
    void ui_hasItsSize_onceFilesAreMeasured_data();
    void ui_hasItsSize_onceFilesAreMeasured();
    void ui_leavesNoHole_data();
    void ui_leavesNoHole();
    void ui_scrolls_whenItIsLong();
    void ui_scalesItsSizes();
    void simpleUi_isAsWideAsItsText();
};

void tst_StandardUiSize::ui_keepsItsWidth_andGrowsInHeight()
{
    StandardUiFixture fixture(
        hint("") + "<hintreel key=\"long\" title=\"A title\">" + everything + "</hintreel>");

    fixture.show();
    const QSize small = fixture.view()->size();
    fixture.show("long");

    QTRY_VERIFY(fixture.view()->height() > 3 * small.height());
    QCOMPARE(fixture.view()->width(), small.width());
    QVERIFY(small.height() < 80);
}

void tst_StandardUiSize::ui_asksNoBlockForAWidth_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("text") << QByteArray("<text>A text</text>");
    QTest::newRow("note") << QByteArray("<note>A note</note>");
    QTest::newRow("keys") << QByteArray("<keys press=\"A\">Does it.</keys>");
    QTest::newRow("link") << QByteArray("<link to=\"page\">There</link>");
}

/// Where it does, Qt lays a text out twice more: without wrapping, and again as it was.
void tst_StandardUiSize::ui_asksNoBlockForAWidth()
{
    QFETCH(QByteArray, block);
    StandardUiFixture fixture(hint(block));

    fixture.show();

    const QList<QQuickItem *> items = fixture.item("blocks")->childItems();
    const auto loader = std::find_if(
        items.begin(), items.end(), [](const QQuickItem *item) { return item->height() > 0; });
    QVERIFY(loader != items.end());
    QCOMPARE((*loader)->implicitWidth(), 0.0);
}

void tst_StandardUiSize::ui_hasItsSizeAtOnce_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("text") << QByteArray("<text>- Some\n- text</text>");
    QTest::newRow("keys") << QByteArray("<keys press=\"Ctrl+A\">Does it.</keys>");
    QTest::newRow("note") << QByteArray("<note>A note\n\nof two paragraphs</note>");
    QTest::newRow("link") << QByteArray("<link to=\"page\">There</link>");
}

void tst_StandardUiSize::ui_hasItsSizeAtOnce()
{
    QFETCH(QByteArray, block);
    StandardUiFixture fixture(hint(block) + "<hintreel key=\"empty\"/>");

    fixture.show();
    const QSizeF first = fixture.sizeAtOnce;
    fixture.paint();
    QCOMPARE(fixture.root()->size(), first);
    QVERIFY(first.height() > 60);

    fixture.show("empty");
    QVERIFY(fixture.sizeAtOnce.height() < first.height() - 20);
    fixture.show();
    QCOMPARE(fixture.sizeAtOnce, first);
}

void tst_StandardUiSize::ui_hasItsSize_onceFilesAreMeasured_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("picture") << QByteArray("<picture source=\"good.png\">Caption</picture>");
    QTest::newRow("video") << QByteArray("<video source=\"clip.mp4\">Caption</video>");
}

void tst_StandardUiSize::ui_hasItsSize_onceFilesAreMeasured()
{
    QFETCH(QByteArray, block);
    StandardUiFixture fixture(hint(block) + "<hintreel key=\"empty\"/>");
    TestClip().write(fixture.packages.path() + "/Test.hintreels/Resources/clip.mp4");

    fixture.show();
    QTRY_VERIFY(fixture.root()->height() > 60);
    const QSizeF first = fixture.root()->size();

    fixture.show("empty");
    QVERIFY(fixture.sizeAtOnce.height() < first.height() - 20);
    fixture.show();
    QTRY_COMPARE(fixture.root()->size(), first);
}

void tst_StandardUiSize::ui_leavesNoHole_data()
{
    QTest::addColumn<QByteArray>("nothing");

    QTest::newRow("missing picture")
        << QByteArray("<picture source=\"missing.png\">Caption</picture>");
    QTest::newRow("picture that is a directory")
        << QByteArray("<picture source=\".\">Caption</picture>");
    QTest::newRow("unknown element") << QByteArray("<blink>Text</blink>");
    QTest::newRow("empty text") << QByteArray("<text>  </text>");
    QTest::newRow("empty note") << QByteArray("<note kind=\"tip\"/>");
    QTest::newRow("empty summary") << QByteArray("<summary/>");
    QTest::newRow("missing clip") << QByteArray("<video source=\"missing.mp4\">Caption</video>");
    QTest::newRow("clip that is a directory") << QByteArray("<video source=\".\">Caption</video>");
    QTest::newRow("link to nowhere") << QByteArray("<link>Label</link>");
}

void tst_StandardUiSize::ui_leavesNoHole()
{
    QFETCH(QByteArray, nothing);

    const QByteArray text = "<text>Text</text>";

    QCOMPARE(heightOf(nothing + text + nothing + nothing), heightOf(text));
    QCOMPARE(heightOf(nothing), heightOf(""));
}

void tst_StandardUiSize::ui_scrolls_whenItIsLong()
{
    StandardUiFixture fixture(hint(longText(100)) + "<hintreel key=\"short\" title=\"Short\"/>");
    fixture.show();
    QQuickItem *page = fixture.item("page");
    const auto *bar = page->findChild<QQuickItem *>("scrollBar");

    QVERIFY(fixture.view()->height() <= 0.6 * fixture.view()->screen()->size().height());
    QVERIFY(fixture.view()->height() > 300);
    QVERIFY(page->property("contentHeight").toReal() > fixture.view()->height());
    QVERIFY(bar->isVisible());

    page->setProperty("contentY", 100);
    fixture.show("short");

    QVERIFY(!bar->isVisible());
    QCOMPARE(page->property("contentY").toReal(), 0.0);
}

void tst_StandardUiSize::ui_scalesItsSizes()
{
    StandardUiFixture normal(hint("<picture source=\"good.png\"/>"));
    normal.show();
    const QSize size = normal.view()->size();

    StandardUiFixture doubled(hint("<picture source=\"good.png\"/>"));
    doubled.context.set(scaleKey, 2.0);
    doubled.show();

    QCOMPARE(doubled.view()->width(), 2 * size.width());
    QVERIFY(qAbs(doubled.view()->height() - 2 * size.height()) < 8);
}

void tst_StandardUiSize::simpleUi_isAsWideAsItsText()
{
    StandardUiFixture fixture(hint("<summary>A summary</summary>", "title=\"Pen\" shortcut=\"P\"")
        + "<hintreel key=\"long\" title=\"Pen\"><summary>" + QByteArray(" A summary").repeated(50)
        + "</summary></hintreel>");
    fixture.context.set(simpleTooltipKey, true);

    fixture.show();
    QVERIFY(fixture.view()->width() < 200);
    QVERIFY(fixture.view()->height() < 80);
    QCOMPARE(fixture.text("summary"), QString("A summary"));

    fixture.show("long");
    QVERIFY(fixture.view()->width() > 300);
    QVERIFY(fixture.view()->width() < 500);
}

QTEST_MAIN(tst_StandardUiSize)
#include "tst_StandardUiSize.moc"
