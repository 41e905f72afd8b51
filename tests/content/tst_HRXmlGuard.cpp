// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlGuard_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRXmlGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusal_isEmpty_untilSomethingIsRefused();
    void allowsElement_asManyAsTextCanHold_data();
    void allowsElement_asManyAsTextCanHold();
    void allowsElement_untilPrefixesCostTooMuch();
    void allowsEntity_refusesDeepParameterEntity();
    void allowsExpansion_knowsParameterEntities();
};

void tst_HRXmlGuard::refusal_isEmpty_untilSomethingIsRefused()
{
    HRXmlGuard guard(10);
    QVERIFY(guard.allowsNesting());
    QVERIFY(guard.allowsElement());
    QVERIFY(guard.allowsEntity("e", "&e;"));
    QCOMPARE(guard.refusal(), QString());

    const QString body("&e;");
    QVERIFY(!guard.allowsBody(body));
    QCOMPARE(guard.refusal(), QString("entities expand to too much text"));
}

void tst_HRXmlGuard::allowsElement_asManyAsTextCanHold_data()
{
    QTest::addColumn<int>("documentSize");
    QTest::addColumn<int>("elements");
    QTest::newRow("small document") << 10 << 50000;
    QTest::newRow("large document") << 400000 << 100000;
}

void tst_HRXmlGuard::allowsElement_asManyAsTextCanHold()
{
    QFETCH(int, documentSize);
    QFETCH(int, elements);
    HRXmlGuard guard(documentSize);
    for (int i = 0; i < elements; ++i)
        QVERIFY(guard.allowsElement());
    QVERIFY(!guard.allowsElement());
}

void tst_HRXmlGuard::allowsElement_untilPrefixesCostTooMuch()
{
    HRXmlGuard guard(10);
    guard.prefixes().enter("p");
    QVERIFY(guard.allowsElement());
    for (int i = 0; i < 20000; ++i)
        guard.prefixes().enter(QString::number(i));
    QVERIFY(!guard.allowsElement());
    QCOMPARE(guard.refusal(), QString("too many or too long namespace prefixes"));
}

void tst_HRXmlGuard::allowsEntity_refusesDeepParameterEntity()
{
    HRXmlGuard guard(10);
    QVERIFY(guard.allowsEntity("e", QString(1000, '(')));
    QVERIFY(guard.allowsEntity("%p", QString(256, '(')));
    QVERIFY(!guard.allowsEntity("%q", QString(257, '(')));
    QCOMPARE(guard.refusal(), QString("elements are nested too deeply"));
}

void tst_HRXmlGuard::allowsExpansion_knowsParameterEntities()
{
    HRXmlGuard guard(10);
    QVERIFY(guard.allowsEntity("%p", QString(5 * 1024 * 1024, 'x')));
    QVERIFY(guard.allowsExpansion("p"));
    QVERIFY(!guard.allowsExpansion("p"));
    QCOMPARE(guard.refusal(), QString("entities expand to too much text"));
}

QTEST_GUILESS_MAIN(tst_HRXmlGuard)
#include "tst_HRXmlGuard.moc"
