// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"
#include "ui/reader/readableColor_p.h"

#include <QAccessible>
#include <QFile>
#include <QRegularExpression>

using namespace Hintreels;

namespace {

QByteArray hint(const QByteArray &blocks, const QByteArray &attributes = "title=\"Pen\"")
{
    return "<hintreel key=\"key\" " + attributes + ">" + blocks + "</hintreel>";
}

int heightOf(const QByteArray &blocks)
{
    StandardUiFixture fixture(hint(blocks));
    fixture.show();
    return fixture.view()->height();
}

QQuickItem *itemWithText(const StandardUiFixture &fixture, const QString &text)
{
    const QList<QQuickItem *> items = itemsBelow(fixture.root());
    const auto found = std::find_if(items.begin(), items.end(),
        [&](const QQuickItem *item) { return item->property("text").toString() == text; });
    return found == items.end() ? nullptr : *found;
}

/// The colour of the panel on which an item stands.
QColor backgroundOf(const QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        const QColor color = item->property("color").value<QColor>();
        if (item->inherits("QQuickRectangle") && color.alpha() == 255)
            return color;
    }
    return {};
}

QByteArray longText(int paragraphs)
{
    QByteArray text = "<text><![CDATA[";
    for (int i = 0; i < paragraphs; ++i)
        text += "A paragraph among many.\n\n";
    return text + "[the end](far/below)]]></text>";
}

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor("#2b2d30"));
    palette.setColor(QPalette::WindowText, QColor("#dfe1e5"));
    palette.setColor(QPalette::Base, QColor("#1e1f22"));
    palette.setColor(QPalette::Highlight, QColor("#3574f0"));
    return palette;
}

const QByteArray everything
    = "\n"
      "<summary>Draws a %(quality)s line.</summary>\n"
      "<text><![CDATA[Some **bold** text, a [link](inside/text) and `code`.\n"
      "\n"
      "      - a list]]></text>\n"
      "<keys press=\"Ctrl+K, Shift+Drag\">Does it.</keys>\n"
      "<keys press=\"Ctrl+Alt+Shift+Page Down, Ctrl+Alt+Shift+Page Up\">Does it, too.</keys>\n"
      "<picture source=\"good.png\" alt=\"A picture\" width=\"100\">A caption</picture>\n"
      "<note kind=\"tip\">A tip</note>\n"
      "<note>A note</note>\n"
      "<note kind=\"warning\">A warning</note>\n"
      "<note kind=\"something\">Something</note>\n"
      "<link to=\"https://example.org/there\">There</link>\n"
      "\n";

} // namespace

class tst_StandardUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ui_loadsWithoutTrouble_data();
    void ui_loadsWithoutTrouble();
    void ui_keepsItsWidth_andGrowsInHeight();
    void ui_asksNoBlockForAWidth_data();
    void ui_asksNoBlockForAWidth();
    void ui_hasItsSizeAtOnce_data();
    void ui_hasItsSizeAtOnce();
    void ui_hasItsSize_onceFilesAreMeasured_data();
    void ui_hasItsSize_onceFilesAreMeasured();
    void ui_leavesNoHole_data();
    void ui_leavesNoHole();
    void ui_scrolls_whenTheScreenIsTooSmall();
    void ui_showsTheNextHint_inTheSameScene();
    void ui_takesBackStayOpen_whenTheNextHintComes();
    void ui_translatesThenInterpolates();
    void ui_keepsItsWords_whenDetached();
    void ui_offersDocumentation_data();
    void ui_offersDocumentation();
    void ui_opensLinks_data();
    void ui_opensLinks();
    void ui_detaches_whenThePinIsPressed();
    void ui_followsTheHostsPalette_data();
    void ui_followsTheHostsPalette();
    void ui_isMirrored_whenTheLocaleIsWrittenFromRightToLeft();
    void ui_scalesItsSizes();
    void keyboard_reachesEveryLink_whenDetached();
    void keyboard_scrolls_whenDetached();
    void accessibility_namesWhatCanBePressed();
    void simpleUi_isAsWideAsItsText();
    void example_isShownWithoutTrouble_data();
    void example_isShownWithoutTrouble();
};

void tst_StandardUi::cleanup()
{
    QGuiApplication::setPalette(QPalette());
}

void tst_StandardUi::ui_loadsWithoutTrouble_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("simple");

    const QByteArray attributes = "title=\"Pen\" shortcut=\"Ctrl+P\" documentation=\"tools/pen\"";
    for (const bool simple : { false, true }) {
        const char *ui = simple ? "simple" : "full";
        QTest::addRow("everything, %s", ui) << hint(everything, attributes) << simple;
        QTest::addRow("title only, %s", ui) << hint("") << simple;
        QTest::addRow("nothing at all, %s", ui) << hint("", "") << simple;
        QTest::addRow("shortcut only, %s", ui) << hint("", "shortcut=\"F1\"") << simple;
        QTest::addRow("broken picture, %s", ui)
            << hint("<picture source=\"broken.png\"/>") << simple;
        QTest::addRow("missing picture, %s", ui)
            << hint("<picture source=\"missing.png\"/>") << simple;
        QTest::addRow("text around unknown elements, %s", ui)
            << hint("<text>a<b>c</b>d</text><b/>") << simple;
    }
}

void tst_StandardUi::ui_loadsWithoutTrouble()
{
    QFETCH(QByteArray, entry);
    QFETCH(bool, simple);
    StandardUiFixture fixture(entry);
    fixture.context.set(simpleTooltipKey, simple);

    fixture.show();

    QCOMPARE(fixture.troubles(), QStringList());
    QTRY_COMPARE(
        fixture.view()->size(), QSizeF(fixture.root()->width(), fixture.root()->height()).toSize());
}

void tst_StandardUi::ui_keepsItsWidth_andGrowsInHeight()
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

void tst_StandardUi::ui_asksNoBlockForAWidth_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("text") << QByteArray("<text>A text</text>");
    QTest::newRow("note") << QByteArray("<note>A note</note>");
    QTest::newRow("keys") << QByteArray("<keys press=\"A\">Does it.</keys>");
    QTest::newRow("link") << QByteArray("<link to=\"page\">There</link>");
}

/// Where it does, Qt lays a text out twice more: without wrapping, and again as it was.
void tst_StandardUi::ui_asksNoBlockForAWidth()
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

void tst_StandardUi::ui_hasItsSizeAtOnce_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("text") << QByteArray("<text>- Some\n- text</text>");
    QTest::newRow("keys") << QByteArray("<keys press=\"Ctrl+A\">Does it.</keys>");
    QTest::newRow("note") << QByteArray("<note>A note\n\nof two paragraphs</note>");
    QTest::newRow("link") << QByteArray("<link to=\"page\">There</link>");
}

void tst_StandardUi::ui_hasItsSizeAtOnce()
{
    QFETCH(QByteArray, block);
    StandardUiFixture fixture(hint(block) + "<hintreel key=\"empty\"/>");

    fixture.show();
    const QSizeF first = fixture.sizeAtOnce;
    QTest::qWait(50);
    QCOMPARE(fixture.root()->size(), first);
    QVERIFY(first.height() > 60);

    fixture.show("empty");
    QVERIFY(fixture.sizeAtOnce.height() < first.height() - 20);
    fixture.show();
    QCOMPARE(fixture.sizeAtOnce, first);
}

void tst_StandardUi::ui_hasItsSize_onceFilesAreMeasured_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("picture") << QByteArray("<picture source=\"good.png\">Caption</picture>");
    QTest::newRow("video") << QByteArray("<video source=\"clip.mp4\">Caption</video>");
}

void tst_StandardUi::ui_hasItsSize_onceFilesAreMeasured()
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

void tst_StandardUi::ui_leavesNoHole_data()
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

void tst_StandardUi::ui_leavesNoHole()
{
    QFETCH(QByteArray, nothing);

    const QByteArray text = "<text>Text</text>";

    QCOMPARE(heightOf(nothing + text + nothing + nothing), heightOf(text));
    QCOMPARE(heightOf(nothing), heightOf(""));
}

void tst_StandardUi::ui_scrolls_whenTheScreenIsTooSmall()
{
    StandardUiFixture fixture(hint(longText(100)) + "<hintreel key=\"short\" title=\"Short\"/>");
    fixture.show();
    QQuickItem *page = fixture.item("page");
    const auto *bar = page->findChild<QQuickItem *>("scrollBar");

    QVERIFY(fixture.view()->height() <= fixture.view()->screen()->availableGeometry().height());
    QVERIFY(fixture.view()->height() > 400);
    QVERIFY(page->property("contentHeight").toReal() > fixture.view()->height());
    QVERIFY(bar->isVisible());

    page->setProperty("contentY", 100);
    fixture.show("short");

    QVERIFY(!bar->isVisible());
    QCOMPARE(page->property("contentY").toReal(), 0.0);
}

void tst_StandardUi::ui_showsTheNextHint_inTheSameScene()
{
    StandardUiFixture fixture(hint(everything)
        + "<hintreel key=\"next\" title=\"Line\" shortcut=\"L\">\n"
          "<summary>Next</summary></hintreel>\n");
    fixture.show();
    const QPointer<QQuickItem> scene = fixture.root();

    fixture.show("next");

    QCOMPARE(fixture.root(), scene.data());
    QCOMPARE(fixture.text("title"), QString("Line"));
    QCOMPARE(fixture.text("summary"), QString("Next"));
    QCOMPARE(fixture.item("shortcut")->property("shortcut").toString(), QString("L"));
    QCOMPARE(fixture.item("blocks")->height(), 0.0);
}

void tst_StandardUi::ui_takesBackStayOpen_whenTheNextHintComes()
{
    StandardUiFixture fixture(hint("") + "<hintreel key=\"next\" title=\"Line\"/>");
    fixture.show();
    fixture.view()->setStayOpen(true);

    fixture.show("next");

    QVERIFY(!fixture.view()->stayOpen());
}

void tst_StandardUi::ui_translatesThenInterpolates()
{
    StandardUiFixture fixture(hint(everything));
    fixture.translations = { { "Draws a %(quality)s line.", "Zeichnet eine %(quality)s Linie." },
        { "Tip", "Tipp" } };
    fixture.show();
    QVERIFY(itemWithText(fixture, "Does it."));
    fixture.host->setGlobalProperty("quality", "feine");
    fixture.translations["Does it."] = "Macht es.";
    fixture.popup->hide();
    fixture.show();

    QCOMPARE(fixture.text("summary"), QString("Zeichnet eine feine Linie."));
    QVERIFY(itemWithText(fixture, "Tipp"));
    QVERIFY(itemWithText(fixture, "Note"));
    QVERIFY(itemWithText(fixture, "Macht es."));
    QVERIFY(fixture.host->requested.contains("Content:Does it."));
    QVERIFY(fixture.host->requested.contains("StandardUI:Tip"));
}

void tst_StandardUi::ui_keepsItsWords_whenDetached()
{
    StandardUiFixture fixture(hint(everything));
    fixture.translations = { { "Tip", "Tipp" } };
    fixture.show();

    fixture.host->translations.clear();
    fixture.view()->setReserved(true);
    QGuiApplication::setPalette(darkPalette());
    QCoreApplication::processEvents();

    QVERIFY(itemWithText(fixture, "Tipp"));
}

void tst_StandardUi::ui_offersDocumentation_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<bool>("available");
    QTest::addColumn<bool>("offered");

    const QByteArray documented = "title=\"Pen\" documentation=\"pen\"";
    QTest::newRow("offered") << documented << true << true;
    QTest::newRow("not available in the host") << documented << false << false;
    QTest::newRow("not in the content") << QByteArray("title=\"Pen\"") << true << false;
    QTest::newRow("empty in the content")
        << QByteArray("title=\"Pen\" documentation=\" \"") << true << false;
}

void tst_StandardUi::ui_offersDocumentation()
{
    QFETCH(QByteArray, attributes);
    QFETCH(bool, available);
    QFETCH(bool, offered);
    StandardUiFixture fixture(hint("", attributes));
    fixture.context.set(allowNamedResourcesKey, available);

    fixture.show();

    const QQuickItem *documentation = fixture.item("documentation");
    QCOMPARE(documentation->isVisible(), offered);
    if (!offered)
        return;
    fixture.click(documentation);
    QCOMPARE(
        fixture.host->openedResources, (QList<QPair<int, QString>>{ { resourceName, "pen" } }));
    fixture.host->context().set(allowNamedResourcesKey, false);
    QVERIFY(!documentation->isVisible());
}

void tst_StandardUi::ui_opensLinks_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("resource");

    QTest::newRow("link to a URL") << QByteArray("<link to=\"https://example.org\">Label</link>")
                                   << int(resourceUrl) << "https://example.org";
    QTest::newRow("link without a label")
        << QByteArray("<link to=\"page\"/>") << int(resourceName) << "page";
    QTest::newRow("link in text") << QByteArray("<text>[Label](some/path)</text>")
                                  << int(resourcePath) << "some/path";
    QTest::newRow("link in a note")
        << QByteArray("<note>[Label](page)</note>") << int(resourceName) << "page";
}

void tst_StandardUi::ui_opensLinks()
{
    QFETCH(QByteArray, block);
    QFETCH(int, type);
    QFETCH(QString, resource);
    StandardUiFixture fixture(hint(block));
    fixture.show();

    const QList<QQuickItem *> items = itemsBelow(fixture.item("blocks"));
    const auto link = std::find_if(items.begin(), items.end(), [](QQuickItem *item) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        return accessible && accessible->role() == QAccessible::Link;
    });
    QVERIFY(link != items.end());
    fixture.click(*link);

    QCOMPARE(fixture.host->openedResources, (QList<QPair<int, QString>>{ { type, resource } }));
}

void tst_StandardUi::ui_detaches_whenThePinIsPressed()
{
    StandardUiFixture fixture(hint(everything));
    fixture.show();
    const QPointer<HRWidget> popup = fixture.popup;
    QVERIFY(fixture.item("pin")->isVisible());

    fixture.click(fixture.item("pin"));

    QVERIFY(fixture.view()->reserved());
    QVERIFY(popup->isVisible());
    QVERIFY(fixture.host->manager()->widget() != popup);
    QVERIFY(!fixture.item("pin")->isVisible());
}

void tst_StandardUi::ui_followsTheHostsPalette_data()
{
    QTest::addColumn<QPalette>("palette");

    QTest::newRow("light") << QPalette(QColor("#efefef"));
    QTest::newRow("dark") << darkPalette();
    QTest::newRow("middle grey") << QPalette(QColor("#808080"));
}

void tst_StandardUi::ui_followsTheHostsPalette()
{
    QFETCH(QPalette, palette);
    StandardUiFixture fixture(
        hint(everything, "title=\"Pen\" shortcut=\"P\" documentation=\"pen\""));
    fixture.show();

    QGuiApplication::setPalette(palette);

    QCOMPARE(fixture.root()->property("color").value<QColor>(), palette.color(QPalette::Window));
    int texts = 0;
    for (const QQuickItem *item : itemsBelow(fixture.root())) {
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        if (!isText || item->property("text").toString().isEmpty())
            continue;
        const QColor color = item->property("color").value<QColor>();
        const qreal contrast = contrastRatio(color, backgroundOf(item->parentItem()));
        QVERIFY2(contrast >= 4.5,
            qPrintable(item->property("text").toString() + QString(" %1").arg(contrast)));
        ++texts;
    }
    QVERIFY(texts > 15);
}

void tst_StandardUi::ui_isMirrored_whenTheLocaleIsWrittenFromRightToLeft()
{
    StandardUiFixture fixture(hint(everything, "title=\"Pen\" shortcut=\"Ctrl+P\""), "he_IL");
    fixture.show();
    const auto centerOf = [&](const QQuickItem *item) {
        return item->mapToScene({ item->width() / 2, 0 }).x();
    };

    QVERIFY(centerOf(fixture.item("pin")) < fixture.root()->width() / 4);
    QVERIFY(centerOf(fixture.item("title")) > fixture.root()->width() / 2);
    QVERIFY(centerOf(fixture.item("shortcut")) < centerOf(fixture.item("title")));
    QVERIFY(centerOf(itemWithText(fixture, "Ctrl")) < centerOf(itemWithText(fixture, "P")));
    QVERIFY(centerOf(itemWithText(fixture, "There")) > fixture.root()->width() / 2);
}

void tst_StandardUi::ui_scalesItsSizes()
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

void tst_StandardUi::keyboard_reachesEveryLink_whenDetached()
{
    StandardUiFixture fixture(hint(everything, "title=\"Pen\" documentation=\"pen\""));
    fixture.show();
    HRView *view = fixture.view();
    view->setReserved(true);
    view->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), view);

    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(view, Qt::Key_Tab);
        QTest::keyClick(view, Qt::Key_Return);
    }

    QCOMPARE(fixture.host->openedResources,
        (QList<QPair<int, QString>>{ { resourcePath, "inside/text" },
            { resourceUrl, "https://example.org/there" }, { resourceName, "pen" } }));
}

void tst_StandardUi::keyboard_scrolls_whenDetached()
{
    StandardUiFixture fixture(hint(longText(100)));
    fixture.show();
    HRView *view = fixture.view();
    view->setReserved(true);
    view->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), view);
    const QQuickItem *page = fixture.item("page");
    const auto top = [page] { return page->property("contentY").toReal(); };

    QTest::keyClick(view, Qt::Key_Down);
    QVERIFY(top() > 0);
    QTest::keyClick(view, Qt::Key_PageUp);
    QCOMPARE(top(), 0.0);
    QTest::keyClick(view, Qt::Key_End);
    const qreal end = top();
    QVERIFY(end > 500);
    QTest::keyClick(view, Qt::Key_Home);
    QCOMPARE(top(), 0.0);
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(top() > end - 50);
}

void tst_StandardUi::accessibility_namesWhatCanBePressed()
{
    StandardUiFixture fixture(hint(everything, "title=\"Pen\" documentation=\"pen\""));
    fixture.show();

    QStringList names;
    for (QQuickItem *item : itemsBelow(fixture.root())) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        const auto role = accessible ? accessible->role() : QAccessible::NoRole;
        if (item->isVisible() && (role == QAccessible::Link || role == QAccessible::Button))
            names.append(accessible->text(QAccessible::Name));
    }
    names.sort();

    QCOMPARE(names, (QStringList{ "Documentation", "Keep open in a window", "There", "link" }));
}

void tst_StandardUi::simpleUi_isAsWideAsItsText()
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

void tst_StandardUi::example_isShownWithoutTrouble_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("blocks");

    QTest::newRow("pen") << "toolPen" << 7;
    QTest::newRow("undo") << "editUndo" << 0;
}

void tst_StandardUi::example_isShownWithoutTrouble()
{
    QFETCH(QString, key);
    QFETCH(int, blocks);
    QFile document(HINTREELS_SOURCE_DIR "/docs/content-format.md");
    QVERIFY(document.open(QIODevice::ReadOnly));
    const QRegularExpression fence(
        "```xml\n(<\\?xml.*?)```", QRegularExpression::DotMatchesEverythingOption);
    const QString example = fence.match(QString::fromUtf8(document.readAll())).captured(1);
    QVERIFY(!example.isEmpty());
    StandardUiFixture fixture(hint(""));
    fixture.packages.write("Painter.hintreels/Control/en_US.xml", example.toUtf8());
    fixture.packages.write("Painter.hintreels/Resources/pen.png", png());
    TestClip().write(fixture.packages.path() + "/Painter.hintreels/Resources/pen.mp4");

    fixture.show(key);

    QCOMPARE(fixture.troubles(), QStringList());
    const auto shown = [&fixture] {
        const QList<QQuickItem *> items = fixture.item("blocks")->childItems();
        return int(std::count_if(items.begin(), items.end(),
            [](const QQuickItem *block) { return block->height() > 0; }));
    };
    QTRY_COMPARE(shown(), blocks);
}

QTEST_MAIN(tst_StandardUi)
#include "tst_StandardUi.moc"
