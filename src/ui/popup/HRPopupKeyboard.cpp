// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPopupKeyboard_p.h"

#include "ui/popup/HRViewPrivate_p.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/sceneContext_p.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QQuickItem>

#include <utility>

namespace Hintreels {

namespace {

/// The item that would have the active focus if the window were the active one.
QQuickItem *focusedItem(const HRView &view)
{
    QQuickItem *item = view.contentItem();
    while (item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    return item;
}

/// From an item to those around it, as Qt Quick does it, until one of them takes the key.
void deliver(QKeyEvent &event, QPointer<QQuickItem> item)
{
    while (item) {
        event.accept();
        QCoreApplication::sendEvent(item, &event);
        item = event.isAccepted() || !item ? nullptr : item->parentItem();
    }
}

/// Qt tells only of the focus in the active window.
void announce(QObject *focused)
{
    if (!focused)
        return;
    QAccessibleEvent event(focused, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

/// An item that assistive technology does not know, such as a page, stands for all of the popup.
void announceItem(QQuickItem &item, HRView &view)
{
    const bool isKnown = QAccessible::queryAccessibleInterface(&item);
    QObject *popup = HRViewPrivate::of(view).popup;
    announce(isKnown ? &item : popup);
}

/// What the keys go to without a popup: the entry of an open menu, or what has the focus.
void announceHost()
{
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu || !menu->activeAction())
        return announce(QGuiApplication::focusObject());
    QAccessibleEvent event(menu, QAccessible::Focus);
    event.setChild(menu->actions().indexOf(menu->activeAction()));
    QAccessible::updateAccessibility(&event);
}

} // namespace

HRPopupKeyboard::~HRPopupKeyboard()
{
    leave();
}

bool HRPopupKeyboard::isIn(const HRWidget &popup) const
{
    return m_view && m_view == popup.view();
}

void HRPopupKeyboard::enter(const HRWidget &popup)
{
    leave();
    m_view = popup.view();
    followFocus();
}

void HRPopupKeyboard::leave()
{
    m_item = nullptr;
    const QPointer<HRView> view = std::exchange(m_view, nullptr);
    if (!view)
        return;
    setSceneFocus(*view, nullptr);
    announceHost();
}

void HRPopupKeyboard::type(const QKeyEvent &event)
{
    if (!m_view)
        return;
    QKeyEvent handed(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
        event.nativeVirtualKey(), event.nativeModifiers(), event.text(), event.isAutoRepeat(),
        ushort(event.count()));
    handed.setTimestamp(event.timestamp());
    {
        HRViewPrivate &scene = HRViewPrivate::of(*m_view);
        const HRSceneLoader::Work work(&scene.loader);
        const HRScriptWatch::Entry entry(scene.watch);
        deliver(handed, focusedItem(*m_view));
    }
    followFocus();
}

/// A key may have led to another item, or out of the popup.
void HRPopupKeyboard::followFocus()
{
    if (m_view && m_view->reserved())
        return leave(); // its window has the keyboard, or will have
    QQuickItem *item = m_view ? focusedItem(*m_view) : nullptr;
    if (!item || m_item == item)
        return;
    m_item = item;
    setSceneFocus(*m_view, item);
    if (m_item && m_view)
        announceItem(*m_item, *m_view);
}

} // namespace Hintreels
