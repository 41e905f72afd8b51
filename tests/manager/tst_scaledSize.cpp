// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/scaledSize_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_scaledSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scaledSize_truncates_data();
    void scaledSize_truncates();
};

void tst_scaledSize::scaledSize_truncates_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("expected");
    QTest::newRow("one") << 1.0F << 7 << 7;
    QTest::newRow("up") << 1.5F << 11 << 16;
    QTest::newRow("towards zero") << 0.5F << -3 << -1;
    QTest::newRow("no scale") << 0.0F << 7 << 7;
    QTest::newRow("single precision") << 1.1F << 10 << 11;
    QTest::newRow("backwards") << -1.5F << 3 << -4;
    QTest::newRow("too large") << 1e30F << 7 << 2147483520;
    QTest::newRow("too small") << -1e30F << 7 << -2147483520;
}

void tst_scaledSize::scaledSize_truncates()
{
    QFETCH(float, scale);
    QFETCH(int, size);
    QTEST(scaledSize(size, scale), "expected");
}

QTEST_APPLESS_MAIN(tst_scaledSize)
#include "tst_scaledSize.moc"
