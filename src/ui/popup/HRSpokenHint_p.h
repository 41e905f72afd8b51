// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/popup/HRHostDescription_p.h"

#include <QAccessible>
#include <QPointer>

class HRContext;

namespace Hintreels {

class HRView;
class HRWidget;

/// The title of what a view shows, translated and interpolated; empty without one.
///
/// The host, which is asked for translations, may delete the view.
QString shownTitle(const QPointer<HRView> &view);

/// Tells assistive technology of the hint that a popup shows, where the settings say so.
///
/// Without assistive technology at work it does nothing, and it never moves the focus. GUI thread
/// only.
class HRSpokenHint : private QAccessible::ActivationObserver
{
public:
    /// @param popup what this is a part of
    explicit HRSpokenHint(HRWidget &popup);
    ~HRSpokenHint() override;

    /// Names the popup after the hint that it shows now, and describes by it the widget that the
    /// hint belongs to. Announces it where each hint is to be.
    ///
    /// The host, which is asked for translations, may delete the popup.
    void tell();

    /// Has a screen reader say the hint, once for each time that it is told.
    void announce();

    /// The hint does not belong to a widget any more.
    void leave();

private:
    Q_DISABLE_COPY(HRSpokenHint)

    void accessibilityActiveChanged(bool active) override;
    const HRContext *settings() const;
    bool isWanted() const;

    HRWidget &m_popup;
    HRHostDescription m_description;
    bool m_isAnnounced = true;
};

} // namespace Hintreels
