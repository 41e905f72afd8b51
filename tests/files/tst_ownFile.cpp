// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/ownFile_p.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Hintreels;

class tst_ownFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takeOwnFile_makesAPrivateFile();
    void takeOwnFile_takesWhatOnlyWeCouldHaveMade_data();
    void takeOwnFile_takesWhatOnlyWeCouldHaveMade();
};

namespace {

/// Puts something at a path.
void place(const QString &kind, const QString &path)
{
    const QByteArray native = QFile::encodeName(path);
    const QByteArray other = native + ".other";
    const auto make = [](const QByteArray &file, mode_t mode) {
        return QFile(QFile::decodeName(file)).open(QIODevice::WriteOnly)
            && ::chmod(file.constData(), mode) == 0;
    };
    bool done = kind == "nothing";
    if (kind == "directory")
        done = QDir().mkpath(path);
    else if (kind == "link")
        done = make(other, 0600) && ::symlink(other.constData(), native.constData()) == 0;
    else if (kind == "dangling link")
        done = ::symlink(other.constData(), native.constData()) == 0;
    else if (kind == "second name")
        done = make(other, 0600) && ::link(other.constData(), native.constData()) == 0;
    else if (kind.startsWith("mode "))
        done = make(native, mode_t(kind.mid(5).toInt(nullptr, 8)));
    if (!done)
        qFatal("cannot place %s", qPrintable(kind));
}

} // namespace

void tst_ownFile::takeOwnFile_makesAPrivateFile()
{
    const TestPackages files;
    const QString path = files.path() + "/a";
    QVERIFY(takeOwnFile(path));
    struct stat status;
    QCOMPARE(::stat(qPrintable(path), &status), 0);
    QCOMPARE(int(status.st_mode & 0777), 0600);
    QVERIFY(!takeOwnFile(files.path() + "/none/a"));
}

void tst_ownFile::takeOwnFile_takesWhatOnlyWeCouldHaveMade_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isTaken");
    for (const char *suffix : { "", "-journal", "-wal", "-shm" }) {
        for (const char *kind : { "nothing", "mode 600", "mode 644" })
            QTest::addRow("a%s: %s", suffix, kind) << suffix << kind << true;
        for (const char *kind : { "directory", "link", "dangling link", "second name", "mode 620",
                 "mode 602", "mode 666" })
            QTest::addRow("a%s: %s", suffix, kind) << suffix << kind << false;
    }
}

void tst_ownFile::takeOwnFile_takesWhatOnlyWeCouldHaveMade()
{
    QFETCH(QString, suffix);
    QFETCH(QString, kind);
    const TestPackages files;
    const QString path = files.path() + "/a";
    place(kind, path + suffix);
    QTEST(takeOwnFile(path), "isTaken");
    QVERIFY(!QFile::exists(path + suffix + ".other") || kind != "dangling link");
}

QTEST_APPLESS_MAIN(tst_ownFile)
#include "tst_ownFile.moc"
