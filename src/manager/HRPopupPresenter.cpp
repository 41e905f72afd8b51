// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRPopupPresenter_p.h"

#include "context/setting_p.h"
#include "interface/HRInterface.h"
#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/HRWidgetPrivate_p.h"

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
    constexpr qint64 least = std::numeric_limits<int>::min();
    constexpr qint64 most = std::numeric_limits<int>::max();
    return int(qBound(least, a + b, most));
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
    for (const QString &key : hover.keys) {
        if (keepsShowing(key, hover.accepts))
            return true;
        if (std::optional<HRFoundContent> found = find(hover, key))
            return take(hover, key, std::move(*found));
    }
    return showFallback(hover);
}

QPoint HRPopupPresenter::position(const QPoint &globalPos) const
{
    const QSize offset = setting(m_context, tooltipOffsetKey, QSize(35, 30));
    return { coordinateSum(globalPos.x(), offset.width()),
        coordinateSum(globalPos.y(), offset.height()) };
}

bool HRPopupPresenter::showFallback(const HRHover &hover)
{
    if (keepsShowing(m_lookup.fallbackKey()))
        return true;
    std::optional<HRFoundContent> found = m_lookup.findFallback();
    return found ? take(hover, hover.keys.value(0), std::move(*found)) : keepOrHide(hover);
}

bool HRPopupPresenter::take(const HRHover &hover, const QString &key, HRFoundContent found)
{
    if (!found.hasRoot)
        return keepOrHide(hover);
    if (!canPresent())
        return false;
    if (isPopupVisible() && popup()->view()->content() == found.content.entry()) {
        putInto(*popup()->view(), std::move(found.content));
        return true;
    }
    return present(hover, key, std::move(found)) || (canPresent() && isPopupVisible());
}

// A popup that is fading out stays after all when its widget is hovered again.
bool HRPopupPresenter::keepsShowing(const QString &key, const HRHover::Accepts &accepts)
{
    const HRXmlElement *shown = isPopupVisible() ? shownContent(popup(), key) : nullptr;
    if (!shown || (accepts && !accepts(key, *shown)))
        return false;
    popup()->cancelHiding();
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
    if (popup()->isSafe(hover.globalPos) && !hasOwnToolTip)
        return true;
    popup()->hideAnimated();
    return false;
}

std::optional<HRFoundContent> HRPopupPresenter::find(const HRHover &hover, const QString &key) const
{
    std::optional<HRFoundContent> found = m_lookup.find(key);
    if (!found || !hover.accepts || hover.accepts(key, *found->content.entry()))
        return found;
    // An index may have given what the popup shows once more: that stays.
    if (popup() && popup()->view() && popup()->view()->content() == found->content.entry())
        found->content.release();
    return std::nullopt;
}

bool HRPopupPresenter::canPresent() const
{
    return m_interface && popup() && popup()->view();
}

bool HRPopupPresenter::present(const HRHover &hover, const QString &key, HRFoundContent found)
{
    const QPointer<HRWidget> target = popup();
    const QPointer<HRXmlElement> element = found.content.entry();
    if (hover.completes)
        hover.completes(key, *element);
    // Before the host is asked for the shortcut: an offset that it sets then is for the next hint.
    const QPoint corner = position(hover.globalPos);
    // Freed only at the end, or the scene's bindings would see null on the way.
    HRContent previous = putInto(*target->view(), std::move(found.content));
    nameShortcut(hover, key, element);
    const bool isWanted
        = canPresent() && target == popup() && element && target->view()->content() == element;
    const bool mayShow = isWanted
        && HRWidgetPrivate::of(*target).showWithContent(
            hover.object, hover.area, corner, element, found.packageDirectory());
    // Without its view, Qt's container of it crashes when raised.
    if (mayShow && target && target->view())
        target->raise();
    if (target && target->view())
        HRViewPrivate::of(*target->view()).freeContent(std::move(previous));
    return mayShow && target;
}

// The host names the shortcut of what the pointer rests on, also where the content shown is that of
// the fallback key.
void HRPopupPresenter::nameShortcut(const HRHover &hover, const QString &key, HRXmlElement *element)
{
    const QPointer<HRXmlElement> guarded = element;
    const QString shortcut = m_interface->shortCutForObject(
        key, hover.object, element->attribute(QStringLiteral("shortcut")));
    if (guarded && !shortcut.isEmpty())
        guarded->setAttribute(QStringLiteral("shortcut"), shortcut);
}

} // namespace Hintreels
