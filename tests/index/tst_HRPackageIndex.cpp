// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/settled.h"

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "files/HRFileStamp_p.h"
#include "index/HRPackageIndex.h"
#include "index/database/HRDigestTable_p.h"
#include "index/database/HRDirectoryDigest_p.h"
#include "manager/HRPackageScanner_p.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QtTest>

using namespace Hintreels;

class tst_HRPackageIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void open_usesTheCacheLocation_byDefault();
    void open_fails_whereNoDirectoryCanBeMade();
    void indexControlFile_passesOver_data();
    void indexControlFile_passesOver();
    void answers_areThoseOfHRIndex();
    void answers_areThoseOfHRIndex_whenFilesAreKept();
    void warmStart_readsOnlyWhatChanged();
    void warmStart_forgetsWhatIsGone();
    void database_isWritten_withoutClose();
    void database_isKept_whateverTheSettingsSay();
    void damage_isHealed_data();
    void damage_isHealed();
    void damage_isHealed_whereTheFileBeginsWithZeros();
    void twoIndexes_mayShareTheFile();
    void twoIndexes_healTheFileOnce();
    void lockOfAnother_isWaitedForOnce();
    void closedIndex_servesFromMemory();

private:
    // Files are kept only when they are some seconds old, so all are written at the beginning.
    TestPackages m_pair; // A/a.xml and B/b.xml
    TestPackages m_changing; // A/a.xml and A/b.xml
    TestPackages m_vanishing; // those, and B/c.xml
    TestPackages m_many; // fifty files
    TestPackages m_mixed[2];
};

namespace {

const QString Rebuilt = "Index database is damaged. It is made anew";

/// An index for one run over packages, with its database in a directory of the test.
struct Run
{
    explicit Run(const TestPackages &packages, const QString &connection = "run")
    {
        QDir().mkpath(packages.path() + "/cache");
        context.set(persistentDirectoryKey, packages.path() + "/cache");
        context.set(indexConnectionKey, connection);
        file = packages.path() + "/cache/HintreelsPackages.sqlite";
        isOpen = index.open();
    }

    void scan(const QString &path)
    {
        HRPackageScanner(context, index, [](const QString &) {}).scanDataPaths({ path });
    }

    HRContext context;
    HRPackageIndex index{ &context, {} };
    QString file;
    bool isOpen;
};

/// Everything that tells one answer of an index from another.
QString answer(HRIndex &index, const QString &key, const QString &locale)
{
    QString directory;
    int depth = 0;
    HRXmlElement *root = nullptr;
    HRXmlElement *entry = index.retrieve(key, QLocale(locale), directory, depth, root);
    if (!entry)
        return "none";
    const std::unique_ptr<HRXmlElement> tree(root);
    return directory + ' ' + QString::number(depth) + '\n' + root->toXml()
        + index.componentPathsForElement(entry, "x.png").join(' ');
}

/// Packages with everything in them that two indexes could differ about.
void writeTree(const TestPackages &packages, quint32 seed)
{
    QRandomGenerator random(seed);
    const QByteArrayList roots{ "", "locale='en_US'", "locale='de_DE'", "locale='de'",
        "locale='zh_Hant_TW'", "locale='C'", "locale='en&#95;US' search='P1, P2'" };
    const QByteArrayList entries{ "<hintreel key='a'><t/></hintreel>", "<hintreel key='b'/>",
        "<hintreel key='b' n='2'/>", "<hintreel key='&#97;'/>", "<hintreel/>",
        "<hintreel key='\xC3\xA9'/>", "<!-- <hintreel key='c'/> -->", "<hintreels/>",
        "<group><hintreel key='c'/></group>", "<hintreel key=''/>" };
    const QByteArrayList prologs{ "", "<?xml version='1.0'?>\n", "<!-- <x> -->\n",
        "<!DOCTYPE hintreels>\n", "<?xml version='1.0' encoding='ISO-8859-1'?>\n" };
    for (int i = 0; i < 40; ++i) {
        QByteArray content = prologs.at(random.bounded(prologs.size())) + "<hintreels "
            + roots.at(random.bounded(roots.size())) + ">";
        for (int j = random.bounded(4); j >= 0; --j)
            content += entries.at(random.bounded(entries.size()));
        packages.write(QString("%1P%2.hintreels/Control/%3.xml")
                           .arg(i % 3 == 0 ? "inner.hintreels/" : "")
                           .arg(i % 4)
                           .arg(i),
            content + (random.bounded(8) ? "</hintreels>" : ""));
    }
}

void compare(HRIndex &plain, HRIndex &kept)
{
    QCOMPARE(kept.keys(), plain.keys());
    for (const char *key : { "a", "b", "c", "\xC3\xA9", "", "none" }) {
        for (const char *locale : { "en_US", "de_DE", "de_AT", "de", "C", "zh_TW", "ja_JP" })
            QCOMPARE(answer(kept, QString::fromUtf8(key), locale),
                answer(plain, QString::fromUtf8(key), locale));
    }
    for (const char *package : { "P0", "P1", "P2", "P3", "inner", "none" })
        QCOMPARE(kept.componentPathsForPackageNamed(package),
            plain.componentPathsForPackageNamed(package));
}

/// Compares starts, with edits between them.
void compareStarts(const TestPackages &packages, quint32 seed)
{
    for (int start = 0; start < 3; ++start) {
        Run run(packages);
        QVERIFY(run.isOpen);
        run.scan(packages.path());
        run.scan(packages.path() + "/inner.hintreels");
        HRIndex plain(&run.context, {});
        HRPackageScanner scanner(run.context, plain, [](const QString &) {});
        scanner.scanDataPaths({ packages.path(), packages.path() + "/inner.hintreels" });
        compare(plain, run.index);
        writeTree(packages, seed * 100 + quint32(start));
        compare(plain, run.index);
    }
}

} // namespace

void tst_HRPackageIndex::initTestCase()
{
    m_pair.writeControl("A", "a.xml", "<hintreel key='a'/>");
    m_pair.writeControl("B", "b.xml", "<hintreel key='b'/>");
    for (const TestPackages *packages : { &m_changing, &m_vanishing }) {
        packages->writeControl("A", "a.xml", "<hintreel key='a'/>");
        packages->writeControl("A", "b.xml", "<hintreel key='b'/>");
    }
    m_vanishing.writeControl("B", "c.xml", "<hintreel key='c'/>");
    for (int i = 0; i < 50; ++i)
        m_many.writeControl("A", QString::number(i) + ".xml", "<hintreel key='a'/>");
    writeTree(m_mixed[0], 1);
    writeTree(m_mixed[1], 2);
    QVERIFY(becomesSettled(m_pair.write("last", "")));
}

/// Forgets the runs of the tests before.
void tst_HRPackageIndex::init()
{
    for (const TestPackages *packages : { &m_pair, &m_many })
        QDir(packages->path() + "/cache").removeRecursively();
}

void tst_HRPackageIndex::open_usesTheCacheLocation_byDefault()
{
    MessageGuard messages;
    QStandardPaths::setTestModeEnabled(true);
    HRContext context;
    HRPackageIndex index(&context, {});
    QVERIFY(index.open());
    const QString file = QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
        + "/HintreelsPackages.sqlite";
    QVERIFY(messages.take("Creating index database in " + file));
    QVERIFY(QFileInfo(file).isFile());
    index.remove();
    QVERIFY(!QFileInfo::exists(file));
    QStandardPaths::setTestModeEnabled(false);
}

void tst_HRPackageIndex::open_fails_whereNoDirectoryCanBeMade()
{
    MessageGuard messages;
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", "/dev/null/cache");
    HRContext context;
    HRPackageIndex index(&context, {});
    const bool isOpen = index.open();
    before.isNull() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", before);
    QVERIFY(!isOpen);
    QVERIFY(messages.take("No cache directory. Cannot create index database. Index will be kept in "
                          "memory"));
    messages.takeMessages();
}

void tst_HRPackageIndex::indexControlFile_passesOver_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("package");
    QTest::newRow("file of another package") << "A.hintreels/Control/a.xml"
                                             << "B.hintreels";
    QTest::newRow("missing file") << "A.hintreels/Control/none.xml"
                                  << "A.hintreels";
    QTest::newRow("directory") << "A.hintreels/Control"
                               << "A.hintreels";
}

void tst_HRPackageIndex::indexControlFile_passesOver()
{
    QFETCH(QString, file);
    QFETCH(QString, package);
    MessageGuard messages;
    Run run(m_pair);
    const QString base = m_pair.path() + '/';
    run.index.indexControlFile(base + file, base + package);
    QCOMPARE(run.index.keys(), QStringList());
    for (int i = 0; i < 2; ++i)
        run.index.indexControlFile(base + "A.hintreels/Control/a.xml", base + "A.hintreels");
    QCOMPARE(run.index.keys(), QStringList("a"));
    messages.takeMessages();
}

void tst_HRPackageIndex::answers_areThoseOfHRIndex()
{
    MessageGuard messages;
    for (quint32 seed = 3; seed <= 6; ++seed) {
        const TestPackages packages;
        writeTree(packages, seed);
        compareStarts(packages, seed);
    }
    messages.takeMessages();
}

void tst_HRPackageIndex::answers_areThoseOfHRIndex_whenFilesAreKept()
{
    MessageGuard messages;
    compareStarts(m_mixed[0], 1);
    compareStarts(m_mixed[1], 2);
    messages.takeMessages();
}

void tst_HRPackageIndex::warmStart_readsOnlyWhatChanged()
{
    MessageGuard messages;
    const TestPackages &packages = m_changing;
    const QString file = packages.path() + "/A.hintreels/Control/a.xml";
    const QString other = packages.path() + "/A.hintreels/Control/b.xml";
    Run(packages).scan(packages.path());
    {
        // What is kept now says that both files have the key "kept", which neither has.
        Run run(packages);
        HRStoredFile kept;
        kept.isControlFile = true;
        kept.digest.keys = { keyNumber(QString("kept")) };
        HRDirectoryDigest snapshot;
        for (const QString &path : { file, other }) {
            kept.stamp = *stampOfFile(QFile::encodeName(path));
            snapshot.put(QFileInfo(path).fileName().toStdString(), kept);
        }
        HRDigestTable store(QSqlDatabase::database("run"));
        store.save(QFileInfo(file).path() + '/', snapshot.encoded());
        store.flush();
    }
    packages.writeControl("A", "b.xml", "<hintreel key='b'/>");
    Run run(packages);
    run.scan(packages.path());
    QCOMPARE(answer(run.index, "a", "en_US"), QString("none")); // not read again
    QVERIFY(answer(run.index, "b", "en_US") != "none"); // read again
    messages.takeMessages();
}

void tst_HRPackageIndex::warmStart_forgetsWhatIsGone()
{
    MessageGuard messages;
    const TestPackages &packages = m_vanishing;
    Run(packages).scan(packages.path());
    QVERIFY(QFile::remove(packages.path() + "/A.hintreels/Control/a.xml"));
    QVERIFY(QDir(packages.path() + "/B.hintreels").removeRecursively());
    Run run(packages);
    run.scan(packages.path());
    QCOMPARE(run.index.keys(), QStringList("b"));
    QCoreApplication::processEvents();
    QSqlQuery query("SELECT path, files FROM control_directories", QSqlDatabase::database("run"));
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toString(), packages.path() + "/A.hintreels/Control/");
    QVERIFY(!query.value(1).toByteArray().contains("a.xml"));
    QVERIFY(query.value(1).toByteArray().contains("b.xml"));
    QVERIFY(!query.next());
    messages.takeMessages();
}

void tst_HRPackageIndex::database_isWritten_withoutClose()
{
    MessageGuard messages;
    const TestPackages &packages = m_pair;
    Run run(packages);
    run.scan(packages.path());
    QCoreApplication::processEvents();
    Run other(packages, "other");
    HRDigestTable store(QSqlDatabase::database("other"));
    QVERIFY(store.load(packages.path() + "/A.hintreels/Control/").contains("a.xml"));
    messages.takeMessages();
}

void tst_HRPackageIndex::database_isKept_whateverTheSettingsSay()
{
    MessageGuard messages;
    const TestPackages &packages = m_pair;
    Run run(packages);
    run.context.set(clearIndexKey, true);
    run.context.set(removeIndexOnCloseKey, true);
    run.scan(packages.path());
    run.index.close();
    QVERIFY(QFileInfo(run.file).isFile());
    QVERIFY(run.index.open());
    HRDigestTable store(QSqlDatabase::database("run"));
    const QString directory = packages.path() + "/A.hintreels/Control/";
    QVERIFY(!store.load(directory).isEmpty());
    run.index.clear();
    store.flush(); // forgets what it has loaded
    QVERIFY(store.load(directory).isEmpty());
    messages.takeMessages();
}

void tst_HRPackageIndex::damage_isHealed_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("header") << 16 << 100;
    QTest::newRow("schema") << 100 << 4096;
    QTest::newRow("pages") << 4096 << (1 << 20);
    QTest::newRow("first letters") << 0 << 16;
    QTest::newRow("one letter of a snapshot") << -1 << 0;
}

void tst_HRPackageIndex::damage_isHealed()
{
    QFETCH(int, first);
    QFETCH(int, last);
    MessageGuard messages;
    const TestPackages &packages = m_many;
    Run(packages).scan(packages.path());
    {
        QFile file(packages.path() + "/cache/HintreelsPackages.sqlite");
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        if (first < 0)
            bytes[bytes.indexOf("30.xml")] = '4';
        for (int i = first; first >= 0 && i < qMin(last, bytes.size()); ++i)
            bytes[i] = char(bytes[i] ^ 0x55);
        file.seek(0);
        file.write(bytes);
    }
    messages.takeMessages();
    for (int start = 0; start < 2; ++start) {
        Run run(packages);
        QVERIFY(run.isOpen);
        run.scan(packages.path());
        QVERIFY(answer(run.index, "a", "en_US") != "none");
        QCOMPARE(run.index.keys().size(), 50);
        run.index.close();
        const QStringList all = messages.takeMessages();
        QVERIFY2(all.count(Rebuilt) == (start == 0 ? 1 : 0), qPrintable(all.join('\n')));
        QVERIFY2(all.size() == (start == 0 ? 3 : 1), qPrintable(all.join('\n')));
    }
}

void tst_HRPackageIndex::damage_isHealed_whereTheFileBeginsWithZeros()
{
    MessageGuard messages;
    const QString file = m_pair.write("cache/HintreelsPackages.sqlite", QByteArray(8192, '\0'));
    Run run(m_pair);
    QVERIFY(run.isOpen);
    QCOMPARE(messages.takeMessages().count(Rebuilt), 1);
}

void tst_HRPackageIndex::twoIndexes_healTheFileOnce()
{
    MessageGuard messages;
    const TestPackages &packages = m_pair;
    const QString path = packages.path() + "/cache/HintreelsPackages.sqlite";
    Run(packages).scan(packages.path());
    Run one(packages);
    Run two(packages, "two");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(16);
    file.write(QByteArray(84, '\x55'));
    file.close();
    messages.takeMessages();
    one.scan(packages.path());
    QCOMPARE(messages.takeMessages().count(Rebuilt), 1);
    QFile healed(path);
    QVERIFY(healed.open(QIODevice::ReadOnly)); // no other file is given its number
    const auto stamp = stampOfFile(QFile::encodeName(path));
    QVERIFY(stamp);
    two.scan(packages.path());
    QCOMPARE(messages.takeMessages().count(Rebuilt), 1);
    const auto stampNow = stampOfFile(QFile::encodeName(path));
    QVERIFY(stampNow);
    QCOMPARE(stampNow->inode, stamp->inode);
    for (Run *run : { &one, &two })
        QVERIFY(answer(run->index, "a", "en_US") != "none");
}

void tst_HRPackageIndex::twoIndexes_mayShareTheFile()
{
    MessageGuard messages;
    const TestPackages &packages = m_pair;
    Run one(packages);
    Run two(packages, "two");
    one.scan(packages.path());
    two.scan(packages.path());
    QCoreApplication::processEvents();
    QVERIFY(answer(one.index, "a", "en_US") != "none");
    QVERIFY(answer(two.index, "b", "en_US") != "none");
    one.index.close();
    two.index.close();
    Run run(packages);
    run.scan(packages.path());
    QCOMPARE(run.index.keys(), QStringList({ "b", "a" }));
    QVERIFY(!messages.takeMessages().contains(Rebuilt));
}

void tst_HRPackageIndex::lockOfAnother_isWaitedForOnce()
{
    MessageGuard messages;
    Run(m_pair).scan(m_pair.path());
    Run run(m_pair);
    const Run other(m_pair, "other");
    QSqlQuery lock(QSqlDatabase::database("other"));
    QVERIFY(lock.exec("BEGIN EXCLUSIVE"));
    run.scan(m_pair.path());
    QCoreApplication::processEvents();
    QCOMPARE(run.index.keys(), QStringList({ "b", "a" }));
    QSqlQuery wait("PRAGMA busy_timeout", QSqlDatabase::database("run"));
    QVERIFY(wait.next());
    QCOMPARE(wait.value(0).toInt(), 0);
    messages.takeMessages();
}

void tst_HRPackageIndex::closedIndex_servesFromMemory()
{
    MessageGuard messages;
    const TestPackages packages;
    packages.writeControl("A", "a.xml", "<hintreel key='a'/>");
    QVERIFY(QDir(packages.path()).mkpath("cache/HintreelsPackages.sqlite"));
    Run run(packages);
    QVERIFY(!run.isOpen);
    run.scan(packages.path());
    QCoreApplication::processEvents();
    QVERIFY(answer(run.index, "a", "en_US") != "none");
    QVERIFY(!run.index.componentPathsForPackageNamed("A").isEmpty());
    messages.takeMessages();
}

QTEST_GUILESS_MAIN(tst_HRPackageIndex)
#include "tst_HRPackageIndex.moc"
