// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manager/HRManager.h"
#include "ui/popup/HRPopupKeyboard_p.h"
#include "widgets/keyDeed_p.h"
#include "widgets/parts/HRPart_p.h"

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace Hintreels {

/// Lets a reader without a pointer have the hint of what has the focus, walk through it, and have
/// any hint gone.
///
/// The settings hintShortcutKey, hintOnFocusKey, dismissalByEscapeKey and dismissalByCtrlKey say by
/// what; keyDeed() says when. The focus of the host stays where it is. The host may delete anything
/// whenever it is called back. GUI thread only.
class HRKeyHints : public QObject
{
public:
    /// What of a widget has the focus; nothing where the host deletes the widget when asked.
    using PartOf = std::function<std::optional<HRPart>(QWidget *focused)>;

    /// Shows the hint of a part, whatever the pointer does; true where there is one.
    using Show = std::function<bool(const HRPart &part)>;

    HRKeyHints(HRManager *manager, PartOf partOf, Show show);

    /// Handles an event that somebody gets; true where nobody else may see it.
    bool filter(QObject &watched, QEvent &event);

protected:
    /// Shows the hint of what has had the focus for a while.
    void timerEvent(QTimerEvent *event) override;

private:
    HRWidget *popup() const;
    bool isHeld() const;
    HRKeyState state() const;
    HRKeyStroke strokeOf(const QKeyEvent &event) const;
    bool takeKeyOf(QObject &window, QKeyEvent &event);
    bool takeKey(QKeyEvent &event);
    bool isOfTakenStroke(const QKeyEvent &event);
    bool takePress(QKeyEvent &event);
    bool perform(HRKeyDeed deed, const QKeyEvent &event);
    void watchCtrl(const QKeyEvent &event);
    bool showFocused();
    bool show(const HRPart &part);
    bool goToPinned(const HRPart &part) const;
    bool leavePinnedWindow() const;
    std::optional<HRPart> focusedPart() const;
    void followFocus();

    QPointer<HRManager> m_manager;
    PartOf m_partOf;
    Show m_show;
    HRPopupKeyboard m_keyboard;
    std::optional<HRPart> m_focused; // when it was looked at last
    QBasicTimer m_rest;
    int m_taken = 0; // the key that is down, where its press was ours
    bool m_isRefused = false; // the press that is on its way to the host
    bool m_isCtrlAlone = false; // down, with nothing pressed since
    bool m_isAsked = false; // for the hint that is held, by the shortcut
};

} // namespace Hintreels
