// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"

namespace Hintreels {

/// Reads one setting as the type of its default, which applies where the setting is absent.
template <typename T>
T setting(const HRContext &context, contextKey key, const T &defaultValue)
{
    return context.get(key, QVariant::fromValue(defaultValue)).template value<T>();
}

} // namespace Hintreels
