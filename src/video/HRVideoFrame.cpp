// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoFrame.h"

namespace Hintreels {

HRVideoFrame::HRVideoFrame() = default;

HRVideoFrame::HRVideoFrame(int width, int height, QImage::Format format, size_t pts)
    : QImage(width, height, format)
    , m_pts(double(pts))
{
}

HRVideoFrame::HRVideoFrame(const QImage &image, size_t pts)
    : QImage(image)
    , m_pts(double(pts))
{
}

HRVideoFrame::HRVideoFrame(const HRVideoFrame &other) = default;

HRVideoFrame &HRVideoFrame::operator=(const HRVideoFrame &other) = default;

HRVideoFrame::~HRVideoFrame() = default;

void HRVideoFrame::setDamage(qint64 base, const QRegion &damage)
{
    m_damaged = cacheKey();
    m_damageBase = base;
    m_damage = damage;
}

} // namespace Hintreels
