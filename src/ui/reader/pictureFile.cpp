// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/pictureFile_p.h"

#include "ui/reader/svgGate_p.h"

#include <QFileInfo>
#include <QImageReader>

namespace Hintreels {

namespace {

constexpr qint64 largestArea = 64'000'000; // pixels

// Files of the kernel are regular and have no size, and some block whoever reads them.
bool isOrdinary(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0;
}

} // namespace

QSize pictureSize(const QString &path)
{
    if (!isOrdinary(path))
        return {};
    QImageReader reader(path);
    // The format shows in the first bytes; the size of a drawing, only when all of it is read.
    if (reader.format().startsWith("svg") && !isHarmlessSvg(readSvg(path)))
        return {};
    const QSize size = reader.canRead() ? reader.size() : QSize();
    const bool fits = qint64(size.width()) * size.height() <= largestArea;
    return fits && !size.isEmpty() ? size : QSize();
}

} // namespace Hintreels
