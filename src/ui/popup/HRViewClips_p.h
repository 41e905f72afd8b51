// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRClipFinder_p.h"

namespace Hintreels {

class HRView;

/// The clips in a view: where they find their files, and when they decode.
class HRViewClips : public HRClipFinder
{
    Q_OBJECT

public:
    /// @param view owns this
    explicit HRViewClips(HRView *view);

    QString findClip(const QString &source) override;
    int largestPicture() const override;
    bool isDecodingPaused() const override { return m_isDecodingPaused; }

    /// Tells all clips in the view, and those that come into it later.
    void setDecodingPaused(bool paused);

private:
    HRView *m_view;
    bool m_isDecodingPaused = false;
};

} // namespace Hintreels
