// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QStringList>
#include <QVector>

namespace Hintreels {

/// A line or two of text that belong to a stretch of a clip.
struct HRCaption
{
    double start; ///< seconds from the clip's beginning
    double end; ///< the first moment without the text
    QString text; ///< plain, with line breaks
};

/// Reads a WebVTT file, in the order of its captions.
///
/// Only a regular file of that format is opened, and nothing that it may name; any other gives no
/// captions. A file above 100 kB is refused: it is no companion of a clip of some seconds.
QVector<HRCaption> readCaptions(const QString &path);

/// The files in which the captions of a clip may lie beside it, the best first: "clip.de_DE.vtt"
/// for each locale, then "clip.vtt".
QStringList captionFiles(const QString &clip, const QVector<QLocale> &locales);

} // namespace Hintreels
