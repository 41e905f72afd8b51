// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Stage.h"

#include "video/HRVideoSource.h"

#include "Measuring.h"

#include <QCoreApplication>

using namespace Hintreels;

void WatchedItem::startWatch()
{
    paintings.clear();
    m_watch.start();
}

void WatchedItem::paint(QPainter *painter)
{
    HRVideoComponent::paint(painter);
    if (!hasPicture() || (!paintings.isEmpty() && paintings.last().picture == pictureTime()))
        return;
    paintings.append({ pictureTime(), double(m_watch.nsecsElapsed()) / 1e9 });
}

Stage::Stage(const QString &file)
    : view(nullptr, nullptr)
{
    auto *content = new HRXmlElement;
    content->setAttribute("resources", file);
    view.setContent(content);
    view.resize(1280, 720);
    item = new WatchedItem(view.contentItem());
    item->setSize(QSizeF(1280, 720));
    view.show();
    runUntil([this] { return view.isExposed(); });
}

void Stage::setSource()
{
    item->setSource("clip");
}

void Stage::runUntil(const std::function<bool()> &done)
{
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        if (timer.elapsed() > 60000)
            cannotMeasure("the item did not get there within a minute");
    }
}

void Stage::load()
{
    // Its end pauses the item, so whoever plays before that is told has seen nothing.
    bool hasEnded = false;
    const auto *source = item->findChild<Hintreels::HRVideoSource *>();
    const QMetaObject::Connection watch = QObject::connect(
        source, &Hintreels::HRVideoSource::streamEnded, &view, [&hasEnded] { hasEnded = true; });
    item->startWatch();
    setSource();
    runUntil([&] { return hasEnded && !item->paintings.isEmpty(); });
    QObject::disconnect(watch);
}
