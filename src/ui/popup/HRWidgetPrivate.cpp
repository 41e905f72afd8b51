// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidgetPrivate_p.h"

#include "context/setting_p.h"
#include "reader/readerSettings_p.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/hostToolTip_p.h"
#include "ui/popup/popupDismissal_p.h"
#include "ui/popup/popupFit_p.h"
#include "ui/popup/popupParts_p.h"
#include "ui/popup/popupScreen_p.h"
#include "ui/popup/sceneContext_p.h"
#include "ui/popup/wayland_p.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QQuickItem>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace Hintreels {

HRWidgetPrivate::HRWidgetPrivate(HRWidget *widget, HRManager *hrManager, QWidget *referenceWidget)
    : q(widget)
    , manager(hrManager)
    , reference(referenceWidget)
    , spoken(*widget)
    , input(*widget)
    , fade(widget)
    , timer(new QTimer(widget))
    , clock(timer)
    , hideTimer(clock, [this] { return hideDelay(); })
    , watch([this](const auto &position) { hideTimer.follow(isSafe(position)); })
    , smallStart([this] { return isSafe(watch.position()); }, [this] { grow(); })
    , readerMenu(
          *widget, [this] { return readerSettings(settings()); },
          [this](const QString &text) { return word(text); }, [this] { followMenu(); })
{
}

bool HRWidgetPrivate::showWithContent(QObject *object, const QRect &part, const QPoint &pos,
    HRXmlElement *content, const QString &rootPath)
{
    if (!content || !view)
        return true;
    q->cancelHiding();
    leaveOldPlace();
    takeReference(object, part);
    view->setPackageRoot(rootPath);
    HRContent previous;
    if (content != view->content())
        previous = HRViewPrivate::of(*view).exchangeContent(HRContent::of(content));
    takePlace(pos);
    setSceneContext(*view, content, rootPath, manager);
    // Not before the scene has let go of it, or its bindings would see null on the way.
    HRViewPrivate::of(*view).freeContent(std::move(previous));
    // The host may delete the popup or its view when it is told of a missing file.
    const QPointer<HRWidget> guarded = q;
    takeColors();
    if (!guarded || !view)
        return true;
    const bool isLoaded = HRViewPrivate::of(*view).ui.load();
    return !guarded || !view || appear(isLoaded);
}

/// @return false where there is nothing to show
bool HRWidgetPrivate::appear(bool isLoaded)
{
    if (!isLoaded) {
        q->hide();
        return false;
    }
    const QPointer<HRWidget> guarded = q;
    takeInContent();
    beginSmall();
    q->showAnimated();
    if (guarded)
        spoken.tell();
    return true;
}

bool HRWidgetPrivate::takeEvent(QObject &watched, QEvent &event)
{
    // The host may delete the popup when its scene hears of the pointer.
    const QPointer<HRWidget> guarded = q;
    const QWidget *menu = QApplication::activePopupWidget();
    const bool isMenuOpen = menu && isOfHost(*q, *menu);
    if (isMenuOpen && setting(settings(), popupPressesKey, false) && input.take(watched, event))
        return true;
    if (!guarded)
        return false;
    if (event.type() == QEvent::KeyPress)
        smallStart.followKey(static_cast<const QKeyEvent &>(event));
    if (event.type() == QEvent::Show && isHostToolTip(watched))
        giveWayTo(static_cast<QWidget &>(watched));
    else if (takesAway(*q, watched, event))
        dismissNatively();
    return false;
}

bool HRWidgetPrivate::isPainted() const
{
    return q->isVisible() && hasFrame && !fade.isFadingOut();
}

bool HRWidgetPrivate::stays() const
{
    return reserved || (view && view->stayOpen());
}

void HRWidgetPrivate::takeReference(QObject *object, const QRect &part)
{
    QObject::disconnect(referenceGone);
    reference = qobject_cast<QWidget *>(object);
    area = part;
    held = false;
    if (reference)
        referenceGone
            = QObject::connect(reference, &QObject::destroyed, q, [this] { dismissNatively(); });
}

/// On Wayland a popup stays where it has appeared: it has to appear anew for another place.
void HRWidgetPrivate::leaveOldPlace()
{
    if (isOnWayland() && !reserved)
        q->hide();
}

/// A move on Wayland, once the scene has done what it is at.
void HRWidgetPrivate::appearAnewLater()
{
    const QWindow *window = q->windowHandle();
    if (!isOnWayland() || reserved || !window || !window->isVisible())
        return;
    const auto appearAnew = [this] {
        if (!q->isVisible() || reserved)
            return;
        q->hide();
        q->show();
    };
    QMetaObject::invokeMethod(q, appearAnew, Qt::QueuedConnection);
}

/// On Wayland a popup has its position only beside a window that it belongs to, and has to go
/// before that: compositors end an application whose popup outlives its window.
void HRWidgetPrivate::followReferenceWindow()
{
    QObject::disconnect(goingWithWindow);
    QWindow *window = reference || isOnWayland() ? windowToStandBeside(reference) : nullptr;
    if (QWindow *popup = q->windowHandle())
        popup->setTransientParent(window);
    if (window && isOnWayland())
        goingWithWindow = QObject::connect(window, &QWindow::visibleChanged, q, &QWidget::hide);
}

/// A pointer that is nowhere has left the safe area, too.
bool HRWidgetPrivate::isSafe(const HRPointerWatch::Position &pointer) const
{
    return held || (pointer && q->isSafe(*pointer));
}

/// Decides anew whether the time until hiding runs.
void HRWidgetPrivate::keepTime()
{
    hideTimer.decide(isSafe(watch.position()));
}

/// The time may run already when the reader asks the popup to stay: the pointer is quick to leave.
void HRWidgetPrivate::followStayOpen()
{
    if (q->isVisible() && view->stayOpen() == hideTimer.isRunning())
        keepTime();
}

/// A time-out during the fade-in hid nothing: it counts from here.
void HRWidgetPrivate::endFadeIn()
{
    if (!hideTimer.isRunning())
        keepTime();
}

void HRWidgetPrivate::stopHiding()
{
    fade.stop();
    hideTimer.stop();
    watch.stop();
    smallStart.stop();
    readerMenu.close();
    QObject::disconnect(readerDecided);
}

/// From now on the popup is used like any window, with the keyboard too, and hides for nothing.
void HRWidgetPrivate::becomeOrdinaryWindow()
{
    reserved = true;
    smallStart.end();
    stopHiding();
    spoken.leave();
    QObject::disconnect(goingWithWindow);
    q->setWindowOpacity(1.0);
    q->setAttribute(Qt::WA_ShowWithoutActivating, false);
    view->setFlag(Qt::WindowDoesNotAcceptFocus, false);
    embedding.release();
}

/// A reserved popup too, but only once its window has got its frame: then its reader moves it.
void HRWidgetPrivate::keepInside()
{
    if (!q->isVisible() || placedByReader)
        return;
    q->reposition();
    placedByReader = reserved;
}

/// Holds the popup's own painting back until the content's next frame, which hides all of it but a
/// seam and would have to wait for it. On Wayland the content's frame waits for the popup's.
void HRWidgetPrivate::paintAfterContent()
{
    q->setUpdatesEnabled(isOnWayland() || !view || !view->rootObject());
}

/// Paints at once: an update would be lost where Qt has been asked for one while it was held back.
void HRWidgetPrivate::paintHeldBack()
{
    if (q->updatesEnabled())
        return;
    q->setUpdatesEnabled(true);
    q->repaint();
}

void HRWidgetPrivate::takeFrame()
{
    hasFrame = q->isVisible();
    paintHeldBack();
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

/// Fits the popup to what it shows now: before it appears, or while it is seen; then its time until
/// hiding starts anew, too.
void HRWidgetPrivate::takeInContent()
{
    if (!q->isVisible())
        takeContentSize(*q, container);
    matchBackground(*q);
    if (!q->isVisible())
        return;
    followContent();
    if (standsBeside())
        q->reposition();
    keepTime();
}

/// A scene that had to wait for the event loop comes when the popup shows already.
void HRWidgetPrivate::followScene()
{
    if (!q->isVisible())
        return;
    if (HRViewPrivate::of(*view).ui.isBroken())
        q->hide();
    if (!view->rootObject())
        return;
    matchBackground(*q);
    followContent();
}

/// A reserved popup goes with the window that it is in.
void HRWidgetPrivate::dismiss()
{
    if (reserved)
        q->window()->close();
    else
        q->hide();
}

/// A popup that its UI keeps open is there to be followed while the host is used.
void HRWidgetPrivate::dismissNatively()
{
    if (!stays() && setting(settings(), nativeDismissalKey, false))
        q->hide();
}

void HRWidgetPrivate::beginToShow()
{
    watch.start();
    awaitDecisions();
    if (setting(settings(), hostToolTipsKey, false))
        hideHostToolTips();
}

/// A host whose window is painted may do anything meanwhile.
void HRWidgetPrivate::takeColors()
{
    const QPointer<HRView> scene = view;
    QVariantMap colors;
    if (reference && setting(settings(), hostColorsKey, false))
        colors = hostColors.colorsFor(*reference);
    if (scene)
        setSceneColors(*scene, colors);
}

/// Only one of the two is to be seen: the popup for its own part, the tool tip for any other.
void HRWidgetPrivate::giveWayTo(QWidget &toolTip)
{
    if (!setting(settings(), hostToolTipsKey, false))
        return;
    const QRect part = area.isEmpty() ? visibleArea(reference) : area;
    const HRPointerWatch::Position pointer = watch.position();
    if (pointer && isToolTipOf(part, toolTip.geometry(), areaOnScreen(*q), *pointer))
        keepHidden(toolTip);
    else if (!stays())
        q->hide();
}

} // namespace Hintreels
