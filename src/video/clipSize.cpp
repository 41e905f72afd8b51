// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/clipSize_p.h"

#include "video/HRClip_p.h"
#include "video/upright_p.h"

#include <QElapsedTimer>

namespace Hintreels {

namespace {

constexpr qint64 longestLook
    = 100; // ms; longer than that a reader sees that the clip has no place yet

/// As far as it is known by now.
QSize pictureSize(HRMediaDemuxer *demuxer)
{
    if (!demuxer->chooseVideoStream())
        return {};
    const AVStream *pictures = demuxer->stream();
    const QSize size(pictures->codecpar->width, pictures->codecpar->height);
    return uprightSize(size, uprightTransform(size, pictures));
}

} // namespace

QSize clipSize(const QString &path, const std::function<bool()> &shouldStop)
{
    QElapsedTimer time;
    time.start();
    HRMediaDemuxer demuxer(
        [&] { return time.hasExpired(longestLook) || (shouldStop && shouldStop()); });
    if (!demuxer.open(path))
        return {};
    const QSize size = pictureSize(&demuxer);
    // Streams that were made for broadcasting have no header: their first pictures tell.
    return size.isEmpty() && demuxer.findStreams(standardLargestPicture) ? pictureSize(&demuxer)
                                                                         : size;
}

} // namespace Hintreels
