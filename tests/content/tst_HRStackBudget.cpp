// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRStackBudget_p.h"

#include <QThread>
#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

#include <ucontext.h>

using namespace Hintreels;

namespace {

void runOnStack(int kibibytes, const std::function<void()> &function)
{
    const std::unique_ptr<QThread> thread(QThread::create(function));
    thread->setStackSize(uint(kibibytes) * 1024);
    thread->start();
    thread->wait();
}

/// Calls a function below frames that are larger than this.
Q_NEVER_INLINE void callBelow(int kibibytes, const std::function<void()> &function)
{
    volatile char frame[1024] = {};
    if (kibibytes > 0)
        callBelow(kibibytes - 1, function);
    else
        function();
    static_cast<void>(frame[0]); // or the frame might go before the call
}

/// Whether the budget is left below frames that are larger than this.
bool isLeftBelow(const HRStackBudget &budget, int kibibytes)
{
    bool isLeft = false;
    callBelow(kibibytes, [&] { isLeft = budget.isLeft(); });
    return isLeft;
}

/// What runs on a stack of its own; makecontext() hands no pointers over.
struct Coroutine
{
    static void run()
    {
        const HRStackBudget budget;
        isLeftBefore = isLeftBelow(budget, 16);
        isLeftBeyond = isLeftBelow(budget, 128);
    }

    static ucontext_t caller;
    static bool isLeftBefore;
    static bool isLeftBeyond;
};

ucontext_t Coroutine::caller;
bool Coroutine::isLeftBefore = false;
bool Coroutine::isLeftBeyond = true;

} // namespace

class tst_HRStackBudget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isLeft_forHalfOfTheThreadsStack_data();
    void isLeft_forHalfOfTheThreadsStack();
    void isLeft_forHalfOfTheRest_whenMadeDeepInTheStack();
    void isLeft_forALittle_onAStackOfTheHostsOwn();
    void isLeft_again_whenStackHasShrunk();
};

void tst_HRStackBudget::isLeft_forHalfOfTheThreadsStack_data()
{
    QTest::addColumn<int>("kibibytes");
    for (const int kibibytes : { 256, 512, 1024, 8192 })
        QTest::newRow(qPrintable(QString("%1 KiB").arg(kibibytes))) << kibibytes;
}

void tst_HRStackBudget::isLeft_forHalfOfTheThreadsStack()
{
    QFETCH(int, kibibytes);
    bool isLeftBefore = false;
    bool isLeftBeyond = true;
    runOnStack(kibibytes, [&] {
        const HRStackBudget budget;
        isLeftBefore = isLeftBelow(budget, kibibytes * 3 / 10);
        isLeftBeyond = isLeftBelow(budget, kibibytes * 6 / 10);
    });
    QVERIFY(isLeftBefore);
    QVERIFY(!isLeftBeyond);
}

void tst_HRStackBudget::isLeft_forHalfOfTheRest_whenMadeDeepInTheStack()
{
    bool isLeftBefore = false;
    bool isLeftBeyond = true;
    runOnStack(1024, [&] {
        callBelow(500, [&] {
            const HRStackBudget budget;
            isLeftBefore = isLeftBelow(budget, 150);
            isLeftBeyond = isLeftBelow(budget, 300);
        });
    });
    QVERIFY(isLeftBefore);
    QVERIFY(!isLeftBeyond);
}

void tst_HRStackBudget::isLeft_forALittle_onAStackOfTheHostsOwn()
{
    ucontext_t coroutine;
    QCOMPARE(getcontext(&coroutine), 0);
    std::vector<char> stack(512 * 1024);
    coroutine.uc_stack.ss_sp = stack.data();
    coroutine.uc_stack.ss_size = stack.size();
    coroutine.uc_link = &Coroutine::caller;
    makecontext(&coroutine, Coroutine::run, 0);
    QCOMPARE(swapcontext(&Coroutine::caller, &coroutine), 0);
    QVERIFY(Coroutine::isLeftBefore);
    QVERIFY(!Coroutine::isLeftBeyond);
}

void tst_HRStackBudget::isLeft_again_whenStackHasShrunk()
{
    bool isLeftBeyond = true;
    bool isLeftAgain = false;
    runOnStack(256, [&] {
        const HRStackBudget budget;
        isLeftBeyond = isLeftBelow(budget, 160);
        isLeftAgain = budget.isLeft();
    });
    QVERIFY(!isLeftBeyond);
    QVERIFY(isLeftAgain);
}

QTEST_GUILESS_MAIN(tst_HRStackBudget)
#include "tst_HRStackBudget.moc"
