// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidget.h"

#include "context/setting_p.h"
#include "gates/HRFileUse_p.h"
#include "gates/HRScriptWatch_p.h"
#include "manager/HRManager.h"
#include "ui/popup/HRPointerWatch_p.h"
#include "ui/popup/HRPopupFade_p.h"
#include "ui/popup/HRSceneLoader_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRViewEmbedding_p.h"
#include "ui/popup/contentTree_p.h"
#include "ui/popup/popupDetaching_p.h"
#include "ui/popup/popupFit_p.h"
#include "ui/popup/popupGeometry_p.h"
#include "ui/popup/popupScreen_p.h"
#include "ui/reader/HRContentReader_p.h"

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QLayout>
#include <QPointer>
#include <QQmlContext>
#include <QTimer>
#include <QWindow>

#include <limits>

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

struct HRWidgetPrivate
{
    HRWidgetPrivate(HRWidget *q, HRManager *hrManager, QWidget *referenceWidget);

    template <typename T>
    T setting(contextKey key, const T &defaultValue) const
    {
        return manager ? Hintreels::setting(manager->context(), key, defaultValue) : defaultValue;
    }

    QRect screen() const { return availableGeometry(reference, q->window()->pos()); }

    void setContextProperties(HRXmlElement *content, const QString &rootPath);
    void followReferenceWindow();
    void keepTimeFor(const QPoint &pointer);
    void followStayOpen();
    void endFadeIn();
    void stopHiding();
    void becomeOrdinaryWindow();
    void keepInside();
    void paintAfterContent();
    void paintHeldBack();
    void followContent();
    void followScene();
    void dismiss();

    HRWidget *q;
    QPointer<HRManager> manager;
    QPointer<HRView> view;
    QPointer<QWidget> container;
    QPointer<QWidget> reference;
    HRPopupFade fade;
    QTimer *timer;
    HRPointerWatch watch;
    HRViewEmbedding embedding;
    bool detached = false;
    bool placedByReader = false;
};

HRWidgetPrivate::HRWidgetPrivate(HRWidget *widget, HRManager *hrManager, QWidget *referenceWidget)
    : q(widget)
    , manager(hrManager)
    , reference(referenceWidget)
    , fade(widget)
    , timer(new QTimer(widget))
    , watch([widget](const QPoint &position) { widget->checkMousePosition(position); })
{
    timer->setSingleShot(true);
}

void HRWidgetPrivate::setContextProperties(HRXmlElement *content, const QString &rootPath)
{
    // Bindings call the host back, which may show something else meanwhile.
    const HRSceneLoader::Work work(view->sceneLoader());
    const HRScriptWatch::Entry entry(view->scriptWatch());
    QQmlContext *context = view->rootContext();
    context->setContextProperty(QStringLiteral("hintreel"), content);
    context->setContextProperty(QStringLiteral("dataLocation"), rootPath);
    // Once for each view, since the context keeps a connection for every object that it is given.
    if (context->contextProperty(QStringLiteral("hintreelView")).isValid())
        return;
    context->setContextProperty(QStringLiteral("hintreelView"), view.data());
    const auto settings = [m = manager] { return readerSettings(m); };
    const auto admits = [v = view](const QString &path, HRFileUse use) {
        return v && v->mayOpen(QStringLiteral("source"), path, use);
    };
    context->setContextProperty(
        QStringLiteral("hintreelReader"), new HRContentReader(settings, view, admits));
}

/// On Wayland a popup has its position only beside a window that it belongs to.
void HRWidgetPrivate::followReferenceWindow()
{
    if (QWindow *window = q->windowHandle())
        window->setTransientParent(reference ? reference->window()->windowHandle() : nullptr);
}

/// Decides anew whether the time until hiding runs.
void HRWidgetPrivate::keepTimeFor(const QPoint &pointer)
{
    if (q->isSafe(pointer))
        timer->stop();
    else
        q->setTimer();
}

/// The time may run already when the reader asks the popup to stay: the pointer is quick to leave.
void HRWidgetPrivate::followStayOpen()
{
    if (q->isVisible() && view->stayOpen() == timer->isActive())
        keepTimeFor(QCursor::pos());
}

/// A time-out during the fade-in hid nothing: it counts from here.
void HRWidgetPrivate::endFadeIn()
{
    if (!timer->isActive())
        keepTimeFor(QCursor::pos());
}

void HRWidgetPrivate::stopHiding()
{
    fade.stop();
    timer->stop();
    watch.stop();
}

/// From now on the popup is used like any window, with the keyboard too, and hides for nothing.
void HRWidgetPrivate::becomeOrdinaryWindow()
{
    detached = true;
    stopHiding();
    q->setWindowOpacity(1.0);
    q->setAttribute(Qt::WA_ShowWithoutActivating, false);
    view->setFlag(Qt::WindowDoesNotAcceptFocus, false);
    embedding.release();
}

/// A detached popup too, but only once its window has got its frame: then its reader moves it.
void HRWidgetPrivate::keepInside()
{
    if (!q->isVisible() || placedByReader)
        return;
    q->reposition();
    placedByReader = detached;
}

/// Holds the popup's own painting back until the content's next frame, which hides all of it but a
/// seam and would have to wait for it.
void HRWidgetPrivate::paintAfterContent()
{
    q->setUpdatesEnabled(!view || !view->rootObject());
}

/// Paints at once: an update would be lost where Qt has been asked for one while it was held back.
void HRWidgetPrivate::paintHeldBack()
{
    if (q->updatesEnabled())
        return;
    q->setUpdatesEnabled(true);
    q->repaint();
}

/// Takes the size of new content at once: the view's own resize event comes a round trip to the
/// window system later, and until then a popup that is too small would cut the content off.
void HRWidgetPrivate::followContent()
{
    if (fitsContent(*q))
        return;
    paintAfterContent();
    q->contentResized();
}

/// A scene that had to wait for the event loop comes when the popup shows already.
void HRWidgetPrivate::followScene()
{
    if (!q->isVisible() || !view->rootObject())
        return;
    matchBackground(*q);
    followContent();
}

/// A pinned popup goes with the window that it is in.
void HRWidgetPrivate::dismiss()
{
    if (detached)
        q->window()->close();
    else
        q->hide();
}

HRWidget::HRWidget(HRManager *manager, QWidget *parent, QWidget *reference)
    : QWidget(parent)
    , d(std::make_unique<HRWidgetPrivate>(this, manager, reference))
{
    if (!d->setting(embeddedPopupKey, false))
        setWindowFlags(Qt::ToolTip);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAutoFillBackground(true);
    connect(d->timer, &QTimer::timeout, this, &HRWidget::hideAnimated);
    d->timer->stop();
}

HRWidget::~HRWidget()
{
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
    connect(view->scriptWatch().get(), &HRScriptWatch::stopped, this, [this] { d->dismiss(); });
    connect(view, &HRView::stayOpenChanged, this, [this] { d->followStayOpen(); });
    connect(
        view, &QQuickWindow::frameSwapped, this, [this] { d->paintHeldBack(); },
        Qt::QueuedConnection);
    // A press inside a popup leaves the keyboard focus where it is.
    view->setFlag(Qt::WindowDoesNotAcceptFocus, !d->detached);
    view->setViewPos(0, 0);
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
    const QRect area(mapToGlobal(QPoint(0, 0)), frameGeometry().size());
    return isNear(area, d->setting(safeMarginKey, QSize(20, 20)), pos)
        || isTopmostAt(d->reference, pos);
}

void HRWidget::checkMousePosition(const QPoint &pos)
{
    if (isSafe(pos) == d->timer->isActive())
        d->keepTimeFor(pos);
}

void HRWidget::cancelHiding()
{
    if (!d->fade.isFadingOut())
        return;
    d->fade.stop();
    setWindowOpacity(1.0);
    d->keepTimeFor(QCursor::pos());
}

void HRWidget::setVisible(bool visible)
{
    if (!visible || isVisible() || !isWindow()) {
        QWidget::setVisible(visible);
        return;
    }
    create();
    if (!d->detached) {
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
    if (!content || !d->view)
        return;
    cancelHiding();
    d->reference = qobject_cast<QWidget *>(reference);
    d->view->setPackageRoot(rootPath);
    const QPointer<HRXmlElement> previous = d->view->content();
    d->view->setContent(content);
    move(withinReach(pos));
    if (isVisible())
        reposition();
    d->setContextProperties(content, rootPath);
    // Not before the scene has let go of it, or its bindings would see null on the way.
    if (previous != content)
        d->view->discard(contentTreeOf(previous));
    // The host may delete the popup or its view when it is told of a missing file.
    const QPointer<HRWidget> guarded = this;
    d->view->loadQML(QFileInfo(d->view->uiRootFilePath()).absoluteFilePath());
    if (!guarded || !d->view)
        return;
    if (!isVisible())
        takeContentSize(*this, d->container);
    matchBackground(*this);
    if (isVisible()) {
        d->followContent();
        d->keepTimeFor(QCursor::pos());
    }
    showAnimated();
}

void HRWidget::reposition()
{
    const QRect frame = window()->frameGeometry();
    const QRect inside = movedInside(frame, d->screen());
    if (inside != frame)
        window()->move(inside.topLeft());
}

void HRWidget::hideAnimated()
{
    if (d->detached || !isVisible() || d->fade.isRunning())
        return;
    const int duration = d->setting(hideAnimationDurationKey, 300);
    if (duration <= 0) {
        hideAnimationFinished();
        return;
    }
    d->fade.fade(windowOpacity(), 0.0, duration, [this] { hideAnimationFinished(); });
    d->timer->stop();
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
    const int duration = d->setting(showAnimationDurationKey, 0);
    if (duration <= 0) {
        setWindowOpacity(1.0);
        show();
        return;
    }
    setWindowOpacity(fadeInStart);
    show();
    contentResized();
    d->fade.fade(fadeInStart, 1.0, duration, [this] { d->endFadeIn(); });
}

void HRWidget::setTimer()
{
    d->timer->stop();
    if (d->detached || (d->view && d->view->stayOpen()))
        return;
    const double delay = double(d->setting(hideDelayKey, 3000.0f));
    if (delay > 0)
        d->timer->start(int(qMin(delay, double(std::numeric_limits<int>::max()))));
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
    const QPoint pointer = QCursor::pos();
    if (!isSafe(pointer))
        setTimer();
    reposition();
    if (d->view)
        d->view->setDecodingPaused(false);
    if (!d->detached)
        d->watch.start(pointer);
    else if (!isWindow())
        d->embedding.renewLater();
}

void HRWidget::hideEvent(QHideEvent *)
{
    d->stopHiding();
    if (!d->view)
        return;
    d->view->releaseOverrideCursors();
    d->view->setDecodingPaused(true);
    if (d->detached)
        d->embedding.release();
}

} // namespace Hintreels
