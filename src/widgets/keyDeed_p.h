// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QString;
QT_END_NAMESPACE

namespace Hintreels {

/// What of the popup the keyboard knows.
enum class HRKeyState
{
    nothing, ///< nobody sees a hint
    hovered, ///< a hint is there because the pointer was
    shown, ///< a hint is there because the keyboard asked for it
    inside, ///< and the keyboard is in it
};

/// What a key can mean.
enum class HRKeyStroke
{
    hint, ///< the shortcut that shows hints
    escape,
    modifier, ///< a modifier alone
    command, ///< a key with a modifier, which the host knows
    plain, ///< anything else, and copying
};

/// What happens for a key.
enum class HRKeyDeed
{
    host, ///< the host's own affair
    show, ///< show the hint of what has the focus; the host's affair where there is none
    enter, ///< take the keyboard into the hint
    leave, ///< take it back
    dismiss, ///< take the hint away
    scene, ///< the affair of what the hint shows
};

/// What a key that is pressed or released means.
/// @param shortcut as QKeySequence reads it; empty for none
HRKeyStroke keyStroke(const QKeyEvent &event, const QString &shortcut);

/// The whole of the rules.
HRKeyDeed keyDeed(HRKeyState state, HRKeyStroke stroke);

} // namespace Hintreels
