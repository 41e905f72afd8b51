// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRVideoFrame.h"

#include <QObject>

#include <memory>

namespace Hintreels {

struct HRVideoFrameCachePrivate;

/// The pictures of one clip in the order in which they were added.
///
/// It grows until it is destroyed: a clip is decoded once, whole, and playing moves an index over
/// its pictures. The cache locks nothing; a video source touches its cache under its frame lock.
class HINTREELS_EXPORT HRVideoFrameCache : public QObject
{
    Q_OBJECT

public:
    /// @param name text of the URL whose pictures the cache holds
    explicit HRVideoFrameCache(const QString &name);
    ~HRVideoFrameCache() override;

    // Derived caches rely on the order of these three.

    /// Appends a copy that shares the pixels of @p frame.
    virtual void addFrame(const HRVideoFrame &picture);
    /// The picture at @p index, counted from 0; a null one beyond the last.
    virtual HRVideoFrame frame(size_t index);
    /// The number of pictures.
    virtual size_t length();

private:
    std::unique_ptr<HRVideoFrameCachePrivate> d;
};

} // namespace Hintreels
