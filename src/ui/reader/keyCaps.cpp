// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/keyCaps_p.h"

#include "ui/reader/textCut_p.h"

namespace Hintreels {

namespace {

constexpr int mostStrokes = 24;
constexpr int mostKeys = 8; // in a stroke: nobody has more fingers free
constexpr int longestKey = 40;

/// At most @p most items; where some are left out, @p sign is the last one.
template <typename List>
List cutList(const List &list, int most, const typename List::value_type &sign)
{
    return list.size() <= most ? list : List(list.mid(0, most - 1)) << sign;
}

// A plus sign joins what stands before it to the next key, unless nothing does: then it is the key.
QStringList keysOfStroke(const QString &stroke)
{
    QStringList keys;
    QString key;
    for (const QChar c : stroke) {
        const bool joins = c == u'+' && !key.trimmed().isEmpty();
        if (joins)
            keys.append(cutText(key.trimmed(), longestKey));
        key = joins ? QString() : key + c;
    }
    if (!key.trimmed().isEmpty())
        keys.append(cutText(key.trimmed(), longestKey));
    return keys;
}

} // namespace

QVector<QStringList> keyCapsOf(const QString &shortcut)
{
    QVector<QStringList> strokes;
    const QStringList parts = shortcut.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QStringList keys = keysOfStroke(part);
        if (!keys.isEmpty())
            strokes.append(cutList(keys, mostKeys, ellipsis));
    }
    return cutList(strokes, mostStrokes, { ellipsis });
}

} // namespace Hintreels
