// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

namespace Sketchpad {

/// What one line of a clip's script does.
enum class ClipAction
{
    Record,
    Move,
    Click,
    DoubleClick,
    Press,
    Release,
    Drag,
    Hold,
    Free,
    Key,
    Type,
    Wheel,
    Wait,
    Color,
    Tremble,
    Say
};

/// One line of a clip's script.
struct ClipStep
{
    ClipAction action = ClipAction::Wait;
    QString name; ///< of a widget, of keys, of a locale, as the action wants it
    QString text; ///< what is typed or said, or a color
    QVector<QPointF> points; ///< on the canvas, in units of the drawing
    double amount = 0; ///< seconds, steps of the wheel, or pixels
    int line = 0; ///< counted from 1
};

/// The steps of a clip, read from the text that a writer has written.
///
/// One step a line; `#` begins a comment, and empty lines are free. Points are pairs of numbers on
/// the canvas, times are seconds, and targets are the names of Sketchpad's actions and widgets.
/// | line                   | meaning                                                             |
/// |------------------------|---------------------------------------------------------------------|
/// | record                 | what stands before it happens at once and unseen                    |
/// | move X Y, move TARGET  | glides to a point, or to the middle of a button or widget           |
/// | click, doubleclick     | where the pointer is                                                |
/// | press, release         | the left button                                                     |
/// | drag X Y ... [in S]    | presses, passes smoothly through all points, releases               |
/// | hold KEY, free KEY     | Shift, Ctrl or Alt, from here on                                    |
/// | key KEYS               | one key or combination, such as Ctrl+Z                              |
/// | type TEXT              | letter by letter                                                    |
/// | wheel STEPS            | away from the reader where positive                                 |
/// | wait S                 | lets the reader look                                                |
/// | tremble PIXELS         | from here on the hand is so unsteady; 0 makes it steady again       |
/// | color BUTTON COLOR     | a color button's color, as its dialog would set it; #RRGGBB         |
/// | say LOCALE TEXT        | a caption, shown until the locale's next one or the clip's end      |
class ClipScript
{
public:
    /// The steps of a text; where a line cannot be understood, none, and error() names the line.
    static ClipScript fromText(const QString &text);

    const QVector<ClipStep> &steps() const { return m_steps; }
    const QString &error() const { return m_error; }

private:
    QVector<ClipStep> m_steps;
    QString m_error;
};

} // namespace Sketchpad
