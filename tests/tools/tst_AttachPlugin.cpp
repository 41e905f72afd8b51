// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"
#include "tools/CommandRun.h"

#include <QtTest>

namespace {

/// A hint as wide as its content says.
const QByteArray hintQml = R"(
import QtQuick 2.15
Rectangle { width: hintreel.attribute("width"); height: 100 }
)";

/// What of a program's errors comes from us; its platform has complaints of its own.
QByteArray messagesIn(const QByteArray &errors)
{
    QByteArray messages;
    for (const QByteArray &line : errors.split('\n')) {
        if (line.startsWith("hintreels: "))
            messages += line + '\n';
    }
    return messages;
}

} // namespace

/// The plugin inside programs that know nothing of the library.
class tst_AttachPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hint_shows_data();
    void hint_shows();
    void hint_speaksReadersLanguage();
    void message_tells_ofBrokenContent();
    void program_runsAsEver_withoutWidgets();

private:
    CommandRun runStrangeProgram(const QString &program, const QString &argument,
        const QString &language = QStringLiteral("en_US.UTF-8")) const;

    TestPackages m_packages;
};

void tst_AttachPlugin::initTestCase()
{
    m_packages.write("Brewer.hintreels/ui/HintreelUI.qml", hintQml);
    m_packages.writeControl("Brewer", "en_US.xml",
        "<hintreel key='brew' title='Brew coffee' width='210'/>", "locale='en_US'");
    m_packages.writeControl("Brewer", "de_DE.xml",
        "<hintreel key='brew' title='Kaffee kochen' width='310'/>", "locale='de_DE'");
}

CommandRun tst_AttachPlugin::runStrangeProgram(
    const QString &program, const QString &argument, const QString &language) const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", language);
    environment.remove("LANGUAGE");
    if (argument == "exit") // frees nothing, which is no leak
        environment.insert("ASAN_OPTIONS", "detect_leaks=0:new_delete_type_mismatch=0");
    return { HINTREELS_COMMAND, { "run", "--packages", m_packages.path(), "--", program, argument },
        environment };
}

void tst_AttachPlugin::hint_shows_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QByteArray>("end");

    // The hints go before the application, with its loop where they can.
    QTest::newRow("application's loop")
        << "usual" << QByteArray("popups after the loop 0\npopups at the end 0\ndone\n");
    QTest::newRow("loop of its own")
        << "own loop" << QByteArray("popups after the loop 1\npopups at the end 0\ndone\n");
    QTest::newRow("application that is never deleted")
        << "no end" << QByteArray("popups after the loop 0\ndone\n");
    QTest::newRow("end in the midst of its loop") << "exit" << QByteArray();
}

void tst_AttachPlugin::hint_shows()
{
    QFETCH(QString, way);
    QFETCH(QByteArray, end);

    const CommandRun program = runStrangeProgram(STRANGE_WIDGETS, way);

    QCOMPARE(messagesIn(program.errors), QByteArray());
    QCOMPARE(program.output, "children get ''\npopup 210\n" + end);
    QCOMPARE(program.status, 0);
}

void tst_AttachPlugin::hint_speaksReadersLanguage()
{
    const CommandRun program = runStrangeProgram(STRANGE_WIDGETS, "usual", "de_DE.UTF-8");

    QVERIFY2(program.output.contains("popup 310\n"), program.output.constData());
}

void tst_AttachPlugin::message_tells_ofBrokenContent()
{
    const QString broken = m_packages.write(
        "Other.hintreels/Control/en_US.xml", "<hintreels>\n<hintreel key='brew'></hintreels>");

    const CommandRun program = runStrangeProgram(STRANGE_WIDGETS, "usual");

    QVERIFY(QFile::remove(broken));
    QCOMPARE(messagesIn(program.errors),
        "hintreels: " + broken.toUtf8() + ":2: cannot read hints: tag mismatch\n");
}

void tst_AttachPlugin::program_runsAsEver_withoutWidgets()
{
    const CommandRun program = runStrangeProgram(STRANGE_GUI, {});

    QCOMPARE(messagesIn(program.errors),
        QByteArray("hintreels: strange_gui is no program of Qt Widgets; it runs without hints.\n"));
    QCOMPARE(program.output, QByteArray("done\n"));
    QCOMPARE(program.status, 7);
}

QTEST_MAIN(tst_AttachPlugin)
#include "tst_AttachPlugin.moc"
