// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Names the types of `hintreelView` and `hintreelReader` in the module
/// "com.zentora.hintreels.qml" 1.1, so that properties of QML can be of them.
///
/// QML makes neither. Further calls do nothing: QML keeps every registration until the application
/// ends.
void registerServiceTypes();

} // namespace Hintreels
