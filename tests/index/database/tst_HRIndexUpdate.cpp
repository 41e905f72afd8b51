// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRIndexDatabase_p.h"
#include "index/database/HRIndexUpdate_p.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QtTest>

using namespace Hintreels;

namespace {

/// SQLite's driver, but that it does not tell the keys of new rows.
class SilentDriver : public QSqlDriver
{
    Q_OBJECT

public:
    bool hasFeature(DriverFeature feature) const override
    {
        return feature != LastInsertId && m_driver.hasFeature(feature);
    }
    bool open(const QString &name, const QString &user, const QString &password,
        const QString &host, int port, const QString &options) override
    {
        const bool isOpen = m_driver.open(name, user, password, host, port, options);
        setOpen(isOpen);
        return isOpen;
    }
    void close() override
    {
        setOpen(false);
        m_driver.close();
    }
    QSqlResult *createResult() const override { return m_driver.createResult(); }

private:
    // Asked for once: Qt closes a driver while it holds the lock of its list of connections.
    QSqlDriver &m_driver = *QSqlDatabase::database("plain", false).driver();
};

/// An update over a database with the tables of the index.
struct Fixture
{
    Fixture()
    {
        if (!database.open("update", files.path() + "/a.sqlite", tables, true))
            qFatal("cannot open");
        database.execute(
            "CREATE TABLE packages (pkey INTEGER PRIMARY KEY, ppath TEXT, depth INTEGER)", "");
        database.execute("CREATE TABLE hintreels (hrkey TEXT PRIMARY KEY, tlocale TEXT, pkey "
                         "INTEGER)",
            "");
    }

    QStringList rows() const
    {
        QSqlQuery query("SELECT hrkey || ' ' || ppath FROM hintreels, packages WHERE "
                        "hintreels.pkey = packages.pkey ORDER BY hrkey",
            database.handle());
        QStringList rows;
        while (query.next())
            rows.append(query.value(0).toString());
        return rows;
    }

    const QStringList tables{ "packages", "hintreels" };
    TestPackages files;
    HRIndexDatabase database;
    HRHeldEntries held;
};

} // namespace

/// What no database of a host's index leads to; the rest is seen in tst_HRSQLiteIndex.
class tst_HRIndexUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void row_isLookedFor_whereTheDriverDoesNotTellIt_data();
    void row_isLookedFor_whereTheDriverDoesNotTellIt();
};

void tst_HRIndexUpdate::row_isLookedFor_whereTheDriverDoesNotTellIt_data()
{
    QTest::addColumn<QByteArray>("trap"); // what befalls the row as it is inserted
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<bool>("isFound");
    const QByteArray trigger("CREATE TRIGGER t AFTER INSERT ON packages BEGIN ");
    QTest::newRow("stays") << QByteArray() << QStringList{ "line /a.xml", "pen /a.xml" };
    QTest::newRow("goes") << trigger + "DELETE FROM packages; END" << QStringList();
    QTest::newRow("table goes") << QByteArray("DROP TABLE packages") << QStringList();
}

void tst_HRIndexUpdate::row_isLookedFor_whereTheDriverDoesNotTellIt()
{
    QFETCH(QByteArray, trap);
    QSqlDatabase::addDatabase("QSQLITE", "plain");
    QSqlDatabase::registerSqlDriver("QSQLITE", new QSqlDriverCreator<SilentDriver>);
    MessageGuard messages;
    {
        Fixture fixture;
        HRIndexUpdate update(fixture.database, fixture.held);
        update.begin();
        if (!trap.isEmpty())
            fixture.database.execute(trap.constData(), "");
        for (const char *key : { "pen", "line" })
            QVERIFY(update.store({ key, "en_US", "/a.xml", 1 }));
        update.end();
        QTEST(fixture.rows(), "rows");
    }
    QVERIFY(messages.take("DB doesn't support lastInsertId"));
    messages.takeMessages();
    QSqlDatabase::registerSqlDriver("QSQLITE", nullptr);
    QSqlDatabase::removeDatabase("plain");
}

QTEST_GUILESS_MAIN(tst_HRIndexUpdate)
#include "tst_HRIndexUpdate.moc"
