// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRHeldLocks_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRHeldLocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void take_followsTheOrder_data();
    void take_followsTheOrder();
    void take_looksAtAllThatIsHeld();
    void take_allowsALockThatIsHeld();
    void take_refusesAnotherOfTheSameKind();
    void release_letsGoOnce();
    void release_ofWhatIsNotHeld_letsNothingGo();
    void take_endsWhereItsRoomDoes();
};

namespace {

// Where the locks lie; only that they differ counts.
constexpr int mutexes[3] = {};
constexpr const void *first = &mutexes[0];
constexpr const void *second = &mutexes[1];
constexpr const void *third = &mutexes[2];

} // namespace

Q_DECLARE_METATYPE(Hintreels::HRLock)

void tst_HRHeldLocks::take_followsTheOrder_data()
{
    QTest::addColumn<HRLock>("held");
    QTest::addColumn<HRLock>("lock");
    QTest::addColumn<bool>("allowed");
    const char *const names[] = { "controller", "decoder", "frame", "state", "status", "queue" };
    // One row for each that is held, one letter for each that is taken then.
    const char *const allowed[] = {
        "--fs-q", // controller
        "---stq", // decoder
        "-----q", // frame
        "-----q", // state
        "-----q", // status
        "------", // queue
    };
    for (int held = 0; held < 6; ++held) {
        for (int lock = 0; lock < 6; ++lock) {
            QTest::addRow("%s, then %s", names[held], names[lock])
                << HRLock(held) << HRLock(lock) << (allowed[held][lock] != '-');
        }
    }
}

void tst_HRHeldLocks::take_followsTheOrder()
{
    QFETCH(HRLock, held);
    QFETCH(HRLock, lock);
    HRHeldLocks locks;
    QVERIFY(locks.take(first, held));
    QTEST(locks.take(second, lock), "allowed");
}

void tst_HRHeldLocks::take_looksAtAllThatIsHeld()
{
    HRHeldLocks locks;
    QVERIFY(locks.take(first, HRLock::controller));
    QVERIFY(locks.take(second, HRLock::frame));
    QVERIFY(!locks.take(third, HRLock::state)); // the controller's alone would allow it
    locks.release(second);
    QVERIFY(locks.take(third, HRLock::state));
}

void tst_HRHeldLocks::take_allowsALockThatIsHeld()
{
    HRHeldLocks locks;
    QVERIFY(locks.take(first, HRLock::controller));
    QVERIFY(locks.take(second, HRLock::frame));
    QVERIFY(locks.take(first, HRLock::controller));
}

void tst_HRHeldLocks::take_refusesAnotherOfTheSameKind()
{
    HRHeldLocks locks;
    QVERIFY(locks.take(first, HRLock::frame));
    QVERIFY(!locks.take(second, HRLock::frame));
}

void tst_HRHeldLocks::release_letsGoOnce()
{
    HRHeldLocks locks;
    QVERIFY(locks.take(first, HRLock::queue));
    QVERIFY(locks.take(first, HRLock::queue));
    locks.release(first);
    QVERIFY(!locks.take(second, HRLock::controller));
    locks.release(first);
    QVERIFY(locks.take(second, HRLock::controller));
}

void tst_HRHeldLocks::release_ofWhatIsNotHeld_letsNothingGo()
{
    HRHeldLocks locks;
    locks.release(first);
    QVERIFY(locks.take(first, HRLock::queue));
    locks.release(second);
    QVERIFY(!locks.take(second, HRLock::controller));
}

void tst_HRHeldLocks::take_endsWhereItsRoomDoes()
{
    HRHeldLocks locks;
    for (int i = 0; i < 16; ++i)
        QVERIFY(locks.take(first, HRLock::state));
    QVERIFY(!locks.take(first, HRLock::state));
}

QTEST_GUILESS_MAIN(tst_HRHeldLocks)
#include "tst_HRHeldLocks.moc"
