// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace Hintreels {

/// Replaces each `%(name)s` in a text by the value of that name.
///
/// The name consists of ASCII letters, digits, "-" and "_". A value is scanned together with the
/// text behind it, so that it may hold placeholders and even begin one; the text before it is
/// never looked at again. A placeholder whose value is absent, or null as a string, stays.
/// Linear in the length of the result; a value that holds its own placeholder never stops.
QString interpolated(const QString &text, const QMap<QString, QVariant> &values);

} // namespace Hintreels
