// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/SqliteIndexFixture.h"

#include "content/HRXmlElement.h"
#include "index/HRSQLiteIndex.h"

#include <QElapsedTimer>
#include <QtTest>

#include <optional>

using namespace Hintreels;

/// What an index in SQLite does while its database refuses it: entries, locks, commits.
class tst_HRSQLiteIndexLocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void index_staysOpen_whenTheDatabaseIsLocked_data();
    void index_staysOpen_whenTheDatabaseIsLocked();
    void store_returnsFalse_whenTheLockIsRefused();
    void heldEntries_answerAsTheNewest();
    void heldEntries_areListedOncePerLocale();
    void heldEntries_serveTheirLocaleOnly();
    void heldEntries_keepTheFirstDepthOfTheirFile_data();
    void heldEntries_keepTheFirstDepthOfTheirFile();
    void heldEntries_goIn_withTheNextUpdate_data();
    void heldEntries_goIn_withTheNextUpdate();
    void heldEntries_goIn_beforeThoseOfTheUpdate();
    void heldEntries_goIn_whenTheKeptFileIsClosed();
    void heldEntries_areForgotten_data();
    void heldEntries_areForgotten();
    void rowsOfEarlierRuns_answer_whenTheDatabaseIsLocked();
    void refusal_isWaitedForOnceASecond_data();
    void refusal_isWaitedForOnceASecond();
    void refusalInATransaction_holdsItsEntries();
    void refusalOnTheWay_holdsItsEntries_data();
    void refusalOnTheWay_holdsItsEntries();
    void failedCommit_holdsItsEntries();
    void failedCommit_isTriedAgain_aSecondLater();
    void refusedEntry_isLogged_andTheOthersAreStored();
    void failedPackageInsert_storesAnItemThatIsListedAndNeverFound();
};

namespace {

const QStringList WriterLock{ "BEGIN IMMEDIATE" };
const QStringList ReaderLock{ "BEGIN", "SELECT hrkey FROM hintreels" };

/// A fixture whose database another program keeps locked until release().
struct LockedFixture : SqliteIndexFixture
{
    void lock(const QStringList &statements = WriterLock)
    {
        other.emplace(databaseFile());
        for (const QString &statement : statements)
            other->execute(statement);
    }
    void release() { other.reset(); }

    bool store(const QString &key, const QString &file, int levels = 1)
    {
        HRXmlElement entry;
        entry.setAttribute("key", key);
        return index.store(&entry, QLocale("en_US"), file, levels);
    }

    QStringList rowsOf(const QString &key)
    {
        return rows("SELECT ppath || ' ' || depth FROM hintreels, packages WHERE hrkey = '" + key
            + "' AND hintreels.pkey = packages.pkey");
    }

    int refusals() { return messages.takeMessages().filter("database is locked").size(); }

    std::optional<OtherConnection> other;
};

} // namespace

void tst_HRSQLiteIndexLocks::index_staysOpen_whenTheDatabaseIsLocked_data()
{
    QTest::addColumn<QStringList>("lock");
    QTest::newRow("reader and writer") << QStringList("BEGIN EXCLUSIVE");
    QTest::newRow("writer") << WriterLock;
    QTest::newRow("reader") << ReaderLock;
}

void tst_HRSQLiteIndexLocks::index_staysOpen_whenTheDatabaseIsLocked()
{
    QFETCH(QStringList, lock);
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.add("A", "b.xml", "<hintreel key='line' n='2'/><hintreel key='ink' n='2'/>");
    fixture.lock(lock);
    fixture.add("A", "c.xml", "<hintreel key='fill' n='3'/>");
    fixture.add("A", "d.xml", "<hintreel key='zoom' n='4'/>");
    QCOMPARE(fixture.found("fill"), QString("3"));
    QCOMPARE(fixture.found("zoom"), QString("4"));
    QCOMPARE(fixture.depth, 2);
    QCOMPARE(fixture.directory, fixture.packagePath("A") + "/Control");
    QCOMPARE(fixture.refusals(), 1);
    fixture.release();
    QCOMPARE(fixture.index.keys(), QStringList({ "ink", "line", "pen", "fill", "zoom" }));
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.found("ink"), QString("2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::store_returnsFalse_whenTheLockIsRefused()
{
    LockedFixture fixture;
    fixture.lock();
    fixture.index.startUpdate();
    QVERIFY(!fixture.store("pen", "/a.xml"));
    fixture.index.endUpdate();
    fixture.release();
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.index.startUpdate();
    QVERIFY(fixture.store("pen", "/a.xml"));
    fixture.index.endUpdate();
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_answerAsTheNewest()
{
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/><hintreel key='line' n='1'/>");
    fixture.lock();
    fixture.messages.takeMessages();
    const QString file = fixture.add("A", "b.xml", "<hintreel key='pen' n='2'/>");
    QCOMPARE(fixture.found("pen"), QString("2"));
    QVERIFY(fixture.messages.take("SQL load from " + file));
    fixture.add("A", "c.xml", "<hintreel key='pen' n='3'/>");
    QCOMPARE(fixture.found("pen"), QString("3"));
    QCOMPARE(fixture.found("line"), QString("1"));
    fixture.release();
    QCOMPARE(fixture.found("pen"), QString("3"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_areListedOncePerLocale()
{
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'/><hintreel key='line'/>");
    fixture.lock();
    fixture.add("A", "b.xml", "<hintreel key='pen'/><hintreel key='zoom'/>");
    fixture.add("A", "c.xml", "<hintreel key='pen'/>");
    fixture.add("A", "d.xml", "<hintreel key='pen'/>", "locale='de_DE'");
    QStringList keys = fixture.index.keys();
    keys.sort();
    QCOMPARE(keys, QStringList({ "line", "pen", "pen", "zoom" }));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_serveTheirLocaleOnly()
{
    LockedFixture fixture;
    fixture.lock();
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>", "");
    fixture.add("A", "b.xml", "<hintreel key='line' n='2'/>", "locale='de'");
    QVERIFY(fixture.found("pen").isNull());
    QCOMPARE(fixture.found("pen", "C"), QString("1"));
    QCOMPARE(fixture.found("line", "de_DE"), QString("2"));
    QVERIFY(fixture.found("line", "de_AT").isNull());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_keepTheFirstDepthOfTheirFile_data()
{
    QTest::addColumn<bool>("isStoredFirst");
    QTest::newRow("all are held") << false;
    QTest::newRow("the file has a row") << true;
}

void tst_HRSQLiteIndexLocks::heldEntries_keepTheFirstDepthOfTheirFile()
{
    QFETCH(bool, isStoredFirst);
    LockedFixture fixture;
    const QString file = fixture.packages.write("A.hintreels/B.hintreels/a.xml",
        "<hintreels locale='en_US'><hintreel key='pen' n='1'/></hintreels>");
    if (!isStoredFirst)
        fixture.lock();
    fixture.index.indexControlFile(file, fixture.packagePath("A"));
    if (isStoredFirst)
        fixture.lock();
    fixture.index.indexControlFile(file, fixture.packagePath("A") + "/B.hintreels");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.depth, 2);
    fixture.release();
    fixture.add("C", "c.xml", "");
    QCOMPARE(fixture.rowsOf("pen"), QStringList(file + " 2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_goIn_withTheNextUpdate_data()
{
    QTest::addColumn<QStringList>("lock");
    QTest::newRow("writer") << WriterLock;
    QTest::newRow("reader") << ReaderLock;
}

void tst_HRSQLiteIndexLocks::heldEntries_goIn_withTheNextUpdate()
{
    QFETCH(QStringList, lock);
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'/>");
    fixture.lock(lock);
    const QString second = fixture.add("A", "b.xml", "<hintreel key='pen'/>");
    const QString third = fixture.add("A", "c.xml", "<hintreel key='ink'/>", "locale='de_DE'");
    QCOMPARE(fixture.rowsOf("ink"), QStringList());
    fixture.release();
    fixture.index.startUpdate();
    fixture.index.endUpdate();
    QCOMPARE(fixture.rowsOf("pen"), QStringList(second + " 2"));
    QCOMPARE(fixture.rowsOf("ink"), QStringList(third + " 2"));
    QCOMPARE(
        fixture.rows("SELECT tlocale FROM hintreels WHERE hrkey = 'ink'"), QStringList("de_DE"));
    QCOMPARE(fixture.index.keys(), QStringList({ "ink", "pen" }));
    // Held no longer: another program's changes are seen.
    OtherConnection(fixture.databaseFile()).execute("DELETE FROM hintreels");
    QCOMPARE(fixture.index.keys(), QStringList());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_goIn_beforeThoseOfTheUpdate()
{
    LockedFixture fixture;
    fixture.lock();
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.release();
    fixture.index.startUpdate();
    const QString file = fixture.packages.writeControl("A", "b.xml", "<hintreel key='pen' n='2'/>");
    QVERIFY(fixture.store("pen", file, 2));
    QCOMPARE(fixture.found("pen"), QString("2"));
    fixture.index.endUpdate();
    QCOMPARE(fixture.rowsOf("pen"), QStringList(file + " 2"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_goIn_whenTheKeptFileIsClosed()
{
    LockedFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    fixture.context.set(clearIndexKey, false);
    fixture.lock();
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.release();
    fixture.index.close();
    QVERIFY(fixture.index.keys().isEmpty());
    QVERIFY(fixture.index.open());
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::heldEntries_areForgotten_data()
{
    QTest::addColumn<QString>("operation");
    for (const char *operation : { "clear", "close", "remove", "open" })
        QTest::newRow(operation) << operation;
}

void tst_HRSQLiteIndexLocks::heldEntries_areForgotten()
{
    QFETCH(QString, operation);
    LockedFixture fixture;
    fixture.lock();
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.release();
    if (operation == "clear")
        fixture.index.clear();
    else if (operation == "close")
        fixture.index.close();
    else if (operation == "remove")
        fixture.index.remove();
    else
        fixture.index.open();
    QVERIFY(fixture.found("pen").isNull());
    QCOMPARE(fixture.index.keys(), QStringList());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::rowsOfEarlierRuns_answer_whenTheDatabaseIsLocked()
{
    LockedFixture fixture;
    fixture.context.set(removeIndexOnCloseKey, false);
    fixture.context.set(clearIndexKey, false);
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>", "");
    fixture.index.close();
    QVERIFY(fixture.index.open());
    fixture.lock();
    fixture.add("A", "b.xml", "<hintreel key='line' n='2'/>");
    QCOMPARE(fixture.found("pen", "C"), QString("1"));
    QVERIFY(fixture.found("pen").isNull());
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::refusal_isWaitedForOnceASecond_data()
{
    index_staysOpen_whenTheDatabaseIsLocked_data();
}

void tst_HRSQLiteIndexLocks::refusal_isWaitedForOnceASecond()
{
    QFETCH(QStringList, lock);
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.lock(lock);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 60; ++i)
        fixture.add("A", QString::number(i) + ".xml", "<hintreel key='pen' n='2'/>");
    const int refusals = fixture.refusals();
    QVERIFY2(refusals >= 1 && refusals <= 1 + timer.elapsed() / 1000,
        qPrintable(QString::number(refusals)));
    int later = 0;
    const auto refusalsLater = [&] {
        fixture.add("A", "again.xml", "<hintreel key='pen' n='2'/>");
        return later += fixture.refusals();
    };
    QTRY_VERIFY(refusalsLater() > 0);
    QCOMPARE(fixture.found("pen"), QString("2"));
    QCOMPARE(fixture.rows("PRAGMA busy_timeout"), QStringList("100")); // for look-ups
    fixture.messages.takeMessages();
}

// Where the host has begun a transaction itself, its first statement to write meets the lock.
void tst_HRSQLiteIndexLocks::refusalInATransaction_holdsItsEntries()
{
    LockedFixture fixture;
    fixture.rows("BEGIN");
    fixture.lock();
    fixture.index.startUpdate();
    QVERIFY(!fixture.store("pen", "/a.xml"));
    fixture.release();
    QVERIFY(!fixture.store("pen", "/b.xml")); // not stored as older than what is held
    fixture.index.endUpdate();
    QCOMPARE(fixture.rows("SELECT hrkey FROM hintreels"), QStringList());
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.index.startUpdate();
    fixture.index.endUpdate();
    QCOMPARE(fixture.rowsOf("pen"), QStringList("/b.xml 1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::refusalOnTheWay_holdsItsEntries_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("known file") << "/a.xml";
    QTest::newRow("new file") << "/b.xml";
}

// Where the host itself has ended the update's transaction, another program may come in between.
void tst_HRSQLiteIndexLocks::refusalOnTheWay_holdsItsEntries()
{
    QFETCH(QString, file);
    LockedFixture fixture;
    fixture.index.startUpdate();
    QVERIFY(fixture.store("pen", "/a.xml"));
    fixture.rows("COMMIT");
    fixture.lock();
    QVERIFY(!fixture.store("pen", file));
    QVERIFY(!fixture.store("line", file));
    fixture.release();
    fixture.index.endUpdate();
    QCOMPARE(fixture.index.keys(), QStringList({ "pen", "line" }));
    const auto stored = [&] {
        fixture.index.startUpdate();
        fixture.index.endUpdate();
        return fixture.rowsOf("pen") + fixture.rowsOf("line");
    };
    QTRY_COMPARE(stored(), QStringList({ file + " 1", file + " 1" }));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::failedCommit_holdsItsEntries()
{
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.index.startUpdate();
    const QString file = fixture.packages.writeControl("A", "b.xml", "<hintreel key='pen' n='2'/>");
    QVERIFY(fixture.store("pen", file, 2));
    fixture.rows("ROLLBACK");
    fixture.index.endUpdate();
    QCOMPARE(fixture.messages.takeMessages().filter("Could not insert item:").size(), 1);
    QCOMPARE(fixture.found("pen"), QString("2"));
    fixture.messages.takeMessages();
}

// Whatever is held is written anew with each try, which on a full disk would never end.
void tst_HRSQLiteIndexLocks::failedCommit_isTriedAgain_aSecondLater()
{
    LockedFixture fixture;
    fixture.index.startUpdate();
    QVERIFY(fixture.store("pen", "/a.xml"));
    fixture.rows("ROLLBACK");
    fixture.index.endUpdate();
    fixture.index.startUpdate();
    QVERIFY(!fixture.store("line", "/b.xml"));
    fixture.index.endUpdate();
    QCOMPARE(fixture.rows("SELECT hrkey FROM hintreels"), QStringList());
    QCOMPARE(fixture.index.keys().size(), 2);
    const auto stored = [&] {
        fixture.index.startUpdate();
        fixture.index.endUpdate();
        return fixture.rows("SELECT hrkey FROM hintreels").size();
    };
    QTRY_COMPARE(stored(), 2);
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::refusedEntry_isLogged_andTheOthersAreStored()
{
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    OtherConnection(fixture.databaseFile())
        .execute("CREATE TRIGGER t BEFORE INSERT ON hintreels WHEN NEW.hrkey = 'line' BEGIN SELECT "
                 "RAISE(ABORT, 'not this one'); END");
    fixture.add("A", "b.xml", "<hintreel key='line' n='2'/><hintreel key='pen' n='2'/>");
    QVERIFY(
        fixture.messages.takeMessages().join('\n').contains("Could not insert item:not this one"));
    QVERIFY(fixture.found("line").isNull());
    QCOMPARE(fixture.found("pen"), QString("2"));
    QCOMPARE(fixture.index.keys(), QStringList("pen"));
    fixture.index.startUpdate();
    QVERIFY(!fixture.store("line", "/c.xml"));
    QVERIFY(fixture.store("ink", "/c.xml"));
    fixture.index.endUpdate();
    QCOMPARE(fixture.rowsOf("ink"), QStringList("/c.xml 1"));
    fixture.messages.takeMessages();
}

void tst_HRSQLiteIndexLocks::failedPackageInsert_storesAnItemThatIsListedAndNeverFound()
{
    LockedFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    OtherConnection(fixture.databaseFile())
        .execute("CREATE TRIGGER t BEFORE INSERT ON packages BEGIN SELECT RAISE(ABORT, 'no'); END");
    fixture.index.startUpdate();
    QVERIFY(fixture.store("pen", "/b.xml"));
    QVERIFY(fixture.store("line", "/b.xml"));
    fixture.index.endUpdate();
    // Tried for each entry, since there is no row for the file.
    const QStringList failures
        = fixture.messages.takeMessages().filter("Could not insert package:");
    QCOMPARE(failures.size(), 2);
    QCOMPARE(fixture.rows("SELECT hrkey || pkey FROM hintreels ORDER BY hrkey"),
        QStringList({ "line0", "pen0" }));
    QCOMPARE(fixture.index.keys(), QStringList({ "line", "pen" }));
    QVERIFY(fixture.found("pen").isNull());
    fixture.messages.takeMessages();
}

QTEST_GUILESS_MAIN(tst_HRSQLiteIndexLocks)
#include "tst_HRSQLiteIndexLocks.moc"
