// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipSize_p.h"

#include "video/HRMediaDemuxer_p.h"

#include <QElapsedTimer>

namespace Hintreels {

namespace {

constexpr qint64 longestLook = 100; // ms; longer than that a reader sees the popup wait

/// As far as it is known by now.
QSize pictureSize(HRMediaDemuxer *demuxer)
{
    if (!demuxer->chooseVideoStream())
        return {};
    const AVCodecParameters *pictures = demuxer->stream()->codecpar;
    return QSize(pictures->width, pictures->height);
}

} // namespace

QSize clipSize(const QString &path)
{
    QElapsedTimer time;
    time.start();
    HRMediaDemuxer demuxer([&time] { return time.hasExpired(longestLook); });
    if (!demuxer.open(path))
        return {};
    const QSize size = pictureSize(&demuxer);
    // Streams that were made for broadcasting have no header: their first pictures tell.
    return size.isEmpty() && demuxer.findStreams() ? pictureSize(&demuxer) : size;
}

} // namespace Hintreels
