// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "hintreels/check/Finding.h"

#include <QString>
#include <QVector>

namespace Hintreels {

class ControlFile;

/// A comment `<!-- hintreels: ignore TAG: reason -->` of a control file. It keeps a rule from the
/// element that follows, with all in it; before the root, from the whole file.
struct Suppression
{
    QString tag;
    QString reason;
    Spot spot;
    int firstLine; ///< that it covers
    int lastLine;

    bool covers(const Finding &finding) const;
};

/// All of a file, those without a reason included.
QVector<Suppression> suppressionsOf(const ControlFile &file);

} // namespace Hintreels
