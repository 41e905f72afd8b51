// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRDirectoryDigest_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRDirectoryDigest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_comeBackAsTheyWere();
    void find_refusesAnotherStamp_data();
    void find_refusesAnotherStamp();
    void put_replaces_andRemoveRemoves();
    void untouched_areThoseNotAskedFor();
    void decoded_tellsEveryDamage();
    void decoded_refusesAnEntry_whosePartsDoNotFillIt_data();
    void decoded_refusesAnEntry_whosePartsDoNotFillIt();
    void decoded_refusesAnEntry_thatEndsTooSoon_data();
    void decoded_refusesAnEntry_thatEndsTooSoon();
    void decoded_takesNoEntries();
    void encoded_staysAsItIs_inOneFormat();
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
    file.digest.locale = HRControlLocale::named("zh_Hant_TW");
    file.digest.keys = { 1, 2, 0xffffffff };
    return file;
}

HRDirectoryDigest reloaded(const HRDirectoryDigest &snapshot)
{
    std::optional<HRDirectoryDigest> loaded = HRDirectoryDigest::decoded(snapshot.encoded());
    if (!loaded)
        qFatal("the snapshot does not come back");
    return std::move(*loaded);
}

} // namespace

void tst_HRDirectoryDigest::files_comeBackAsTheyWere()
{
    const HRStoredFile file = storedFile();
    HRStoredFile plain;
    HRDirectoryDigest snapshot;
    snapshot.put("a.xml", file);
    snapshot.put("b.xml", plain);
    HRDirectoryDigest loaded = reloaded(reloaded(snapshot));
    HRStoredFile found;
    QVERIFY(loaded.find("a.xml", file.stamp, found));
    QVERIFY(found.isControlFile);
    QVERIFY(found.stamp == file.stamp);
    QVERIFY(!found.digest.mayHoldAnything);
    QVERIFY(found.digest.locale);
    QCOMPARE(found.digest.locale->name, QByteArray("zh_Hant_TW"));
    QCOMPARE(found.digest.locale->locale, QLocale("zh_Hant_TW"));
    QVERIFY(found.digest.keys == file.digest.keys);
    QVERIFY(loaded.find("b.xml", plain.stamp, found));
    QVERIFY(!found.isControlFile);
    QVERIFY(!found.digest.locale);
    QVERIFY(found.digest.keys.empty());
    QVERIFY(!loaded.find("c.xml", plain.stamp, found));
    QVERIFY(loaded.find("a.xml", file.stamp, found));
}

void tst_HRDirectoryDigest::find_refusesAnotherStamp_data()
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

void tst_HRDirectoryDigest::find_refusesAnotherStamp()
{
    QFETCH(qint64, size);
    QFETCH(qint64, modified);
    QFETCH(qint64, changed);
    QFETCH(int, inode);
    QFETCH(int, device);
    HRDirectoryDigest snapshot;
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

void tst_HRDirectoryDigest::put_replaces_andRemoveRemoves()
{
    HRDirectoryDigest snapshot;
    snapshot.put("a.xml", HRStoredFile());
    snapshot.put("b.xml", HRStoredFile());
    snapshot.put("a.xml", storedFile());
    snapshot.remove("b.xml");
    snapshot.remove("c.xml");
    HRDirectoryDigest loaded = reloaded(snapshot);
    HRStoredFile found;
    QVERIFY(loaded.find("a.xml", storedFile().stamp, found));
    QVERIFY(!loaded.find("b.xml", HRFileStamp(), found));
}

void tst_HRDirectoryDigest::untouched_areThoseNotAskedFor()
{
    HRDirectoryDigest snapshot;
    for (const char *name : { "a", "b", "c" })
        snapshot.put(name, HRStoredFile());
    QVERIFY(snapshot.untouched().empty());
    HRDirectoryDigest loaded = reloaded(snapshot);
    HRStoredFile found;
    loaded.find("b", HRFileStamp(), found);
    loaded.put("d", HRStoredFile());
    QVERIFY(loaded.untouched() == std::vector<QByteArray>({ "a", "c" }));
}

void tst_HRDirectoryDigest::decoded_tellsEveryDamage()
{
    HRDirectoryDigest snapshot;
    snapshot.put("a.xml", storedFile());
    snapshot.put("b.xml", storedFile());
    const QByteArray bytes = snapshot.encoded();
    for (int i = 4; i < bytes.size(); ++i) {
        QByteArray damaged = bytes;
        damaged[i] = char(damaged[i] ^ 0x10);
        QVERIFY2(!HRDirectoryDigest::decoded(damaged), qPrintable(QString::number(i)));
    }
    for (int length = 0; length < bytes.size(); ++length)
        QVERIFY2(
            !HRDirectoryDigest::decoded(bytes.left(length)), qPrintable(QString::number(length)));
}

void tst_HRDirectoryDigest::decoded_refusesAnEntry_whosePartsDoNotFillIt_data()
{
    QTest::addColumn<int>("nameLength");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("as long as its head can say") << 0xffff << true;
    QTest::newRow("longer than its head can say") << 0x10000 << false;
}

/// An entry says its length twice; where the name is too long for its head they differ.
void tst_HRDirectoryDigest::decoded_refusesAnEntry_whosePartsDoNotFillIt()
{
    QFETCH(int, nameLength);
    HRDirectoryDigest snapshot;
    snapshot.put(std::string(size_t(nameLength), 'x'), storedFile());
    snapshot.put("b.xml", storedFile());
    QTEST(HRDirectoryDigest::decoded(snapshot.encoded()).has_value(), "isTaken");
}

void tst_HRDirectoryDigest::decoded_refusesAnEntry_thatEndsTooSoon_data()
{
    QTest::addColumn<QByteArray>("checksum");
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("in its head") << QByteArray("1d0c269024330029") << QByteArray(8, '\0').toHex();
    // It says that it is as long as its head, and a key.
    QTest::newRow("behind its head")
        << QByteArray("1723b7a36ed71a1d") << "34" + QByteArray(43, '\0').toHex() + "01000000";
}

/// Under the right checksum.
void tst_HRDirectoryDigest::decoded_refusesAnEntry_thatEndsTooSoon()
{
    QFETCH(QByteArray, checksum);
    QFETCH(QByteArray, entry);
    QVERIFY(!HRDirectoryDigest::decoded(QByteArray::fromHex("01000000" + checksum + entry)));
}

void tst_HRDirectoryDigest::decoded_takesNoEntries()
{
    const std::optional<HRDirectoryDigest> loaded
        = HRDirectoryDigest::decoded(HRDirectoryDigest().encoded());
    QVERIFY(loaded);
    QVERIFY(loaded->untouched().empty());
}

/// What is encoded otherwise takes another number of its format, or what is stored is lost.
void tst_HRDirectoryDigest::encoded_staysAsItIs_inOneFormat()
{
    HRDirectoryDigest snapshot;
    snapshot.put("a.xml", storedFile());
    QCOMPARE(snapshot.encoded().left(12).toHex(), QByteArray("0100000056b1ed90eb72e93d"));
}

void tst_HRDirectoryDigest::decoded_ignoresOtherFormats()
{
    HRDirectoryDigest snapshot;
    snapshot.put("a.xml", storedFile());
    QByteArray bytes = snapshot.encoded();
    bytes[0] = 77;
    std::optional<HRDirectoryDigest> loaded = HRDirectoryDigest::decoded(bytes);
    QVERIFY(loaded);
    HRStoredFile found;
    QVERIFY(!loaded->find("a.xml", storedFile().stamp, found));
}

QTEST_GUILESS_MAIN(tst_HRDirectoryDigest)
#include "tst_HRDirectoryDigest.moc"
