// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRStackBudget_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

/// Whether the budget is left below a frame that is larger than this.
Q_NEVER_INLINE bool isLeftBelow(const HRStackBudget &budget, int kibibytes)
{
    volatile char frame[1024] = {};
    const bool isLeft = kibibytes > 0 ? isLeftBelow(budget, kibibytes - 1) : budget.isLeft();
    return frame[0] == 0 && isLeft;
}

} // namespace

class tst_HRStackBudget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isLeft_untilStackHasGrown();
    void isLeft_again_whenStackHasShrunk();
};

void tst_HRStackBudget::isLeft_untilStackHasGrown()
{
    const HRStackBudget budget(64 * 1024);
    QVERIFY(budget.isLeft());
    QVERIFY(isLeftBelow(budget, 4));
    QVERIFY(!isLeftBelow(budget, 64));
}

void tst_HRStackBudget::isLeft_again_whenStackHasShrunk()
{
    const HRStackBudget budget(64 * 1024);
    QVERIFY(!isLeftBelow(budget, 64));
    QVERIFY(budget.isLeft());
}

QTEST_GUILESS_MAIN(tst_HRStackBudget)
#include "tst_HRStackBudget.moc"
