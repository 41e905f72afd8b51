// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiEntries.h"
#include "ui/StandardUiFixture.h"
#include "ui/reader/readableColor_p.h"

#include <QAccessible>
#include <QFile>
#include <QRegularExpression>

using namespace Hintreels;

namespace {

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

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor("#2b2d30"));
    palette.setColor(QPalette::WindowText, QColor("#dfe1e5"));
    palette.setColor(QPalette::Base, QColor("#1e1f22"));
    palette.setColor(QPalette::Highlight, QColor("#3574f0"));
    return palette;
}

} // namespace

class tst_StandardUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ui_loadsWithoutTrouble_data();
    void ui_loadsWithoutTrouble();
    void ui_showsTheNextHint_inTheSameScene();
    void ui_takesBackStayOpen_whenTheNextHintComes();
    void ui_translatesThenInterpolates();
    void ui_speaksTheReadersLanguage();
    void ui_keepsItsWords_whenDetached();
    void ui_offersDocumentation_data();
    void ui_offersDocumentation();
    void ui_opensLinks_data();
    void ui_opensLinks();
    void ui_detaches_whenThePinIsPressed();
    void ui_followsTheHostsPalette_data();
    void ui_followsTheHostsPalette();
    void ui_isMirrored_whenTheLocaleIsWrittenFromRightToLeft();
    void keyboard_reachesEveryLink_whenDetached();
    void keyboard_scrolls_whenDetached();
    void accessibility_namesWhatCanBePressed();
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
    fixture.makeAll();
    QVERIFY(itemWithText(fixture, "Does it."));
    fixture.host->setGlobalProperty("quality", "feine");
    fixture.translations["Does it."] = "Macht es.";
    fixture.popup->hide();
    fixture.show();
    fixture.makeAll();

    QCOMPARE(fixture.text("summary"), QString("Zeichnet eine feine Linie."));
    QVERIFY(itemWithText(fixture, "Tipp"));
    QVERIFY(itemWithText(fixture, "Note"));
    QVERIFY(itemWithText(fixture, "Macht es."));
    QVERIFY(fixture.host->requested.contains("Content:Does it."));
    QVERIFY(fixture.host->requested.contains("StandardUI:Tip"));
}

void tst_StandardUi::ui_speaksTheReadersLanguage()
{
    StandardUiFixture fixture(hint("", "title=\"Pen\" shortcut=\"Ctrl+Shift+L\""), "de_AT");
    fixture.show();
    QCOMPARE(
        fixture.item("pin")->property("name").toString(), QString("In einem Fenster offen halten"));
    QVERIFY(itemWithText(fixture, "Strg"));
    QVERIFY(itemWithText(fixture, "Umschalt"));
    QVERIFY(itemWithText(fixture, "L"));
    fixture.popup->hide();

    fixture.translations = { { "Keep open in a window", "Anheften" } };
    fixture.show();

    QCOMPARE(fixture.item("pin")->property("name").toString(), QString("Anheften"));
}

void tst_StandardUi::ui_keepsItsWords_whenDetached()
{
    StandardUiFixture fixture(hint(everything));
    fixture.translations = { { "Tip", "Tipp" } };
    fixture.show();
    fixture.makeAll();

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
    fixture.makeAll();

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
    fixture.makeAll();
    const auto centerOf = [&](const QQuickItem *item) {
        return item->mapToScene({ item->width() / 2, 0 }).x();
    };

    QVERIFY(centerOf(fixture.item("pin")) < fixture.root()->width() / 4);
    QVERIFY(centerOf(fixture.item("title")) > fixture.root()->width() / 2);
    QVERIFY(centerOf(fixture.item("shortcut")) < centerOf(fixture.item("title")));
    QVERIFY(centerOf(itemWithText(fixture, "Ctrl")) < centerOf(itemWithText(fixture, "P")));
    QVERIFY(centerOf(itemWithText(fixture, "There")) > fixture.root()->width() / 2);
}

void tst_StandardUi::keyboard_reachesEveryLink_whenDetached()
{
    StandardUiFixture fixture(hint(everything, "title=\"Pen\" documentation=\"pen\""));
    fixture.show();
    fixture.makeAll();
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
    fixture.makeAll();

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
