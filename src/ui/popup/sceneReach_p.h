// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gates/HRFileGate_p.h"

#include <QUrl>

QT_BEGIN_NAMESPACE
class QQmlEngine;
QT_END_NAMESPACE

class HRContext;

namespace Hintreels {

class HRIndex;
class HRXmlElement;

/// Where the files of a scene may lie: in the packages of its content, in that of its QML file, and
/// around the QML files that the host names by their whole path.
///
/// @param content may be null
HRReach reachOfScene(const HRContext &context, const HRIndex &index, const HRXmlElement *content,
    const QString &qmlFile, const QQmlEngine &engine);

/// Whether a scene may be made of a QML file.
bool mayBecomeScene(const QUrl &source, const HRReach &reach);

/// The standard UI that is part of the library, for content that may bring none.
QString builtInUi(bool simple);

/// The URL of a file, or of a Qt resource where its path begins with ":/".
QUrl urlOfFile(const QString &path);

/// How long a script may run, in milliseconds; 0 or less is for ever.
/// @param settings null for the defaults
int scriptLimit(const HRContext *settings);

} // namespace Hintreels
