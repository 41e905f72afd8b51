// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRVideoFrameCache.h"

#include <memory>
#include <vector>

namespace Hintreels {

/// A cache that stores of each picture only the tiles that differ from the picture before.
///
/// Every picture has a map that says where each of its tiles lies, be it in its own store or in
/// that of an earlier picture, so any picture is put together in one pass, whatever its index. It
/// comes back bit for bit: size, format, pixels and time. The picture put together last is kept, so
/// reading it again only shares it; where nobody else holds it any more, the next is made of it.
/// Where most of a picture is new it is kept as it is and never put together; so are pictures that
/// do not have 32 bits a pixel.
class HRCompactFrameCache : public HRVideoFrameCache
{
    Q_OBJECT

public:
    explicit HRCompactFrameCache(const QString &name);
    ~HRCompactFrameCache() override;

    /// A picture for which there is no memory is left out.
    void addFrame(const HRVideoFrame &picture) override;
    HRVideoFrame frame(size_t index) override;
    size_t length() override;

private:
    struct Tile
    {
        const QRgb *pixels;
        int stride; // pixels from row to row
    };
    using TileRow = std::vector<Tile>;
    using TileMap = std::vector<std::shared_ptr<const TileRow>>; // rows that are alike are shared

    struct StoredPicture
    {
        QSize size;
        QImage::Format format = QImage::Format_Invalid;
        double pts = 0.0;
        QImage whole; // else it consists of tiles
        std::shared_ptr<const TileMap> tiles; // shared with the picture before where it is the same
        std::unique_ptr<QRgb[]> store; // of the tiles that changed with this picture
    };

    /// A picture that was put together from tiles, and from which.
    struct Buffer
    {
        HRVideoFrame picture;
        std::shared_ptr<const TileMap> tiles; // null while it holds no picture
    };

    bool store(const HRVideoFrame &image, StoredPicture *stored) const;
    bool storeTiles(const QImage &image, const std::vector<bool> &changed, size_t pixelCount,
        StoredPicture *stored) const;
    std::vector<bool> changedTiles(const HRVideoFrame &image) const;
    TileMap lastMap() const;
    HRVideoFrame assemble(const StoredPicture &stored);
    void takeBuffer(const StoredPicture &stored);
    static bool isFree(const Buffer &buffer, const StoredPicture &stored);
    static QRgb *storeRow(const QImage &image, const std::vector<bool> &changed, int row,
        QRgb *store, std::shared_ptr<const TileRow> *tiles);
    static void assembleRow(
        const TileRow &tiles, const TileRow *present, int row, HRVideoFrame *target);
    static void markRow(
        const TileRow &tiles, const QImage &image, int row, std::vector<bool> *changed);
    static void markRowOfWhole(
        const QImage &last, const QImage &image, int row, std::vector<bool> *changed);
    static int runOfTiles(const TileRow &tiles, int first);

    std::vector<StoredPicture> m_pictures;
    qint64 m_lastAdded = 0; // the last of them, by QImage::cacheKey(); 0 where that was not kept
    Buffer m_buffers[2]; // the last picture that was put together comes second
};

} // namespace Hintreels
