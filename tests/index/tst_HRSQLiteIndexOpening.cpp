// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/SqliteIndexFixture.h"

#include "index/HRSQLiteIndex.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QtTest>

#include <vector>

#include <unistd.h>

using namespace Hintreels;

/// Which database an index in SQLite opens, makes anew, keeps and removes.
class tst_HRSQLiteIndexOpening : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void open_choosesTheFile_data();
    void open_choosesTheFile();
    void open_usesTheTemporaryDirectory_whenThereIsNoOther_data();
    void open_usesTheTemporaryDirectory_whenThereIsNoOther();
    void open_fails_withoutApplicationName();
    void open_fails_withoutDirectory();
    void open_refusesFilesThatOthersCouldHaveMade_data();
    void open_refusesFilesThatOthersCouldHaveMade();
    void open_refusesForeignSchemas_data();
    void open_refusesForeignSchemas();
    void open_refusesASchema_thatHidesItsTables();
    void open_makesAPrivateFile();
    void open_makesADamagedDatabaseAnew_data();
    void open_makesADamagedDatabaseAnew();
    void open_makesADatabaseAnew_thatAKilledUpdateLeft();
    void open_leavesAFileAlone_thatIsNoDatabase();
    void open_givesUpSoon_whenTheDatabaseIsLocked();
    void open_clearsOrKeeps_asTheSettingSays_data();
    void open_clearsOrKeeps_asTheSettingSays();
    void schema_isFixed();
    void journal_isOnDisk_whereTheTablesAreKept_data();
    void journal_isOnDisk_whereTheTablesAreKept();
    void close_removesTheFile_asTheSettingSays_data();
    void close_removesTheFile_asTheSettingSays();
    void remove_deletesTheFile_afterClosing();
    void overrides_mayCallTheirBase();
    void open_again_startsOver();
};

namespace {

QByteArray entriesNamed(int file)
{
    QByteArray entries;
    for (int i = 0; i < 3; ++i)
        entries += QString("<hintreel key='key %1 of %2' n='%2'/>").arg(i).arg(file).toUtf8();
    return entries;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

constexpr int PageSize = 4096;

/// Where the pages begin that differ from those before; SQLite writes them in this order.
std::vector<int> changedPages(const QByteArray &before, const QByteArray &after)
{
    std::vector<int> pages;
    for (int page = 0; page < after.size(); page += PageSize) {
        if (before.mid(page, PageSize) != after.mid(page, PageSize))
            pages.push_back(page);
    }
    return pages;
}

const QString CouldNotOpen = "Could not open index database. Index will be disabled";

} // namespace

void tst_HRSQLiteIndexOpening::open_choosesTheFile_data()
{
    QTest::addColumn<QString>("organization");
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("composed") << QString() << "Viewer"
                              << ""
                              << "Zentora_Viewer_HRI.sqlite";
    QTest::newRow("organization") << "Us"
                                  << "Viewer"
                                  << ""
                                  << "Us_Viewer_HRI.sqlite";
    QTest::newRow("placeholders stay") << "%2"
                                       << "%1"
                                       << ""
                                       << "%2_%1_HRI.sqlite";
    QTest::newRow("name alone") << QString() << ""
                                << "my.db"
                                << "my.db";
    QTest::newRow("relative name") << QString() << ""
                                   << "../up.db"
                                   << "../up.db";
}

void tst_HRSQLiteIndexOpening::open_choosesTheFile()
{
    QFETCH(QString, organization);
    QFETCH(QString, application);
    QFETCH(QString, name);
    QFETCH(QString, file);
    SqliteIndexFixture fixture(false);
    if (!organization.isNull())
        fixture.context.set(organizationNameKey, organization);
    fixture.context.set(applicationNameKey, application);
    fixture.context.set(indexFileNameKey, name);
    QVERIFY(fixture.index.open());
    const QString path = fixture.databaseDirectory() + '/' + file;
    QVERIFY(QFileInfo(path).isFile());
    QCOMPARE(fixture.messages.takeMessages(), QStringList("Creating index database in " + path));
}

void tst_HRSQLiteIndexOpening::open_usesTheTemporaryDirectory_whenThereIsNoOther_data()
{
    QTest::addColumn<QString>("directory");
    QTest::newRow("none") << "";
    QTest::newRow("not there") << "/nowhere/at/all";
    QTest::newRow("a file") << "/etc/passwd";
}

void tst_HRSQLiteIndexOpening::open_usesTheTemporaryDirectory_whenThereIsNoOther()
{
    QFETCH(QString, directory);
    SqliteIndexFixture fixture(false);
    fixture.context.set(persistentDirectoryKey, directory);
    fixture.context.set(indexFileNameKey, "hr-test.sqlite");
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(fixture.packages.path()));
    const bool opened = fixture.index.open();
    qputenv("TMPDIR", before);
    QVERIFY(opened);
    QVERIFY(QFileInfo(fixture.packages.path() + "/hr-test.sqlite").isFile());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::open_fails_withoutApplicationName()
{
    SqliteIndexFixture fixture(false);
    fixture.context.set(applicationNameKey, "");
    QVERIFY(!fixture.index.open());
    QVERIFY(fixture.messages.take(
        "No Application name. Cannot create index database. Index will be disabled"));
}

void tst_HRSQLiteIndexOpening::open_fails_withoutDirectory()
{
    SqliteIndexFixture fixture(false);
    fixture.context.set(persistentDirectoryKey, "");
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/nowhere/at/all");
    const bool opened = fixture.index.open();
    qputenv("TMPDIR", before);
    QVERIFY(!opened);
    QVERIFY(fixture.messages.take(
        "No persistent temp directory. Cannot create index database. Index will be disabled"));
}

void tst_HRSQLiteIndexOpening::open_refusesFilesThatOthersCouldHaveMade_data()
{
    QTest::addColumn<QString>("trap");
    for (const char *trap : { "link", "dangling link", "second name", "writable by others",
             "directory", "journal by link", "no directory" })
        QTest::newRow(trap) << trap;
}

void tst_HRSQLiteIndexOpening::open_refusesFilesThatOthersCouldHaveMade()
{
    QFETCH(QString, trap);
    SqliteIndexFixture fixture(false);
    const QString file = fixture.databaseFile();
    const QString target = fixture.packages.write("target", "");
    if (trap == "link")
        QVERIFY(QFile::link(target, file));
    else if (trap == "dangling link")
        QVERIFY(QFile::link(target + "2", file));
    else if (trap == "second name")
        QCOMPARE(::link(qPrintable(target), qPrintable(file)), 0);
    else if (trap == "directory")
        QVERIFY(QDir().mkpath(file));
    else if (trap == "journal by link")
        QVERIFY(QFile::link(target, file + "-journal"));
    else if (trap == "no directory")
        fixture.context.set(indexFileNameKey, "none/x.sqlite");
    else
        QVERIFY(QFile(fixture.packages.write("db/Zentora_Test_HRI.sqlite", ""))
                    .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::WriteOther));
    QVERIFY(!fixture.index.open());
    QCOMPARE(fixture.messages.takeMessages().constLast(), CouldNotOpen);
    QCOMPARE(QFileInfo(target).size(), qint64(0));
    QVERIFY(!QFileInfo::exists(target + "2"));
    QVERIFY(!QSqlDatabase::contains(fixture.connection()));
}

void tst_HRSQLiteIndexOpening::open_refusesForeignSchemas_data()
{
    QTest::addColumn<QStringList>("statements");
    const QString tables = "CREATE TABLE packages( pkey INTEGER PRIMARY KEY AUTOINCREMENT, ppath "
                           "TEXT, depth INTEGER )";
    QTest::newRow("table") << QStringList("CREATE TABLE songs (title TEXT)");
    QTest::newRow("view") << QStringList(
        "CREATE VIEW hintreels AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c) "
        "SELECT x AS hrkey FROM c");
    QTest::newRow("trigger") << QStringList{ tables,
        "CREATE TRIGGER t AFTER INSERT ON packages BEGIN INSERT INTO packages (ppath) VALUES "
        "('x'); END" };
    QTest::newRow("index") << QStringList{ tables, "CREATE INDEX i ON packages (ppath)" };
    QTest::newRow("virtual table")
        << QStringList("CREATE VIRTUAL TABLE packages USING fts4(ppath)");
}

void tst_HRSQLiteIndexOpening::open_refusesForeignSchemas()
{
    QFETCH(QStringList, statements);
    SqliteIndexFixture fixture(false);
    for (const QString &statement : statements)
        OtherConnection(fixture.databaseFile()).execute(statement);
    QVERIFY(!fixture.index.open());
    QCOMPARE(fixture.messages.takeMessages().constLast(), CouldNotOpen);
    QVERIFY(fixture.index.close());
    QVERIFY(QFileInfo::exists(fixture.databaseFile()));
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
}

void tst_HRSQLiteIndexOpening::open_refusesASchema_thatHidesItsTables()
{
    SqliteIndexFixture fixture(false);
    {
        OtherConnection other(fixture.databaseFile());
        for (const char *statement : { "CREATE TABLE songs (title TEXT)",
                 "PRAGMA writable_schema=ON", "DELETE FROM sqlite_master" })
            other.execute(statement);
    }
    const QByteArray before = contentOf(fixture.databaseFile());
    QVERIFY(!fixture.index.open());
    QVERIFY(fixture.index.close());
    QCOMPARE(contentOf(fixture.databaseFile()), before);
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::open_makesAPrivateFile()
{
    SqliteIndexFixture fixture;
    const auto all = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
        | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(QFile::permissions(fixture.databaseFile()) & all, QFile::Permissions());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::open_makesADamagedDatabaseAnew_data()
{
    QTest::addColumn<bool>("clear");
    QTest::addColumn<int>("firstDamaged");
    QTest::newRow("pages, cleared") << true << 4096;
    QTest::newRow("pages, kept") << false << 4096;
    QTest::newRow("header, cleared") << true << 16;
    QTest::newRow("header, kept") << false << 16;
    QTest::newRow("schema, kept") << false << 100;
}

void tst_HRSQLiteIndexOpening::open_makesADamagedDatabaseAnew()
{
    QFETCH(bool, clear);
    QFETCH(int, firstDamaged);
    SqliteIndexFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    fixture.context.set(clearIndexKey, clear);
    for (int i = 0; i < 20; ++i)
        fixture.add("A", QString::number(i) + ".xml", "<hintreel key='pen'/><hintreel key='x'/>");
    fixture.index.close();
    QFile file(fixture.databaseFile());
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(firstDamaged);
    file.write(QByteArray(int(file.size()) - firstDamaged, '\xa5'));
    file.close();
    QVERIFY(fixture.index.open());
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::open_makesADatabaseAnew_thatAKilledUpdateLeft()
{
    SqliteIndexFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    fixture.context.set(clearIndexKey, false);
    for (int i = 0; i < 20; ++i)
        fixture.add("A", QString::number(i) + ".xml", entriesNamed(i));
    fixture.index.close();
    QByteArray torn = contentOf(fixture.databaseFile());
    QVERIFY(fixture.index.open());
    fixture.add("A", "20.xml", entriesNamed(20));
    fixture.index.close();
    const QByteArray after = contentOf(fixture.databaseFile());
    const std::vector<int> changed = changedPages(torn, after);
    QCOMPARE(after.size(), torn.size());
    QVERIFY(changed.size() > 3);
    for (const int page : changed) {
        torn.replace(page, PageSize, after.mid(page, PageSize));
        fixture.packages.write("db/Zentora_Test_HRI.sqlite", torn);
        QVERIFY(fixture.index.open());
        for (int i = 0; i < 21; ++i)
            fixture.add("A", QString::number(i) + ".xml", entriesNamed(i));
        QCOMPARE(fixture.rows("PRAGMA integrity_check"), QStringList("ok"));
        QCOMPARE(fixture.index.keys().size(), 21 * 3);
        QCOMPARE(fixture.found("key 2 of 20"), QString("20"));
        fixture.index.close();
    }
    for (const QString &message : fixture.messages.takeMessages())
        QVERIFY2(!message.contains("malformed"), qPrintable(message));
}

void tst_HRSQLiteIndexOpening::open_leavesAFileAlone_thatIsNoDatabase()
{
    SqliteIndexFixture fixture(false);
    const QByteArray letter("Dear diary, today I wrote no database at all. ");
    fixture.packages.write("db/Zentora_Test_HRI.sqlite", letter.repeated(100));
    QVERIFY(!fixture.index.open());
    QCOMPARE(fixture.messages.takeMessages().constLast(), CouldNotOpen);
    fixture.index.close();
    QCOMPARE(QFileInfo(fixture.databaseFile()).size(), qint64(letter.size() * 100));
}

void tst_HRSQLiteIndexOpening::open_givesUpSoon_whenTheDatabaseIsLocked()
{
    SqliteIndexFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.index.close();
    for (const char *lock : { "BEGIN IMMEDIATE", "BEGIN EXCLUSIVE" }) {
        OtherConnection other(fixture.databaseFile());
        other.execute(lock);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!fixture.index.open());
        QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!QSqlDatabase::contains(fixture.connection()));
    }
    fixture.add("A", "a.xml", "<hintreel key='pen' n='2'/>");
    QCOMPARE(fixture.found("pen"), QString("2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::open_clearsOrKeeps_asTheSettingSays_data()
{
    QTest::addColumn<QVariant>("clear");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("absent") << QVariant() << QStringList();
    QTest::newRow("true") << QVariant(true) << QStringList();
    QTest::newRow("false") << QVariant(false) << QStringList("pen");
}

void tst_HRSQLiteIndexOpening::open_clearsOrKeeps_asTheSettingSays()
{
    QFETCH(QVariant, clear);
    SqliteIndexFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    if (clear.isValid())
        fixture.context.set(clearIndexKey, clear);
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.index.close();
    QVERIFY(fixture.index.open());
    QTEST(fixture.index.keys(), "keys");
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::schema_isFixed()
{
    SqliteIndexFixture fixture;
    const QStringList expected{
        "CREATE TABLE packages( pkey INTEGER PRIMARY KEY AUTOINCREMENT, ppath TEXT, depth INTEGER "
        ")",
        "CREATE TABLE hintreels ( hrkey TEXT, tlocale TEXT, pkey INTEGER, PRIMARY KEY(hrkey, "
        "tlocale ))",
    };
    QCOMPARE(fixture.rows("SELECT sql FROM sqlite_master WHERE type = 'table' AND name NOT LIKE "
                          "'sqlite%' ORDER BY rowid"),
        expected);
    QCOMPARE(fixture.rows("PRAGMA synchronous"), QStringList("0"));
    QCOMPARE(fixture.rows("PRAGMA journal_mode"), QStringList("memory"));
    QCOMPARE(fixture.rows("PRAGMA temp_store"), QStringList("2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::journal_isOnDisk_whereTheTablesAreKept_data()
{
    QTest::addColumn<bool>("clears");
    QTest::addColumn<QString>("journal");
    QTest::newRow("kept") << false << "delete";
    QTest::newRow("cleared") << true << "memory";
}

void tst_HRSQLiteIndexOpening::journal_isOnDisk_whereTheTablesAreKept()
{
    QFETCH(bool, clears);
    SqliteIndexFixture fixture(false);
    fixture.context.set(clearIndexKey, clears);
    QVERIFY(fixture.index.open());
    QTEST(fixture.rows("PRAGMA journal_mode").join(' '), "journal");
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::close_removesTheFile_asTheSettingSays_data()
{
    QTest::addColumn<QVariant>("remove");
    QTest::addColumn<bool>("exists");
    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("true") << QVariant(true) << false;
    QTest::newRow("false") << QVariant(false) << true;
}

void tst_HRSQLiteIndexOpening::close_removesTheFile_asTheSettingSays()
{
    QFETCH(QVariant, remove);
    SqliteIndexFixture fixture;
    if (remove.isValid())
        fixture.context.set(removeIndexOnCloseKey, remove);
    QVERIFY(fixture.index.close());
    QTEST(QFileInfo::exists(fixture.databaseFile()), "exists");
    QVERIFY(!QSqlDatabase::contains(fixture.connection()));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::remove_deletesTheFile_afterClosing()
{
    SqliteIndexFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    QVERIFY(fixture.index.close());
    QVERIFY(QFileInfo::exists(fixture.databaseFile()));
    QVERIFY(fixture.index.remove());
    QVERIFY(!QFileInfo::exists(fixture.databaseFile()));
    QVERIFY(fixture.index.remove());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::overrides_mayCallTheirBase()
{
    class Override : public HRSQLiteIndex
    {
    public:
        using HRSQLiteIndex::HRSQLiteIndex;
        bool close() override { return ++closes < 10 && HRSQLiteIndex::close(); }
        bool remove() override { return ++removes < 10 && HRSQLiteIndex::remove(); }
        int closes = 0;
        int removes = 0;
    };
    SqliteIndexFixture fixture(false);
    Override index(&fixture.context, {});
    QVERIFY(index.open());
    QVERIFY(index.close());
    QCOMPARE(index.closes, 1);
    QCOMPARE(index.removes, 1);
    QVERIFY(!QFileInfo::exists(fixture.databaseFile()));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexOpening::open_again_startsOver()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QVERIFY(fixture.index.open());
    QVERIFY(fixture.index.keys().isEmpty());
    const QStringList messages = fixture.messages.takeMessages();
    QCOMPARE(messages.filter("still in use"), QStringList());
    QCOMPARE(messages.filter("duplicate connection"), QStringList());
}

QTEST_GUILESS_MAIN(tst_HRSQLiteIndexOpening)
#include "tst_HRSQLiteIndexOpening.moc"
