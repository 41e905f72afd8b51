// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QImage>
#include <QRegion>

namespace Hintreels {

/// One decoded picture of a clip: an image and the time at which it is shown.
///
/// Copies share the pixels until one holder writes to them, so a picture crosses threads by value.
class HINTREELS_EXPORT HRVideoFrame : public QImage
{
public:
    /// A null image at time 0.
    HRVideoFrame();
    /// An image with uninitialised pixels; null where they cannot be allocated.
    /// @param pts the presentation time in whole seconds
    HRVideoFrame(int width, int height, QImage::Format format, size_t pts);
    /// Shares the pixels of @p image.
    HRVideoFrame(const QImage &image, size_t pts);
    /// Shares the pixels, and knows the same damage.
    HRVideoFrame(const HRVideoFrame &other);
    /// Shares the pixels, and knows the same damage.
    HRVideoFrame &operator=(const HRVideoFrame &other);
    ~HRVideoFrame() override;

    /// The presentation time in seconds. A source's clock runs on from clip to clip.
    double pts() const { return m_pts; }
    /// Sets the presentation time in seconds.
    void setPts(double pts) { m_pts = pts; }

    /// The picture, by its QImage::cacheKey(), that this one is known to be alike outside of
    /// damage(); 0 where nothing is known, as after writing to it.
    qint64 damageBase() const { return cacheKey() == m_damaged ? m_damageBase : 0; }
    /// Where the picture differs from damageBase(), at most.
    QRegion damage() const { return m_damage; }
    /// Remembers both for the pixels as they are now.
    void setDamage(qint64 base, const QRegion &damage);

private:
    double m_pts = 0.0;
    qint64 m_damaged = 0; // what the damage was set of
    qint64 m_damageBase = 0;
    QRegion m_damage;
};

} // namespace Hintreels
