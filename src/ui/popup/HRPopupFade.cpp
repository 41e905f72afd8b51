// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPopupFade_p.h"

#include "ui/popup/wayland_p.h"

#include <QPropertyAnimation>
#include <QWidget>

namespace Hintreels {

namespace {

QVariantAnimation *makeAnimation(QWidget *window)
{
    if (isOnWayland())
        return new QVariantAnimation(window);
    return new QPropertyAnimation(window, "windowOpacity", window);
}

} // namespace

HRPopupFade::HRPopupFade(QWidget *window)
    : m_window(window)
    , m_animation(makeAnimation(window))
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

void HRPopupFade::setOpacity(qreal opacity)
{
    if (!isOnWayland())
        m_window->setWindowOpacity(opacity);
}

void HRPopupFade::fade(qreal from, qreal to, int duration, const Ended &ended)
{
    stop();
    m_animation->setStartValue(from);
    m_animation->setEndValue(to);
    m_animation->setDuration(duration);
    m_ended = QObject::connect(m_animation, &QVariantAnimation::finished, m_window, ended);
    m_animation->start();
}

void HRPopupFade::stop()
{
    QObject::disconnect(m_ended);
    m_animation->stop();
}

} // namespace Hintreels
