// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace Hintreels {

/// Texts with an ampersand before the letter that a reader presses with Alt, no two the same.
///
/// The first letters of words are taken first, then any others that a keyboard of the text's script
/// has. A text without a free one, as in Chinese, gets a Latin letter in brackets behind it; it
/// stays as it is where all of those are taken, too. Ampersands of its own stay to be seen.
QStringList withMnemonics(const QStringList &texts);

} // namespace Hintreels
