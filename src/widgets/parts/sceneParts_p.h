// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

/// The topmost item of a QGraphicsView at a position, or the first item around it, that carries a
/// key: as its data under partKeyRole, or as an object. Else the view itself.
std::optional<HRPart> sceneItemAt(QWidget *widget, const QPoint &position);

/// The item that has the scene's focus, or the first around it that carries a key.
HRPart currentSceneItem(QWidget *widget);

/// The view, and the items that carry a key.
QVector<HRPart> sceneItems(QWidget *widget);

} // namespace Hintreels
