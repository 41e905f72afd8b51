// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace Hintreels {

/// The content of an SVG file, unpacked where it is packed with gzip; null for a file that cannot
/// be read, and for one that is larger than 8 MB or becomes so.
QByteArray readSvg(const QString &path);

/// Whether Qt may read an SVG drawing: it is XML without entities and without instructions, holds
/// neither pictures nor other drawings, and is drawn in no more than 100,000 steps, nested 250
/// deep.
///
/// Qt opens whatever file a picture in a drawing or a style sheet of its names, replaces entities
/// without a bound, and follows references from copies of copies.
bool isHarmlessSvg(const QByteArray &svg);

} // namespace Hintreels
