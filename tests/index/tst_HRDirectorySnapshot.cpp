// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRDirectorySnapshot_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRDirectorySnapshot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_comeBackAsTheyWere();
    void find_refusesAnotherStamp_data();
    void find_refusesAnotherStamp();
    void put_replaces_andRemoveRemoves();
    void untouched_areThoseNotAskedFor();
    void decoded_tellsEveryDamage();
    void decoded_ignoresOtherFormats();
};

namespace {

HRStoredFile storedFile()
{
    HRStoredFile file;
    file.stamp.inode = 42;
    file.stamp.size = 1000;
    file.stamp.modified = 1'700'000'000'123'456'789;
    file.stamp.changed = 1'700'000'001'000'000'000;
    file.isControlFile = true;
    file.reading.locale = HRControlLocale::named("zh_Hant_TW");
    file.reading.keys = { 1, 2, 0xffffffff };
    return file;
}

HRDirectorySnapshot reloaded(const HRDirectorySnapshot &snapshot)
{
    std::optional<HRDirectorySnapshot> loaded = HRDirectorySnapshot::decoded(snapshot.encoded());
    if (!loaded)
        qFatal("the snapshot does not come back");
    return std::move(*loaded);
}

} // namespace

void tst_HRDirectorySnapshot::files_comeBackAsTheyWere()
{
    const HRStoredFile file = storedFile();
    HRStoredFile plain;
    HRDirectorySnapshot snapshot;
    snapshot.put("a.xml", file);
    snapshot.put("b.xml", plain);
    HRDirectorySnapshot loaded = reloaded(reloaded(snapshot));
    HRStoredFile found;
    QVERIFY(loaded.find("a.xml", file.stamp, found));
    QVERIFY(found.isControlFile);
    QVERIFY(found.stamp == file.stamp);
    QVERIFY(!found.reading.mayHoldAnything);
    QVERIFY(found.reading.locale);
    QCOMPARE(found.reading.locale->name, QByteArray("zh_Hant_TW"));
    QCOMPARE(found.reading.locale->locale, QLocale("zh_Hant_TW"));
    QVERIFY(found.reading.keys == file.reading.keys);
    QVERIFY(loaded.find("b.xml", plain.stamp, found));
    QVERIFY(!found.isControlFile);
    QVERIFY(!found.reading.locale);
    QVERIFY(found.reading.keys.empty());
    QVERIFY(!loaded.find("c.xml", plain.stamp, found));
    QVERIFY(loaded.find("a.xml", file.stamp, found));
}

void tst_HRDirectorySnapshot::find_refusesAnotherStamp_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("modified");
    QTest::addColumn<qint64>("changed");
    QTest::addColumn<int>("inode");
    QTest::addColumn<int>("device");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("same") << qint64(0) << qint64(0) << qint64(0) << 0 << 0 << true;
    QTest::newRow("size") << qint64(1) << qint64(0) << qint64(0) << 0 << 0 << false;
    QTest::newRow("modified") << qint64(0) << qint64(1) << qint64(0) << 0 << 0 << false;
    QTest::newRow("changed") << qint64(0) << qint64(0) << qint64(1) << 0 << 0 << false;
    QTest::newRow("inode") << qint64(0) << qint64(0) << qint64(0) << 1 << 0 << false;
    QTest::newRow("device may differ") << qint64(0) << qint64(0) << qint64(0) << 0 << 1 << true;
}

void tst_HRDirectorySnapshot::find_refusesAnotherStamp()
{
    QFETCH(qint64, size);
    QFETCH(qint64, modified);
    QFETCH(qint64, changed);
    QFETCH(int, inode);
    QFETCH(int, device);
    HRDirectorySnapshot snapshot;
    snapshot.put("a.xml", storedFile());
    HRFileStamp stamp = storedFile().stamp;
    stamp.size += size;
    stamp.modified += modified;
    stamp.changed += changed;
    stamp.inode += quint64(inode);
    stamp.device += quint64(device);
    HRStoredFile found;
    QTEST(snapshot.find("a.xml", stamp, found), "isFound");
}

void tst_HRDirectorySnapshot::put_replaces_andRemoveRemoves()
{
    HRDirectorySnapshot snapshot;
    snapshot.put("a.xml", HRStoredFile());
    snapshot.put("b.xml", HRStoredFile());
    snapshot.put("a.xml", storedFile());
    snapshot.remove("b.xml");
    snapshot.remove("c.xml");
    HRDirectorySnapshot loaded = reloaded(snapshot);
    HRStoredFile found;
    QVERIFY(loaded.find("a.xml", storedFile().stamp, found));
    QVERIFY(!loaded.find("b.xml", HRFileStamp(), found));
}

void tst_HRDirectorySnapshot::untouched_areThoseNotAskedFor()
{
    HRDirectorySnapshot snapshot;
    for (const char *name : { "a", "b", "c" })
        snapshot.put(name, HRStoredFile());
    QVERIFY(snapshot.untouched().empty());
    HRDirectorySnapshot loaded = reloaded(snapshot);
    HRStoredFile found;
    loaded.find("b", HRFileStamp(), found);
    loaded.put("d", HRStoredFile());
    QVERIFY(loaded.untouched() == std::vector<QByteArray>({ "a", "c" }));
}

void tst_HRDirectorySnapshot::decoded_tellsEveryDamage()
{
    HRDirectorySnapshot snapshot;
    snapshot.put("a.xml", storedFile());
    snapshot.put("b.xml", storedFile());
    const QByteArray bytes = snapshot.encoded();
    for (int i = 4; i < bytes.size(); ++i) {
        QByteArray damaged = bytes;
        damaged[i] = char(damaged[i] ^ 0x10);
        QVERIFY2(!HRDirectorySnapshot::decoded(damaged), qPrintable(QString::number(i)));
    }
    for (int length = 0; length < bytes.size(); ++length)
        QVERIFY2(
            !HRDirectorySnapshot::decoded(bytes.left(length)), qPrintable(QString::number(length)));
}

void tst_HRDirectorySnapshot::decoded_ignoresOtherFormats()
{
    HRDirectorySnapshot snapshot;
    snapshot.put("a.xml", storedFile());
    QByteArray bytes = snapshot.encoded();
    bytes[0] = 77;
    std::optional<HRDirectorySnapshot> loaded = HRDirectorySnapshot::decoded(bytes);
    QVERIFY(loaded);
    HRStoredFile found;
    QVERIFY(!loaded->find("a.xml", storedFile().stamp, found));
}

QTEST_GUILESS_MAIN(tst_HRDirectorySnapshot)
#include "tst_HRDirectorySnapshot.moc"
