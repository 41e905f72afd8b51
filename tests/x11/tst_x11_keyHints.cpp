// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/KeysFixture.h"
#include "x11/RealInput.h"

#include <QHelpEvent>
#include <QQuickItem>
#include <QWhatsThis>

using namespace Hintreels;

namespace {

QRect areaOf(const QWidget &widget)
{
    return { widget.mapToGlobal(QPoint(0, 0)), widget.size() };
}

} // namespace

/// What keys do to hints in a window that has the focus, on a real X server.
class tst_x11_keyHints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { RealInput::movePointer(QPoint(1000, 700)); }
    void hint_standsBesideWhatHasTheFocus();
    void hint_isThatOfTheCurrentItem();
    void hint_staysWhereverThePointerIs();
    void hint_stays_wherePointerHasBroughtIt();
    void hint_goes_whenTheFocusLeaves();
    void hint_comes_withTheFocusAlone();
    void keyboard_walksThroughTheHint();
    void keyboard_leaves_whenTheHintGoes();
    void command_isTheHosts_insideTheHint();
    void escape_isUsedUp_whileAPaintedHintShows();
    void escape_isTheHosts_withoutTheSetting();
    void escape_isUsedUp_whileItIsHeldDown();
    void whatsThis_isReplaced_whereThereIsContent();
    void ctrl_takesTheHintAway_whenItIsPressedAlone();
    void hint_isNotEntered_whenPressesComeLate();
    void nothingHappens_withoutTheShortcut();
};

void tst_x11_keyHints::hint_standsBesideWhatHasTheFocus()
{
    KeysFixture f;
    QVERIFY(f.show());
    QCOMPARE(f.shown(), QString("red"));
    QVERIFY(!areaOf(*f.popup()).intersects(areaOf(f.red).adjusted(-2, -2, 2, 2)));
    QVERIFY(areaOf(*f.popup()).intersects(areaOf(f.red).adjusted(-8, -8, 8, 8)));
    QCOMPARE(QApplication::focusWidget(), &f.red);
}

void tst_x11_keyHints::hint_isThatOfTheCurrentItem()
{
    KeysFixture f;
    f.list.setFocus();
    f.list.setCurrentRow(1);
    QVERIFY(f.show());
    QCOMPARE(f.shown(), QString("list/two"));
    f.key(Qt::Key_Up);
    QVERIFY(!f.showsPopup());
    QVERIFY(f.show());
    QCOMPARE(f.shown(), QString("list/one"));
}

void tst_x11_keyHints::hint_staysWhereverThePointerIs()
{
    KeysFixture f({ { hideDelayKey, 1 } });
    QVERIFY(f.show());
    const HRHideTimer &timer = HRWidgetPrivate::of(*f.popup()).hideTimer;
    f.popup()->checkMousePosition(QPoint(2000, 2000));
    f.popup()->setTimer();
    f.popup()->checkMousePosition(QPoint(2000, 2000));
    QVERIFY(!timer.isRunning());

    const QPoint position = f.field.mapToGlobal(QPoint(4, 4));
    QHelpEvent rest(QEvent::ToolTip, QPoint(4, 4), position);
    QVERIFY(QCoreApplication::sendEvent(&f.field, &rest));
    QCOMPARE(f.shown(), QString("red"));

    f.popup()->hide();
    QVERIFY(QCoreApplication::sendEvent(&f.field, &rest));
    QCOMPARE(f.shown(), QString("field"));
    f.popup()->checkMousePosition(QPoint(2000, 2000));
    QVERIFY(timer.isRunning());
}

void tst_x11_keyHints::hint_stays_wherePointerHasBroughtIt()
{
    KeysFixture f;
    f.list.setFocus();
    f.list.setCurrentRow(0);
    QWidget *viewport = f.list.viewport();
    const QPoint position = f.list.visualItemRect(f.list.item(0)).center();
    QHelpEvent rest(QEvent::ToolTip, position, viewport->mapToGlobal(position));
    QCoreApplication::sendEvent(viewport, &rest);
    QCOMPARE(f.shown(), QString("list/one"));
    QVERIFY(!HRWidgetPrivate::of(*f.popup()).held);
    f.hintKey();
    QCOMPARE(f.shown(), QString("list/one"));
    QVERIFY(HRWidgetPrivate::of(*f.popup()).held);
}

void tst_x11_keyHints::hint_goes_whenTheFocusLeaves()
{
    KeysFixture f;
    QVERIFY(f.show());
    f.field.setFocus();
    QVERIFY(!f.showsPopup());

    f.list.setFocus();
    f.list.setCurrentRow(0);
    f.host->context().set(nativeDismissalKey, false);
    QVERIFY(f.show());
    f.key(Qt::Key_Down);
    QVERIFY(!f.showsPopup());
}

void tst_x11_keyHints::hint_comes_withTheFocusAlone()
{
    KeysFixture f({ { hintOnFocusKey, true } });
    f.field.setFocus();
    QTRY_COMPARE(f.shown(), QString("field"));
    f.plain.setFocus();
    QVERIFY(!f.showsPopup());
    f.red.setFocus();
    QTRY_COMPARE(f.shown(), QString("red"));
}

void tst_x11_keyHints::keyboard_walksThroughTheHint()
{
    KeysFixture f;
    f.field.setFocus();
    QVERIFY(f.show());
    f.hintKey();
    QCOMPARE(f.shown(), QString("field"));
    f.key(Qt::Key_A);
    f.key(Qt::Key_Tab);
    f.key(Qt::Key_Space);
    f.key(Qt::Key_Tab);
    f.key(Qt::Key_Down);
    f.key(Qt::Key_Backtab, Qt::ShiftModifier);
    f.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(f.typed().filter(QRegularExpression("65$|32$|" + QString::number(Qt::Key_Down))),
        (QStringList{ f.typed("page", Qt::Key_A), f.typed("first", Qt::Key_Space),
            f.typed("second", Qt::Key_Down) }));
    QVERIFY(f.typed().contains(f.typed("first", Qt::Key_C)));
    QCOMPARE(f.field.text(), QString());
    QVERIFY(f.dialog.isActiveWindow());
    QCOMPARE(QApplication::focusWidget(), &f.field);

    f.hintKey();
    QVERIFY(f.showsPopup());
    f.hintKey();
    f.key(Qt::Key_Escape);
    QVERIFY(f.showsPopup());
    f.key(Qt::Key_A);
    QCOMPARE(f.field.text(), QString("a"));
    QVERIFY(!f.showsPopup());
}

void tst_x11_keyHints::keyboard_leaves_whenTheHintGoes()
{
    KeysFixture f;
    f.field.setFocus();
    QVERIFY(f.show());
    f.hintKey();
    f.popup()->hide();
    f.key(Qt::Key_A);
    QCOMPARE(f.field.text(), QString("a"));
    QVERIFY(f.typed().isEmpty());
}

void tst_x11_keyHints::command_isTheHosts_insideTheHint()
{
    KeysFixture f;
    f.field.setFocus();
    f.field.setText("text");
    QVERIFY(f.show());
    f.hintKey();
    f.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(f.field.selectedText(), QString("text"));
}

void tst_x11_keyHints::escape_isUsedUp_whileAPaintedHintShows()
{
    KeysFixture f;
    QVERIFY(f.show());
    f.hintKey();
    f.key(Qt::Key_Escape);
    QVERIFY(f.showsPopup());
    f.key(Qt::Key_Escape);
    QVERIFY(!f.showsPopup());
    QVERIFY(f.dialog.isVisible());

    f.hintKey();
    QVERIFY(f.showsPopup());
    QVERIFY(!f.isPainted());
    f.key(Qt::Key_Escape);
    QVERIFY(!f.dialog.isVisible());
}

void tst_x11_keyHints::escape_isTheHosts_withoutTheSetting()
{
    KeysFixture f({ { dismissalByEscapeKey, false } });
    QVERIFY(f.show());
    f.hintKey();
    f.key(Qt::Key_Escape);
    QVERIFY(f.showsPopup());
    QVERIFY(f.dialog.isVisible());
    f.key(Qt::Key_Escape);
    QVERIFY(!f.dialog.isVisible());
}

void tst_x11_keyHints::escape_isUsedUp_whileItIsHeldDown()
{
    KeysFixture f;
    QVERIFY(f.show());
    f.send(QEvent::ShortcutOverride, Qt::Key_Escape);
    f.send(QEvent::KeyPress, Qt::Key_Escape);
    QVERIFY(!f.showsPopup());
    for (const QEvent::Type type :
        { QEvent::KeyRelease, QEvent::ShortcutOverride, QEvent::KeyPress })
        f.send(type, Qt::Key_Escape, Qt::NoModifier, true);
    f.send(QEvent::KeyRelease, Qt::Key_Escape);
    QVERIFY(f.dialog.isVisible());
    f.key(Qt::Key_Escape);
    QVERIFY(!f.dialog.isVisible());
}

void tst_x11_keyHints::whatsThis_isReplaced_whereThereIsContent()
{
    KeysFixture f;
    const auto qtsTexts = [] {
        int count = 0;
        for (const QWidget *window : QApplication::topLevelWidgets())
            count += window->inherits("QWhatsThat") && window->isVisible();
        return count;
    };
    f.plain.setWhatsThis("Plain");
    f.plain.setFocus();
    f.hintKey();
    QCOMPARE(qtsTexts(), 1);
    QWhatsThis::hideText();

    f.field.setWhatsThis("Field");
    f.field.setFocus();
    QVERIFY(f.show());
    QCOMPARE(f.shown(), QString("field"));
    QCOMPARE(qtsTexts(), 0);
}

void tst_x11_keyHints::ctrl_takesTheHintAway_whenItIsPressedAlone()
{
    KeysFixture f({ { nativeDismissalKey, false } });
    QVERIFY(f.show());
    f.key(Qt::Key_Control);
    QVERIFY(f.showsPopup());
    f.host->context().set(dismissalByCtrlKey, true);
    f.send(QEvent::KeyPress, Qt::Key_Control);
    f.key(Qt::Key_K, Qt::ControlModifier);
    f.send(QEvent::KeyRelease, Qt::Key_Control);
    QVERIFY(f.showsPopup());
    f.key(Qt::Key_Control);
    QVERIFY(!f.showsPopup());
}

/// Where assistive technology is at work, Qt asks it about each press, but not about the news of it
/// that comes before.
void tst_x11_keyHints::hint_isNotEntered_whenPressesComeLate()
{
    KeysFixture f;
    f.send(QEvent::ShortcutOverride, Qt::Key_F1, Qt::ShiftModifier);
    QTRY_VERIFY(f.isPainted());
    f.send(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    f.send(QEvent::KeyPress, Qt::Key_F1, Qt::ShiftModifier);
    f.send(QEvent::KeyRelease, Qt::Key_F1, Qt::ShiftModifier);
    f.key(Qt::Key_A);
    QCOMPARE(f.typed(), QStringList());
    QVERIFY(!f.showsPopup());
}

void tst_x11_keyHints::nothingHappens_withoutTheShortcut()
{
    KeysFixture f({ { hintShortcutKey, QString() } });
    f.hintKey();
    QVERIFY(!f.showsPopup());
}

QTEST_MAIN(tst_x11_keyHints)
#include "tst_x11_keyHints.moc"
