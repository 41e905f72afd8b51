// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

#include <functional>

/// How a clip is encoded.
struct TestClip
{
    using Draw = std::function<QImage(const QSize &size, int number)>;

    QSize size = QSize(64, 48);
    int pictures = 8;
    int rate = 30; ///< pictures in @c seconds
    int seconds = 1;
    QVector<int> times; ///< of the pictures, in units of the rate; evenly where there are none
    QByteArray codec = "libx264"; ///< name of an FFmpeg encoder; B pictures where it can
    QByteArray format = "yuv420p"; ///< FFmpeg's name of the pixel format
    int matrix = 2; ///< an AVColorSpace; 2 for one that is not named
    int range = 0; ///< an AVColorRange; 0 for one that is not named
    QSize pixel; ///< width to height of a pixel; not named where it is empty
    QVector<int> turn; ///< a, b, c and d of a display matrix, in whole numbers; or none
    QByteArray options = "crf=12:preset=veryfast:bf=2"; ///< of the encoder
    QByteArray fileOptions; ///< of the container, which the file's suffix chooses

    /// Encodes the pictures that @p draw paints. Ends the test program where that fails.
    /// @return @p path
    QString write(const QString &path, const Draw &draw = &TestClip::numbered) const;

    /// A picture of one colour that tells its number, 0 to 59, also after lossy coding.
    static QImage numbered(const QSize &size, int number);
    /// A picture that is black, or white where its number is odd.
    static QImage blinking(const QSize &size, int number);
    /// The number that a picture's colour tells.
    static int numberOf(const QImage &picture);
};
