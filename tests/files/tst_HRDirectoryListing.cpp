// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRDirectoryListing_p.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Hintreels;

namespace {

QStringList namesIn(const QString &directory)
{
    const HRDirectoryListing listing(directory + '/', ".xml");
    QStringList names;
    for (const HRListedFile &file : listing.files())
        names += file.name;
    return names;
}

} // namespace

class tst_HRDirectoryListing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsWhatQDirFinds();
    void isEmpty_whereThereIsNoDirectory();
    void namesThatDifferInCaseOnly_haveAnOrder();
    void stampOfReadable_looksAgain();
    void keepFirst_forgetsTheRest_data();
    void keepFirst_forgetsTheRest();
};

void tst_HRDirectoryListing::holdsWhatQDirFinds()
{
    const TestPackages files;
    const QDir directory(files.path());
    for (const char *name : { "b.xml", "A.XML", "c.Xml", ".hidden.xml", ".xml", "d.xml.bak", "xml",
             "\xC3\xA4.xml", "[e] 1.xml", "line\nbreak.xml", "%1.xml" })
        files.write(QString::fromUtf8(name), "<hintreels/>");
    QVERIFY(directory.mkdir("directory.xml"));
    QVERIFY(QFile::link(files.path() + "/b.xml", files.path() + "/link.xml"));
    QVERIFY(QFile::link("/nowhere", files.path() + "/broken.xml"));
    const QByteArray native = QFile::encodeName(files.path());
    QCOMPARE(::mkfifo((native + "/pipe.xml").constData(), S_IRUSR | S_IWUSR), 0);
    QCOMPARE(::mknod((native + "/\xFF.xml").constData(), S_IFREG | S_IRUSR | S_IWUSR, 0), 0);

    const QStringList expected = directory.entryList(
        { "*.xml" }, QDir::Files | QDir::NoSymLinks | QDir::Readable, QDir::NoSort);
    const QStringList names = namesIn(files.path());
    QCOMPARE(::unlink((native + "/\xFF.xml").constData()), 0); // QTemporaryDir could not
    QCOMPARE(expected.size(), 7);
    QCOMPARE(names, expected);
}

void tst_HRDirectoryListing::isEmpty_whereThereIsNoDirectory()
{
    const TestPackages files;
    const QString file = files.write("a.xml", "<hintreels/>");
    QCOMPARE(namesIn(file), QStringList());
    QCOMPARE(namesIn(files.path() + "/none"), QStringList());
}

void tst_HRDirectoryListing::namesThatDifferInCaseOnly_haveAnOrder()
{
    const TestPackages files;
    for (const char *name : { "b.xml", "c.xml", "B.xml", "B.XML", "a.xml" })
        files.write(name, "");
    QCOMPARE(namesIn(files.path()), QStringList({ "a.xml", "B.XML", "B.xml", "b.xml", "c.xml" }));
}

// Between the listing and the look at a file, others may have changed the directory.
void tst_HRDirectoryListing::stampOfReadable_looksAgain()
{
    const TestPackages files;
    const QDir directory(files.path());
    const QString kept = files.write("a.xml", "text");
    const QString owners = files.write("b.xml", "");
    const QString locked = files.write("c.xml", "");
    const QString gone = files.write("d.xml", "");
    const QString replaced = files.write("e.xml", "");
    const HRDirectoryListing listing(files.path() + '/', ".xml");
    QVERIFY(QFile::setPermissions(owners, QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(locked, {}));
    QVERIFY(QFile::remove(gone) && QFile::remove(replaced) && directory.mkdir("e.xml"));
    QVector<bool> readable;
    for (const HRListedFile &file : listing.files())
        readable.append(listing.stampOfReadable(file).has_value());
    const bool opensAll = QFileInfo(locked).isReadable(); // whom permissions do not hold
    QCOMPARE(readable, (QVector<bool>{ true, true, opensAll, false, false }));
    QVERIFY(listing.stampOfReadable(listing.files()[0]) == stampOfFile(QFile::encodeName(kept)));
}

void tst_HRDirectoryListing::keepFirst_forgetsTheRest_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("names");
    QTest::newRow("none") << 0 << "";
    QTest::newRow("one") << 1 << "a.xml";
    QTest::newRow("all") << 2 << "a.xml b.xml";
    QTest::newRow("more than there are") << 3 << "a.xml b.xml";
}

void tst_HRDirectoryListing::keepFirst_forgetsTheRest()
{
    QFETCH(int, count);
    const TestPackages files;
    files.write("b.xml", "");
    files.write("a.xml", "");
    HRDirectoryListing listing(files.path() + '/', ".xml");
    QCOMPARE(listing.directory(), files.path() + '/');
    listing.keepFirst(size_t(count));
    QStringList names;
    for (const HRListedFile &file : listing.files())
        names += file.name;
    QTEST(names.join(' '), "names");
}

QTEST_APPLESS_MAIN(tst_HRDirectoryListing)
#include "tst_HRDirectoryListing.moc"
