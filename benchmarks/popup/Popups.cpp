// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/Popups.h"

#include "ui/popup/HRWidget.h"

#include <QEventLoop>
#include <QTimer>
#include <QToolTip>

using namespace Hintreels;

namespace {

const QPoint BesideTheTool(300, 100);

constexpr int UntilNothingIsPainted = 50; // ms
constexpr int UntilToolTipIsGone = 400; // ms; Qt waits 300 after it was told to hide it
constexpr int UntilToolTipHasCome = 1200; // ms; Qt waits 700 where the pointer rests

void pause(int duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// A popup long after the start of its program, with the pointer at rest.
void settle(const PopupHost &host)
{
    pause(UntilNothingIsPainted);
    // Brings a tooltip event of Qt's own, for which the tool has no content yet.
    host.takePointer();
    pause(UntilToolTipHasCome);
}

} // namespace

Popups::Popups()
{
    settle(m_host);
    for (const Before before : { Before::nothing, Before::otherContent }) {
        hover(before);
        bareView(before);
        toolTip(before);
    }
}

double Popups::hover(Before before)
{
    hideAll();
    if (before == Before::otherContent) {
        hoverNext();
        pause(UntilNothingIsPainted);
    }
    return hoverNext();
}

double Popups::bareView(Before before)
{
    hideAll();
    if (before == Before::otherContent) {
        showBareView();
        pause(UntilNothingIsPainted);
    }
    return showBareView();
}

double Popups::toolTip(Before before)
{
    hideAll();
    if (before == Before::otherContent) {
        showToolTip();
        pause(UntilNothingIsPainted);
    }
    return showToolTip();
}

void Popups::hideAll()
{
    if (m_host.popup())
        m_host.popup()->hide();
    m_bareView.window().hide();
    const bool isToolTipVisible = QToolTip::isVisible();
    QToolTip::hideText();
    pause(isToolTipVisible ? UntilToolTipIsGone : UntilNothingIsPainted);
}

double Popups::hoverNext()
{
    FrameWatch watch;
    return watch.secondsFor([&] {
        m_host.hoverNext();
        watch.watch(*m_host.popup()->view());
    });
}

double Popups::showBareView()
{
    const PopupContent content(++m_number % PopupHost::contentCount);
    FrameWatch watch;
    watch.watch(m_bareView.window());
    return watch.secondsFor([&] { m_bareView.show(content, BesideTheTool); });
}

double Popups::showToolTip()
{
    const QString text = PopupContent(++m_number % PopupHost::contentCount).richText();
    ToolTipWatch watch;
    return watch.secondsFor([&] { QToolTip::showText(BesideTheTool, text); });
}

double firstHover()
{
    PopupHost host;
    settle(host);
    FrameWatch watch;
    return watch.secondsFor([&] {
        host.hoverNext();
        watch.watch(*host.popup()->view());
    });
}

double firstBareView()
{
    const PopupHost host;
    settle(host);
    FrameWatch watch;
    StandInView services;
    std::unique_ptr<BareView> view;
    return watch.secondsFor([&] {
        view = std::make_unique<BareView>(services);
        view->show(PopupContent(0), BesideTheTool);
        watch.watch(view->window());
    });
}
