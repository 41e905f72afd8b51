// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

/// All of a host's state that a library in its process could change, as texts under names.
using HostSnapshot = QMap<QString, QString>;

/// Takes it now; @p window is one of the host's own.
HostSnapshot hostSnapshot(const QWidget &window);

/// Which names differ, with both texts, one a line.
QString differences(const HostSnapshot &before, const HostSnapshot &after);

/// Those names alone.
QStringList differingNames(const HostSnapshot &before, const HostSnapshot &after);
