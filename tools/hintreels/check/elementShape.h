// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Hintreels {

/// An element that control files know: where it stands, and what it may say.
struct ElementShape
{
    QString parent; ///< empty for the root
    QStringList attributes;
    QString needed; ///< the attribute without which it shows nothing; empty for none
};

/// All elements of hints that the standard user interface shows, by their names.
const QMap<QString, ElementShape> &elementShapes();

/// The elements that may stand in an element, sorted.
QStringList elementsIn(const QString &parent);

/// The values of an attribute that knows only some; empty for any other attribute.
QStringList valuesOf(const QString &element, const QString &attribute);

} // namespace Hintreels
