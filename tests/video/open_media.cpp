// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT
//
// Opens one file in one of the library's ways, in a process where nothing was opened before:
// open_media clip|size|captions PATH. Prints the number of pictures, the size, or the number of
// captions.

#include "video/HRClip_p.h"
#include "video/captions_p.h"
#include "video/clipSize_p.h"

#include <cstdio>

using namespace Hintreels;

namespace {

int pictureCount(const QString &path)
{
    HRClip clip([] { return false; });
    int count = 0;
    if (clip.open(path).isNull()) {
        while (!clip.readPicture().isNull())
            ++count;
    }
    return count;
}

QString answer(const QString &way, const QString &path)
{
    if (way == "clip")
        return QString::number(pictureCount(path));
    if (way == "captions")
        return QString::number(readCaptions(path).size());
    const QSize size = clipSize(path);
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    std::puts(qPrintable(answer(argv[1], QString::fromLocal8Bit(argv[2]))));
    return 0;
}
