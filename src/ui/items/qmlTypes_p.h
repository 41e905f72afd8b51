// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Registers the library's QML types in the module "com.zentora.hintreels.qml" 1.0.
///
/// Further calls do nothing: QML keeps every registration until the application ends.
void registerQmlTypes();

} // namespace Hintreels
