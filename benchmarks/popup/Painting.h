// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QQuickView>

#include <functional>

/// Tells how long it takes from a request until what it asked for is painted and on the screen.
class PaintWatch : public QObject
{
public:
    /// Makes the request from an event, as a host does, and handles events until it is painted.
    ///
    /// Outside of an event loop Qt deletes old content before the frame for some requests and after
    /// it for others, by how they were made; here it is after the frame for all.
    double secondsFor(const std::function<void()> &request);

protected:
    /// Ends the time, the first time that it is called.
    void finish();

private:
    QEventLoop m_loop;
    QElapsedTimer m_timer;
    double m_seconds = 0;
};

/// Ends with the first frame of a quick view in the size of its content.
class FrameWatch : public PaintWatch
{
public:
    /// May be called in the request.
    void watch(QQuickView &view);
};

/// Ends when the label of Qt's own tooltips has been painted.
class ToolTipWatch : public PaintWatch
{
public:
    ToolTipWatch();

    bool eventFilter(QObject *watched, QEvent *event) override;
};
