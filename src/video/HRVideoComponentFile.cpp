// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// What the item takes from the file of its clip, where it is told to.

#include "video/HRVideoComponent_p.h"

#include "video/upright_p.h"

#include <QPainter>

namespace Hintreels {

namespace {

const QLatin1String timedByRate("constant");
const QLatin1String timedByFile("file");
const QLatin1String colorsByScaler("described");
const QLatin1String colorsByFile("file");

} // namespace

double HRVideoComponent::length() const
{
    return d->awaitedSources > 0 ? 0.0 : d->videoSource->clipLength();
}

qint64 HRVideoComponent::positionAt(double seconds) const
{
    return qint64(d->videoSource->indexAt(seconds));
}

QString HRVideoComponent::timing() const
{
    return d->videoSource->isTimedByFile() ? timedByFile : timedByRate;
}

void HRVideoComponent::setTiming(const QString &timing)
{
    if (timing == this->timing() || (timing != timedByFile && timing != timedByRate))
        return;
    d->videoSource->setTimedByFile(timing == timedByFile);
    Q_EMIT timingChanged();
    d->tellLength();
    d->controller->setNeedFrame(true); // with its new time
}

QString HRVideoComponent::colors() const
{
    return d->videoSource->areColorsByFile() ? colorsByFile : colorsByScaler;
}

void HRVideoComponent::setColors(const QString &colors)
{
    if (colors == this->colors() || (colors != colorsByFile && colors != colorsByScaler))
        return;
    d->videoSource->setColorsByFile(colors == colorsByFile);
    Q_EMIT colorsChanged();
}

bool HRVideoComponent::isUpright() const
{
    return d->upright;
}

void HRVideoComponent::setUpright(bool upright)
{
    if (upright == d->upright)
        return;
    d->upright = upright;
    Q_EMIT uprightChanged();
    if (!d->picture.isNull())
        placePicture();
    update();
}

void HRVideoComponent::paintStill(QPainter *painter, double seconds, const QSizeF &room) const
{
    const HRVideoFrame still = d->controller->getFrame(size_t(positionAt(seconds)));
    if (d->awaitedSources > 0 || still.isNull())
        return;
    const QTransform toUpright = d->upright ? d->videoSource->upright() : QTransform();
    const QSize size = uprightSize(still.size(), toUpright);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->scale(room.width() / size.width(), room.height() / size.height());
    painter->setTransform(toUpright, true);
    painter->drawImage(QPoint(0, 0), still);
}

void HRVideoComponent::placePicture()
{
    d->toUpright = d->upright ? d->videoSource->upright() : QTransform();
    const QSize size = uprightSize(d->picture.size(), d->toUpright);
    setImplicitSize(size.width(), size.height());
}

} // namespace Hintreels
