// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRSpokenHint_p.h"

#include "context/setting_p.h"
#include "manager/HRManager.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/popupAccessible_p.h"
#include "ui/reader/hintReading_p.h"
#include "ui/reader/textCut_p.h"

namespace Hintreels {

namespace {

constexpr int longest = 1'000; // UTF-16 units, as much as the standard UI shows of a summary

/// Translated and interpolated as the standard UI does it. The host may delete the view.
QString said(const QPointer<HRView> &view, const QString &text)
{
    if (!view || text.isEmpty())
        return text;
    const QString translated = view->translate(text, QStringLiteral("Content"));
    const QString shown = translated.isEmpty() ? text : translated;
    return cutText(view ? view->interpolate(shown) : shown, longest);
}

HRHintGist gistOf(const QPointer<HRView> &view)
{
    if (!view || !view->content())
        return {};
    const HRHintGist gist = readGist(*view->content());
    const QString title = said(view, gist.title);
    return { title, said(view, gist.summary) };
}

QString inOneLine(const HRHintGist &gist)
{
    const bool isBoth = !gist.title.isEmpty() && !gist.summary.isEmpty();
    return gist.title + (isBoth ? QStringLiteral(": ") : QString()) + gist.summary;
}

} // namespace

QString shownTitle(const QPointer<HRView> &view)
{
    return gistOf(view).title;
}

HRSpokenHint::HRSpokenHint(HRWidget &popup)
    : m_popup(popup)
{
    installPopupAccessible();
    QAccessible::installActivationObserver(this);
}

HRSpokenHint::~HRSpokenHint()
{
    QAccessible::removeActivationObserver(this);
}

void HRSpokenHint::tell()
{
    if (!isWanted())
        return;
    const QPointer<HRWidget> popup = &m_popup;
    const HRHintGist gist = gistOf(popup->view());
    if (!popup || !popup->isVisible())
        return;
    m_popup.setAccessibleName(gist.title);
    m_popup.setAccessibleDescription(gist.summary);
    m_description.describe(m_popup.referenceWidget(), inOneLine(gist));
    m_isAnnounced = false;
    if (setting(settings(), announceHoverKey, false))
        announce();
}

// Qt leaves the news that a tool tip has appeared to whoever shows it, and passes no alert on to
// the bus. Screen readers speak the name and the description of a tool tip that appears.
void HRSpokenHint::announce()
{
    if (m_isAnnounced || !isWanted())
        return;
    m_isAnnounced = true;
    QAccessibleEvent appeared(&m_popup, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appeared);
}

void HRSpokenHint::leave()
{
    m_description.restore();
    m_isAnnounced = true;
}

void HRSpokenHint::accessibilityActiveChanged(bool active)
{
    if (active && m_popup.isVisible())
        tell();
}

const HRContext *HRSpokenHint::settings() const
{
    return m_popup.manager() ? &m_popup.manager()->context() : nullptr;
}

bool HRSpokenHint::isWanted() const
{
    return QAccessible::isActive() && setting(settings(), spokenHintsKey, false);
}

} // namespace Hintreels
