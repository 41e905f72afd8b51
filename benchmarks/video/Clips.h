// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// A clip to measure with, the same on every run: 10 s at 30 pictures a second, in H.264.
struct Clip
{
    QString name;
    QString path;
    QSize size;
    bool isScreen; ///< a drawn screen recording; else every pixel moves
};

constexpr int clipPictures = 300;
constexpr int clipRate = 30; // pictures a second

/// The clip of this kind, which is encoded when it is asked for first.
const Clip &clipOf(const QSize &size, bool isScreen);

/// A small clip of the screen kind, 5 s long, at @p rate pictures in @p seconds.
QString writeClipAt(int rate, int seconds);

/// As many copies of a small clip, by different names.
QStringList copiedClips(int count);

const QSize SmallClip(640, 360);
const QSize LargeClip(1280, 720);
