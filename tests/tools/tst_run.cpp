// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"
#include "tools/CommandRun.h"

#include <QtTest>

namespace {

const QString command = HINTREELS_COMMAND;

} // namespace

/// `hintreels run`, with programs that are none of Qt.
class tst_run : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void run_refuses_data();
    void run_refuses();
    void run_namesPlugin_whenMissing();
    void run_handsOnExitStatus();
    void run_handsOnArguments_asTheyCame();
    void run_keepsEnvironment();
    void help_teaches_data();
    void help_teaches();

private:
    TestPackages m_packages;
};

void tst_run::run_refuses_data()
{
    const QString file = m_packages.write("file", "");
    const QString script = m_packages.write("script", "");
    const QString odd = QFileInfo(m_packages.write("a:b/file", "")).path();
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const QStringList run{ "run", "--packages", m_packages.path(), "--" };
    QTest::newRow("no verb") << QStringList{} << "hintreels: names no verb";
    QTest::newRow("unknown verb") << QStringList{ "fly" } << "hintreels: knows no verb fly";
    QTest::newRow("no packages") << QStringList{ "run", "true" }
                                 << "hintreels run: names no --packages DIR";
    QTest::newRow("no program") << run << "hintreels run: names no program";
    QTest::newRow("unknown option") << QStringList{ "run", "--fly" } << "Unknown option 'fly'";
    QTest::newRow("no such directory") << QStringList{ "run", "--packages", "/nowhere", "true" }
                                       << "there is no directory /nowhere";
    QTest::newRow("a file for a directory")
        << QStringList{ "run", "--packages", file, "true" } << file + " is no directory";
    QTest::newRow("a colon in the directory")
        << QStringList{ "run", "--packages", odd, "true" } << odd + " cannot be passed on";
    QTest::newRow("no such program") << run + QStringList{ "no-such-program" }
                                     << "cannot start no-such-program: No such file or directory";
    QTest::newRow("a file that is no program")
        << run + QStringList{ script } << "cannot start " + script + ": Permission denied";
}

void tst_run::run_refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);

    const CommandRun refused(command, arguments);

    QCOMPARE(refused.status, 2);
    QCOMPARE(refused.output, QByteArray());
    QVERIFY2(refused.errors.contains(message.toUtf8()), refused.errors.constData());
    QCOMPARE(refused.errors.count('\n'), 1);
}

void tst_run::run_namesPlugin_whenMissing()
{
    QTemporaryDir elsewhere;
    QVERIFY(QDir(elsewhere.path()).mkdir("bin"));
    const QString copy = elsewhere.filePath("bin/hintreels");
    QVERIFY(QFile::copy(command, copy));

    const CommandRun refused(copy, { "run", "--packages", m_packages.path(), "true" });

    QCOMPARE(refused.status, 2);
    const QByteArray place = elsewhere.path().toUtf8() + "/lib";
    QVERIFY2(refused.errors.contains("the plugin libhintreels-attach.so is not in " + place),
        refused.errors.constData());
}

void tst_run::run_handsOnExitStatus()
{
    const CommandRun program(
        command, { "run", "--packages", m_packages.path(), "--", "sh", "-c", "exit 7" });

    QCOMPARE(program.status, 7);
    QCOMPARE(program.errors, QByteArray());
}

void tst_run::run_handsOnArguments_asTheyCame()
{
    // A byte that is no character, an empty one, and what looks like an option of our own.
    const QString script = "exec \"$0\" run --packages \"$1\" -- "
                           "printf '<%s>' a '' --packages \"$(printf '\\377')\"";

    const CommandRun program("sh", { "-c", script, command, m_packages.path() });

    QCOMPARE(program.output, QByteArray("<a><><--packages><\377>"));
}

void tst_run::run_keepsEnvironment()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_PLUGIN_PATH", "/plugins/of/another");
    environment.insert("QT_QPA_GENERIC_PLUGINS", "evdevtouch");
    const QString script
        = "echo $QT_QPA_GENERIC_PLUGINS; echo $QT_PLUGIN_PATH; echo $HINTREELS_PACKAGES";
    const QString path = m_packages.path();

    const CommandRun program(command,
        { "run", "--packages", path, "--packages", "/tmp", "sh", "-c", script }, environment);

    const QList<QByteArray> lines = program.output.split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QByteArray("hintreels-attach,evdevtouch"));
    QVERIFY2(lines[1].endsWith(":/plugins/of/another"), lines[1].constData());
    QVERIFY2(lines[2].endsWith("/share/hintreels/packages:" + path.toUtf8() + ":/tmp"),
        lines[2].constData());
}

void tst_run::help_teaches_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("lesson");

    QTest::newRow("command") << QStringList{ "--help" } << QByteArray("run        start a program");
    QTest::newRow("usage") << QStringList{ "run", "--help" }
                           << QByteArray("Usage: hintreels run [options] [--] PROGRAM");
    QTest::newRow("example") << QStringList{ "run", "--help" }
                             << QByteArray("hintreels run --packages hints -- featherpad");
    QTest::newRow("purpose") << QStringList{ "run", "-h" } << QByteArray("not for production");
    QTest::newRow("version") << QStringList{ "--version" } << QByteArray("1.0.0");
}

void tst_run::help_teaches()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, lesson);

    const CommandRun help(command, arguments);

    QCOMPARE(help.status, 0);
    QVERIFY2(help.output.contains(lesson), help.output.constData());
}

QTEST_MAIN(tst_run)
#include "tst_run.moc"
