// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlRecords_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRControlRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void records_areTriedInOrder();
    void records_areKeptOnce_forPathAndDepth();
};

namespace {

QStringList described(HRControlRecords &records)
{
    QStringList all;
    for (const HRControlRecord &record : records)
        all.append(record.path() + ' ' + QString::number(record.depth));
    return all;
}

} // namespace

void tst_HRControlRecords::records_areTriedInOrder()
{
    HRControlRecords records;
    records.addFirst({ "/a", 1 });
    records.addLast({ "/b", 1 });
    records.addFirst({ "/c", 1 });
    QCOMPARE(described(records), QStringList({ "/c 1", "/a 1", "/b 1" }));
}

void tst_HRControlRecords::records_areKeptOnce_forPathAndDepth()
{
    HRControlRecords records;
    QVERIFY(records.addFirst({ "/a", 1 }));
    QVERIFY(!records.addFirst({ "/a", 1 }));
    QVERIFY(!records.addLast({ "/a", 1 }));
    QVERIFY(records.addLast({ "/a", 2 }));
    QCOMPARE(described(records), QStringList({ "/a 1", "/a 2" }));
}

QTEST_GUILESS_MAIN(tst_HRControlRecords)
#include "tst_HRControlRecords.moc"
