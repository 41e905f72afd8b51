// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/Painting.h"

#include "Measuring.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QQuickItem>
#include <QTimer>

double PaintWatch::secondsFor(const std::function<void()> &request)
{
    constexpr int patience = 10000; // ms
    QTimer::singleShot(patience, &m_loop, &QEventLoop::quit);
    QTimer::singleShot(0, this, [&] {
        m_timer.start();
        request();
    });
    m_loop.exec();
    if (m_seconds <= 0)
        cannotMeasure("nothing was painted");
    return m_seconds;
}

void PaintWatch::finish()
{
    if (m_seconds > 0)
        return;
    // The X server answers a question only after it has done all that it was asked before.
    QCursor::pos();
    m_seconds = double(m_timer.nsecsElapsed()) / 1e9;
    m_loop.quit();
}

void FrameWatch::watch(QQuickView &view)
{
    connect(&view, &QQuickWindow::frameSwapped, this, [this, &view] {
        if (view.size() == view.rootObject()->size().toSize())
            finish();
    });
}

ToolTipWatch::ToolTipWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ToolTipWatch::eventFilter(QObject *watched, QEvent *event)
{
    // Painting is over, and its result sent, once the event that asked for it has been handled.
    if (event->type() == QEvent::Paint && watched->inherits("QTipLabel"))
        QMetaObject::invokeMethod(
            this, [this] { finish(); }, Qt::QueuedConnection);
    return false;
}
