// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// What a file is to be used for.
enum class HRFileUse
{
    any, ///< not known yet
    picture,
    clip,
    text, ///< captions
};

/// Whether a file begins as one of the few formats that strangers may use: PNG and JPEG pictures,
/// MP4, WebM and GIF clips. The bytes count, not the name; captions and translations go by theirs.
bool isFormatForStrangers(const QString &path, HRFileUse use);

} // namespace Hintreels
