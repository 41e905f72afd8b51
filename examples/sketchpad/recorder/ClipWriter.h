// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

#include <memory>

class QImage;

namespace Sketchpad {

struct ClipWriterPrivate;

/// Writes pictures to a H.264 clip in an MP4 file, at a constant rate.
///
/// The same pictures give the same file, byte by byte, with the same libraries. Each operation
/// answers whether it went well; after one that did not, error() says why and the file is useless.
class ClipWriter
{
public:
    /// @param size even in both directions, as the picture format asks for
    ClipWriter(const QString &path, const QSize &size, int picturesPerSecond);
    ~ClipWriter();

    bool open();
    /// @param picture of the clip's size, in QImage::Format_RGB32
    bool add(const QImage &picture);
    /// Writes what the encoder still holds, and the end of the file.
    bool close();

    QString error() const;

private:
    std::unique_ptr<ClipWriterPrivate> d;
};

} // namespace Sketchpad
