// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "widgets/PartsWindow.h"
#include "widgets/partHover_p.h"
#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partName_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

using Attributes = QMap<QString, QString>;

/// Content as it comes from an index.
void fill(HRXmlElement *content, const Attributes &attributes)
{
    for (const char *name : { "key", "HRLocation", "HRPackagName" })
        content->setAttribute(name, "x");
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        it.key().isEmpty() ? content->setContent(it.value())
                           : content->setAttribute(it.key(), it.value());
}

HRPart openEntry(PartsWindow &window)
{
    QMenu &menu = *window.ui.menuFile;
    menu.popup(QPoint(50, 50));
    const QPoint middle = menu.actionGeometry(window.ui.fileOpen).center();
    return partAt(&menu, menu.mapToGlobal(middle));
}

HRPart openButton(PartsWindow &window)
{
    auto *bar = window.ui.toolBar;
    return wholePart(bar->widgetForAction(window.ui.fileOpen));
}

} // namespace

class tst_partHover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_losesMnemonicAndDots_data();
    void text_losesMnemonicAndDots();
    void name_isTheHosts();
    void content_saysMore_data();
    void content_saysMore();
    void element_saysMore();
    void buttonWithIconAlone_saysNothing();
    void title_isThePartsOwn_whereContentHasNone();
    void title_isNot_forPlaces();
    void title_isNot_whereThePartHasNone();
    void key_isAskedOnce_whereAPlaceBearsItToo();
    void content_ofAPlace_counts_whereItCoversItsInside();
    void shortcut_isLive();
};

void tst_partHover::text_losesMnemonicAndDots_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    QTest::newRow("plain") << "Open"
                           << "Open";
    QTest::newRow("mnemonic") << "&Open"
                              << "Open";
    QTest::newRow("ampersand") << "Cut && &Paste"
                               << "Cut & Paste";
    QTest::newRow("dots") << "Open..."
                          << "Open";
    QTest::newRow("ellipsis") << QString("Open\u2026") << "Open";
    QTest::newRow("dots inside") << "a...b"
                                 << "a...b";
    QTest::newRow("bracketed") << "Open (&O)..."
                               << "Open";
    QTest::newRow("with shortcut") << "&Open\tCtrl+O"
                                   << "Open";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_partHover::text_losesMnemonicAndDots()
{
    QFETCH(QString, text);
    QTEST(withoutMnemonic(text), "plain");
}

void tst_partHover::name_isTheHosts()
{
    QObject object;
    for (const char *name : { "", "qt_spinbox_lineedit", "_q_floatbutton" }) {
        object.setObjectName(name);
        QCOMPARE(nameOf(&object), QString());
    }
    for (const char *name : { "size", "my_qt_size", "qty" }) {
        object.setObjectName(name);
        QCOMPARE(nameOf(&object), QString(name));
    }
}

void tst_partHover::content_saysMore_data()
{
    QTest::addColumn<Attributes>("attributes");
    QTest::addColumn<bool>("inMenu");
    QTest::addColumn<bool>("onLabel");
    QTest::newRow("nothing") << Attributes{} << false << false;
    QTest::newRow("same title") << Attributes{ { "title", "Open" } } << false << false;
    QTest::newRow("same in other letters")
        << Attributes{ { "title", "&open..." } } << false << false;
    QTest::newRow("other title") << Attributes{ { "title", "Load" } } << true << true;
    QTest::newRow("help page") << Attributes{ { "documentation", "open" } } << true << true;
    QTest::newRow("blank") << Attributes{ { "", " \n" } } << false << false;
    QTest::newRow("text") << Attributes{ { "", "open" } } << true << true;
    QTest::newRow("covers") << Attributes{ { "covers", "inside" } } << false << false;
    // A menu shows its shortcuts itself.
    QTest::newRow("shortcut") << Attributes{ { "shortcut", "F3" } } << false << true;
}

void tst_partHover::content_saysMore()
{
    QFETCH(Attributes, attributes);
    PartsWindow window;
    HRXmlElement content;
    fill(&content, attributes);
    QTEST(saysMore(content, openEntry(window)), "inMenu");

    HRPart label(&window);
    label.text = "Open";
    label.showsText = true;
    QTEST(saysMore(content, label), "onLabel");
}

void tst_partHover::element_saysMore()
{
    PartsWindow window;
    HRXmlElement content;
    fill(&content, { { "title", "Open" } });
    const HRPart part = openEntry(window);
    QVERIFY(!saysMore(content, part));
    new HRXmlElement(&content);
    QVERIFY(saysMore(content, part));
}

void tst_partHover::buttonWithIconAlone_saysNothing()
{
    PartsWindow window;
    HRXmlElement content;
    fill(&content, { { "title", "Open" } });
    QVERIFY(saysMore(content, openButton(window))); // its shortcut
    window.ui.fileOpen->setShortcut(QKeySequence());
    QVERIFY(!saysMore(content, openButton(window)));
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    window.ui.fileOpen->setIcon(picture);
    QVERIFY(saysMore(content, openButton(window)));
}

void tst_partHover::title_isThePartsOwn_whereContentHasNone()
{
    PartsWindow window;
    const HRHover hover = hoverOf(openEntry(window), QPoint());
    HRXmlElement content;
    hover.completes("fileOpen", content);
    QCOMPARE(content.attribute("title"), QString("Open"));
    content.setAttribute("title", "Load");
    hover.completes("fileOpen", content);
    QCOMPARE(content.attribute("title"), QString("Load"));
}

void tst_partHover::title_isNot_forPlaces()
{
    PartsWindow window;
    HRXmlElement content;
    hoverOf(openEntry(window), QPoint()).completes("PartsWindow", content);
    QVERIFY(!content.hasAttribute("title"));
}

void tst_partHover::title_isNot_whereThePartHasNone()
{
    PartsWindow window;
    HRXmlElement content;
    const HRHover hover = hoverOf(wholePart(window.ui.swatch), QPoint());
    hover.completes(hover.keys.first(), content);
    QVERIFY(!content.hasAttribute("title"));
}

void tst_partHover::key_isAskedOnce_whereAPlaceBearsItToo()
{
    QWidget window;
    window.setObjectName("brew");
    QWidget part(&window);
    part.setObjectName("brew");
    QCOMPARE(hoverOf(wholePart(&part), QPoint()).keys, QStringList({ "brew/brew", "brew" }));
}

void tst_partHover::content_ofAPlace_counts_whereItCoversItsInside()
{
    PartsWindow window;
    const HRHover hover = hoverOf(openEntry(window), QPoint());
    HRXmlElement content;
    fill(&content, { { "title", "Window" } });
    QVERIFY(!hover.accepts("PartsWindow", content));
    QVERIFY(hover.accepts("fileOpen", content));
    content.setAttribute("covers", "inside");
    QVERIFY(hover.accepts("PartsWindow", content));
}

void tst_partHover::shortcut_isLive()
{
    PartsWindow window;
    const HRPart part = openButton(window);
    QCOMPARE(part.shortcut(), QString("Ctrl+O"));
    window.ui.fileOpen->setShortcut(QKeySequence("F3"));
    QCOMPARE(part.shortcut(), QString("F3"));
    window.ui.reset->setShortcut(QKeySequence("Alt+R"));
    QCOMPARE(wholePart(window.ui.reset).shortcut(), QString()); // its mnemonic
    window.ui.reset->setShortcut(QKeySequence("F5"));
    QCOMPARE(wholePart(window.ui.reset).shortcut(), QString("F5"));
}

QTEST_MAIN(tst_partHover)
#include "tst_partHover.moc"
