// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/keyDeed_p.h"

#include "ui/popup/popupDismissal_p.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace Hintreels {

namespace {

/// Keys of the number block count as the others.
int strokeOf(const QKeyEvent &event)
{
    constexpr auto modifiers
        = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.key() | int(event.modifiers() & modifiers);
}

bool isCommand(const QKeyEvent &event)
{
    constexpr auto modifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (event.modifiers() & modifiers) && !event.matches(QKeySequence::Copy);
}

} // namespace

HRKeyStroke keyStroke(const QKeyEvent &event, const QString &shortcut)
{
    if (isModifier(event.key()))
        return HRKeyStroke::modifier;
    if (!shortcut.isEmpty() && QKeySequence(shortcut) == QKeySequence(strokeOf(event)))
        return HRKeyStroke::hint;
    if (strokeOf(event) == Qt::Key_Escape)
        return HRKeyStroke::escape;
    return isCommand(event) ? HRKeyStroke::command : HRKeyStroke::plain;
}

HRKeyDeed keyDeed(HRKeyState state, HRKeyStroke stroke)
{
    const bool isInside = state == HRKeyState::inside;
    switch (stroke) {
    case HRKeyStroke::hint:
        if (isInside)
            return HRKeyDeed::leave;
        return state == HRKeyState::shown ? HRKeyDeed::enter : HRKeyDeed::show;
    case HRKeyStroke::escape:
        if (isInside)
            return HRKeyDeed::leave;
        return state == HRKeyState::nothing ? HRKeyDeed::host : HRKeyDeed::dismiss;
    case HRKeyStroke::plain:
        return isInside ? HRKeyDeed::scene : HRKeyDeed::host;
    case HRKeyStroke::command:
    case HRKeyStroke::modifier:
        break;
    }
    return HRKeyDeed::host;
}

} // namespace Hintreels
