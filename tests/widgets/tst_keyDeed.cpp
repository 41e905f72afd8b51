// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/keyDeed_p.h"

#include <QKeyEvent>
#include <QtTest>

using namespace Hintreels;

using State = HRKeyState;
using Stroke = HRKeyStroke;
using Deed = HRKeyDeed;

Q_DECLARE_METATYPE(HRKeyState)
Q_DECLARE_METATYPE(HRKeyStroke)
Q_DECLARE_METATYPE(HRKeyDeed)

class tst_keyDeed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deed_followsStateAndStroke_data();
    void deed_followsStateAndStroke();
    void stroke_isToldByItsKey_data();
    void stroke_isToldByItsKey();
};

void tst_keyDeed::deed_followsStateAndStroke_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<Stroke>("stroke");
    QTest::addColumn<Deed>("deed");

    const QMap<const char *, QPair<State, QVector<Deed>>> rows{
        { "nothing",
            { State::nothing, { Deed::show, Deed::host, Deed::host, Deed::host, Deed::host } } },
        { "hovered",
            { State::hovered, { Deed::show, Deed::dismiss, Deed::host, Deed::host, Deed::host } } },
        { "shown",
            { State::shown, { Deed::enter, Deed::dismiss, Deed::host, Deed::host, Deed::host } } },
        { "inside",
            { State::inside, { Deed::leave, Deed::leave, Deed::host, Deed::host, Deed::scene } } },
    };
    const QVector<QPair<const char *, Stroke>> strokes{ { "hint", Stroke::hint },
        { "escape", Stroke::escape }, { "modifier", Stroke::modifier },
        { "command", Stroke::command }, { "plain", Stroke::plain } };
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        for (int i = 0; i < strokes.size(); ++i)
            QTest::addRow("%s, %s", row.key(), strokes[i].first)
                << row->first << strokes[i].second << row->second[i];
    }
}

void tst_keyDeed::deed_followsStateAndStroke()
{
    QFETCH(State, state);
    QFETCH(Stroke, stroke);
    QFETCH(Deed, deed);
    QCOMPARE(keyDeed(state, stroke), deed);
}

void tst_keyDeed::stroke_isToldByItsKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<Stroke>("stroke");

    const int none = Qt::NoModifier;
    const int shift = Qt::ShiftModifier;
    const int ctrl = Qt::ControlModifier;
    const QString usual = "Shift+F1";
    QTest::newRow("shortcut") << int(Qt::Key_F1) << shift << usual << Stroke::hint;
    QTest::newRow("its key alone") << int(Qt::Key_F1) << none << usual << Stroke::plain;
    QTest::newRow("with more") << int(Qt::Key_F1) << (shift | ctrl) << usual << Stroke::command;
    QTest::newRow("another") << int(Qt::Key_F3) << ctrl << "Ctrl+F3" << Stroke::hint;
    QTest::newRow("number block") << int(Qt::Key_5) << (ctrl | int(Qt::KeypadModifier)) << "Ctrl+5"
                                  << Stroke::hint;
    QTest::newRow("none") << int(Qt::Key_F1) << shift << "" << Stroke::plain;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << usual << Stroke::escape;
    QTest::newRow("Escape as the shortcut")
        << int(Qt::Key_Escape) << none << "Escape" << Stroke::hint;
    QTest::newRow("Shift and Escape") << int(Qt::Key_Escape) << shift << usual << Stroke::plain;
    QTest::newRow("Tab back") << int(Qt::Key_Backtab) << shift << usual << Stroke::plain;
    QTest::newRow("letter") << int(Qt::Key_A) << none << usual << Stroke::plain;
    QTest::newRow("copy") << int(Qt::Key_C) << ctrl << usual << Stroke::plain;
    QTest::newRow("save") << int(Qt::Key_S) << ctrl << usual << Stroke::command;
    QTest::newRow("menu") << int(Qt::Key_F) << int(Qt::AltModifier) << usual << Stroke::command;
    for (const Qt::Key key : { Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt,
             Qt::Key_AltGr, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_Super_L })
        QTest::newRow(qPrintable(QKeySequence(key).toString() + QString::number(key)))
            << int(key) << none << usual << Stroke::modifier;
}

void tst_keyDeed::stroke_isToldByItsKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, shortcut);
    QFETCH(Stroke, stroke);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(keyStroke(event, shortcut), stroke);
}

QTEST_MAIN(tst_keyDeed)
#include "tst_keyDeed.moc"
