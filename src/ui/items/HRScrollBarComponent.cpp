// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/HRScrollBarComponent.h"

#include "ui/items/widgetLength_p.h"

#include <QPointer>
#include <QScrollBar>
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

struct HRScrollBarComponentPrivate
{
    // Guarded, since nothing keeps others from deleting a top-level widget.
    QPointer<QScrollBar> bar = new QScrollBar;
};

HRScrollBarComponent::HRScrollBarComponent(QQuickPaintedItem *parent)
    : QQuickPaintedItem(parent)
    , d(std::make_unique<HRScrollBarComponentPrivate>())
{
    connect(d->bar, &QScrollBar::valueChanged, this,
        &HRScrollBarComponent::scrollBarPositionChanged, Qt::QueuedConnection);
    setAcceptedMouseButtons(Qt::AllButtons);
}

HRScrollBarComponent::~HRScrollBarComponent() = default;

float HRScrollBarComponent::start() const
{
    return d->bar ? fromHundredths(d->bar->minimum()) : 0;
}

void HRScrollBarComponent::setStart(float start)
{
    if (d->bar)
        d->bar->setMinimum(toHundredths(start));
    Q_EMIT startChanged();
}

float HRScrollBarComponent::end() const
{
    return d->bar ? fromHundredths(d->bar->maximum()) : 0;
}

void HRScrollBarComponent::setEnd(float end)
{
    if (d->bar)
        d->bar->setMaximum(toHundredths(end));
    Q_EMIT endChanged();
}

float HRScrollBarComponent::position() const
{
    return d->bar ? fromHundredths(d->bar->value()) : 0;
}

void HRScrollBarComponent::setPosition(float position)
{
    setPositionExternal(position);
    Q_EMIT positionChanged();
}

bool HRScrollBarComponent::orientHorizontal() const
{
    return d->bar && d->bar->orientation() == Qt::Horizontal;
}

void HRScrollBarComponent::setOrientHorizontal(bool horizontal)
{
    if (d->bar)
        d->bar->setOrientation(horizontal ? Qt::Horizontal : Qt::Vertical);
    Q_EMIT orientHorizontalChanged();
}

float HRScrollBarComponent::scrollBarWidth() const
{
    if (!d->bar)
        return 0;
    return float(orientHorizontal() ? d->bar->height() : d->bar->width());
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
    if (d->bar)
        d->bar->setFixedSize(Hintreels::widgetLength(width()), Hintreels::widgetLength(height()));
}

void HRScrollBarComponent::setPositionExternal(float value)
{
    if (d->bar)
        d->bar->setValue(toHundredths(value));
}

void HRScrollBarComponent::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (d->bar && change == ItemVisibleHasChanged)
        d->bar->setVisible(value.boolValue);
    if (d->bar && change == ItemOpacityHasChanged)
        d->bar->setWindowOpacity(value.realValue);
    QQuickPaintedItem::itemChange(change, value);
}
