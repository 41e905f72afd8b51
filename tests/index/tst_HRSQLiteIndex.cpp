// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/SqliteIndexFixture.h"

#include "content/HRXmlElement.h"
#include "index/HRSQLiteIndex.h"
#include "support/MisleadingNames.h"
#include "support/TestPackage.h"

#include <QLocale>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Hintreels;

/// What an index in SQLite stores and finds.
class tst_HRSQLiteIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closedIndex_leavesTheHostsDatabaseAlone();
    void closedIndex_servesFromMemory();
    void retrieve_tellsWhereTheEntryLies();
    void retrieve_servesTheFileIndexedLast();
    void retrieve_tellsPlace_whenTheFileHasLostTheKey();
    void retrieve_reportsAMissingTable();
    void fileWithoutLocale_servesCOnly();
    void keys_areListedOncePerLocale();
    void keys_ofAnEmptyDatabase_areNone();
    void indexControlFile_storesEntriesUpToAnError();
    void indexControlFile_passesOver_data();
    void indexControlFile_passesOver();
    void indexControlFile_keepsTheFirstDepth();
    void indexControlFile_endsTheCallersUpdate();
    void indexControlFile_seesRowsOfAnotherConnection();
    void indexControlFile_seesThatRowsAreDeleted_onItsOwnConnection();
    void store_seesThatRowsAreDeleted_onItsOwnConnection();
    void store_outsideAnUpdate_remembersTheFileInMemory();
    void store_withoutAnEntry_remembersTheFileInMemory();
    void setup_insideAnUpdate_staysInIt();
    void store_bindsValues();
    void store_reportsAMissingTable();
    void messages_areOneLine_data();
    void messages_areOneLine();
    void packageMap_staysEmpty();
    void close_endsAnUpdate();
};

void tst_HRSQLiteIndex::closedIndex_leavesTheHostsDatabaseAlone()
{
    SqliteIndexFixture fixture(false);
    {
        QSqlDatabase host = QSqlDatabase::addDatabase("QSQLITE");
        host.setDatabaseName(":memory:");
        QVERIFY(host.open());
        QSqlQuery query(host);
        QVERIFY(query.exec("CREATE TABLE packages (ppath TEXT)"));
        QVERIFY(query.exec("CREATE TABLE hintreels (hrkey TEXT)"));
        QVERIFY(query.exec("INSERT INTO hintreels VALUES ('host')"));
    }
    fixture.index.setup();
    fixture.index.clear();
    fixture.index.startUpdate();
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.index.endUpdate();
    QVERIFY(fixture.index.open());
    fixture.index.close();
    fixture.index.clear();
    {
        QSqlQuery query("SELECT hrkey FROM hintreels");
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toString(), QString("host"));
        QVERIFY(!query.next());
    }
    QSqlDatabase::removeDatabase(QSqlDatabase::database().connectionName());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::closedIndex_servesFromMemory()
{
    SqliteIndexFixture fixture(false);
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.add("A", "b.xml", "<hintreel key='pen' n='2'/><hintreel key='line' n='2'/>");
    // In the order of indexing, unlike the index that keeps everything in memory.
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.found("line"), QString("2"));
    QCOMPARE(fixture.index.keys(), QStringList({ "pen", "pen", "line" }));
}

void tst_HRSQLiteIndex::retrieve_tellsWhereTheEntryLies()
{
    SqliteIndexFixture fixture;
    fixture.messages.takeMessages();
    const QString file = fixture.add("A", "%1.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.directory, fixture.packagePath("A") + "/Control");
    QCOMPARE(fixture.depth, 2);
    QVERIFY(fixture.messages.take("SQL load from " + file));
    QVERIFY(fixture.found("Pen").isNull());
    QVERIFY(fixture.found("pen", "de_DE").isNull());
}

void tst_HRSQLiteIndex::retrieve_servesTheFileIndexedLast()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/><hintreel key='line' n='1'/>");
    fixture.add("A", "b.xml", "<hintreel key='pen' n='2'/>");
    QCOMPARE(fixture.found("pen"), QString("2"));
    QCOMPARE(fixture.found("line"), QString("1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::retrieve_tellsPlace_whenTheFileHasLostTheKey()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.packages.writeControl("A", "a.xml", "", "locale='en_US'");
    QVERIFY(fixture.found("pen").isNull());
    QCOMPARE(fixture.depth, 2);
    QCOMPARE(fixture.directory, fixture.packagePath("A") + "/Control");
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::retrieve_reportsAMissingTable()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.index.clear();
    fixture.messages.takeMessages();
    QVERIFY(fixture.found("pen").isNull());
    QVERIFY(fixture.index.keys().isEmpty());
    const QString messages = fixture.messages.takeMessages().join('\n');
    for (const char *message :
        { "Could not select element:", "Could not retrieve item:", "Could not retrieve keys:" })
        QVERIFY2(messages.contains(message), qPrintable(messages));
    QVERIFY(fixture.index.setup());
    fixture.add("A", "a.xml", "<hintreel key='pen' n='2'/>");
    QCOMPARE(fixture.found("pen"), QString("2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::fileWithoutLocale_servesCOnly()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>", "");
    QVERIFY(fixture.found("pen").isNull());
    QCOMPARE(fixture.found("pen", "C"), QString("1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::keys_areListedOncePerLocale()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'/><hintreel key='pen'/><hintreel/>");
    fixture.add("A", "b.xml", "<hintreel key='pen'/>");
    fixture.add("A", "c.xml", "<hintreel key='pen'/>", "locale='de_DE'");
    QCOMPARE(fixture.index.keys(), QStringList({ "pen", "pen" }));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::keys_ofAnEmptyDatabase_areNone()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    fixture.index.store(nullptr, QLocale(), file, 1);
    QCOMPARE(fixture.index.keys(), QStringList());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::indexControlFile_storesEntriesUpToAnError()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.packages.write("A.hintreels/a.xml",
        "<hintreels locale='en_US'><hintreel key='pen'/><hintreel key='line'></hintreels>");
    fixture.index.indexControlFile(file, fixture.packagePath("A"));
    QCOMPARE(fixture.index.keys(), QStringList({ "line", "pen" }));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::indexControlFile_passesOver_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("package");
    QTest::newRow("file outside the package") << "A.hintreels/Control/a.xml"
                                              << "B.hintreels";
    QTest::newRow("name that begins alike") << "A.hintreels/Control/a.xml"
                                            << "A.hint";
    QTest::newRow("file that is not there") << "A.hintreels/none.xml"
                                            << "A.hintreels";
    QTest::newRow("other root") << "A.hintreels/other.xml"
                                << "A.hintreels";
}

void tst_HRSQLiteIndex::indexControlFile_passesOver()
{
    QFETCH(QString, file);
    QFETCH(QString, package);
    SqliteIndexFixture fixture;
    fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    fixture.packages.write("A.hintreels/other.xml", "<other key='a'><x key='pen'/></other>");
    fixture.packages.write("B.hintreels/b.xml", "");
    const QString base = fixture.packages.path() + '/';
    fixture.index.indexControlFile(base + file, base + package);
    QVERIFY(fixture.index.keys().isEmpty());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::indexControlFile_keepsTheFirstDepth()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.packages.write("A.hintreels/B.hintreels/a.xml",
        "<hintreels locale='en_US'><hintreel key='pen' n='1'/></hintreels>");
    fixture.index.indexControlFile(file, fixture.packagePath("A"));
    fixture.index.indexControlFile(file, fixture.packagePath("A/B"));
    fixture.index.indexControlFile(file, fixture.packagePath("A") + "/B.hintreels");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.depth, 2);
    QCOMPARE(fixture.rows("SELECT ppath FROM packages"), QStringList(file));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::indexControlFile_endsTheCallersUpdate()
{
    SqliteIndexFixture fixture;
    fixture.index.startUpdate();
    fixture.index.startUpdate();
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    HRXmlElement entry;
    entry.setAttribute("key", "line");
    fixture.index.store(&entry, QLocale("en_US"), "/x.xml", 1);
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.index.endUpdate();
    fixture.add("A", "b.xml", "<hintreel key='ink' n='1'/>");
    QCOMPARE(fixture.index.keys(), QStringList({ "ink", "pen" }));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::indexControlFile_seesRowsOfAnotherConnection()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.add("A", "a.xml", "<hintreel key='pen'/>");
    OtherConnection other(fixture.databaseFile());
    other.execute("UPDATE packages SET pkey = 77");
    other.execute("INSERT INTO packages (ppath, depth) VALUES ('/b.xml', 4)");
    fixture.index.indexControlFile(file, fixture.packagePath("A"));
    QCOMPARE(fixture.rows("SELECT pkey FROM hintreels"), QStringList("77"));
    QCOMPARE(fixture.rows("SELECT COUNT(*) FROM packages"), QStringList("2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::indexControlFile_seesThatRowsAreDeleted_onItsOwnConnection()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.rows("DELETE FROM packages");
    fixture.index.indexControlFile(file, fixture.packagePath("A"));
    QCOMPARE(fixture.rows("SELECT ppath FROM packages"), QStringList(file));
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::store_seesThatRowsAreDeleted_onItsOwnConnection()
{
    SqliteIndexFixture fixture;
    HRXmlElement entry;
    entry.setAttribute("key", "pen");
    fixture.index.startUpdate();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(fixture.index.store(&entry, QLocale("en_US"), "/a.xml", 1));
        fixture.rows("DELETE FROM packages");
        QVERIFY(fixture.index.store(&entry, QLocale("en_US"), "/a.xml", 1));
        QCOMPARE(fixture.rows("SELECT ppath FROM packages"), QStringList("/a.xml"));
    }
    fixture.index.endUpdate();
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::store_outsideAnUpdate_remembersTheFileInMemory()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen' n='1'/>");
    HRXmlElement entry;
    entry.setAttribute("key", "pen");
    QVERIFY(fixture.index.store(&entry, QLocale("en_US"), file, 2));
    QVERIFY(fixture.index.keys().isEmpty());
    fixture.index.close();
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::store_withoutAnEntry_remembersTheFileInMemory()
{
    SqliteIndexFixture fixture;
    const QString file = fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.index.startUpdate();
    QVERIFY(fixture.index.store(nullptr, QLocale("en_US"), file, 2));
    fixture.index.endUpdate();
    QVERIFY(fixture.index.keys().isEmpty());
    fixture.index.close();
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::setup_insideAnUpdate_staysInIt()
{
    SqliteIndexFixture fixture;
    HRXmlElement entry;
    entry.setAttribute("key", "pen");
    fixture.index.startUpdate();
    QVERIFY(fixture.index.setup());
    QVERIFY(fixture.index.store(&entry, QLocale("en_US"), "/a.xml", 1));
    fixture.index.endUpdate();
    fixture.index.endUpdate();
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::store_bindsValues()
{
    SqliteIndexFixture fixture;
    const QString key = "'); DROP TABLE hintreels; --";
    fixture.add("A", "it's %1.xml", "<hintreel key=\"" + key.toUtf8() + "\" n='1'/>");
    QCOMPARE(fixture.found(key), QString("1"));
    QCOMPARE(fixture.index.keys(), QStringList(key));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::store_reportsAMissingTable()
{
    SqliteIndexFixture fixture;
    fixture.index.clear();
    fixture.messages.takeMessages();
    fixture.index.startUpdate();
    HRXmlElement entry;
    entry.setAttribute("key", "pen");
    QVERIFY(!fixture.index.store(&entry, QLocale("en_US"), "/a.xml", 1));
    const QString messages = fixture.messages.takeMessages().join('\n');
    for (const char *message : { "Could not prepare package select query:no such table",
             "Could not prepare package insert query:no such table",
             "Could not prepare hintreel replace query:no such table",
             "Could not query package table:no such table",
             "Could not insert package:", "Could not insert item:" })
        QVERIFY2(messages.contains(message), qPrintable(messages));
    fixture.index.endUpdate();
}

void tst_HRSQLiteIndex::messages_areOneLine_data()
{
    addMisleadingNames();
}

void tst_HRSQLiteIndex::messages_areOneLine()
{
    QFETCH(QString, name);
    QFETCH(QString, told);
    SqliteIndexFixture fixture(false);
    fixture.context.set(indexFileNameKey, name);
    QVERIFY(fixture.index.open());
    QVERIFY(fixture.messages.take(
        "Creating index database in " + fixture.databaseDirectory() + '/' + told));

    const QString file = fixture.add("A", name + ".xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QVERIFY(fixture.messages.take("SQL load from " + QString(file).replace(name, told)));

    fixture.rows("CREATE TRIGGER t BEFORE INSERT ON hintreels BEGIN SELECT RAISE(ABORT, '" + name
        + "'); END");
    fixture.add("A", "b.xml", "<hintreel key='line'/>");
    const QStringList messages = fixture.messages.takeMessages();
    QVERIFY2(messages.join('|').contains("Could not insert item:" + told),
        qPrintable(messages.join('|')));
    QCOMPARE(messages.filter(name), QStringList());
}

void tst_HRSQLiteIndex::packageMap_staysEmpty()
{
    SqliteIndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'/>");
    QVERIFY(fixture.index.componentPathsForPackageNamed("A").isEmpty());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndex::close_endsAnUpdate()
{
    SqliteIndexFixture fixture;
    fixture.index.startUpdate();
    fixture.index.close();
    QVERIFY(fixture.index.open());
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.messages.takeMessages();
}

QTEST_GUILESS_MAIN(tst_HRSQLiteIndex)
#include "tst_HRSQLiteIndex.moc"
