// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/setting_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_setting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setting_isTheDefault_whenAbsent();
    void setting_isTheDefault_withoutContext();
    void setting_isConverted_below10000_data();
    void setting_isConverted_below10000();
    void setting_isIgnored_from10000_whenTypeDiffers_data();
    void setting_isIgnored_from10000_whenTypeDiffers();
};

void tst_setting::setting_isTheDefault_whenAbsent()
{
    const HRContext context;
    for (const bool standard : { false, true }) {
        QCOMPARE(setting(context, simpleTooltipKey, standard), standard);
        QCOMPARE(setting(context, forbidSoftwareRendererKey, standard), standard);
    }
}

void tst_setting::setting_isTheDefault_withoutContext()
{
    HRContext context;
    context.set(simpleTooltipKey, true);
    QCOMPARE(setting(&context, simpleTooltipKey, false), true);
    const HRContext *none = nullptr;
    for (const bool standard : { false, true })
        QCOMPARE(setting(none, simpleTooltipKey, standard), standard);
}

void tst_setting::setting_isConverted_below10000_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("value");
    QTest::newRow("bool") << QVariant(true) << true;
    QTest::newRow("int") << QVariant(1) << true;
    QTest::newRow("string") << QVariant("true") << true;
    QTest::newRow("invalid") << QVariant() << false;
}

void tst_setting::setting_isConverted_below10000()
{
    QFETCH(QVariant, stored);
    HRContext context;
    context.set(simpleTooltipKey, stored);
    QTEST(setting(context, simpleTooltipKey, true), "value");
}

void tst_setting::setting_isIgnored_from10000_whenTypeDiffers_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("bool") << QVariant(true) << true;
    QTest::newRow("int") << QVariant(1) << false;
    QTest::newRow("double") << QVariant(1.0) << false;
    QTest::newRow("string") << QVariant("true") << false;
    QTest::newRow("list") << QVariant(QStringList{ "true" }) << false;
    QTest::newRow("invalid") << QVariant() << false;
    QTest::newRow("null bool") << QVariant(QVariant::Bool) << true;
}

void tst_setting::setting_isIgnored_from10000_whenTypeDiffers()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, isRead);
    HRContext context;
    context.set(forbidSoftwareRendererKey, stored);
    for (const bool standard : { false, true })
        QCOMPARE(setting(context, forbidSoftwareRendererKey, standard),
            isRead ? stored.toBool() : standard);
}

QTEST_APPLESS_MAIN(tst_setting)
#include "tst_setting.moc"
