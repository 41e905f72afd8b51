// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRDirectoryListing_p.h"
#include "files/HRRegularFile_p.h"
#include "support/Descriptors.h"
#include "support/TestPackage.h"
#include "ui/popup/sceneReach_p.h"

#include <QFile>
#include <QtTest>

#include <sys/stat.h>

using namespace Hintreels;

class tst_HRRegularFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opens_regularFilesOnly_data();
    void opens_regularFilesOnly();
    void opens_aListedFile();
    void read_endsWithTheFile();
    void readAll_readsWhatIsThere_data();
    void readAll_readsWhatIsThere();
    void readAll_reads_whatHasGrown();
    void readAll_refuses_whatNoArrayHolds();
    void openRegularFile_closesWhatItCannotUse();
    void resources_areFiles();
};

void tst_HRRegularFile::opens_regularFilesOnly_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("opens");
    QTest::newRow("file") << "a.xml" << true;
    QTest::newRow("link") << "link" << true;
    QTest::newRow("named pipe") << "pipe" << false;
    QTest::newRow("directory") << "" << false;
    QTest::newRow("missing") << "none" << false;
}

void tst_HRRegularFile::opens_regularFilesOnly()
{
    QFETCH(QString, kind);
    QFETCH(bool, opens);
    const TestPackages files;
    const QString path = files.write("a.xml", "text");
    QVERIFY(QFile::link(path, files.path() + "/link"));
    QCOMPARE(::mkfifo(QFile::encodeName(files.path() + "/pipe").constData(), 0600), 0);
    const QString asked = files.path() + '/' + kind;
    const HRRegularFile file(QFile::encodeName(asked));
    QCOMPARE(file.isOpen(), opens);
    QCOMPARE(file.stamp().size, qint64(opens ? 4 : -1));
    QByteArray bytes;
    QCOMPARE(readRegularFile(asked, bytes), opens);
    QCOMPARE(bytes, QByteArray(opens ? "text" : ""));
    QFile qtFile;
    QCOMPARE(openRegularFile(qtFile, asked), opens);
    QCOMPARE(qtFile.isOpen(), opens);
}

void tst_HRRegularFile::opens_aListedFile()
{
    const TestPackages files;
    files.write("a.xml", "first");
    files.write("b.xml", "second");
    const HRDirectoryListing listing(files.path() + '/', ".xml");
    QCOMPARE(listing.files().size(), size_t(2));
    HRRegularFile file(listing, listing.files()[1]);
    QByteArray bytes;
    QVERIFY(file.readAll(bytes));
    QCOMPARE(bytes, QByteArray("second"));
}

void tst_HRRegularFile::read_endsWithTheFile()
{
    const TestPackages files;
    HRRegularFile file(QFile::encodeName(files.write("a.xml", "text")));
    char buffer[3];
    QCOMPARE(file.read(buffer, sizeof buffer), qint64(3));
    QCOMPARE(QByteArray(buffer, 3), QByteArray("tex"));
    QCOMPARE(file.read(buffer, sizeof buffer), qint64(1));
    QCOMPARE(buffer[0], 't');
    QCOMPARE(file.read(buffer, sizeof buffer), qint64(0));
}

void tst_HRRegularFile::readAll_readsWhatIsThere_data()
{
    QTest::addColumn<int>("size");
    for (int size : { 0, 1, 4095, 4096, 1 << 20 })
        QTest::addRow("%d bytes", size) << size;
}

void tst_HRRegularFile::readAll_readsWhatIsThere()
{
    QFETCH(int, size);
    const TestPackages files;
    QByteArray content(size, 'x');
    if (size > 0)
        content[size - 1] = 'y';
    HRRegularFile file(QFile::encodeName(files.write("a.xml", content)));
    QByteArray bytes("what stood there before");
    QVERIFY(file.readAll(bytes));
    QCOMPARE(bytes, content);
}

void tst_HRRegularFile::readAll_reads_whatHasGrown()
{
    const TestPackages files;
    HRRegularFile file(QFile::encodeName(files.write("a.xml", "a")));
    const QByteArray content = QByteArray("0123456789").repeated(1000);
    files.write("a.xml", content);
    QByteArray bytes;
    QVERIFY(file.readAll(bytes));
    QCOMPARE(bytes, content);
}

void tst_HRRegularFile::readAll_refuses_whatNoArrayHolds()
{
    const TestPackages files;
    QFile large(files.write("a.xml", "<hintreels/>"));
    QVERIFY(large.resize(600'000'000)); // of which the disk holds but the first bytes
    HRRegularFile file(QFile::encodeName(large.fileName()));
    QVERIFY(file.isOpen());
    QByteArray bytes("what stood there before");
    QVERIFY(!file.readAll(bytes));
    QCOMPARE(bytes, QByteArray("what stood there before"));
}

void tst_HRRegularFile::openRegularFile_closesWhatItCannotUse()
{
    const TestPackages files;
    const QString path = files.write("a.xml", "text");
    QFile file(files.write("b.xml", "other"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList descriptors = openDescriptors();
    QTest::ignoreMessage(
        QtWarningMsg, qPrintable("QFile::open: File (" + file.fileName() + ") already open"));
    QVERIFY(!openRegularFile(file, path));
    QCOMPARE(openDescriptors(), descriptors);
    QCOMPARE(file.readAll(), QByteArray("other"));
}

void tst_HRRegularFile::resources_areFiles()
{
    const QString resource = builtInUi(false);
    QByteArray bytes;
    QVERIFY(readRegularFile(resource, bytes));
    QVERIFY(bytes.contains("import QtQuick"));
    QFile file;
    QVERIFY(openRegularFile(file, resource));
    QVERIFY(!readRegularFile(":/none", bytes));
    QVERIFY(!openRegularFile(file, ":/none"));
}

QTEST_APPLESS_MAIN(tst_HRRegularFile)
#include "tst_HRRegularFile.moc"
