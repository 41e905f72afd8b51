// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/externalResource_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_externalResource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void externalResourceType_tellsKinds_data();
    void externalResourceType_tellsKinds();
    void mayStrangersOpen_namesAndAddresses_data();
    void mayStrangersOpen_namesAndAddresses();
};

void tst_externalResource::externalResourceType_tellsKinds_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<int>("type");
    QTest::newRow("web address") << "https://example.org/a" << int(resourceUrl);
    QTest::newRow("mail address") << "mailto:a@example.org" << int(resourceUrl);
    QTest::newRow("relative path") << "help/index.html" << int(resourcePath);
    QTest::newRow("absolute path") << "/usr/share/doc" << int(resourcePath);
    QTest::newRow("name") << "intro" << int(resourceName);
    QTest::newRow("empty") << "" << int(resourceName);
    QTest::newRow("invalid URL with a slash") << "http://a b/c" << int(resourcePath);
    QTest::newRow("invalid URL without a slash") << "mailto:a b" << int(resourceName);
}

void tst_externalResource::externalResourceType_tellsKinds()
{
    QFETCH(QString, resource);
    QTEST(int(externalResourceType(resource)), "type");
}

void tst_externalResource::mayStrangersOpen_namesAndAddresses_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<bool>("may");
    QTest::newRow("web address") << "http://example.org/a" << true;
    QTest::newRow("web address, encrypted") << "https://example.org/a" << true;
    QTest::newRow("mail address") << "mailto:a@example.org" << true;
    QTest::newRow("name") << "intro" << true;
    QTest::newRow("relative path") << "help/index.html" << false;
    QTest::newRow("absolute path") << "/usr/bin/env" << false;
    QTest::newRow("file") << "file:///usr/bin/env" << false;
    QTest::newRow("script") << "javascript:alert(1)" << false;
    QTest::newRow("address of another kind") << "ftp://example.org/a" << false;
    QTest::newRow("invalid web address") << "http://a b/c" << false;
}

void tst_externalResource::mayStrangersOpen_namesAndAddresses()
{
    QFETCH(QString, resource);
    QTEST(mayStrangersOpen(resource), "may");
}

QTEST_APPLESS_MAIN(tst_externalResource)
#include "tst_externalResource.moc"
