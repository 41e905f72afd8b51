// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRIndexLookup_p.h"
#include "index/database/HRPackageRows_p.h"
#include "support/TestPackage.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Hintreels;

/// The two ways to read the tables of HRSQLiteIndex: its rows of files, and the look-up.
class tst_HRPackageRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_followAnotherConnection_whenRefreshed();
    void rows_followTheirOwnConnection_whenChecked();
    void rows_trustWhatTheyAreTold();
    void rows_areReadAgain_onceForgotten();
    void row_isTheFirstOfSeveral();
    void schemaVersion_changesWithTheTables();
    void lookup_findsAKeyForItsLocale();
    void lookup_findsAgain_afterTheTablesWereMadeAnew();
};

namespace {

struct Fixture
{
    Fixture()
    {
        for (const char *name : { "rows", "other" }) {
            QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", name);
            database.setDatabaseName(files.path() + "/a.sqlite");
            if (!database.open())
                qFatal("cannot open");
        }
        makeTables();
        run("INSERT INTO packages VALUES (7, '/a.xml', 2)");
    }
    ~Fixture()
    {
        rows.reset();
        for (const char *name : { "rows", "other" })
            QSqlDatabase::removeDatabase(name);
    }

    void run(const char *statement, const char *connection = "rows") const
    {
        if (!QSqlQuery(QSqlDatabase::database(connection)).exec(statement))
            qFatal("%s fails", statement);
    }

    void makeTables() const
    {
        run("CREATE TABLE packages (pkey INTEGER PRIMARY KEY, ppath TEXT, depth INTEGER)");
        run("CREATE TABLE hintreels (hrkey TEXT, tlocale TEXT, pkey INTEGER)");
    }

    void start()
    {
        rows.emplace(QSqlDatabase::database("rows"));
        rows->refresh();
    }

    TestPackages files;
    std::optional<HRPackageRows> rows;
};

} // namespace

void tst_HRPackageRows::rows_followAnotherConnection_whenRefreshed()
{
    Fixture f;
    f.start();
    QCOMPARE(f.rows->row("/a.xml"), std::optional<int>(7));
    QVERIFY(!f.rows->row("/b.xml"));
    f.run("UPDATE packages SET pkey = 77", "other");
    QCOMPARE(f.rows->row("/a.xml"), std::optional<int>(7));
    f.rows->refresh();
    QCOMPARE(f.rows->row("/a.xml"), std::optional<int>(77));
}

void tst_HRPackageRows::rows_followTheirOwnConnection_whenChecked()
{
    Fixture f;
    f.start();
    f.run("DELETE FROM packages");
    QVERIFY(f.rows->row("/a.xml"));
    f.rows->check();
    QVERIFY(!f.rows->row("/a.xml"));
}

void tst_HRPackageRows::rows_trustWhatTheyAreTold()
{
    Fixture f;
    f.start();
    f.run("INSERT INTO packages VALUES (8, '/b.xml', 2)");
    f.rows->noteOwnChange();
    f.rows->check();
    QVERIFY(!f.rows->row("/b.xml")); // not read again
    f.rows->add("/b.xml", 8);
    QCOMPARE(f.rows->row("/b.xml"), std::optional<int>(8));
}

void tst_HRPackageRows::rows_areReadAgain_onceForgotten()
{
    Fixture f;
    f.start();
    f.rows->add("/b.xml", 8); // of a transaction that is rolled back
    f.rows->refresh();
    QVERIFY(f.rows->row("/b.xml"));
    f.rows->forget();
    f.rows->refresh();
    QVERIFY(!f.rows->row("/b.xml"));
}

void tst_HRPackageRows::row_isTheFirstOfSeveral()
{
    Fixture f;
    f.run("INSERT INTO packages VALUES (3, '/a.xml', 2), (9, '/a.xml', 2)");
    f.start();
    QCOMPARE(f.rows->row("/a.xml"), std::optional<int>(3));
}

void tst_HRPackageRows::schemaVersion_changesWithTheTables()
{
    Fixture f;
    f.start();
    const qint64 version = f.rows->schemaVersion();
    f.rows->refresh();
    QCOMPARE(f.rows->schemaVersion(), version);
    f.run("CREATE TABLE more (a TEXT)");
    f.rows->refresh();
    QVERIFY(f.rows->schemaVersion() != version);
}

void tst_HRPackageRows::lookup_findsAKeyForItsLocale()
{
    Fixture f;
    f.run("INSERT INTO hintreels VALUES ('pen', 'en_US', 7), ('lost', 'en_US', 8)");
    HRIndexLookup lookup(QSqlDatabase::database("rows"));
    const auto file = lookup.find("pen", "en_US");
    QVERIFY(file);
    QCOMPARE(file->path, QString("/a.xml"));
    QCOMPARE(file->depth, 2);
    QVERIFY(!lookup.find("pen", "de_DE"));
    QVERIFY(!lookup.find("line", "en_US"));
    QVERIFY(!lookup.find("lost", "en_US")); // without a file
    QCOMPARE(lookup.depthOf("/a.xml"), std::optional<int>(2));
    QVERIFY(!lookup.depthOf("/b.xml"));
    f.run("DELETE FROM hintreels", "other"); // no lock is left
    QVERIFY(!lookup.find("pen", "en_US"));
}

void tst_HRPackageRows::lookup_findsAgain_afterTheTablesWereMadeAnew()
{
    Fixture f;
    HRIndexLookup lookup(QSqlDatabase::database("rows"));
    QVERIFY(!lookup.find("pen", "en_US"));
    f.run("DROP TABLE packages");
    f.run("DROP TABLE hintreels");
    f.makeTables();
    f.run("INSERT INTO packages VALUES (1, '/b.xml', 3)");
    f.run("INSERT INTO hintreels VALUES ('pen', 'en_US', 1)");
    const auto file = lookup.find("pen", "en_US");
    QVERIFY(file);
    QCOMPARE(file->path, QString("/b.xml"));
}

QTEST_GUILESS_MAIN(tst_HRPackageRows)
#include "tst_HRPackageRows.moc"
