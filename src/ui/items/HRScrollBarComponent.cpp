// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/HRScrollBarComponent.h"

#include "ui/items/widgetLength_p.h"

#include <QtMath>

#include <limits>

namespace {

constexpr float hundredthsInOne = 100.0f;

/// In single precision and truncated towards zero; what does not fit becomes the nearest int.
int toHundredths(float value)
{
    const auto hundredths = double(value * hundredthsInOne);
    if (qIsNaN(hundredths))
        return 0;
    return int(qBound(double(std::numeric_limits<int>::min()), hundredths,
        double(std::numeric_limits<int>::max())));
}

float fromHundredths(int hundredths)
{
    return float(hundredths) / hundredthsInOne;
}

} // namespace

HRScrollBarComponent::HRScrollBarComponent(QQuickPaintedItem *parent)
    : QQuickPaintedItem(parent)
    , m_bar(new QScrollBar)
{
    connect(m_bar, &QScrollBar::valueChanged, this, &HRScrollBarComponent::scrollBarPositionChanged,
        Qt::QueuedConnection);
    setAcceptedMouseButtons(Qt::AllButtons);
}

float HRScrollBarComponent::start() const
{
    return m_bar ? fromHundredths(m_bar->minimum()) : 0;
}

void HRScrollBarComponent::setStart(float start)
{
    if (m_bar)
        m_bar->setMinimum(toHundredths(start));
    Q_EMIT startChanged();
}

float HRScrollBarComponent::end() const
{
    return m_bar ? fromHundredths(m_bar->maximum()) : 0;
}

void HRScrollBarComponent::setEnd(float end)
{
    if (m_bar)
        m_bar->setMaximum(toHundredths(end));
    Q_EMIT endChanged();
}

float HRScrollBarComponent::position() const
{
    return m_bar ? fromHundredths(m_bar->value()) : 0;
}

void HRScrollBarComponent::setPosition(float position)
{
    setPositionExternal(position);
    Q_EMIT positionChanged();
}

bool HRScrollBarComponent::orientHorizontal() const
{
    return m_bar && m_bar->orientation() == Qt::Horizontal;
}

void HRScrollBarComponent::setOrientHorizontal(bool horizontal)
{
    if (m_bar)
        m_bar->setOrientation(horizontal ? Qt::Horizontal : Qt::Vertical);
    Q_EMIT orientHorizontalChanged();
}

float HRScrollBarComponent::scrollBarWidth() const
{
    if (!m_bar)
        return 0;
    return float(orientHorizontal() ? m_bar->height() : m_bar->width());
}

void HRScrollBarComponent::paint(QPainter *)
{
    // The native bar is what the reader sees.
}

void HRScrollBarComponent::scrollBarPositionChanged(int)
{
    Q_EMIT positionChanged();
}

void HRScrollBarComponent::updateDimensions()
{
    if (m_bar)
        m_bar->setFixedSize(Hintreels::widgetLength(width()), Hintreels::widgetLength(height()));
}

void HRScrollBarComponent::setPositionExternal(float value)
{
    if (m_bar)
        m_bar->setValue(toHundredths(value));
}

void HRScrollBarComponent::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (m_bar && change == ItemVisibleHasChanged)
        m_bar->setVisible(value.boolValue);
    if (m_bar && change == ItemOpacityHasChanged)
        m_bar->setWindowOpacity(value.realValue);
    QQuickPaintedItem::itemChange(change, value);
}
