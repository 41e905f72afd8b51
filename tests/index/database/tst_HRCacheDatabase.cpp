// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"
#include "index/database/HRCacheDatabase_p.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QtTest>

using namespace Hintreels;

class tst_HRCacheDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connection_isASetting();
    void open_setsUpWhatItHasOpened();
    void open_withoutAPath_isSilent();
    void open_staysClosed_whereTheSetUpFails();
    void open_tellsWhatIsCorrupt_data();
    void open_tellsWhatIsCorrupt();
    void openAnew_leavesAFileThatHasTakenThePlace();
    void remove_deletesWhatWasOpenedLast();
};

namespace {

const QString CouldNotOpen = "Could not open index database. Index will be disabled";

struct Fixture
{
    Fixture()
    {
        place.path = files.path() + "/index.sqlite";
        place.connection = "cache";
        place.tables = QStringList("packages");
    }

    QString creating() const { return "Creating index database in " + place.path; }

    /// Opens the database and leaves one of ours that SQLite finds corrupt.
    void corrupt()
    {
        if (!cache.open(place))
            qFatal("the database does not open");
        cache.close();
        QFile file(place.path);
        if (!file.open(QIODevice::ReadWrite) || !file.seek(20)
            || file.write(QByteArray(40, '\xa5')) != 40)
            qFatal("cannot write");
        messages.takeMessages();
    }

    MessageGuard messages;
    TestPackages files;
    HRDatabasePlace place;
    bool isSetUp = true;
    int setUps = 0;
    HRCacheDatabase cache{ [this] {
        ++setUps;
        QSqlQuery query(cache.connection().handle());
        return markAsOurs(query) && query.exec("CREATE TABLE IF NOT EXISTS packages (a TEXT)")
            && isSetUp;
    } };
};

} // namespace

void tst_HRCacheDatabase::connection_isASetting()
{
    HRContext context;
    QCOMPARE(indexConnection(context), QString("__Hintreels_Index__"));
    context.set(indexConnectionKey, "mine");
    QCOMPARE(indexConnection(context), QString("mine"));
}

void tst_HRCacheDatabase::open_setsUpWhatItHasOpened()
{
    Fixture f;
    QVERIFY(f.cache.open(f.place));
    QVERIFY(f.cache.isOpen());
    QVERIFY(!f.cache.isCorrupt());
    QCOMPARE(f.setUps, 1);
    QCOMPARE(f.cache.connection().handle().connectionName(), QString("cache"));
    QCOMPARE(f.messages.takeMessages(), QStringList(f.creating()));
    f.cache.close();
    QVERIFY(!f.cache.isOpen());
}

void tst_HRCacheDatabase::open_withoutAPath_isSilent()
{
    Fixture f;
    f.corrupt();
    QVERIFY(!f.cache.open(f.place));
    QVERIFY(f.cache.isCorrupt());
    f.messages.takeMessages();
    QVERIFY(!f.cache.open(HRDatabasePlace()));
    QVERIFY(!f.cache.isCorrupt());
    f.cache.remove();
    QVERIFY(QFile::exists(f.place.path));
}

void tst_HRCacheDatabase::open_staysClosed_whereTheSetUpFails()
{
    Fixture f;
    f.isSetUp = false;
    QVERIFY(!f.cache.open(f.place));
    QVERIFY(!f.cache.isOpen());
    QCOMPARE(f.messages.takeMessages(), QStringList(f.creating()));
    f.cache.remove();
    QVERIFY(QFile::exists(f.place.path)); // it may be another's
}

void tst_HRCacheDatabase::open_tellsWhatIsCorrupt_data()
{
    QTest::addColumn<bool>("isOurs");
    QTest::newRow("ours") << true;
    QTest::newRow("another's") << false;
}

void tst_HRCacheDatabase::open_tellsWhatIsCorrupt()
{
    QFETCH(bool, isOurs);
    Fixture f;
    if (isOurs)
        f.corrupt();
    else
        f.files.write("index.sqlite", QByteArray("no database ").repeated(100));
    QVERIFY(!f.cache.open(f.place));
    QCOMPARE(f.cache.isCorrupt(), isOurs);
    QStringList expected(f.creating());
    if (!isOurs)
        expected += CouldNotOpen;
    QCOMPARE(f.messages.takeMessages(), expected);
    if (!isOurs)
        return;
    QVERIFY(f.cache.openAnew());
    QVERIFY(!f.cache.isCorrupt());
    QCOMPARE(f.messages.takeMessages(), QStringList(f.creating()));
    f.cache.remove();
    QVERIFY(!QFile::exists(f.place.path));
}

void tst_HRCacheDatabase::openAnew_leavesAFileThatHasTakenThePlace()
{
    Fixture f;
    f.corrupt();
    QVERIFY(!f.cache.open(f.place));
    QVERIFY(f.cache.isCorrupt());
    Fixture other;
    QVERIFY(other.cache.open(other.place));
    QSqlQuery(other.cache.connection().handle()).exec("INSERT INTO packages VALUES ('x')");
    other.cache.close();
    QCOMPARE(::rename(qPrintable(other.place.path), qPrintable(f.place.path)), 0);
    QVERIFY(f.cache.openAnew());
    {
        QSqlQuery query("SELECT a FROM packages", f.cache.connection().handle());
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toString(), QString("x"));
    }
    f.messages.takeMessages();
}

void tst_HRCacheDatabase::remove_deletesWhatWasOpenedLast()
{
    Fixture f;
    f.cache.remove(); // nothing yet
    QVERIFY(f.cache.open(f.place));
    f.cache.close();
    QVERIFY(QFile::exists(f.place.path));
    f.cache.remove();
    QVERIFY(!QFile::exists(f.place.path));
    f.messages.takeMessages();
}

QTEST_GUILESS_MAIN(tst_HRCacheDatabase)
#include "tst_HRCacheDatabase.moc"
