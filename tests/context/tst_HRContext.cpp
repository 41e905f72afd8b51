// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void get_returnsDefault_whenKeyIsAbsent();
    void get_returnsStoredValue_evenWhenInvalid();
    void get_insertsNothing();
    void set_emitsBothSignalsAroundTheChange();
    void set_emitsAgain_whenValueIsUnchanged();
    void copy_sharesSettingsOnly();
    void assignment_replacesSettingsInSilence();
    void keys_ascend();
    void metaObject_namesKeyType();
    void keys_haveFixedNumbers_data();
    void keys_haveFixedNumbers();
};

void tst_HRContext::get_returnsDefault_whenKeyIsAbsent()
{
    const HRContext context;
    QCOMPARE(context.get(scaleKey, 1.5), QVariant(1.5));
    QVERIFY(!context.get(scaleKey, QVariant()).isValid());
}

void tst_HRContext::get_returnsStoredValue_evenWhenInvalid()
{
    HRContext context;
    context.set(scaleKey, QVariant());
    QVERIFY(context.contains(scaleKey));
    QVERIFY(!context.get(scaleKey, 2.0).isValid());
}

void tst_HRContext::get_insertsNothing()
{
    HRContext context;
    context.get(scaleKey, 2.0);
    QVERIFY(!context.contains(scaleKey));
    QVERIFY(context.keys().isEmpty());
}

void tst_HRContext::set_emitsBothSignalsAroundTheChange()
{
    HRContext context;
    QVector<QPair<QString, QVariant>> events;
    connect(&context, &HRContext::settingWillChange, this, [&](const HRContextKey &key) {
        events.append({ "will", context.get(key, "absent") });
    });
    connect(&context, &HRContext::settingDidChange, this, [&](const HRContextKey &key) {
        events.append({ "did", context.get(key, "absent") });
    });

    context.set(localeKey, "de_DE");

    const QVector<QPair<QString, QVariant>> expected{ { "will", "absent" }, { "did", "de_DE" } };
    QCOMPARE(events, expected);
}

void tst_HRContext::set_emitsAgain_whenValueIsUnchanged()
{
    HRContext context;
    context.set(localeKey, "de_DE");
    QSignalSpy will(&context, &HRContext::settingWillChange);
    QSignalSpy did(&context, &HRContext::settingDidChange);

    context.set(localeKey, "de_DE");

    QCOMPARE(will.count(), 1);
    QCOMPARE(did.count(), 1);
    QCOMPARE(did.first().first().toInt(), int(localeKey));
}

void tst_HRContext::copy_sharesSettingsOnly()
{
    QObject parent;
    HRContext source(&parent);
    source.set(localeKey, "de_DE");
    QSignalSpy sourceSpy(&source, &HRContext::settingDidChange);
    HRContext copy(source);
    QSignalSpy copySpy(&copy, &HRContext::settingDidChange);

    copy.set(localeKey, "fr_FR");

    QCOMPARE(copy.parent(), nullptr);
    QCOMPARE(source.get(localeKey, {}).toString(), QString("de_DE"));
    QCOMPARE(sourceSpy.count(), 0);
    QCOMPARE(copySpy.count(), 1);
}

void tst_HRContext::assignment_replacesSettingsInSilence()
{
    HRContext source;
    source.set(localeKey, "de_DE");
    HRContext target;
    target.set(scaleKey, 2.0);
    QSignalSpy spy(&target, &HRContext::settingDidChange);

    target = source;

    QCOMPARE(target.keys(), QList<int>{ localeKey });
    QCOMPARE(spy.count(), 0);
}

void tst_HRContext::keys_ascend()
{
    HRContext context;
    for (int key : { 38, 10, 25 })
        context.set(key, true);
    QCOMPARE(context.keys(), (QList<int>{ 10, 25, 38 }));
}

void tst_HRContext::metaObject_namesKeyType()
{
    const QMetaObject &meta = HRContext::staticMetaObject;
    for (const char *signature :
        { "settingWillChange(HRContextKey)", "settingDidChange(HRContextKey)" }) {
        const QMetaMethod method = meta.method(meta.indexOfSignal(signature));
        QCOMPARE(method.parameterTypes(), QList<QByteArray>{ "HRContextKey" });
        QCOMPARE(method.parameterNames(), QList<QByteArray>{ "key" });
    }
}

void tst_HRContext::keys_haveFixedNumbers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("number");
    QTest::newRow("hideDelay") << int(hideDelayKey) << 2;
    QTest::newRow("applicationName") << int(applicationNameKey) << 5;
    QTest::newRow("indexFileName") << int(indexFileNameKey) << 8;
    QTest::newRow("packageSuffix") << int(packageSuffixKey) << 10;
    QTest::newRow("simpleUiFile") << int(simpleUiFileKey) << 13;
    QTest::newRow("resourceDirectory") << int(resourceDirectoryKey) << 16;
    QTest::newRow("fallbackKey") << int(fallbackKeyKey) << 23;
    QTest::newRow("keyDataFile") << int(keyDataFileKey) << 30;
    QTest::newRow("scale") << int(scaleKey) << 38;
    QTest::newRow("reducedMotion") << int(reducedMotionKey) << 39;
    QTest::newRow("forbidSoftwareRenderer") << int(forbidSoftwareRendererKey) << 10003;
}

void tst_HRContext::keys_haveFixedNumbers()
{
    QFETCH(int, key);
    QTEST(key, "number");
}

QTEST_APPLESS_MAIN(tst_HRContext)
#include "tst_HRContext.moc"
