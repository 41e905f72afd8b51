// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Stage.h"

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
    item->startWatch();
    setSource();
    // Sizes fall back to those of no clip as soon as all of it is decoded.
    runUntil([this] {
        return item->loadProgress() == 1.0 && item->contentWidth() == 200.0
            && !item->paintings.isEmpty();
    });
}
