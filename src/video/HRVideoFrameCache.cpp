// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoFrameCache.h"

#include <vector>

namespace Hintreels {

struct HRVideoFrameCachePrivate
{
    QString name;
    std::vector<HRVideoFrame> pictures;
};

HRVideoFrameCache::HRVideoFrameCache(const QString &name)
    : d(new HRVideoFrameCachePrivate{ name, {} })
{
}

HRVideoFrameCache::~HRVideoFrameCache() = default;

void HRVideoFrameCache::addFrame(const HRVideoFrame &picture)
{
    d->pictures.push_back(picture);
}

HRVideoFrame HRVideoFrameCache::frame(size_t index)
{
    return index < d->pictures.size() ? d->pictures[index] : HRVideoFrame();
}

size_t HRVideoFrameCache::length()
{
    return d->pictures.size();
}

} // namespace Hintreels
