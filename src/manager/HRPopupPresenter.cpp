// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRPopupPresenter_p.h"

#include "context/setting_p.h"
#include "interface/HRInterface.h"
#include "ui/popup/HRViewPrivate_p.h"

#include <limits>
#include <utility>

namespace Hintreels {

namespace {

// Returns what the view has shown. An index that gives an entry once more keeps it, and with it the
// tree that it had handed over.
HRContent putInto(HRView &view, HRContent content)
{
    const bool isGivenAgain = view.content() == content.entry();
    return HRViewPrivate::of(view).exchangeContent(
        isGivenAgain ? HRContent::of(content.release()) : std::move(content));
}

// Any numbers may be set and asked for.
int coordinateSum(qint64 a, qint64 b)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound<qint64>(Limits::min(), a + b, Limits::max()));
}

} // namespace

HRXmlElement *shownContent(const HRWidget *popup, const QString &key)
{
    HRXmlElement *content = popup && popup->view() ? popup->view()->content() : nullptr;
    const bool isWanted = content && content->hasAttribute(QStringLiteral("key"))
        && content->attribute(QStringLiteral("key")) == key;
    return isWanted ? content : nullptr;
}

HRPopupPresenter::HRPopupPresenter(
    const HRContext &context, HRInterface *interface, const HRContentLookup &lookup)
    : m_context(context)
    , m_interface(interface)
    , m_lookup(lookup)
{
}

bool HRPopupPresenter::show(const HRHover &hover)
{
    if (keepsShowing(hover.key))
        return true;
    std::optional<HRFoundContent> found = m_lookup.find(hover.key);
    if (!found && keepsShowing(m_lookup.fallbackKey()))
        return true;
    if (!found)
        found = m_lookup.findFallback();
    if (!found || !found->hasRoot)
        return keepOrHide(hover);
    if (!canPresent())
        return false;
    if (isPopupVisible() && m_popup->view()->content() == found->content.entry()) {
        putInto(*m_popup->view(), std::move(found->content));
        return true;
    }
    return present(hover, std::move(*found)) || (canPresent() && isPopupVisible());
}

QPoint HRPopupPresenter::position(const QPoint &globalPos) const
{
    const QSize offset = setting(m_context, tooltipOffsetKey, QSize(35, 30));
    return { coordinateSum(globalPos.x(), offset.width()),
        coordinateSum(globalPos.y(), offset.height()) };
}

// A popup that is fading out stays after all when its widget is hovered again.
bool HRPopupPresenter::keepsShowing(const QString &key)
{
    if (!isPopupVisible() || !shownContent(m_popup, key))
        return false;
    m_popup->cancelHiding();
    return true;
}

// On the way from a widget to its popup the pointer crosses others: while it is near the popup,
// those without a tooltip of their own leave it alone.
bool HRPopupPresenter::keepOrHide(const HRHover &hover)
{
    if (!isPopupVisible())
        return false;
    const QWidget *target = qobject_cast<QWidget *>(hover.object);
    const bool hasOwnToolTip = target && !target->toolTip().isEmpty();
    if (m_popup->isSafe(hover.globalPos) && !hasOwnToolTip)
        return true;
    m_popup->hideAnimated();
    return false;
}

bool HRPopupPresenter::canPresent() const
{
    return m_interface && m_popup && m_popup->view();
}

bool HRPopupPresenter::present(const HRHover &hover, HRFoundContent found)
{
    const QPointer<HRWidget> popup = m_popup;
    const QPointer<HRXmlElement> element = found.content.entry();
    // Before the host is asked for the shortcut: an offset that it sets then is for the next hint.
    const QPoint corner = position(hover.globalPos);
    // Freed only at the end, or the scene's bindings would see null on the way.
    HRContent previous = putInto(*popup->view(), std::move(found.content));
    nameShortcut(hover, element);
    const bool isWanted
        = canPresent() && popup == m_popup && element && popup->view()->content() == element;
    if (isWanted) {
        popup->showWithContent(hover.object, corner, element, found.packageDirectory());
        // Without its view, Qt's container of it crashes when raised.
        if (popup && popup->view())
            popup->raise();
    }
    if (popup && popup->view())
        HRViewPrivate::of(*popup->view()).freeContent(std::move(previous));
    return isWanted && popup;
}

// The host names the shortcut of what the pointer rests on, also where the content shown is that of
// the fallback key.
void HRPopupPresenter::nameShortcut(const HRHover &hover, HRXmlElement *element)
{
    const QPointer<HRXmlElement> guarded = element;
    const QString shortcut = m_interface->shortCutForObject(
        hover.key, hover.object, element->attribute(QStringLiteral("shortcut")));
    if (guarded && !shortcut.isEmpty())
        guarded->setAttribute(QStringLiteral("shortcut"), shortcut);
}

} // namespace Hintreels
