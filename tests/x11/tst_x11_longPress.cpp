// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/KeysFixture.h"

#include <QStyleHints>
#include <QTimer>

using namespace Hintreels;

namespace {

auto *finger()
{
    static auto *device = QTest::createTouchDevice();
    return device;
}

} // namespace

/// A finger on the screen; the device is Qt Test's.
class tst_x11_longPress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longPress_showsAHint_andClicksNothing();
    void tapBeside_takesItAway();
    void shortPress_clicks();
    void movedFinger_showsNothing();
};

void tst_x11_longPress::longPress_showsAHint_andClicksNothing()
{
    KeysFixture f;
    QSignalSpy clicked(&f.red, &QPushButton::clicked);
    const QPoint middle = f.red.rect().center();
    QTest::touchEvent(&f.red, finger()).press(0, middle, &f.red);
    QVERIFY(f.red.isDown());
    QTRY_COMPARE(f.shown(), QString("red"));
    QTest::touchEvent(&f.red, finger()).release(0, middle, &f.red);
    QCOMPARE(f.shown(), QString("red"));
    QVERIFY(!f.red.isDown());
    QCOMPARE(clicked.size(), 0);
    QVERIFY(!HRWidgetPrivate::of(*f.popup()).hideTimer.isRunning());
}

void tst_x11_longPress::tapBeside_takesItAway()
{
    KeysFixture f;
    const QPoint middle = f.red.rect().center();
    QTest::touchEvent(&f.red, finger()).press(0, middle, &f.red);
    QTRY_VERIFY(f.showsPopup());
    QTest::touchEvent(&f.red, finger()).release(0, middle, &f.red);
    QTest::touchEvent(&f.plain, finger()).press(0, QPoint(4, 4), &f.plain);
    QTest::touchEvent(&f.plain, finger()).release(0, QPoint(4, 4), &f.plain);
    QVERIFY(!f.showsPopup());
    QCOMPARE(QApplication::focusWidget(), &f.plain);
}

void tst_x11_longPress::shortPress_clicks()
{
    KeysFixture f;
    QSignalSpy clicked(&f.red, &QPushButton::clicked);
    QTest::touchEvent(&f.red, finger()).press(0, QPoint(4, 4), &f.red);
    QTest::touchEvent(&f.red, finger()).release(0, QPoint(4, 4), &f.red);
    QCOMPARE(clicked.size(), 1);
}

void tst_x11_longPress::movedFinger_showsNothing()
{
    KeysFixture f;
    QStyleHints *hints = QGuiApplication::styleHints();
    QTest::touchEvent(&f.field, finger()).press(0, QPoint(4, 4), &f.field);
    QTest::touchEvent(&f.field, finger()).move(0, QPoint(60, 4), &f.field);
    // What comes after a rest as long as this one shows that nothing came.
    bool isOver = false;
    QTimer::singleShot(hints->mousePressAndHoldInterval() + 1, this, [&] { isOver = true; });
    QTRY_VERIFY(isOver);
    QVERIFY(!f.showsPopup());
    QTest::touchEvent(&f.field, finger()).release(0, QPoint(60, 4), &f.field);
}

QTEST_MAIN(tst_x11_longPress)
#include "tst_x11_longPress.moc"
