// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QtTest>

#include <memory>

using namespace Hintreels;

/// Which damaged files an index makes anew: its own, and nobody else's.
class tst_IndexHealing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void open_makesOurFilesAnew_data();
    void open_makesOurFilesAnew();
    void open_leavesOtherFilesAlone_data();
    void open_leavesOtherFilesAlone();
    void packageIndex_makesAnew_whateverLiesInItsDefaultPlace_data();
    void packageIndex_makesAnew_whateverLiesInItsDefaultPlace();
    void packageIndex_leavesASoundDatabaseAlone_inItsDefaultPlace();
    void tables_comeWithAnApplicationId_data();
    void tables_comeWithAnApplicationId();
};

namespace {

constexpr int PageSize = 4096;
const QByteArray OurId("HtRl");

std::unique_ptr<HRIndex> makeIndex(HRContext &context, bool isPackageIndex)
{
    if (isPackageIndex)
        return std::make_unique<HRPackageIndex>(&context, QStringList());
    return std::make_unique<HRSQLiteIndex>(&context, QStringList());
}

/// Settings that put the database of an index into a file, and leave it there.
struct Place
{
    Place()
    {
        context.set(persistentDirectoryKey, packages.path());
        context.set(indexFileNameKey, "index.sqlite");
        context.set(removeIndexOnCloseKey, false);
        context.set(clearIndexKey, false);
    }

    QString file() const { return packages.path() + "/index.sqlite"; }

    TestPackages packages;
    HRContext context;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void setContent(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// A database of another program, with a table that is worth keeping.
QByteArray preciousDatabase(const QString &path)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "precious");
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(database);
        for (const char *statement : { "PRAGMA application_id=7", "CREATE TABLE precious (a TEXT)",
                 "INSERT INTO precious VALUES ('control directories of hintreels')" })
            query.exec(statement);
    }
    QSqlDatabase::removeDatabase("precious");
    return contentOf(path);
}

QByteArray damaged(QByteArray bytes, int first, int last)
{
    for (int i = first; i < qMin(last, bytes.size()); ++i)
        bytes[i] = char(0xa5);
    return bytes;
}

} // namespace

void tst_IndexHealing::open_makesOurFilesAnew_data()
{
    QTest::addColumn<bool>("isPackageIndex");
    QTest::addColumn<QString>("damage");
    for (const bool isPackageIndex : { false, true }) {
        for (const char *damage : { "schema", "header", "pages without our id", "zeros" })
            QTest::addRow("%s, %s", isPackageIndex ? "package" : "plain", damage)
                << isPackageIndex << damage;
    }
}

void tst_IndexHealing::open_makesOurFilesAnew()
{
    QFETCH(bool, isPackageIndex);
    QFETCH(QString, damage);
    MessageGuard messages;
    Place place;
    QVERIFY(makeIndex(place.context, isPackageIndex)->open());
    QByteArray bytes = contentOf(place.file());
    if (damage == "schema")
        bytes = damaged(bytes, 100, PageSize);
    else if (damage == "header")
        bytes = damaged(bytes, 0, 100);
    else if (damage == "pages without our id")
        bytes = damaged(bytes, PageSize, bytes.size()).replace(OurId, QByteArray(4, '\0'));
    else
        bytes.fill('\0');
    if (damage == "pages without our id" && isPackageIndex)
        bytes = damaged(bytes, 16, 68); // it reads no pages before it needs them
    setContent(place.file(), bytes);
    const auto index = makeIndex(place.context, isPackageIndex);
    QVERIFY(index->open());
    QCOMPARE(contentOf(place.file()).left(15), QByteArray("SQLite format 3"));
    messages.takeMessages();
}

void tst_IndexHealing::open_leavesOtherFilesAlone_data()
{
    QTest::addColumn<bool>("isPackageIndex");
    QTest::addColumn<QString>("kind");
    for (const bool isPackageIndex : { false, true }) {
        for (const char *kind : { "sound", "schema", "empty schema", "header", "all but the name",
                 "zeros at the beginning", "text" })
            QTest::addRow("%s, %s", isPackageIndex ? "package" : "plain", kind)
                << isPackageIndex << kind;
    }
}

void tst_IndexHealing::open_leavesOtherFilesAlone()
{
    QFETCH(bool, isPackageIndex);
    QFETCH(QString, kind);
    MessageGuard messages;
    Place place;
    QByteArray bytes = preciousDatabase(place.file());
    QCOMPARE(bytes.size(), 2 * PageSize);
    if (kind == "schema")
        bytes = damaged(bytes, 100, PageSize);
    else if (kind == "empty schema")
        bytes.replace(100, 5, QByteArray::fromHex("0d00000000")); // a leaf without cells
    else if (kind == "header")
        bytes = damaged(bytes, 0, 100);
    else if (kind == "all but the name")
        bytes = damaged(bytes, 16, bytes.size());
    else if (kind == "zeros at the beginning")
        bytes.replace(0, PageSize, QByteArray(PageSize, '\0'));
    else if (kind == "text")
        bytes = QByteArray("Dear diary, today I wrote no database at all. ").repeated(200);
    setContent(place.file(), bytes);
    QFile::setPermissions(place.file(), QFile::ReadOwner | QFile::WriteOwner);
    const auto index = makeIndex(place.context, isPackageIndex);
    QVERIFY(!index->open());
    QCOMPARE(messages.takeMessages().constLast(),
        QString("Could not open index database. Index will be disabled"));
    place.context.set(removeIndexOnCloseKey, true);
    index->close();
    QCOMPARE(contentOf(place.file()), bytes);
    index->indexControlFile(place.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>"),
        place.packages.path() + "/A.hintreels");
    QCOMPARE(index->keys(), QStringList("pen"));
}

void tst_IndexHealing::packageIndex_makesAnew_whateverLiesInItsDefaultPlace_data()
{
    QTest::addColumn<bool>("isNamed");
    QTest::newRow("by default") << false;
    QTest::newRow("named by settings") << true;
}

void tst_IndexHealing::packageIndex_makesAnew_whateverLiesInItsDefaultPlace()
{
    QFETCH(bool, isNamed);
    MessageGuard messages;
    QStandardPaths::setTestModeEnabled(true);
    HRContext context;
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QVERIFY(QDir().mkpath(directory));
    if (isNamed) {
        context.set(persistentDirectoryKey, directory);
        context.set(indexFileNameKey, "HintreelsPackages.sqlite");
    }
    const QString file = directory + "/HintreelsPackages.sqlite";
    const QByteArray precious = preciousDatabase(file);
    for (const QByteArray &bytes : { damaged(precious, 100, PageSize),
             damaged(precious, 0, 2 * PageSize), QByteArray("Dear diary. ").repeated(100) }) {
        setContent(file, bytes);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        HRPackageIndex index(&context, {});
        QVERIFY(index.open());
        QVERIFY(messages.take("Index database is damaged. It is made anew"));
        index.close();
    }
    QVERIFY(QFile::remove(file));
    QStandardPaths::setTestModeEnabled(false);
    messages.takeMessages();
}

void tst_IndexHealing::packageIndex_leavesASoundDatabaseAlone_inItsDefaultPlace()
{
    MessageGuard messages;
    QStandardPaths::setTestModeEnabled(true);
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QVERIFY(QDir().mkpath(directory));
    const QString file = directory + "/HintreelsPackages.sqlite";
    const QByteArray precious = preciousDatabase(file);
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    HRContext context;
    HRPackageIndex index(&context, {});
    QVERIFY(!index.open());
    QCOMPARE(contentOf(file), precious);
    QVERIFY(QFile::remove(file));
    QStandardPaths::setTestModeEnabled(false);
    messages.takeMessages();
}

void tst_IndexHealing::tables_comeWithAnApplicationId_data()
{
    QTest::addColumn<bool>("isPackageIndex");
    QTest::newRow("plain") << false;
    QTest::newRow("package") << true;
}

void tst_IndexHealing::tables_comeWithAnApplicationId()
{
    QFETCH(bool, isPackageIndex);
    MessageGuard messages;
    Place place;
    QVERIFY(makeIndex(place.context, isPackageIndex)->open());
    const QByteArray bytes = contentOf(place.file());
    QCOMPARE(bytes.mid(68, 4), OurId);
    // A start that finds everything in place writes nothing.
    QVERIFY(makeIndex(place.context, isPackageIndex)->open());
    QVERIFY(!isPackageIndex || contentOf(place.file()) == bytes);
    messages.takeMessages();
}

QTEST_GUILESS_MAIN(tst_IndexHealing)
#include "tst_IndexHealing.moc"
