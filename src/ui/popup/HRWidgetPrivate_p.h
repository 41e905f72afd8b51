// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manager/HRManager.h"
#include "ui/popup/HRBesidePlacement_p.h"
#include "ui/popup/HRHideTimer_p.h"
#include "ui/popup/HRHostColors_p.h"
#include "ui/popup/HRPointerWatch_p.h"
#include "ui/popup/HRPopupFade_p.h"
#include "ui/popup/HRPopupInput_p.h"
#include "ui/popup/HRReaderMenu_p.h"
#include "ui/popup/HRSmallStart_p.h"
#include "ui/popup/HRSpokenHint_p.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRViewEmbedding_p.h"
#include "ui/popup/HRWidget.h"

#include <QPointer>
#include <QRect>

#include <optional>

namespace Hintreels {

/// What a popup is made of, and how its pieces play together.
struct HRWidgetPrivate
{
    HRWidgetPrivate(HRWidget *widget, HRManager *hrManager, QWidget *referenceWidget);

    static HRWidgetPrivate &of(HRWidget &widget) { return *widget.d; }

    /// Null without manager, for the defaults.
    const HRContext *settings() const { return manager ? &manager->context() : nullptr; }

    /// See HRWidget::showWithContent().
    /// @param part of the reference that the hint belongs to, in global coordinates; null for all
    /// @return false where the content has no user interface, though the settings require one
    bool showWithContent(QObject *object, const QRect &part, const QPoint &pos,
        HRXmlElement *content, const QString &rootPath);

    /// Lets an event that somebody gets do to the visible popup what the settings say. The host may
    /// delete the popup then.
    /// @return true where nobody else may see the event
    bool takeEvent(QObject &watched, QEvent &event);

    /// Keeps the hint on show wherever the pointer is: its reader has asked for it without one.
    void hold()
    {
        held = true;
        hideTimer.stop();
    }

    /// Whether the reader sees the hint, and it is not about to go.
    bool isPainted() const;

    bool appear(bool isLoaded);
    QRect screen() const;
    bool stays() const;
    double hideDelay() const;
    bool standsBeside() const;
    QSize pointerOffset() const;
    QPoint placeFor(const QRect &frame);
    void takePlace(const QPoint &pos);
    void makeRoom();

    void takeReference(QObject *object, const QRect &part);
    bool isSafe(const HRPointerWatch::Position &pointer) const;

    void leaveOldPlace();
    void appearAnewLater();
    void followReferenceWindow();
    void keepTime();
    void followStayOpen();
    void endFadeIn();
    void stopHiding();
    void becomeOrdinaryWindow();
    void keepInside();
    void paintAfterContent();
    void paintHeldBack();
    void takeFrame();
    void followContent();
    void takeInContent();
    void followScene();
    void dismiss();
    void dismissNatively();
    void beginToShow();
    void takeColors();
    void giveWayTo(QWidget &toolTip);
    void awaitDecisions();
    void takeDecision();
    void beginSmall();
    void grow();
    void followMenu();
    QString shownKey() const;
    void countSeen();
    QString word(const QString &text) const;

    HRWidget *q;
    QPointer<HRManager> manager;
    QPointer<HRView> view;
    QPointer<QWidget> container;
    QPointer<QWidget> reference;
    QMetaObject::Connection referenceGone;
    QPoint hovered; // where the pointer rested that the hint came for, global
    QRect area; // of the part that the hint belongs to, global; null for the whole reference
    std::optional<HRBesidePlacement> beside; // of the hint on show, where it asks for that
    HRSpokenHint spoken;
    HRPopupInput input;
    HRHostColors hostColors;
    HRPopupFade fade;
    QTimer *timer;
    HRQTimerClock clock;
    HRHideTimer hideTimer;
    HRPointerWatch watch;
    HRViewEmbedding embedding;
    HRSmallStart smallStart;
    HRReaderMenu readerMenu;
    QMetaObject::Connection readerDecided;
    QMetaObject::Connection goingWithWindow;
    bool reserved = false; // by its reader, and a window of its own ever since
    bool placedByReader = false;
    bool held = false; // until it hides, or shows another hint
    bool hasFrame = false; // of the content, since it has appeared
};

} // namespace Hintreels
