// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipScript.h"

#include <QtTest>

using namespace Sketchpad;

Q_DECLARE_METATYPE(ClipStep)

class tst_ClipScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromText_readsEveryKindOfLine_data();
    void fromText_readsEveryKindOfLine();
    void fromText_namesTheLine_thatIsNoStep_data();
    void fromText_namesTheLine_thatIsNoStep();
    void fromText_readsTheExampleOfTheGuide();
    void fromText_passesOverCommentsAndEmptyLines();
};

namespace {

ClipStep step(ClipAction action)
{
    ClipStep made;
    made.action = action;
    return made;
}

ClipStep named(ClipAction action, const QString &name, const QString &text = {})
{
    ClipStep made = step(action);
    made.name = name;
    made.text = text;
    return made;
}

ClipStep pointed(ClipAction action, const QVector<QPointF> &points, double amount = 0)
{
    ClipStep made = step(action);
    made.points = points;
    made.amount = amount;
    return made;
}

} // namespace

void tst_ClipScript::fromText_readsEveryKindOfLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<ClipStep>("expected");

    QTest::newRow("record") << "record" << step(ClipAction::Record);
    QTest::newRow("click") << "click" << step(ClipAction::Click);
    QTest::newRow("double click") << "doubleclick" << step(ClipAction::DoubleClick);
    QTest::newRow("press") << "press" << step(ClipAction::Press);
    QTest::newRow("release") << "release" << step(ClipAction::Release);
    QTest::newRow("move to a point")
        << "move 10 -2.5" << pointed(ClipAction::Move, { { 10, -2.5 } });
    QTest::newRow("move to a target") << "move toolPen" << named(ClipAction::Move, "toolPen");
    QTest::newRow("drag") << "drag 1 2 3 4" << pointed(ClipAction::Drag, { { 1, 2 }, { 3, 4 } });
    QTest::newRow("timed drag") << "drag 1 2  3 4 5 6 in 1.5"
                                << pointed(ClipAction::Drag, { { 1, 2 }, { 3, 4 }, { 5, 6 } }, 1.5);
    QTest::newRow("hold") << "hold Shift" << named(ClipAction::Hold, "Shift");
    QTest::newRow("free") << "free Alt" << named(ClipAction::Free, "Alt");
    QTest::newRow("key") << "key Ctrl+Z" << named(ClipAction::Key, "Ctrl+Z");
    QTest::newRow("type") << "type Good morning" << named(ClipAction::Type, {}, "Good morning");
    QTest::newRow("wheel") << "wheel -3" << pointed(ClipAction::Wheel, {}, -3);
    QTest::newRow("wait") << "  wait 0.5  " << pointed(ClipAction::Wait, {}, 0.5);
    QTest::newRow("tremble") << "tremble 2" << pointed(ClipAction::Tremble, {}, 2);
    QTest::newRow("color") << "color fillColor #ff0000"
                           << named(ClipAction::Color, "fillColor", "#ff0000");
    QTest::newRow("say") << "say de_DE Guten Tag" << named(ClipAction::Say, "de_DE", "Guten Tag");
}

void tst_ClipScript::fromText_readsEveryKindOfLine()
{
    QFETCH(QString, line);
    QFETCH(ClipStep, expected);
    const ClipScript script = ClipScript::fromText(line);
    QCOMPARE(script.error(), QString());
    QCOMPARE(script.steps().size(), 1);
    const ClipStep &read = script.steps().first();
    QCOMPARE(int(read.action), int(expected.action));
    QCOMPARE(read.name, expected.name);
    QCOMPARE(read.text, expected.text);
    QCOMPARE(read.points, expected.points);
    QCOMPARE(read.amount, expected.amount);
    QCOMPARE(read.line, 1);
}

void tst_ClipScript::fromText_namesTheLine_thatIsNoStep_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("unknown word") << "jump 1 2";
    QTest::newRow("capital letters") << "Click";
    QTest::newRow("something behind a whole step") << "click 3";
    QTest::newRow("move nowhere") << "move";
    QTest::newRow("move to half a point") << "move 10 x";
    QTest::newRow("drag nowhere") << "drag";
    QTest::newRow("drag to half a point") << "drag 1 2 3";
    QTest::newRow("drag without a time") << "drag 1 2 3 4 in";
    QTest::newRow("drag with points behind the time") << "drag 1 2 in 3 4 5";
    QTest::newRow("drag back in time") << "drag 1 2 3 4 in -1";
    QTest::newRow("endless wait") << "wait inf";
    QTest::newRow("wait for nothing") << "wait";
    QTest::newRow("say nothing") << "say de_DE";
    QTest::newRow("type nothing") << "type";
    QTest::newRow("two keys") << "key A B";
}

void tst_ClipScript::fromText_namesTheLine_thatIsNoStep()
{
    QFETCH(QString, line);
    const ClipScript script = ClipScript::fromText("record\n\n" + line + "\nclick");
    QVERIFY(script.steps().isEmpty());
    QCOMPARE(script.error(), "line 3: cannot understand \"" + line + '"');
}

void tst_ClipScript::fromText_readsTheExampleOfTheGuide()
{
    QFile guide(RECORDING_GUIDE);
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString example
        = QString::fromUtf8(guide.readAll()).section("```clip\n", 1, 1).section("```", 0, 0);
    const ClipScript script = ClipScript::fromText(example);
    QCOMPARE(script.error(), QString());
    QCOMPARE(script.steps().size(), 16);
}

void tst_ClipScript::fromText_passesOverCommentsAndEmptyLines()
{
    const ClipScript script = ClipScript::fromText("# A clip\n\n  # of nothing\nclick\n");
    QCOMPARE(script.error(), QString());
    QCOMPARE(script.steps().size(), 1);
    QCOMPARE(script.steps().first().line, 4);
}

QTEST_APPLESS_MAIN(tst_ClipScript)

#include "tst_ClipScript.moc"
