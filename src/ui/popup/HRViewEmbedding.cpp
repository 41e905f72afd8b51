// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRViewEmbedding_p.h"

#include "ui/popup/wayland_p.h"

#include <QEvent>
#include <QWindow>

namespace Hintreels {

void HRViewEmbedding::setView(QWindow *view)
{
    m_view = view;
}

void HRViewEmbedding::setContainer(QWidget *container)
{
    m_container = container;
}

void HRViewEmbedding::prepareFor(const QWidget &popup)
{
    const bool mayBeRenewed = nativeWindowOf(popup) != m_window;
    if (mayBeRenewed || isOnWayland())
        hideContainer();
    if (mayBeRenewed)
        release();
}

void HRViewEmbedding::embedIn(const QWidget &popup)
{
    m_window = nativeWindowOf(popup);
    QWindow *window = popup.windowHandle();
    if (window && isOnWayland())
        window->installEventFilter(this);
    else
        showContainer();
}

void HRViewEmbedding::renewLater()
{
    hideContainer();
    release();
    QMetaObject::invokeMethod(
        this, [this] { showContainer(); }, Qt::QueuedConnection);
}

void HRViewEmbedding::release()
{
    if (m_view)
        m_view->destroy();
}

bool HRViewEmbedding::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose && m_container)
        m_container->setVisible(static_cast<QWindow *>(watched)->isExposed());
    return QObject::eventFilter(watched, event);
}

HRViewEmbedding::NativeWindow HRViewEmbedding::nativeWindowOf(const QWidget &popup)
{
    const QWindow *window = popup.windowHandle();
    return window ? NativeWindow(window->winId(), window->flags()) : NativeWindow();
}

void HRViewEmbedding::hideContainer()
{
    if (m_container)
        m_container->hide();
}

void HRViewEmbedding::showContainer()
{
    if (m_container)
        m_container->show();
}

} // namespace Hintreels
