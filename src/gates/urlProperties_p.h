// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

QT_BEGIN_NAMESPACE
class QQuickItem;
QT_END_NAMESPACE

namespace Hintreels {

/// The properties in a scene that hold a URL, by what a refusal tells of that: the path of a file,
/// else the URL itself. Of several, that of the object nearest to the scene's root.
/// GUI thread only; takes as long as the scene is large.
QHash<QString, QString> urlProperties(QQuickItem *scene);

} // namespace Hintreels
