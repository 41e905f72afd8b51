// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/settled.h"

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"
#include "manager/HRPackageScanner_p.h"
#include "support/MessageGuard.h"
#include "support/Pauses.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include <cstdio>
#include <memory>
#include <vector>

#include <sys/resource.h>

using namespace Hintreels;

/// Processes that fill one database: one alone until it is killed, or several at a time. They are
/// this program itself, started with arguments. HINTREELS_KILLS in the environment is the number of
/// random kills for each index, half of them while another process starts.
class tst_IndexProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void start_answersRightly_afterAKill_data();
    void start_answersRightly_afterAKill();
    void start_answersRightly_whileAnotherIsKilled_data();
    void start_answersRightly_whileAnotherIsKilled();
    void start_answersRightly_afterAKillAtAWrite_data();
    void start_answersRightly_afterAKillAtAWrite();
    void processes_answerRightly_onOneFile_data();
    void processes_answerRightly_onOneFile();

private:
    void startTwice(const QString &kind);

    TestPackages m_packages;
};

namespace {

constexpr int Packages = 12;
constexpr int FilesInPackage = 10;
constexpr int KeysInFile = 20;

int kills()
{
    constexpr int Enough = 24;
    const int asked = qEnvironmentVariableIntValue("HINTREELS_KILLS");
    return asked > 0 ? asked : Enough;
}

QString keyOf(int package, int file, int key)
{
    return QString("p%1.f%2.k%3").arg(package).arg(file).arg(key);
}

/// An index over the packages at a data path, with its database there, too.
struct Start
{
    Start(const QString &kind, const QString &dataPath)
    {
        context.set(persistentDirectoryKey, dataPath);
        context.set(indexFileNameKey, "index.sqlite");
        context.set(clearIndexKey, kind == "cleared");
        context.set(removeIndexOnCloseKey, false);
        if (kind == "package")
            index = std::make_unique<HRPackageIndex>(&context, QStringList());
        else
            index = std::make_unique<HRSQLiteIndex>(&context, QStringList());
        isOpen = index->open();
        scan(*index, dataPath);
        QCoreApplication::processEvents();
    }

    void scan(HRIndex &into, const QString &dataPath)
    {
        HRPackageScanner(context, into, [](const QString &) {}).scanDataPaths({ dataPath });
    }

    HRContext context;
    std::unique_ptr<HRIndex> index;
    bool isOpen;
};

QString answer(HRIndex &index, const QString &key)
{
    QString directory;
    int depth = 0;
    HRXmlElement *root = nullptr;
    if (!index.retrieve(key, QLocale("en_US"), directory, depth, root))
        return "none";
    const std::unique_ptr<HRXmlElement> tree(root);
    return directory + ' ' + QString::number(depth) + root->toXml();
}

QStringList sortedKeys(HRIndex &index)
{
    QStringList keys = index.keys();
    keys.sort();
    return keys;
}

/// Whether an index answers as one that keeps everything in memory.
bool isRight(Start &start, const QString &dataPath)
{
    HRIndex plain(&start.context, {});
    start.scan(plain, dataPath);
    if (sortedKeys(*start.index) != sortedKeys(plain))
        return false;
    for (int package = 0; package < Packages; ++package) {
        const QString key = keyOf(package, package % FilesInPackage, package % KeysInFile);
        if (answer(*start.index, key) == "none" || answer(*start.index, key) != answer(plain, key))
            return false;
    }
    return true;
}

QString databaseOf(const QString &dataPath)
{
    return dataPath + "/index.sqlite";
}

void removeDatabase(const QString &dataPath)
{
    QFile::remove(databaseOf(dataPath));
    QFile::remove(databaseOf(dataPath) + "-journal");
}

/// Another process that runs this program with arguments.
std::unique_ptr<QProcess> startProcess(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->start(QCoreApplication::applicationFilePath(), arguments);
    return process;
}

/// Tells the process that waits for it that starts begin now.
void announceStarts()
{
    std::puts("starting");
    std::fflush(stdout);
}

/// Fills a database again and again.
/// @param largestFile in bytes, or -1: the system kills the process at the write that exceeds it
int fill(const QString &kind, const QString &dataPath, int starts, int largestFile)
{
    const struct rlimit none = { 0, 0 };
    const struct rlimit largest = { rlim_t(largestFile), rlim_t(largestFile) };
    ::setrlimit(RLIMIT_CORE, &none);
    if (largestFile >= 0)
        ::setrlimit(RLIMIT_FSIZE, &largest);
    announceStarts();
    for (int i = 0; i < starts; ++i)
        Start(kind, dataPath).index->clear();
    return 0;
}

/// Starts an index again and again; the exit code is the number of starts that answered wrongly.
int check(const QString &kind, const QString &dataPath, int starts)
{
    int wrong = 0;
    announceStarts();
    for (int i = 0; i < starts; ++i) {
        Start start(kind, dataPath);
        wrong += isRight(start, dataPath) ? 0 : 1;
        if (kind == "package" && i % 2 == 0)
            start.index->clear(); // the other processes may just be reading or writing
    }
    return wrong;
}

} // namespace

void tst_IndexProcesses::initTestCase()
{
    for (int package = 0; package < Packages; ++package) {
        for (int file = 0; file < FilesInPackage; ++file) {
            QByteArray entries;
            for (int key = 0; key < KeysInFile; ++key)
                entries
                    += "<hintreel key='" + keyOf(package, file, key).toUtf8() + "'><t/></hintreel>";
            m_packages.writeControl(QString::number(package), QString::number(file) + ".xml",
                entries, "locale='en_US'");
        }
    }
    QVERIFY(becomesSettled(m_packages.write("last", "")));
}

void tst_IndexProcesses::start_answersRightly_afterAKill_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : { "cleared", "kept", "package" })
        QTest::newRow(kind) << kind;
}

void tst_IndexProcesses::start_answersRightly_afterAKill()
{
    QFETCH(QString, kind);
    removeDatabase(m_packages.path());
    QRandomGenerator random(1);
    for (int kill = 0; kill < kills() / 2; ++kill) {
        const auto process = startProcess({ "fill", kind, m_packages.path(), "100000", "-1" });
        QVERIFY(process->waitForReadyRead());
        meetOtherProcess(random);
        process->kill();
        QVERIFY(process->waitForFinished());
        startTwice(kind);
    }
}

void tst_IndexProcesses::start_answersRightly_whileAnotherIsKilled_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("kept") << "kept";
    QTest::newRow("package") << "package";
}

void tst_IndexProcesses::start_answersRightly_whileAnotherIsKilled()
{
    QFETCH(QString, kind);
    removeDatabase(m_packages.path());
    QRandomGenerator random(2);
    for (int kill = 0; kill < kills() / 2; ++kill) {
        const auto victim = startProcess({ "check", kind, m_packages.path(), "100000" });
        QVERIFY(victim->waitForReadyRead());
        const auto witness = startProcess({ "check", kind, m_packages.path(), "1" });
        QVERIFY(witness->waitForReadyRead());
        meetOtherProcess(random);
        victim->kill();
        QVERIFY(victim->waitForFinished());
        QVERIFY(witness->waitForFinished());
        QCOMPARE(witness->exitStatus(), QProcess::NormalExit);
        QVERIFY2(witness->exitCode() == 0, witness->readAllStandardError().constData());
        if (kill % 10 == 9)
            startTwice(kind);
    }
}

void tst_IndexProcesses::start_answersRightly_afterAKillAtAWrite_data()
{
    start_answersRightly_afterAKill_data();
}

void tst_IndexProcesses::start_answersRightly_afterAKillAtAWrite()
{
    QFETCH(QString, kind);
    // The tables take the first five pages.
    for (int pages : { 1, 4, 6, 9 }) {
        removeDatabase(m_packages.path());
        const QString largest = QString::number(pages * 4096);
        const auto process = startProcess({ "fill", kind, m_packages.path(), "1", largest });
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        startTwice(kind);
    }
}

void tst_IndexProcesses::processes_answerRightly_onOneFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("count");
    QTest::newRow("kept, two") << "kept" << 2;
    QTest::newRow("kept, four") << "kept" << 4;
    QTest::newRow("package, two") << "package" << 2;
    QTest::newRow("package, four") << "package" << 4;
}

void tst_IndexProcesses::processes_answerRightly_onOneFile()
{
    QFETCH(QString, kind);
    QFETCH(int, count);
    removeDatabase(m_packages.path());
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < count; ++i)
        processes.push_back(startProcess({ "check", kind, m_packages.path(), "3" }));
    for (const auto &process : processes) {
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitStatus(), QProcess::NormalExit);
        QCOMPARE(process->exitCode(), 0);
        const QByteArray messages = process->readAllStandardError();
        QVERIFY2(
            !messages.contains("malformed") && !messages.contains("damaged"), messages.constData());
    }
}

/// Starts an index on what a killed process has left, and once more.
void tst_IndexProcesses::startTwice(const QString &kind)
{
    MessageGuard messages;
    for (int i = 0; i < 2; ++i) {
        Start start(kind, m_packages.path());
        QVERIFY(start.isOpen);
        QVERIFY(isRight(start, m_packages.path()));
        QStringList all = messages.takeMessages();
        const QStringList loads = all.filter("SQL load from ");
        const int rebuilt = all.filter("made anew").size();
        const int opened = all.filter("Creating index database in ").size();
        QCOMPARE(all.size(), loads.size() + rebuilt + opened);
        QVERIFY(opened <= (i == 0 ? 2 : 1));
        QCOMPARE(rebuilt, kind == "package" ? opened - 1 : 0);
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == "fill")
        return fill(arguments.value(2), arguments.value(3), arguments.value(4).toInt(),
            arguments.value(5).toInt());
    if (arguments.value(1) == "check")
        return check(arguments.value(2), arguments.value(3), arguments.value(4).toInt());
    tst_IndexProcesses test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_IndexProcesses.moc"
