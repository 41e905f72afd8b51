// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/settled.h"

#include "index/control/HRControlDigest_p.h"
#include "index/control/HRControlPrefilter_p.h"
#include "index/control/HRControlRecords_p.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Hintreels;

class tst_HRControlPrefilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mayServe_seesEveryEdit_inATightLoop_data();
    void mayServe_seesEveryEdit_inATightLoop();
    void mayServe_trustsASettledReading();
    void mayServe_seesAnEdit_thatPutsTheTimeBack();
    void mayServe_deniesWhatIsNoFile_data();
    void mayServe_deniesWhatIsNoFile();
    void mayServe_triesResources();
};

namespace {

struct Fixture
{
    bool mayServe(const QString &key) { return reader.mayServe(*record, keyNumber(key), locale); }

    void add(const QString &path)
    {
        records.addFirst({ path, 1 });
        record = &*records.begin();
    }

    TestPackages packages;
    HRControlErrors errors;
    HRControlPrefilter reader{ errors };
    HRControlRecords records;
    HRControlRecord *record = nullptr;
    QLocale locale;
};

/// Sets the times of access and change of content to one that lies long back.
void setOldTime(const QString &path)
{
    const struct timespec times[2] = { { 1'000'000'000, 0 }, { 1'000'000'000, 0 } };
    if (::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) != 0)
        qFatal("cannot set the time of %s", qPrintable(path));
}

} // namespace

void tst_HRControlPrefilter::mayServe_seesEveryEdit_inATightLoop_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("in place") << "in place";
    QTest::newRow("replaced") << "replaced";
    QTest::newRow("in place, time put back") << "put back";
}

void tst_HRControlPrefilter::mayServe_seesEveryEdit_inATightLoop()
{
    QFETCH(QString, way);
    Fixture fixture;
    const auto write = [&](const char *name, const QString &key) {
        return fixture.packages.writeControl("A", name, "<hintreel key='" + key.toUtf8() + "'/>");
    };
    const QString file = write("a.xml", "0000");
    fixture.add(file);
    QVERIFY(fixture.mayServe("0000"));
    QString last = "0000";
    for (int i = 1; i < 500; ++i) {
        const QString key = QString("%1").arg(i, 4, 10, QChar('0'));
        if (way == "replaced")
            QCOMPARE(::rename(qPrintable(write("b.xml", key)), qPrintable(file)), 0);
        else
            write("a.xml", key);
        if (way == "put back")
            setOldTime(file);
        QVERIFY2(fixture.mayServe(key), qPrintable(key));
        QVERIFY2(!fixture.mayServe(last), qPrintable(last));
        last = key;
    }
}

void tst_HRControlPrefilter::mayServe_trustsASettledReading()
{
    Fixture fixture;
    const QString file = fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    fixture.add(file);
    QVERIFY(fixture.mayServe("pen"));
    QVERIFY(becomesSettled(file));
    QVERIFY(fixture.mayServe("pen"));
    QVERIFY(fixture.record->isSettled);
    fixture.record->digest.keys = { keyNumber(QString("line")) };
    QVERIFY(fixture.mayServe("line"));
    QVERIFY(!fixture.mayServe("pen"));
}

void tst_HRControlPrefilter::mayServe_seesAnEdit_thatPutsTheTimeBack()
{
    Fixture fixture;
    const QString file = fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    setOldTime(file);
    fixture.add(file);
    QVERIFY(becomesSettled(file));
    QVERIFY(fixture.mayServe("pen"));
    QVERIFY(fixture.record->isSettled);
    fixture.packages.writeControl("A", "a.xml", "<hintreel key='ink'/>");
    setOldTime(file);
    QVERIFY(!fixture.mayServe("pen"));
    QVERIFY(fixture.mayServe("ink"));
}

void tst_HRControlPrefilter::mayServe_deniesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("missing") << "missing";
    QTest::newRow("directory") << "directory";
    QTest::newRow("named pipe") << "pipe";
}

void tst_HRControlPrefilter::mayServe_deniesWhatIsNoFile()
{
    QFETCH(QString, kind);
    Fixture fixture;
    const QString path = fixture.packages.path() + "/a.xml";
    if (kind == "directory")
        QCOMPARE(::mkdir(qPrintable(path), 0700), 0);
    else if (kind == "pipe")
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    fixture.add(path);
    QVERIFY(!fixture.mayServe("pen"));
    QVERIFY(!fixture.record->isSettled);
    ::remove(qPrintable(path));
    fixture.packages.write("a.xml", "<hintreels><hintreel key='pen'/></hintreels>");
    QVERIFY(fixture.mayServe("pen"));
}

void tst_HRControlPrefilter::mayServe_triesResources()
{
    Fixture fixture;
    fixture.add(":/packages/a.xml");
    QVERIFY(fixture.mayServe("pen"));
}

QTEST_GUILESS_MAIN(tst_HRControlPrefilter)
#include "tst_HRControlPrefilter.moc"
