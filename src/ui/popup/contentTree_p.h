// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Hintreels {

class HRXmlElement;

/// What goes with content that nobody shows any more: the `hintreels` root that was read for it.
///
/// A parent of another kind, or with other children, stays. Null for null.
QObject *contentTreeOf(HRXmlElement *content);

/// Deletes that.
void deleteContentTree(HRXmlElement *content);

} // namespace Hintreels
