// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRFileStamp_p.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>

using namespace Hintreels;

class tst_HRFileStamp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stamps_differ_data();
    void stamps_differ();
    void stampOfFile_isThatOfTheFile();
    void stampOfFile_takesRegularFilesOnly();
    void stampOfFile_takesNamesInWhateverScript();
    void stamp_settles_data();
    void stamp_settles();
};

namespace {

constexpr qint64 second = 1'000'000'000;
constexpr qint64 longestStep = 2'500'000'000;

} // namespace

void tst_HRFileStamp::stamps_differ_data()
{
    QTest::addColumn<int>("field");
    for (int field = 0; field < 5; ++field)
        QTest::addRow("field %d", field) << field;
}

void tst_HRFileStamp::stamps_differ()
{
    QFETCH(int, field);
    const HRFileStamp stamp{ 1, 2, 3, 4, 5 };
    HRFileStamp other = stamp;
    QVERIFY(other == stamp);
    QVERIFY(!(other != stamp));
    other = { 1 + quint64(field == 0), 2 + quint64(field == 1), 3 + qint64(field == 2),
        4 + qint64(field == 3), 5 + qint64(field == 4) };
    QVERIFY(other != stamp);
    QVERIFY(!(other == stamp));
}

void tst_HRFileStamp::stampOfFile_isThatOfTheFile()
{
    const TestPackages files;
    const QString path = files.write("a.xml", "12345");
    struct stat status;
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
    const auto stamp = stampOfFile(QFile::encodeName(path));
    QVERIFY(stamp);
    QCOMPARE(stamp->size, qint64(5));
    QCOMPARE(stamp->inode, quint64(status.st_ino));
    QCOMPARE(stamp->device, quint64(status.st_dev));
    QCOMPARE(stamp->modified, status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec);
    QCOMPARE(stamp->changed, status.st_ctim.tv_sec * second + status.st_ctim.tv_nsec);
    QVERIFY(stampOfFile(files.path() + '/', "a.xml") == stamp);
}

void tst_HRFileStamp::stampOfFile_takesRegularFilesOnly()
{
    const TestPackages files;
    const QString path = files.write("a.xml", "");
    const QString pipe = files.path() + "/pipe";
    QVERIFY(QFile::link(path, files.path() + "/link"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(stampOfFile(QFile::encodeName(files.path() + "/link"))
        == stampOfFile(QFile::encodeName(path)));
    for (const QString &other : { pipe, files.path(), files.path() + "/none" })
        QVERIFY2(!stampOfFile(QFile::encodeName(other)), qPrintable(other));
}

void tst_HRFileStamp::stampOfFile_takesNamesInWhateverScript()
{
    const TestPackages files;
    const QString name = QString::fromUtf8("\xC3\xA9 \xE6\xBC\xA2.xml");
    const QString path = files.write(name, "");
    const QString inside = files.write(name + ".d/a.xml", "");
    QVERIFY(stampOfFile(files.path() + '/', name) == stampOfFile(QFile::encodeName(path)));
    QVERIFY(stampOfFile(files.path() + '/', name));
    QVERIFY(stampOfFile(QFileInfo(inside).path() + '/', "a.xml"));
}

void tst_HRFileStamp::stamp_settles_data()
{
    QTest::addColumn<qint64>("modified");
    QTest::addColumn<qint64>("changed");
    QTest::addColumn<bool>("settled");
    const qint64 now = 1000 * second;
    QTest::newRow("old") << now - 10 * second << now - 10 * second << true;
    QTest::newRow("just now") << now << now << false;
    QTest::newRow("the last step of a slow clock") << now - 2 * second << now - 2 * second << false;
    QTest::newRow("at the end of the longest step")
        << now - longestStep << now - longestStep << false;
    QTest::newRow("after the longest step")
        << now - longestStep - 1 << now - longestStep - 1 << true;
    QTest::newRow("time put back") << now - 10 * second << now << false;
    QTest::newRow("time to come, changed now") << now + 100 * second << now << false;
    QTest::newRow("time to come") << now + 100 * second << now - 10 * second << true;
    QTest::newRow("clock put back") << now + 100 * second << now + 100 * second << true;
}

void tst_HRFileStamp::stamp_settles()
{
    QFETCH(qint64, modified);
    QFETCH(qint64, changed);
    HRFileStamp stamp;
    stamp.modified = modified;
    stamp.changed = changed;
    QTEST(isSettled(stamp, 1000 * second), "settled");
}

QTEST_APPLESS_MAIN(tst_HRFileStamp)
#include "tst_HRFileStamp.moc"
