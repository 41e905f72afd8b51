// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/DigestFixture.h"

#include "index/database/HRDigestTable_p.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Hintreels;

class tst_HRDigestTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digests_comeBack_onceTheyAreFlushed();
    void save_writes_whenMuchIsUnsaved_data();
    void save_writes_whenMuchIsUnsaved();
    void clear_forgetsAll();
    void removeMissing_forgetsDirectoriesThatAreGone();
    void table_isUsable_whereItStands();
    void table_isNotUsable_whereItCannotBeMade();
    void corruption_isTold();
    void table_thatIsTakenAway_isNoCorruption();
};

namespace {

struct Connection
{
    explicit Connection(const QString &path, const QString &connectionName = "digests")
        : name(connectionName)
        , database(QSqlDatabase::addDatabase("QSQLITE", name))
    {
        database.setDatabaseName(path);
        if (!database.open())
            qFatal("cannot open %s", qPrintable(path));
    }
    ~Connection()
    {
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
    }

    int rows() const
    {
        QSqlQuery query("SELECT COUNT(*) FROM control_directories", database);
        return query.next() ? query.value(0).toInt() : -1;
    }

    QString name;
    QSqlDatabase database;
};

} // namespace

void tst_HRDigestTable::digests_comeBack_onceTheyAreFlushed()
{
    const TestPackages files;
    const Connection one(files.path() + "/a.sqlite");
    const Connection two(files.path() + "/a.sqlite", "other");
    HRDigestTable table(one.database);
    QVERIFY(table.isUsable());
    QVERIFY(table.load("/a/").isEmpty());
    table.save("/a/", "first");
    table.save("/a/", "second");
    table.save("/b/", "other");
    QCOMPARE(table.load("/a/"), QByteArray("second"));
    QCOMPARE(two.rows(), 0);
    table.flush();
    QCOMPARE(two.rows(), 2);
    QCOMPARE(table.load("/a/"), QByteArray("second"));
    HRDigestTable other(two.database);
    QCOMPARE(other.load("/b/"), QByteArray("other"));
    QVERIFY(!table.isCorrupt());
}

void tst_HRDigestTable::save_writes_whenMuchIsUnsaved_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("rows");
    QTest::newRow("as much as is held back") << (1 << 20) << 0;
    QTest::newRow("one byte more") << (1 << 20) + 1 << 1;
}

void tst_HRDigestTable::save_writes_whenMuchIsUnsaved()
{
    QFETCH(int, size);
    const Connection connection(":memory:");
    HRDigestTable table(connection.database);
    table.save("/a/", QByteArray(size, 'x'));
    QTEST(connection.rows(), "rows");
    table.clear();
    table.save("/b/", QByteArray(1 << 20, 'x')); // what was forgotten does not count
    QCOMPARE(connection.rows(), 0);
}

void tst_HRDigestTable::clear_forgetsAll()
{
    const Connection connection(":memory:");
    HRDigestTable table(connection.database);
    table.save("/a/", "written");
    table.flush();
    table.load("/a/");
    table.save("/b/", "unsaved");
    table.clear();
    QVERIFY(table.load("/a/").isEmpty());
    QVERIFY(table.load("/b/").isEmpty());
    table.flush();
    QCOMPARE(connection.rows(), 0);
}

void tst_HRDigestTable::removeMissing_forgetsDirectoriesThatAreGone()
{
    const TestPackages files;
    const QString file = files.write("there/file", "");
    const QString there = files.path() + "/there/";
    const Connection connection(":memory:");
    HRDigestTable table(connection.database);
    for (const QString &directory : { there, files.path() + "/none/", file })
        table.save(directory, "x");
    table.flush();
    table.removeMissing();
    QCOMPARE(connection.rows(), 1);
    QCOMPARE(table.load(there), QByteArray("x"));
}

void tst_HRDigestTable::table_isUsable_whereItStands()
{
    const Connection connection(":memory:");
    QVERIFY(HRDigestTable(connection.database).isUsable());
    QSqlQuery(connection.database).exec("PRAGMA query_only=1");
    QVERIFY(HRDigestTable(connection.database).isUsable());
}

void tst_HRDigestTable::table_isNotUsable_whereItCannotBeMade()
{
    const Connection connection(":memory:");
    QSqlQuery(connection.database).exec("PRAGMA query_only=1");
    const HRDigestTable table(connection.database);
    QVERIFY(!table.isUsable());
    QVERIFY(!table.isCorrupt());
}

void tst_HRDigestTable::corruption_isTold()
{
    const TestPackages files;
    const QString path = files.path() + "/a.sqlite";
    {
        const Connection connection(path);
        HRDigestTable table(connection.database);
        table.save("/a/", QByteArray(10000, 'x'));
        table.flush();
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(4096);
    file.write(QByteArray(int(file.size()) - 4096, '\xa5'));
    file.close();
    const Connection connection(path);
    HRDigestTable table(connection.database);
    QVERIFY(table.isUsable());
    QVERIFY(!table.isCorrupt());
    QVERIFY(table.load("/a/").isEmpty());
    QVERIFY(table.isCorrupt());
    QSqlQuery(connection.database).exec("DROP TABLE control_directories");
    table.removeMissing();
    QVERIFY(table.isCorrupt());
}

void tst_HRDigestTable::table_thatIsTakenAway_isNoCorruption()
{
    const Connection connection(":memory:");
    HRDigestTable table(connection.database);
    QVERIFY(table.isUsable());
    QVERIFY(QSqlQuery(connection.database).exec("DROP TABLE control_directories"));
    QVERIFY(table.load("/a/").isEmpty());
    table.save("/a/", "x");
    table.flush();
    table.removeMissing();
    QVERIFY(!table.isCorrupt());
    QCOMPARE(connection.rows(), -1);
}

QTEST_GUILESS_MAIN(tst_HRDigestTable)
#include "tst_HRDigestTable.moc"
