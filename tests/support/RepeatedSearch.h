// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QRegExp>
#include <QString>
#include <QVariant>

/// What interpolation has to give, word for word: search, replace, search again from the same
/// place.
inline QString searchedRepeatedly(QString text, const QMap<QString, QVariant> &values)
{
    const QRegExp pattern(QStringLiteral("\\%\\(([-_a-zA-Z0-9]+)\\)s"));
    for (int at = pattern.indexIn(text); at >= 0; at = pattern.indexIn(text, at)) {
        const QString value = values.value(pattern.cap(1)).toString();
        if (value.isNull())
            at += pattern.matchedLength();
        else
            text.replace(at, pattern.matchedLength(), value);
    }
    return text;
}
