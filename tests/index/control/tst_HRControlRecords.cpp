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
    void records_areKeptApart_howeverMany();
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

void tst_HRControlRecords::records_areKeptApart_howeverMany()
{
    HRControlRecords records;
    for (const bool isNew : { true, false }) {
        for (int i = 0; i < 3000; ++i) {
            const QString name = '/' + QString::number(i % 1000);
            QCOMPARE(records.addFirst({ "/a" + QString::number(i / 1000) + name, 1 }), isNew);
        }
    }
    QCOMPARE(described(records).size(), 3000);
    QCOMPARE(described(records).first(), QString("/a2/999 1"));
}

QTEST_GUILESS_MAIN(tst_HRControlRecords)
#include "tst_HRControlRecords.moc"
