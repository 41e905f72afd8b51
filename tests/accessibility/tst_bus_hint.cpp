// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "accessibility/BusReader.h"
#include "support/TestClip.h"
#include "ui/StandardUiFixture.h"

#include <QPushButton>

using namespace Hintreels;

namespace {

const QByteArray texts = R"(
<text>
Press and *drag*, see [the manual](manual/pen) first.

# Kinds

1. thin
2. [thick](lines/thick), slowly
</text>
<keys press="Alt, S">Straight lines</keys>)";

const QByteArray figures = R"(
<note kind="tip">Works with **Undo**.</note>
<picture source="good.png" alt="A wavy line">The result</picture>
<picture source="good.png"/>
<link to="lines">All about lines</link>
<video source="clip.mp4" alt="A hand draws">Watch</video>)";

/// The hint of the pen, as tall as the popup can show at once.
QByteArray penWith(const QByteArray &attributes, const QByteArray &blocks)
{
    return "<hintreel key='key' title='Pen' shortcut='Ctrl+Shift+L' " + attributes
        + "><summary>Draws free lines.</summary>" + blocks + "</hintreel>";
}

/// What is read of it: the blocks, and what is around them.
QStringList penOnTheBus(const QString &shortcut, const QStringList &blocks, const QString &pin)
{
    QStringList lines{ "filler", " push button \"draw\" \"Pen: Draws free lines.\"",
        "tool tip \"Pen\" \"Draws free lines.\"", " panel", "  heading \"Pen\"",
        "  label \"" + shortcut + '"', "  paragraph \"Draws free lines.\"" };
    for (const QString &line : blocks)
        lines.append("  " + line);
    return lines << "  push button \"" + pin + '"';
}

const QStringList textsOnTheBus{ "paragraph", " label \"Press and drag, see \"",
    " link \"the manual\" \"manual/pen\"", " label \" first.\"", "heading \"Kinds\"", "list",
    " list item \"1. thin\"", " list item", "  label \"2. \"", "  link \"thick\" \"lines/thick\"",
    "  label \", slowly\"", "label \"Straight lines\"", "label \"Alt, S\"",
    "link \"Documentation\" \"pen\"" };

QStringList figuresOnTheBus(
    const QString &tip, const QString &state, const QString &play, const QString &position)
{
    return { "comment \"" + tip + '"', " paragraph \"Works with Undo.\"", "image \"A wavy line\"",
        "label \"The result\"", "link \"All about lines\" \"lines\"",
        "animation \"A hand draws\" \"" + state + '"', " label \"First a dot\"",
        " push button \"" + play + '"', " slider \"" + position + '"', "label \"Watch\"" };
}

} // namespace

/// What assistive technology reads of a hint.
class tst_bus_hint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hint_isReadOnceAndInOrder_data();
    void hint_isReadOnceAndInOrder();
};

void tst_bus_hint::hint_isReadOnceAndInOrder_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QStringList>("lines");
    const QString english = "Control plus Shift plus L";
    const QString pin = "Keep open in a window";
    QTest::newRow("texts") << QByteArray("en_US") << penWith("documentation='pen'", texts)
                           << penOnTheBus(english, textsOnTheBus, pin);
    QTest::newRow("figures") << QByteArray("en_US") << penWith("", figures)
                             << penOnTheBus(english,
                                    figuresOnTheBus(
                                        "Tip", "6 s, Paused", "Play", "Position in the clip"),
                                    pin);
    QTest::newRow("German figures")
        << QByteArray("de_DE") << penWith("", figures)
        << penOnTheBus("Steuerung plus Umschalt plus L",
               figuresOnTheBus("Tipp", "6 s, Angehalten", "Abspielen", "Stelle im Clip"),
               "In einem Fenster offen halten");
    QTest::newRow("Arabic figures")
        << QByteArray("ar_EG") << penWith("", figures)
        << penOnTheBus("Control زائد Shift زائد L",
               figuresOnTheBus("نصيحة", "6 ث, متوقف مؤقتًا", "تشغيل", "الموضع في المقطع"),
               "إبقاء مفتوحًا في نافذة");
    QTest::newRow("clip that flashes, in steps")
        << QByteArray("en_US") << penWith("", "<video source='blinking.mp4' alt='A lamp'/>")
        << penOnTheBus(english,
               { "animation \"A lamp\" "
                 "\"6 s, Paused, Flashes quickly, so it does not play by itself\"",
                   " push button \"Play\"", " slider \"Position in the clip\"", "image \"Dark\"",
                   "image \"Light\"" },
               pin);
}

void tst_bus_hint::hint_isReadOnceAndInOrder()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, entry);
    StandardUiFixture fixture(entry, locale);
    fixture.context.set(spokenHintsKey, true);
    fixture.context.set(reducedMotionKey, true);
    TestClip clip;
    clip.pictures = 60;
    clip.rate = 10;
    clip.write(fixture.packages.path() + "/Test.hintreels/Resources/clip.mp4");
    clip.write(
        fixture.packages.path() + "/Test.hintreels/Resources/blinking.mp4", &TestClip::blinking);
    fixture.packages.write(
        "Test.hintreels/Resources/clip.vtt", "WEBVTT\n\n00:00.000 --> 00:06.000\nFirst a dot\n");
    fixture.packages.write("Test.hintreels/Resources/blinking.vtt",
        "WEBVTT\n\n00:00.000 --> 00:01.000\nDark\n\n00:01.100 --> 00:02.000\nLight\n");
    QWidget window;
    QPushButton button("draw", &window);
    window.setGeometry(100, 100, 200, 100);
    window.show();
    BusReader bus;
    fixture.start();
    QVERIFY(fixture.host->show("key", QPoint(300, 20), &button));
    fixture.popup = fixture.host->manager()->widget();
    fixture.makeAll();
    QFETCH(QStringList, lines);
    QStringList tree;
    // The clip's length, its first picture and its caption come a while later.
    [[maybe_unused]] const bool isRead = QTest::qWaitFor(
        [&] {
            tree = bus.tree();
            return tree == lines;
        },
        30000); // ms: other programs may keep the processor busy
    QCOMPARE(tree, lines);
}

QTEST_MAIN(tst_bus_hint)
#include "tst_bus_hint.moc"
