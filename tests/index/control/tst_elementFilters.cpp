// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndex.h"
#include "index/control/elementFilters_p.h"

#include <QXmlAttributes>
#include <QtTest>

using namespace Hintreels;

class tst_elementFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filters_answer_data();
    void filters_answer();
};

void tst_elementFilters::filters_answer_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("attribute"); // its value is "pen"
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("content");
    QTest::addColumn<int>("keyData");
    QTest::newRow("root") << "hintreels"
                          << ""
                          << "pen" << 1 << 1 << 12;
    QTest::newRow("wanted entry") << "hintreel"
                                  << "key"
                                  << "pen" << 1 << 3 << 12;
    QTest::newRow("other entry") << "hintreel"
                                 << "key"
                                 << "Pen" << 1 << 12 << 12;
    QTest::newRow("entry without key") << "hintreel"
                                       << "name"
                                       << "pen" << 1 << 12 << 12;
    QTest::newRow("entry without key for no key") << "hintreel"
                                                  << "name"
                                                  << "" << 1 << 12 << 12;
    QTest::newRow("key-data root") << "hintreelkeys"
                                   << ""
                                   << "pen" << 4 << 12 << 1;
    QTest::newRow("wanted key data") << "key"
                                     << "name"
                                     << "pen" << 4 << 12 << 3;
    QTest::newRow("other key data") << "key"
                                    << "name"
                                    << "line" << 4 << 12 << 12;
    QTest::newRow("key data without name") << "key"
                                           << "key"
                                           << "pen" << 4 << 12 << 12;
    QTest::newRow("any other") << "title"
                               << "key"
                               << "pen" << 4 << 12 << 12;
    QTest::newRow("prefixed") << "x:hintreel"
                              << "key"
                              << "pen" << 4 << 12 << 12;
    QTest::newRow("capital") << "Hintreel"
                             << "key"
                             << "pen" << 4 << 12 << 12;
}

void tst_elementFilters::filters_answer()
{
    QFETCH(QString, tag);
    QFETCH(QString, attribute);
    QFETCH(QString, wanted);
    QXmlAttributes attributes;
    attributes.append(attribute, QString(), attribute, "pen");
    QTEST(HRIndex::indexDataShouldGenerateElement(tag, attributes, nullptr), "index");
    QTEST(generateContentElement(tag, attributes, &wanted), "content");
    QTEST(generateKeyDataElement(tag, attributes, &wanted), "keyData");
}

QTEST_GUILESS_MAIN(tst_elementFilters)
#include "tst_elementFilters.moc"
