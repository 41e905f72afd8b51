// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

#include <functional>

QT_BEGIN_NAMESPACE
class QMouseEvent;
class QTouchEvent;
class QWidget;
QT_END_NAMESPACE

namespace Hintreels {

/// Shows the hint of what a finger rests on, for as long as Qt calls it pressed and held.
///
/// What lies there has been pressed meanwhile: when the finger goes, it is let go without having
/// been clicked. GUI thread only.
class HRLongPress : public QObject
{
public:
    /// Shows what belongs to a widget; true while that shows.
    using Show = std::function<bool(QWidget *widget, const QPoint &globalPos)>;

    explicit HRLongPress(Show show);

    /// Handles an event that somebody of the host gets; true where nobody else may see it.
    bool filter(QObject &watched, QEvent &event);

protected:
    /// The finger has rested for long enough.
    void timerEvent(QTimerEvent *event) override;

private:
    void begin(const QTouchEvent &event);
    void follow(const QTouchEvent &event);
    bool letGo(QObject &widget, const QMouseEvent &event);

    Show m_show;
    QBasicTimer m_timer;
    QPoint m_position; // of the finger, global
    bool m_isShown = false; // until the finger goes
};

} // namespace Hintreels
