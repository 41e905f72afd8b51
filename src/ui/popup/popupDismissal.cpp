// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupDismissal_p.h"

#include "ui/popup/HRWidget.h"
#include "ui/popup/popupParts_p.h"

#include <QKeyEvent>

namespace Hintreels {

namespace {

/// The lists of combo boxes are such windows, too.
bool isMenu(const QObject &object)
{
    const auto *widget = qobject_cast<const QWidget *>(&object);
    return widget && widget->windowType() == Qt::Popup;
}

/// Windows within windows, and those that a dialog belongs to, take the reference along.
bool isWindowAround(const QWidget *reference, const QObject &watched)
{
    for (const QWidget *widget = reference; widget; widget = widget->parentWidget()) {
        if (widget == &watched)
            return widget->isWindow() || widget->windowType() == Qt::SubWindow;
    }
    return false;
}

bool isInOpenMenu(const QWidget *reference)
{
    const QWidget *window = reference ? reference->window() : nullptr;
    return window && isMenu(*window) && window->isVisible();
}

} // namespace

bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
        return true;
    default:
        return false;
    }
}

bool takesAway(const HRWidget &popup, const QObject &watched, const QEvent &event)
{
    const QWidget *reference = popup.referenceWidget();
    switch (event.type()) {
    case QEvent::ShortcutOverride: // nobody gets the press of a key that is a shortcut
    case QEvent::KeyPress:
        return !isModifier(static_cast<const QKeyEvent &>(event).key()) && isOfHost(popup, watched);
    case QEvent::Wheel:
    case QEvent::DragEnter:
        return isOfHost(popup, watched);
    case QEvent::Move:
        return isWindowAround(reference, watched);
    case QEvent::Show:
        return isMenu(watched) && isOfHost(popup, watched);
    case QEvent::Hide:
        return &watched == reference
            || (isMenu(watched) && isOfHost(popup, watched) && !isInOpenMenu(reference));
    default:
        return false;
    }
}

} // namespace Hintreels
