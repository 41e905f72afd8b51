// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRViewEmbedding_p.h"

#include <QWidget>
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

void HRViewEmbedding::defer()
{
    if (m_container)
        m_container->hide();
}

void HRViewEmbedding::embed()
{
    if (m_container)
        m_container->show();
}

void HRViewEmbedding::renewLater()
{
    defer();
    release();
    QMetaObject::invokeMethod(
        this, [this] { embed(); }, Qt::QueuedConnection);
}

void HRViewEmbedding::release()
{
    if (m_view)
        m_view->destroy();
}

} // namespace Hintreels
