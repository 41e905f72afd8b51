// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/StandardUiEntries.h"
#include "ui/StandardUiFixture.h"
#include "ui/popup/HRPopupKeyboard_p.h"
#include "ui/reader/HRContentReader_p.h"

#include <QAccessible>
#include <QClipboard>
#include <QQmlContext>

using namespace Hintreels;

namespace {

/// A hint with one block of each kind, and a clip, whose reader has no pointer.
struct KeyFixture : StandardUiFixture
{
    KeyFixture()
        : StandardUiFixture(hint("<video source='clip.mp4' width='320'/>" + everything,
            "title=\"Pen\" documentation=\"pen\""))
    {
        context.set(reducedMotionKey, true);
        TestClip().write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
    }

    ~KeyFixture() { keyboard.leave(); }

    void show()
    {
        StandardUiFixture::show();
        QTRY_VERIFY(hasItem("clipButton"));
        makeAll();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        keyboard.type(QKeyEvent(QEvent::KeyPress, key, modifiers));
        keyboard.type(QKeyEvent(QEvent::KeyRelease, key, modifiers));
    }

    QStringList stops()
    {
        QStringList names;
        for (int i = 0; i < 6; ++i) {
            press(Qt::Key_Tab);
            names.append(nameOf(focused()));
        }
        return names;
    }

    QQuickItem *focused() const
    {
        const auto *reader
            = view()->rootContext()->contextProperty("hintreelReader").value<HRContentReader *>();
        return reader->focusItem();
    }

    static QString nameOf(QQuickItem *item)
    {
        return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name);
    }

    HRPopupKeyboard keyboard;
};

} // namespace

/// The standard user interface without a pointer.
class tst_StandardUiKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tab_goesThroughAllControls_thePinFirst();
    void clip_isPlayedByKeys();
    void control_isFocusable_whereTheKeyboardIs();
    void focus_isToldToAssistiveTechnology();
    void control_isLargeEnough_data();
    void control_isLargeEnough();
    void text_isCopied_asWhatIsSelected();
    void text_isCopied_asAWhole();
    void text_isCopied_fromTheSimpleUi();
};

void tst_StandardUiKeys::tab_goesThroughAllControls_thePinFirst()
{
    KeyFixture fixture;
    fixture.show();
    fixture.keyboard.enter(*fixture.popup);
    QCOMPARE(fixture.focused(), fixture.item("page"));
    QCOMPARE(fixture.stops(),
        (QStringList{ "Keep open in a window", "Play", "Position in the clip", "link", "There",
            "Documentation" }));
    fixture.press(Qt::Key_Tab);
    QCOMPARE(KeyFixture::nameOf(fixture.focused()), QString("Keep open in a window"));
    fixture.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(KeyFixture::nameOf(fixture.focused()), QString("Documentation"));
    fixture.press(Qt::Key_Tab);
    fixture.press(Qt::Key_Return);
    QVERIFY(fixture.view()->reserved());
}

void tst_StandardUiKeys::clip_isPlayedByKeys()
{
    KeyFixture fixture;
    fixture.show();
    fixture.keyboard.enter(*fixture.popup);
    fixture.press(Qt::Key_Tab);
    fixture.press(Qt::Key_Tab);
    fixture.press(Qt::Key_Space);
    QVERIFY(fixture.item("clip")->property("wanted").toBool());
}

void tst_StandardUiKeys::control_isFocusable_whereTheKeyboardIs()
{
    KeyFixture fixture;
    fixture.show();
    const auto isFocusable = [&] {
        return QAccessible::queryAccessibleInterface(fixture.item("pin"))->state().focusable;
    };
    QVERIFY(!isFocusable());
    fixture.keyboard.enter(*fixture.popup);
    QVERIFY(isFocusable());
    fixture.keyboard.leave();
    QVERIFY(!isFocusable());
}

void tst_StandardUiKeys::focus_isToldToAssistiveTechnology()
{
    KeyFixture fixture;
    fixture.show();
    const auto isFocused = [&](const char *name) {
        return QAccessible::queryAccessibleInterface(fixture.item(name))->state().focused;
    };
    fixture.keyboard.enter(*fixture.popup);
    QVERIFY(!isFocused("pin"));
    fixture.press(Qt::Key_Tab);
    QVERIFY(isFocused("pin"));
    QVERIFY(!isFocused("clipButton"));
    fixture.press(Qt::Key_Tab);
    QVERIFY(!isFocused("pin"));
    QVERIFY(isFocused("clipButton"));
}

void tst_StandardUiKeys::control_isLargeEnough_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("as designed") << 1.0;
    QTest::newRow("half as large") << 0.5;
}

void tst_StandardUiKeys::control_isLargeEnough()
{
    QFETCH(double, scale);
    KeyFixture fixture;
    fixture.context.set(scaleKey, scale);
    fixture.show();
    fixture.keyboard.enter(*fixture.popup);
    int controls = 0;
    for (const QQuickItem *item : itemsBelow(fixture.root())) {
        const bool isInText
            = qobject_cast<const QQuickItem *>(item->parentItem())->inherits("QQuickTextEdit");
        if (!item->activeFocusOnTab() || isInText)
            continue;
        ++controls;
        QVERIFY2(item->width() >= 24 && item->height() >= 24, qPrintable(item->objectName()));
    }
    QCOMPARE(controls, 5);
}

void tst_StandardUiKeys::text_isCopied_asWhatIsSelected()
{
    KeyFixture fixture;
    fixture.show();
    fixture.keyboard.enter(*fixture.popup);
    for (QQuickItem *item : itemsBelow(fixture.root())) {
        if (!item->inherits("QQuickTextEdit"))
            continue;
        item->forceActiveFocus();
        QMetaObject::invokeMethod(item, "select", Q_ARG(int, 0), Q_ARG(int, 4));
        break;
    }
    fixture.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("Some"));
}

void tst_StandardUiKeys::text_isCopied_asAWhole()
{
    KeyFixture fixture;
    fixture.show();
    fixture.keyboard.enter(*fixture.popup);
    for (int i = 0; i < 5; ++i) { // the page, and what Tab reaches
        QGuiApplication::clipboard()->clear();
        fixture.press(Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith("Pen\n\nDraws a"), qPrintable(copied));
        fixture.press(Qt::Key_Tab);
    }
}

void tst_StandardUiKeys::text_isCopied_fromTheSimpleUi()
{
    StandardUiFixture fixture(hint("<summary>Draws.</summary>"));
    fixture.context.set(simpleTooltipKey, true);
    fixture.show();
    HRPopupKeyboard keyboard;
    keyboard.enter(*fixture.popup);
    QVERIFY(fixture.root()->property("focused").toBool());
    keyboard.type(QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier));
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("Pen\n\nDraws."));
    keyboard.leave();
    QVERIFY(!fixture.root()->property("focused").toBool());
}

QTEST_MAIN(tst_StandardUiKeys)
#include "tst_StandardUiKeys.moc"
