// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPopupFade_p.h"

#include <QPropertyAnimation>
#include <QWidget>

namespace Hintreels {

HRPopupFade::HRPopupFade(QWidget *window)
    : m_window(window)
    , m_animation(new QPropertyAnimation(window, "windowOpacity", window))
{
}

bool HRPopupFade::isRunning() const
{
    return m_animation->state() != QAbstractAnimation::Stopped;
}

bool HRPopupFade::isFadingOut() const
{
    return isRunning() && m_animation->endValue().toReal() == 0.0;
}

void HRPopupFade::fade(qreal from, qreal to, int duration, const Ended &ended)
{
    stop();
    m_animation->setStartValue(from);
    m_animation->setEndValue(to);
    m_animation->setDuration(duration);
    m_ended = QObject::connect(m_animation, &QPropertyAnimation::finished, m_window, ended);
    m_animation->start();
}

void HRPopupFade::stop()
{
    QObject::disconnect(m_ended);
    m_animation->stop();
}

} // namespace Hintreels
