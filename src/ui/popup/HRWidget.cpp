// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidget.h"

#include "context/setting_p.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/popup/popupFit_p.h"
#include "ui/popup/popupGeometry_p.h"
#include "ui/popup/popupReserving_p.h"

#include <QApplication>
#include <QLayout>
#include <QTimer>

namespace Hintreels {

namespace {

// Low enough to fade in from, high enough for window managers to map the window at all.
constexpr qreal fadeInStart = 0.1;

/// Whether a widget is the one that is seen at a global position.
bool isTopmostAt(const QWidget *widget, const QPoint &position)
{
    // The window system is asked last: that takes a few round trips to it.
    return widget && widget->rect().contains(widget->mapFromGlobal(position))
        && QApplication::widgetAt(position) == widget;
}

} // namespace

HRWidget::HRWidget(HRManager *manager, QWidget *parent, QWidget *reference)
    : QWidget(parent)
    , d(std::make_unique<HRWidgetPrivate>(this, manager, reference))
{
    if (!setting(d->settings(), embeddedPopupKey, false))
        setWindowFlags(Qt::ToolTip);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAutoFillBackground(true);
    connect(d->timer, &QTimer::timeout, this, &HRWidget::hideAnimated);
}

HRWidget::~HRWidget()
{
    // No event that is yet to come may find it visible, but without its private record.
    hide();
    // Before the container goes, which would delete the view's window too.
    delete d->view;
}

HRManager *HRWidget::manager() const
{
    return d->manager;
}

HRView *HRWidget::view() const
{
    return d->view;
}

void HRWidget::setView(HRView *view)
{
    if (d->view == view)
        return;
    delete d->view;
    d->view = view;
    d->embedding.setView(view);
    if (!view)
        return;
    connect(view, &HRView::reservedChanged, this, &HRWidget::contentReservedChanged);
    connect(view, &HRView::contentSizeChanged, this, &HRWidget::contentResized);
    connect(view, &QQuickView::statusChanged, this, [this] { d->followScene(); });
    connect(HRViewPrivate::of(*view).watch.get(), &HRScriptWatch::stopped, this,
        [this] { d->dismiss(); });
    connect(view, &HRView::stayOpenChanged, this, [this] { d->followStayOpen(); });
    connect(
        view, &QQuickWindow::frameSwapped, this, [this] { d->takeFrame(); }, Qt::QueuedConnection);
    // A press inside a popup leaves the keyboard focus where it is.
    view->setFlag(Qt::WindowDoesNotAcceptFocus, !d->reserved);
    HRViewPrivate::of(*view).popup = this;
    view->setViewPos(0, 0);
    view->installEventFilter(&d->readerMenu);
}

QWidget *HRWidget::referenceWidget() const
{
    return d->reference;
}

void HRWidget::SetContainerWidget(QWidget *container)
{
    d->container = container;
    d->embedding.setContainer(container);
    // Where the popup is larger than its content, the content stays where the popup begins.
    if (container && layout())
        layout()->setAlignment(container, Qt::AlignLeft | Qt::AlignTop);
}

bool HRWidget::isSafe(const QPoint &pos) const
{
    if (d->held)
        return true;
    const QRect area(mapToGlobal(QPoint(0, 0)), frameGeometry().size());
    if (isNear(area, setting(d->settings(), safeMarginKey, QSize(20, 20)), pos))
        return true;
    // Beside a part, the other parts of its widget are none of the popup's.
    return d->standsBeside() && !d->beside->isOverPart(pos) ? d->beside->leadsTo(area, pos)
                                                            : isTopmostAt(d->reference, pos);
}

void HRWidget::checkMousePosition(const QPoint &pos)
{
    d->hideTimer.follow(isSafe(pos));
}

void HRWidget::cancelHiding()
{
    if (!d->fade.isFadingOut())
        return;
    d->fade.stop();
    setWindowOpacity(1.0);
    d->keepTime();
}

void HRWidget::setVisible(bool visible)
{
    if (!visible || isVisible() || !isWindow()) {
        QWidget::setVisible(visible);
        return;
    }
    create();
    if (!d->reserved) {
        d->followReferenceWindow();
        d->paintAfterContent();
    }
    d->embedding.prepareFor(*this);
    QWidget::setVisible(true);
    d->embedding.embedIn(*this);
}

void HRWidget::showWithContent(
    QObject *reference, QPoint pos, HRXmlElement *content, const QString &rootPath)
{
    d->showWithContent(reference, QRect(), pos, content, rootPath);
}

void HRWidget::reposition()
{
    const QRect frame = window()->frameGeometry();
    const QPoint place = d->placeFor(frame);
    if (place != frame.topLeft())
        window()->move(place);
}

void HRWidget::hideAnimated()
{
    if (d->reserved || !isVisible() || d->fade.isRunning())
        return;
    const int duration = setting(d->settings(), hideAnimationDurationKey, 300);
    if (duration <= 0) {
        hideAnimationFinished();
        return;
    }
    d->fade.fade(windowOpacity(), 0.0, duration, [this] { hideAnimationFinished(); });
    d->hideTimer.stop();
}

void HRWidget::hideAnimationFinished()
{
    if (d->view)
        d->view->resetState();
    hide();
}

void HRWidget::showAnimated()
{
    if (isVisible())
        return;
    const int duration = setting(d->settings(), showAnimationDurationKey, 0);
    if (duration <= 0) {
        setWindowOpacity(1.0);
        show();
        return;
    }
    d->fade.setOpacity(fadeInStart);
    show();
    contentResized();
    d->fade.fade(fadeInStart, 1.0, duration, [this] { d->endFadeIn(); });
}

void HRWidget::setTimer()
{
    d->hideTimer.restart();
}

void HRWidget::contentReservedChanged()
{
    QWidget *window = nullptr;
    // The manager agrees only where the popup has outlived the question to the host.
    if (!d->view || !d->view->reserved() || !d->manager || !d->manager->reserve(this, window))
        return;
    d->becomeOrdinaryWindow();
    if (window)
        moveIntoWindow(*this, window);
    else
        moveIntoOwnWindow(*this);
}

void HRWidget::contentResized()
{
    d->makeRoom();
    fitToContent(*this, d->container, d->screen());
    matchBackground(*this);
    d->keepInside();
}

QRect HRWidget::findVisibleGeometry(QRect geometry, bool *move)
{
    const QRect inside = movedInside(geometry, d->screen());
    if (move)
        *move = inside != geometry;
    return inside;
}

void HRWidget::showEvent(QShowEvent *)
{
    if (!d->isSafe(d->watch.position()))
        setTimer();
    reposition();
    if (d->view)
        d->view->setDecodingPaused(false);
    if (!d->reserved)
        d->beginToShow();
    else if (!isWindow())
        d->embedding.renewLater();
}

void HRWidget::moveEvent(QMoveEvent *)
{
    d->appearAnewLater();
}

void HRWidget::hideEvent(QHideEvent *)
{
    d->stopHiding();
    d->spoken.leave();
    d->held = false;
    d->hasFrame = false;
    if (!d->view)
        return;
    d->view->releaseOverrideCursors();
    d->view->setDecodingPaused(true);
    if (d->reserved)
        d->embedding.release();
}

} // namespace Hintreels
