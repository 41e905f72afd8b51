// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// How important a message is; a smaller number is more important.
///
/// A message reaches the host only when its type is at most the setting messageLevelKey.
/// The underlying type is fixed so that values between the named ones are valid too.
enum HRMessageType : int
{
    messageError = 100,
    messageWarning = 200,
    messageInformation = 300,
    messageDebug = 400
};

/// What the host is asked to create a window for.
enum HRWindowType : int
{
    reservedPopupWindow = 1 ///< receives a popup that its reader has reserved
};

/// What kind of thing outside the popup the reader asked to open.
enum HRExternalResourceType : int
{
    resourceName = 1, ///< a name that only the host can resolve, such as a help topic
    resourceUrl = 2, ///< a URL with a scheme
    resourcePath = 3 ///< a path without a scheme
};

} // namespace Hintreels
