// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRSmallStart_p.h"

#include <QKeyEvent>
#include <QtTest>

using namespace Hintreels;

namespace {

struct Fixture
{
    void press(int key) { start.followKey(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)); }

    bool rests = true;
    int looks = 0; ///< at the pointer
    int ends = 0;
    HRSmallStart start{ [this] {
                           ++looks;
                           return rests;
                       },
        [this] { ++ends; } };
};

} // namespace

class tst_HRSmallStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginning_ends_whenThePointerRests();
    void beginning_ends_forShift();
    void beginning_isOver_whereItWasNone();
};

void tst_HRSmallStart::beginning_ends_whenThePointerRests()
{
    Fixture f;
    f.rests = false;
    f.start.start();
    QTRY_VERIFY(f.looks >= 2);
    QCOMPARE(f.ends, 0);

    f.rests = true;
    QTRY_COMPARE(f.ends, 1);

    f.press(Qt::Key_Shift);
    QCOMPARE(f.ends, 1);
}

void tst_HRSmallStart::beginning_ends_forShift()
{
    Fixture f;
    f.start.start();
    f.press(Qt::Key_A);
    QCOMPARE(f.ends, 0);
    f.press(Qt::Key_Shift);
    QCOMPARE(f.ends, 1);
}

void tst_HRSmallStart::beginning_isOver_whereItWasNone()
{
    Fixture f;
    f.press(Qt::Key_Shift);
    f.start.end();
    f.start.start();
    f.start.stop();
    f.start.end();
    QCOMPARE(f.ends, 0);
}

QTEST_GUILESS_MAIN(tst_HRSmallStart)
#include "tst_HRSmallStart.moc"
