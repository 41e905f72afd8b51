// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRViewEmbedding_p.h"

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
    if (nativeWindowOf(popup) == m_window)
        return;
    hideContainer();
    release();
}

void HRViewEmbedding::embedIn(const QWidget &popup)
{
    m_window = nativeWindowOf(popup);
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
