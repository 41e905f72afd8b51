// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoFrameCache.h"

#include <vector>

namespace Hintreels {

struct HRVideoFrameCachePrivate
{
    QString name;
    std::vector<HRVideoFrame> frames;
};

HRVideoFrameCache::HRVideoFrameCache(const QString &name)
    : d(new HRVideoFrameCachePrivate{ name, {} })
{
}

HRVideoFrameCache::~HRVideoFrameCache() = default;

void HRVideoFrameCache::addFrame(const HRVideoFrame &frame)
{
    d->frames.push_back(frame);
}

HRVideoFrame HRVideoFrameCache::frame(size_t index)
{
    return index < d->frames.size() ? d->frames[index] : HRVideoFrame();
}

size_t HRVideoFrameCache::length()
{
    return d->frames.size();
}

} // namespace Hintreels
