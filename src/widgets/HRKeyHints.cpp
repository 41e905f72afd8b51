// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRKeyHints_p.h"

#include "context/setting_p.h"
#include "manager/HRManagerPrivate_p.h"
#include "ui/popup/HRPinnedWindow_p.h"
#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/popup/popupParts_p.h"
#include "widgets/parts/partPlace_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace Hintreels {

namespace {

// Who goes through a form with Tab rests less than that on each field.
constexpr int focusRest = 1000; // ms

/// The widget that the keys go to: in an open menu or list, else in the active window.
QWidget *focusedWidget()
{
    QWidget *menu = QApplication::activePopupWidget();
    QWidget *focused = menu ? menu->focusWidget() : QApplication::focusWidget();
    return focused ? focused : menu;
}

bool isSame(const HRPart &a, const HRPart &b)
{
    return a.widget == b.widget && a.area == b.area && a.action == b.action && a.key == b.key
        && a.names == b.names;
}

/// As Escape does it: what had the focus before a menu bar has it again.
void closeMenus()
{
    QWidget *menu = nullptr;
    while ((menu = QApplication::activePopupWidget()) && menu->close())
        continue;
    auto *bar = qobject_cast<QMenuBar *>(QApplication::focusWidget());
    if (!bar)
        return;
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &escape);
}

/// Qt takes no notice of a window that becomes active while a menu is open.
void goTo(QWidget &window)
{
    const QPointer<QWidget> guarded = &window;
    closeMenus();
    if (!guarded)
        return;
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.activateWindow();
}

bool isPress(const QEvent &event)
{
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::Wheel;
}

} // namespace

HRKeyHints::HRKeyHints(HRManager *manager, PartOf partOf, Show show)
    : m_manager(manager)
    , m_partOf(std::move(partOf))
    , m_show(std::move(show))
{
    if (qApp)
        connect(qApp, &QApplication::focusChanged, this, &HRKeyHints::followFocus);
}

bool HRKeyHints::filter(QObject &watched, QEvent &event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // Keys come to a window first, and from there to the widget that has the focus.
        return watched.isWindowType() && !(popup() && !isOfHost(*popup(), watched))
            && takeKeyOf(watched, static_cast<QKeyEvent &>(event));
    case QEvent::ToolTip:
        return m_isAsked && isHeld();
    case QEvent::Hide:
        if (&watched == popup()) {
            m_keyboard.leave();
            m_isAsked = false;
        }
        break;
    default:
        m_isCtrlAlone = m_isCtrlAlone && !isPress(event);
        break;
    }
    return false;
}

void HRKeyHints::timerEvent(QTimerEvent *)
{
    m_rest.stop();
    if (!m_manager || (popup() && popup()->isVisible()))
        return;
    const std::optional<HRPart> part = focusedPart();
    if (part && show(*part))
        m_isAsked = false;
}

HRWidget *HRKeyHints::popup() const
{
    return m_manager ? m_manager->widget() : nullptr;
}

bool HRKeyHints::isHeld() const
{
    return popup() && popup()->isVisible() && HRWidgetPrivate::of(*popup()).held;
}

HRKeyState HRKeyHints::state() const
{
    if (!popup() || !HRWidgetPrivate::of(*popup()).isPainted())
        return HRKeyState::nothing;
    if (m_keyboard.isIn(*popup()))
        return HRKeyState::inside;
    return isHeld() ? HRKeyState::shown : HRKeyState::hovered;
}

HRKeyStroke HRKeyHints::strokeOf(const QKeyEvent &event) const
{
    return keyStroke(event, setting(m_manager->context(), hintShortcutKey, QString()));
}

/// Nobody else may see the event of a window that is gone, nor may an interface that is.
bool HRKeyHints::takeKeyOf(QObject &window, QKeyEvent &event)
{
    const QPointer<QObject> target = &window;
    return takeKey(event) || !target || !m_manager;
}

bool HRKeyHints::takeKey(QKeyEvent &event)
{
    if (!m_manager)
        return false;
    watchCtrl(event);
    if (isOfTakenStroke(event)) {
        event.accept();
        return true;
    }
    if (event.type() != QEvent::KeyRelease)
        return takePress(event);
    const bool isScenes = keyDeed(state(), strokeOf(event)) == HRKeyDeed::scene;
    if (isScenes)
        m_keyboard.type(event);
    else
        followFocus();
    return isScenes;
}

/// A press that was ours has a release that nobody else may see, and repetitions between.
bool HRKeyHints::isOfTakenStroke(const QKeyEvent &event)
{
    const bool begins = event.type() == QEvent::ShortcutOverride && !event.isAutoRepeat();
    if (begins || event.key() != m_taken)
        return false;
    if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat())
        m_taken = 0;
    return true;
}

/// A key that might be a shortcut of the host is told as such before it is pressed: what is not
/// taken then may trigger the shortcut, and no press comes.
bool HRKeyHints::takePress(QKeyEvent &event)
{
    const bool isOverride = event.type() == QEvent::ShortcutOverride;
    const HRKeyStroke stroke = strokeOf(event);
    const HRKeyDeed deed = keyDeed(state(), stroke);
    const bool isOff = stroke == HRKeyStroke::escape && deed == HRKeyDeed::dismiss
        && !setting(m_manager->context(), dismissalByEscapeKey, false);
    if (isOff || (!isOverride && std::exchange(m_isRefused, false)))
        return false;
    // Assistive technology at work has presses come late: Shift, behind the news of F1.
    if (event.key() == m_taken)
        m_taken = 0;
    if (deed == HRKeyDeed::scene && isOverride) {
        event.accept();
        return true;
    }
    const bool isTaken = perform(deed, event);
    m_isRefused = isOverride && deed == HRKeyDeed::show && !isTaken;
    if (isTaken && deed != HRKeyDeed::scene)
        m_taken = event.key();
    event.setAccepted(event.isAccepted() || isTaken);
    return isTaken;
}

bool HRKeyHints::perform(HRKeyDeed deed, const QKeyEvent &event)
{
    switch (deed) {
    case HRKeyDeed::host:
        return false;
    case HRKeyDeed::show:
        return showFocused();
    case HRKeyDeed::enter:
        m_keyboard.enter(*popup());
        return true;
    case HRKeyDeed::leave:
        m_keyboard.leave();
        return true;
    case HRKeyDeed::dismiss:
        popup()->hide();
        return true;
    case HRKeyDeed::scene:
        m_keyboard.type(event);
        return true;
    }
    return false;
}

/// Not one of the host's combinations, nor of the pointer's.
void HRKeyHints::watchCtrl(const QKeyEvent &event)
{
    const bool isCtrl = event.key() == Qt::Key_Control;
    if (event.type() == QEvent::KeyPress)
        m_isCtrlAlone = isCtrl && !(event.modifiers() & ~Qt::ControlModifier);
    if (event.type() != QEvent::KeyRelease || !std::exchange(m_isCtrlAlone, false) || !isCtrl)
        return;
    if (state() != HRKeyState::nothing && setting(m_manager->context(), dismissalByCtrlKey, false))
        popup()->hide();
}

/// A hint that the pointer has brought makes room, also where it is the same: it may stand
/// elsewhere.
bool HRKeyHints::showFocused()
{
    if (leavePinnedWindow())
        return true;
    const std::optional<HRPart> part = focusedPart();
    if (!part || !m_manager)
        return false;
    if (goToPinned(*part))
        return true;
    if (popup())
        popup()->hide();
    m_isAsked = show(*part);
    return m_isAsked;
}

bool HRKeyHints::show(const HRPart &part)
{
    if (!m_show(part))
        return false;
    m_focused = part;
    HRWidgetPrivate::of(*popup()).spoken.announce();
    return true;
}

bool HRKeyHints::goToPinned(const HRPart &part) const
{
    const std::shared_ptr<HRManagerPrivate> manager = HRManagerPrivate::of(*m_manager);
    const QStringList keys = keysOf(part);
    return std::any_of(keys.begin(), keys.end(), [&](const QString &key) {
        HRWidget *pinned = manager->reservedPopups.popup(key);
        const bool isThere = pinned && pinned->isVisible();
        if (isThere)
            goTo(*pinned->window());
        return isThere;
    });
}

bool HRKeyHints::leavePinnedWindow() const
{
    const auto *pinned = dynamic_cast<const HRPinnedWindow *>(QApplication::activeWindow());
    return pinned && pinned->giveFocusBack();
}

std::optional<HRPart> HRKeyHints::focusedPart() const
{
    QWidget *focused = focusedWidget();
    return focused ? m_partOf(focused) : std::nullopt;
}

/// What a key has shown goes when another part gets the focus; the popup itself is none.
void HRKeyHints::followFocus()
{
    if (popup() && QApplication::activeWindow() == popup())
        return;
    const bool isAwaited = m_manager && setting(m_manager->context(), hintOnFocusKey, false);
    if (!isAwaited && !isHeld())
        return;
    std::optional<HRPart> part = focusedPart();
    if (part && m_focused && isSame(*part, *m_focused))
        return;
    m_focused = std::move(part);
    if (isHeld())
        popup()->hide();
    if (isAwaited && m_focused)
        m_rest.start(focusRest, this);
    else
        m_rest.stop();
}

} // namespace Hintreels
