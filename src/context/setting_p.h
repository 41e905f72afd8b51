// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"

namespace Hintreels {

/// From here on a setting counts only where it is stored as the very type that is read: hosts may
/// have had values of their own under these numbers before the library knew them.
constexpr int firstStrictKey = 10000;

/// Reads one setting as the type of its default, which applies where the setting is absent.
template <typename T>
T setting(const HRContext &context, contextKey key, const T &defaultValue)
{
    const QVariant standard = QVariant::fromValue(defaultValue);
    const QVariant value = context.get(key, standard);
    const bool isRead = key < firstStrictKey || value.userType() == standard.userType();
    return isRead ? value.template value<T>() : defaultValue;
}

/// The same for those who may have no settings: null leaves every default.
template <typename T>
T setting(const HRContext *context, contextKey key, const T &defaultValue)
{
    return context ? setting(*context, key, defaultValue) : defaultValue;
}

} // namespace Hintreels
