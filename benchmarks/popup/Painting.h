// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QQuickView>

/// Tells how long it took from its making until something was painted and on the screen.
class PaintWatch : public QObject
{
public:
    PaintWatch() { m_timer.start(); }

    /// Handles events until it is painted.
    double seconds() const;

protected:
    /// Ends the time, the first time that it is called.
    void finish();

private:
    QElapsedTimer m_timer;
    double m_seconds = 0;
};

/// Ends with the first frame of a quick view in the size of its content.
class FrameWatch : public PaintWatch
{
public:
    /// May be called late, as long as no event was handled since the view changed.
    void watch(QQuickView &view);
};

/// Ends when the label of Qt's own tooltips has been painted.
class ToolTipWatch : public PaintWatch
{
public:
    ToolTipWatch();

    bool eventFilter(QObject *watched, QEvent *event) override;
};
