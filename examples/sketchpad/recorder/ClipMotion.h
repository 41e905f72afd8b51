// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QVector>

namespace Sketchpad {

/// How far a hand has come after a share of its time, both from 0 to 1: it starts and stops gently.
double eased(double time);

/// A smooth curve through all points.
QPainterPath curveThrough(const QVector<QPointF> &points);

/// How far an unsteady hand is beside its way after a length of it; both parts from -1 to 1.
QPointF tremor(double way);

/// Seconds that an unhurried hand takes for a way in pixels.
double handTime(double way);

} // namespace Sketchpad
