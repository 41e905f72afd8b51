// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryFile.h"
#include "support/Promises.h"
#include "video/HRClip_p.h"

#include <QDeadlineTimer>

using namespace Hintreels;

namespace {

constexpr int longestClip = 1000; // ms; what is asked to stop has to
constexpr int mostPictures = 20;

void readPictures(HRClip &clip, const QSize &size)
{
    for (int i = 0; i < mostPictures; ++i) {
        const HRVideoFrame picture = clip.readPicture();
        if (picture.isNull())
            return;
        require(picture.size() == size, "pictures have the size that the clip was opened with");
    }
}

} // namespace

void fuzzClip(const QByteArray &input)
{
    const MemoryFile file(input);
    const QDeadlineTimer deadline(longestClip);
    HRClip clip([deadline] { return deadline.hasExpired(); });
    const QString failure = clip.open(file.path());
    require(failure.isNull() == clip.isOpen(), "a clip that fails to open is closed");
    if (!clip.isOpen())
        return;
    const QSize size = clip.facts().size;
    readPictures(clip, size);
    clip.seek(clip.facts().duration / 2, true);
    readPictures(clip, size);
    clip.rewind();
    clip.close();
}
