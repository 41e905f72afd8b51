// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QObject>

#include <functional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace Hintreels {

/// Ends the small beginning of a hint: after the pointer has kept to it for a while, or by a key.
///
/// GUI thread only.
class HRSmallStart : public QObject
{
public:
    /// Whether the pointer keeps to the hint.
    using Rests = std::function<bool()>;
    using Grow = std::function<void()>;

    HRSmallStart(Rests rests, Grow grow);

    /// A hint begins.
    void start();
    void stop() { m_timer.stop(); }

    /// The hint is to show all from here on; does nothing where it has not begun small.
    void end();

    /// For a key that is pressed while the hint shows: Shift ends the beginning, too.
    void followKey(const QKeyEvent &event);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    Rests m_rests;
    Grow m_grow;
    QBasicTimer m_timer; // runs until the end
};

} // namespace Hintreels
