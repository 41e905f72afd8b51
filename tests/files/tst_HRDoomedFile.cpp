// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRDoomedFile_p.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QtTest>

using namespace Hintreels;

class tst_HRDoomedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void remove_deletes_unlessReplaced_data();
    void remove_deletes_unlessReplaced();
    void remove_deletesNothing_whereTheFileIsGone_data();
    void remove_deletesNothing_whereTheFileIsGone();
};

void tst_HRDoomedFile::remove_deletes_unlessReplaced_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("not replaced") << false << false;
    QTest::newRow("replaced before it is held") << true << false;
    QTest::newRow("replaced while it is held") << false << true;
}

void tst_HRDoomedFile::remove_deletes_unlessReplaced()
{
    QFETCH(bool, before);
    QFETCH(bool, after);
    const TestPackages files;
    const QString path = files.write("a", "damaged");
    const QString other = files.write("b", "new");
    QFile opened(path);
    QVERIFY(opened.open(QIODevice::ReadOnly));
    const auto stamp = stampOfFile(QFile::encodeName(path));
    QVERIFY(stamp);
    const auto replace = [&] { return ::rename(qPrintable(other), qPrintable(path)) == 0; };
    QVERIFY(!before || replace());
    HRDoomedFile file(path, *stamp);
    QVERIFY(!after || replace());
    file.remove();
    QCOMPARE(QFile::exists(path), before || after);
}

void tst_HRDoomedFile::remove_deletesNothing_whereTheFileIsGone_data()
{
    QTest::addColumn<bool>("before");
    QTest::newRow("before it is held") << true;
    QTest::newRow("while it is held") << false;
}

void tst_HRDoomedFile::remove_deletesNothing_whereTheFileIsGone()
{
    QFETCH(bool, before);
    const TestPackages files;
    const QString path = files.write("a", "damaged");
    const auto stamp = stampOfFile(QFile::encodeName(path));
    QVERIFY(stamp);
    QVERIFY(!before || QFile::remove(path));
    HRDoomedFile file(path, *stamp);
    QVERIFY(before || QFile::remove(path));
    if (before)
        files.write("a", "new");
    file.remove();
    QCOMPARE(QFile::exists(path), before);
}

QTEST_APPLESS_MAIN(tst_HRDoomedFile)
#include "tst_HRDoomedFile.moc"
