// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

/// A clip to measure with: 10 s at 30 pictures a second, H.264, the same on every run.
struct Clip
{
    QString name;
    QString path;
    QSize size;
    bool isScreen; ///< a drawn screen recording; else every pixel moves
};

constexpr int clipPictures = 300;
constexpr int clipRate = 30; // pictures a second

/// Encodes a clip into @p directory.
Clip makeClip(const QString &directory, const QSize &size, bool isScreen);
