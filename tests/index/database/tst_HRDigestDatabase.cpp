// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/DigestFixture.h"

#include "index/database/HRDigestDatabase_p.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Hintreels;

class tst_HRDigestDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_comeBack_inAnotherRun();
    void enter_tellsAnotherDirectory();
    void leaving_forgetsFilesThatAreGone();
    void clear_forgetsTheDirectoryInHand();
    void drop_forgetsAFile();
    void setUp_succeeds_whereNothingIsOpen();
    void corruptDigest_isMadeAnew_onceInARun();
};

namespace {

const QString MadeAnew = "Index database is damaged. It is made anew";

/// One run over a directory with two files.
struct Run
{
    explicit Run(const TestPackages &files)
        : directory(files.path() + "/Control/")
    {
        place.path = files.path() + "/a.sqlite";
        place.connection = "digests";
        place.tables = QStringList(HRDigestDatabase::tableName());
        if (!database.open(place))
            qFatal("the database does not open");
    }
    ~Run() { database.close(); }

    bool knows(const char *name)
    {
        HRStoredFile file;
        return database.find(name, fileWithKey(0).stamp, file) && file.isControlFile;
    }

    /// Puts a row into the table behind the database's back.
    void write(const QString &path, const QByteArray &bytes) const
    {
        HRDigestTable table(QSqlDatabase::database("digests"));
        table.save(path, bytes);
        table.flush();
    }

    HRDatabasePlace place;
    HRDigestDatabase database{ [this] { return database.setUp(); } };
    QString directory;
};

struct Fixture
{
    Fixture()
    {
        for (const char *name : { "a.xml", "b.xml" })
            files.write("Control/" + QString(name), "");
        Run run(files);
        run.database.enter(run.directory);
        run.database.put("a.xml", fileWithKey(1));
        run.database.put("b.xml", fileWithKey(2));
    }
    ~Fixture() { messages.takeMessages(); }

    MessageGuard messages;
    TestPackages files;
};

} // namespace

void tst_HRDigestDatabase::files_comeBack_inAnotherRun()
{
    Fixture f;
    Run run(f.files);
    QVERIFY(!run.knows("a.xml"));
    run.database.enter(run.directory);
    HRStoredFile file;
    QVERIFY(run.database.find("a.xml", fileWithKey(0).stamp, file));
    QVERIFY(file.digest.keys == std::vector<quint32>{ 1 });
    QVERIFY(!run.database.find("b.xml", fileWithKey(0, 11).stamp, file));
    QVERIFY(!run.knows("c.xml"));
}

void tst_HRDigestDatabase::enter_tellsAnotherDirectory()
{
    Fixture f;
    Run run(f.files);
    QVERIFY(run.database.enter(run.directory));
    QVERIFY(!run.database.enter(run.directory));
    QVERIFY(run.knows("a.xml"));
    QVERIFY(run.database.enter("/elsewhere/"));
    QVERIFY(!run.knows("a.xml"));
    QVERIFY(run.database.enter(run.directory));
    QVERIFY(run.knows("a.xml"));
}

void tst_HRDigestDatabase::leaving_forgetsFilesThatAreGone()
{
    Fixture f;
    QVERIFY(QFile::remove(f.files.path() + "/Control/a.xml"));
    for (int i = 0; i < 2; ++i) {
        Run run(f.files);
        run.database.enter(run.directory);
        // Not asked for in the first run, but there.
        QCOMPARE(i == 1 && run.knows("a.xml"), false);
        QVERIFY(i == 0 || run.knows("b.xml"));
    }
}

void tst_HRDigestDatabase::clear_forgetsTheDirectoryInHand()
{
    Fixture f;
    Run run(f.files);
    run.database.enter(run.directory);
    QVERIFY(run.knows("a.xml"));
    run.database.clear();
    QVERIFY(!run.knows("a.xml"));
    QVERIFY(run.database.enter(run.directory));
    QVERIFY(!run.knows("a.xml"));
}

void tst_HRDigestDatabase::drop_forgetsAFile()
{
    Fixture f;
    {
        Run run(f.files);
        run.database.enter(run.directory);
        run.database.drop("a.xml");
    }
    Run run(f.files);
    run.database.enter(run.directory);
    QVERIFY(!run.knows("a.xml"));
    QVERIFY(run.knows("b.xml"));
}

void tst_HRDigestDatabase::setUp_succeeds_whereNothingIsOpen()
{
    HRDigestDatabase database([] { return true; });
    QVERIFY(database.setUp());
    QVERIFY(database.enter("/a/"));
    database.put("a.xml", fileWithKey(1));
    HRStoredFile file;
    QVERIFY(database.find("a.xml", fileWithKey(0).stamp, file));
    database.save();
    QVERIFY(!database.find("a.xml", fileWithKey(0).stamp, file));
}

void tst_HRDigestDatabase::corruptDigest_isMadeAnew_onceInARun()
{
    Fixture f;
    Run run(f.files);
    QByteArray bytes = digestOf("a.xml", 1);
    bytes.back() = char(bytes.back() ^ 1);
    run.write(run.directory, bytes);
    f.messages.takeMessages();
    run.database.enter(run.directory);
    QVERIFY(!run.knows("a.xml"));
    QCOMPARE(f.messages.takeMessages().filter(MadeAnew).size(), 1);
    QVERIFY(QFile::exists(run.place.path));
    QVERIFY(QSqlDatabase::contains("digests"));
    run.write("/other/", bytes);
    run.database.enter("/other/");
    QCOMPARE(f.messages.takeMessages().filter(MadeAnew).size(), 0);
    QVERIFY(!QFile::exists(run.place.path));
    QVERIFY(!QSqlDatabase::contains("digests"));
}

QTEST_GUILESS_MAIN(tst_HRDigestDatabase)
#include "tst_HRDigestDatabase.moc"
