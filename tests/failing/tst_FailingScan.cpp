// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "failing/FailingCalls.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"
#include "support/Descriptors.h"
#include "support/Promises.h"
#include "support/RecordingHost.h"

#include <QtTest>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Hintreels;

/// Lets each call of a start fail once, the n-th in the n-th start.
class tst_FailingScan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void scan_losesAtMostWhatItCouldNotRead_data();
    void scan_losesAtMostWhatItCouldNotRead();
};

namespace {

enum IndexKind
{
    inMemory,
    inDatabase,
    inPackageDatabase
};

const QStringList allKeys{ "a", "b", "c" };

/// Three packages of one key each, and a place for databases.
struct Place
{
    Place()
    {
        for (const QString &key : allKeys) {
            packages.writeControl(key.toUpper(), key + ".xml",
                "<hintreel key='" + key.toLatin1() + "' title='" + key.toLatin1() + "'/>",
                "locale='en_US'");
        }
        context.set(persistentDirectoryKey, databases.path());
        context.set(indexFileNameKey, "index.sqlite");
        context.set(clearIndexKey, false);
        context.set(removeIndexOnCloseKey, false);
    }

    std::unique_ptr<HRIndex> makeIndex(IndexKind kind)
    {
        if (kind == inMemory)
            return std::make_unique<HRIndex>(&context, QStringList());
        if (kind == inDatabase)
            return std::make_unique<HRSQLiteIndex>(&context, QStringList());
        return std::make_unique<HRPackageIndex>(&context, QStringList());
    }

    void forgetDatabase() const { QFile::remove(databases.filePath("index.sqlite")); }

    TestPackages packages;
    QTemporaryDir databases;
    HRContext context;
};

QString titleOf(HRIndex &index, const QString &key)
{
    QString directory;
    int depth = 0;
    HRXmlElement *root = nullptr;
    const HRXmlElement *entry = index.retrieve(key, QLocale("en_US"), directory, depth, root);
    const std::unique_ptr<HRXmlElement> owner(entry ? root : nullptr);
    return entry ? entry->attribute("title") : QString();
}

/// What a start has found, each key by its content.
QStringList foundKeys(HRIndex &index)
{
    QStringList found;
    for (const QString &key : allKeys) {
        const QString title = titleOf(index, key);
        if (title == key)
            found.append(key);
        else if (!title.isNull())
            found.append("wrong: " + title);
    }
    return found;
}

struct Start
{
    QStringList found; ///< while the call could fail
    long calls; ///< that could have failed
};

/// Starts a host on an index with one call failing, looks everything up and closes the index.
Start start(Place &place, IndexKind kind, FailingCallKind call, long number)
{
    const std::unique_ptr<HRIndex> index = place.makeIndex(kind);
    FailingCalls calls(call, number);
    const HRInterface host(place.context, { place.packages.path() }, index.get());
    index->keys();
    const QStringList found = foundKeys(*index);
    index->close();
    return { found, calls.end() };
}

bool losesAtMostOne(const QStringList &found)
{
    return found.size() >= allKeys.size() - 1
        && std::all_of(
            found.begin(), found.end(), [](const QString &key) { return allKeys.contains(key); });
}

const char *describe(long number, const QStringList &found)
{
    static QByteArray text;
    text = QStringLiteral("call %1: %2").arg(number).arg(found.join(' ')).toUtf8();
    return text.constData();
}

} // namespace

void tst_FailingScan::initTestCase()
{
    dropMessages();
}

void tst_FailingScan::scan_losesAtMostWhatItCouldNotRead_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("hasDatabase");
    QTest::addColumn<int>("call");
    // Nothing in a start maps files, and an index in memory neither writes nor allocates much.
    const std::pair<const char *, FailingCallKind> calls[]
        = { { "open", failingOpen }, { "read", failingRead }, { "stat", failingStat },
              { "write", failingWrite }, { "allocation", failingAllocation } };
    for (const auto &[name, call] : calls) {
        if (call != failingWrite && call != failingAllocation)
            QTest::addRow("%s, in memory", name) << int(inMemory) << false << int(call);
        QTest::addRow("%s, new database", name) << int(inDatabase) << false << int(call);
        QTest::addRow("%s, database", name) << int(inDatabase) << true << int(call);
        QTest::addRow("%s, new package database", name)
            << int(inPackageDatabase) << false << int(call);
        QTest::addRow("%s, package database", name) << int(inPackageDatabase) << true << int(call);
    }
}

void tst_FailingScan::scan_losesAtMostWhatItCouldNotRead()
{
    QFETCH(int, index);
    QFETCH(bool, hasDatabase);
    QFETCH(int, call);
    Place place;
    const auto startWith = [&](long number) {
        if (!hasDatabase)
            place.forgetDatabase();
        return start(place, IndexKind(index), FailingCallKind(call), number);
    };
    long calls = startWith(0).calls;
    QVERIFY(calls > 0);
    const QStringList descriptors = openDescriptors();
    for (long number = 1; number <= calls; ++number) {
        const Start disturbed = startWith(number);
        calls = qMax(calls, disturbed.calls);
        QVERIFY2(losesAtMostOne(disturbed.found), describe(number, disturbed.found));
        QCOMPARE(openDescriptors(), descriptors);
        // Nothing of it is remembered.
        const Start next = start(place, IndexKind(index), FailingCallKind(call), 0);
        QVERIFY2(next.found == allKeys, describe(number, next.found));
    }
}

QTEST_MAIN(tst_FailingScan)
#include "tst_FailingScan.moc"
