// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/mediaFile_p.h"

#include <QFileInfo>

extern "C" {
#include <libavutil/opt.h>
}

namespace Hintreels {

void silenceFFmpeg()
{
    static const bool silenced = (av_log_set_level(AV_LOG_QUIET), true);
    Q_UNUSED(silenced)
}

HRFFmpegHandle<AVFormatContext> openMediaFile(
    const QString &path, const QByteArray &formats, const AVIOInterruptCB &interrupt)
{
    silenceFFmpeg();
    // A pipe would block until somebody writes to it, and so do files of the kernel, which are
    // regular and have no size.
    const QFileInfo file(path);
    if (!file.isFile() || file.size() == 0)
        return {};
    AVFormatContext *input = avformat_alloc_context();
    if (!input)
        return {};
    input->interrupt_callback = interrupt;
    av_opt_set(input, "format_whitelist", formats.constData(), 0);
    av_opt_set(input, "protocol_whitelist", "file", 0);
    // The protocol stands in front, so that a path such as "http:x.mp4" stays a path. On failure
    // the call frees the context and nulls the pointer.
    const QByteArray url = "file:" + path.toUtf8();
    avformat_open_input(&input, url.constData(), nullptr, nullptr);
    return HRFFmpegHandle<AVFormatContext>(input);
}

} // namespace Hintreels
