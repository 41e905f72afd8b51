// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Rule.h"
#include "tools/CommandRun.h"
#include "tools/check/GoodPackage.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <unistd.h>

namespace {

const QString command = HINTREELS_COMMAND;

/// Every file below a directory, with what is in it and when it was changed.
QStringList traces(const QString &directory)
{
    QStringList traces;
    QDirIterator files(directory, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
        QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        traces.append(
            files.filePath() + files.fileInfo().lastModified().toString(Qt::ISODateWithMs));
    }
    return traces;
}

} // namespace

/// `hintreels check`: what it takes, writes and returns.
class tst_checkCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check_refuses_data();
    void check_refuses();
    void check_refuses_whatItCannotRead();
    void check_takesPackage_andDataPath();
    void check_findsSearchedPackages_inFurtherDirectory();
    void check_sortsFindings_byPlace();
    void check_namesFiles_fromCurrentDirectory();
    void check_changesNothing();
    void json_holdsFindings();
    void sarif_holdsFindingsAndRules();
    void explain_tellsOfRule();
    void explain_writesPageOfRules();
    void help_teaches_data();
    void help_teaches();
};

void tst_checkCommand::check_refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");

    QTest::newRow("no directory") << QStringList{} << QByteArray("names no directory");
    QTest::newRow("no such directory")
        << QStringList{ "/nowhere" } << QByteArray("there is no directory /nowhere");
    QTest::newRow("no package in it")
        << QStringList{ "/proc/self/fdinfo" } << QByteArray("there is no package in ");
    QTest::newRow("no such further directory")
        << QStringList{ "--packages", "/nowhere", "/tmp" } << QByteArray("there is no ");
    QTest::newRow("unknown format")
        << QStringList{ "--format", "xml", "/tmp" } << QByteArray("there is no format xml");
    QTest::newRow("unknown rule") << QStringList{ "--explain", "xlm" }
                                  << QByteArray("there is no rule xlm; did you mean xml?");
}

void tst_checkCommand::check_refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);

    const CommandRun refused(command, QStringList{ "check" } + arguments);

    QCOMPARE(refused.status, 2);
    QCOMPARE(refused.output, QByteArray());
    QVERIFY2(refused.errors.contains(message), refused.errors.constData());
}

void tst_checkCommand::check_refuses_whatItCannotRead()
{
    if (::geteuid() == 0)
        QSKIP("nothing is closed to this user");
    const GoodPackage good;
    QVERIFY(QFile::setPermissions(good.english(), QFile::WriteOwner));

    const CommandRun run(command, { "check", good.path() });

    QCOMPARE(run.status, 2);
    QVERIFY2(run.errors.contains("cannot read " + good.english().toUtf8()), run.errors.constData());
}

void tst_checkCommand::check_takesPackage_andDataPath()
{
    const GoodPackage good;
    good.replace("kind=\"tip\"", "kind=\"tipp\"");

    const CommandRun byPackage(command, { "check", good.package() });
    const CommandRun byBoth(command, { "check", good.path(), good.package() + '/' });

    QCOMPARE(byPackage.output.count('\n'), 1);
    QCOMPARE(byBoth.output, byPackage.output);
}

void tst_checkCommand::check_findsSearchedPackages_inFurtherDirectory()
{
    const GoodPackage good;
    const TestPackages further;
    further.writeControl("Further", "all.xml", {});
    good.replace("\"Standard\"", "\"Standard Further\"");

    const CommandRun without(command, { "check", good.path() });
    const CommandRun with(command, { "check", "--packages", further.path(), good.path() });

    QVERIFY2(
        without.output.contains("search: there is no package Further"), without.output.constData());
    QCOMPARE(with.output, QByteArray());
}

void tst_checkCommand::check_sortsFindings_byPlace()
{
    const GoodPackage good;
    good.write("Control/en_US.xml",
        QByteArray(goodControlFile()).replace("kind=", "kin=").replace("shortcut=", "short="));

    const CommandRun run(command, { "check", good.path() });

    const QList<QByteArray> lines = run.output.split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].contains(":4:") && lines[1].contains(":10:"), run.output.constData());
}

void tst_checkCommand::check_namesFiles_fromCurrentDirectory()
{
    const GoodPackage good;
    good.replace("kind=\"tip\"", "kind=\"tipp\"");

    const CommandRun run("sh", { "-c", "cd \"$1\" && \"$0\" check .", command, good.path() });

    QVERIFY2(run.output.startsWith("Painter.hintreels/Control/en_US.xml:10:11: "),
        run.output.constData());
}

void tst_checkCommand::check_changesNothing()
{
    const GoodPackage good;
    const QStringList before = traces(good.path());
    QTemporaryDir home;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : { "HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME" })
        environment.insert(variable, home.path());

    const CommandRun run(command, { "check", good.path() }, environment);

    QCOMPARE(run.status, 0);
    QCOMPARE(traces(good.path()), before);
    QCOMPARE(traces(home.path()), QStringList());
}

void tst_checkCommand::json_holdsFindings()
{
    const GoodPackage good;
    good.replace("kind=\"tip\"", "kind=\"tipp\"");

    const CommandRun run(command, { "check", "--format", "json", good.path() });

    QCOMPARE(run.status, 1);
    const QJsonArray findings
        = QJsonDocument::fromJson(run.output).object().value("findings").toArray();
    const QJsonObject expected{ { "file", good.english() }, { "line", 10 }, { "column", 11 },
        { "severity", "warning" }, { "tag", "unknown-value" },
        { "text", "kind cannot be \"tipp\"; did you mean tip?" } };
    QCOMPARE(findings, QJsonArray{ expected });
}

void tst_checkCommand::sarif_holdsFindingsAndRules()
{
    const GoodPackage good;
    good.write("Control/a b.xml", "<hintreels><hintreel/></hintreels>");

    const CommandRun run(command, { "check", "--format", "sarif", good.path() });

    const QJsonObject log = QJsonDocument::fromJson(run.output).object();
    QCOMPARE(log.value("version").toString(), QString("2.1.0"));
    const QJsonObject whole = log.value("runs").toArray().first().toObject();
    const QJsonObject result = whole.value("results").toArray().first().toObject();
    QCOMPARE(result.value("ruleId").toString(), QString("no-ui"));
    const QJsonObject place = result.value("locations")[0]["physicalLocation"].toObject();
    QCOMPARE(place.value("artifactLocation")["uri"].toString(),
        "file://" + good.package() + "/Control/a%20b.xml");
    QCOMPARE(place.value("region")["startLine"].toInt(), 1);
    QCOMPARE(
        whole.value("tool")["driver"]["rules"].toArray().size(), int(Hintreels::allRules().size()));
}

void tst_checkCommand::explain_tellsOfRule()
{
    const CommandRun run(command, { "check", "--explain", "key-twice" });

    QCOMPARE(run.status, 0);
    QVERIFY2(run.output.startsWith("## key-twice\n\nA file has a key twice (error).\n\nNeither"),
        run.output.constData());
    QVERIFY2(run.output.contains("\n    <hintreel key="), run.output.constData());
}

void tst_checkCommand::explain_writesPageOfRules()
{
    QFile page(SOURCES "/docs/rules.md");
    QVERIFY(page.open(QIODevice::ReadOnly));

    const CommandRun run(command, { "check", "--explain", "all" });

    QCOMPARE(run.status, 0);
    QCOMPARE(run.output.count("\n## "), int(Hintreels::allRules().size()));
    QVERIFY2(run.output == page.readAll(),
        "write it anew: build/dev/bin/hintreels check --explain all > docs/rules.md");
}

void tst_checkCommand::help_teaches_data()
{
    QTest::addColumn<QByteArray>("lesson");

    QTest::newRow("shape") << QByteArray("file:line:column: severity: tag: text");
    QTest::newRow("example") << QByteArray("hintreels check hints");
    QTest::newRow("suppression") << QByteArray("<!-- hintreels: ignore TAG: reason -->");
    QTest::newRow("status") << QByteArray("2 where not everything");
}

void tst_checkCommand::help_teaches()
{
    QFETCH(QByteArray, lesson);

    const CommandRun help(command, { "check", "--help" });

    QCOMPARE(help.status, 0);
    QVERIFY2(help.output.contains(lesson), help.output.constData());
}

QTEST_MAIN(tst_checkCommand)
#include "tst_checkCommand.moc"
