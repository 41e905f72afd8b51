// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Package.h"
#include "hintreels/check/Rule.h"
#include "ui/reader/pictureFile_p.h"
#include "video/HRClip_p.h"
#include "video/captions_p.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>
#include <iterator>

namespace Hintreels {

namespace {

/// What the library's decoder stumbles over; null for a clip that plays to its end.
QString faultOfClip(const QString &path)
{
    HRClip clip([] { return false; });
    const QString failure = clip.open(path);
    if (!failure.isNull())
        return failure.arg(QFileInfo(path).fileName());
    double seconds = 0;
    int pictures = 0;
    while (!clip.readPicture().isNull()) {
        ++pictures;
        seconds = std::fmax(seconds, clip.pictureTime().start); // of those that have one
    }
    if (!clip.failure().isNull())
        return clip.failure().arg(QFileInfo(path).fileName());
    if (pictures == 0)
        return QStringLiteral("no picture in the clip can be decoded");
    // The last picture begins before the end, and one missing at the end is no damage.
    const double duration = clip.facts().duration;
    const double period = duration / pictures;
    constexpr double whole = 0.95;
    return seconds + 2 * period < whole * duration
        ? QStringLiteral("the clip ends after %1 of %2 seconds").arg(seconds).arg(duration)
        : QString();
}

void checkClips(const Package &package, const Tell &tell)
{
    const auto &media = package.media();
    for (auto file = media.cbegin(); file != media.cend(); ++file) {
        const QString fault = *file == MediaKind::clip ? faultOfClip(file.key()) : QString();
        if (!fault.isNull())
            tell({ file.key() }, fault);
    }
}

void checkPictures(const Package &package, const Tell &tell)
{
    const auto &media = package.media();
    for (auto file = media.cbegin(); file != media.cend(); ++file) {
        if (*file == MediaKind::picture && pictureSize(file.key()).isEmpty())
            tell({ file.key() }, QStringLiteral("the picture cannot be shown"));
    }
}

/// The captions in whatever language that lie beside a clip.
QStringList captionFilesOf(const QString &clip)
{
    const QFileInfo file(clip);
    const QString base = file.completeBaseName();
    QStringList paths;
    const QStringList names = file.dir().entryList({ QStringLiteral("*.vtt") }, QDir::Files);
    for (const QString &name : names) {
        if (name.startsWith(base + u'.'))
            paths.append(file.dir().absoluteFilePath(name));
    }
    return paths;
}

void checkCaptions(const Package &package, const Tell &tell)
{
    const auto &media = package.media();
    for (auto file = media.cbegin(); file != media.cend(); ++file) {
        const QStringList paths
            = *file == MediaKind::clip ? captionFilesOf(file.key()) : QStringList();
        for (const QString &path : paths) {
            if (readCaptions(path).isEmpty())
                tell({ path }, QStringLiteral("the file has no captions that could be shown"));
        }
    }
}

constexpr Rule rules[] = {
    { "clip", Severity::error, "A clip is damaged, or is none",
        "The hint shows without it, or the clip stops before its end.",
        "Make the file anew; docs/content-format.md has the command that makes one of any "
        "recording.",
        "ffmpeg -i recording.mkv -an -vf \"scale=480:-2,fps=30\" -c:v libx264 -crf 26 "
        "-pix_fmt yuv420p pen.mp4",
        nullptr, nullptr, checkClips },
    { "picture", Severity::error, "A picture is damaged, too large, or is none",
        "The hint shows without it.",
        "Save it as PNG or JPEG, with at most 64 million pixels. SVG drawings may not refer to "
        "other files.",
        "<picture source=\"pen.png\" alt=\"A line\"/>", nullptr, nullptr, checkPictures },
    { "captions", Severity::warning, "A file beside a clip has no captions in it",
        "Readers who need captions see none, or those in another language.",
        "Write the file as WebVTT, in UTF-8 and with at most 100 kB.",
        "WEBVTT\n\n00:00.000 --> 00:02.500\nPress, drag, and let go.", nullptr, nullptr,
        checkCaptions },
};

} // namespace

std::vector<Rule> mediaRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
