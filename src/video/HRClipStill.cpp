// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipStill_p.h"

#include <QPainter>

namespace Hintreels {

HRClipStill::HRClipStill(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void HRClipStill::setSource(HRVideoComponent *source)
{
    if (source == m_source)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    if (source)
        connect(source, &HRVideoComponent::decodedChanged, this, [this] { update(); });
    Q_EMIT sourceChanged();
    update();
}

void HRClipStill::setTime(double seconds)
{
    if (seconds == m_time)
        return;
    m_time = seconds;
    Q_EMIT timeChanged();
    update();
}

void HRClipStill::paint(QPainter *painter)
{
    if (m_source && m_source->isDecoded())
        m_source->paintStill(painter, m_time, size());
}

} // namespace Hintreels
