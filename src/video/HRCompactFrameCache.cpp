// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRCompactFrameCache_p.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace Hintreels {

namespace {

// Small tiles follow the pointer and a line of text closely; smaller ones make the maps heavy: at
// 16 pixels a map weighs 0.8 % of its picture.
constexpr int tileSide = 16;

/// The tiles of an image of some size, counted row by row. Those at its right and bottom edges may
/// be smaller.
class TileGrid
{
public:
    explicit TileGrid(const QSize &size)
        : m_size(size)
        , m_columns((size.width() + tileSide - 1) / tileSide)
    {
    }

    int columns() const { return m_columns; }
    int count() const { return m_columns * ((m_size.height() + tileSide - 1) / tileSide); }

    QRect tile(int index) const
    {
        const QPoint corner(index % m_columns * tileSide, index / m_columns * tileSide);
        return QRect(corner, QSize(tileSide, tileSide)) & QRect(QPoint(), m_size);
    }

private:
    QSize m_size;
    int m_columns;
};

const QRgb *pixels(const QImage &image, const QPoint &point)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(point.y())) + point.x();
}

/// Marks the tiles in which row @p y of two images of the same size differs.
void markChanges(const QImage &a, const QImage &b, int y, std::vector<bool> *changed)
{
    const int width = a.width();
    const QRgb *rowA = pixels(a, { 0, y });
    const QRgb *rowB = pixels(b, { 0, y });
    // Most rows of a screen recording are alike from end to end.
    if (std::memcmp(rowA, rowB, size_t(width) * sizeof(QRgb)) == 0)
        return;
    const TileGrid grid(a.size());
    const int first = y / tileSide * grid.columns();
    for (int column = 0; column < grid.columns(); ++column) {
        const int x = column * tileSide;
        const size_t bytes = size_t(qMin(tileSide, width - x)) * sizeof(QRgb);
        if (!(*changed)[first + column] && std::memcmp(rowA + x, rowB + x, bytes) != 0)
            (*changed)[first + column] = true;
    }
}

QRgb *copyTileOut(const QImage &image, const QRect &tile, QRgb *store)
{
    for (int y = tile.top(); y <= tile.bottom(); ++y, store += tile.width())
        std::memcpy(store, pixels(image, { tile.left(), y }), tile.width() * sizeof(QRgb));
    return store;
}

void copyTileIn(const QRgb *store, const QRect &tile, uchar *bits, int bytesPerLine)
{
    for (int y = tile.top(); y <= tile.bottom(); ++y, store += tile.width()) {
        uchar *row = bits + qint64(y) * bytesPerLine + tile.left() * sizeof(QRgb);
        std::memcpy(row, store, tile.width() * sizeof(QRgb));
    }
}

} // namespace

HRCompactFrameCache::HRCompactFrameCache(const QString &name)
    : HRVideoFrameCache(name)
{
}

HRCompactFrameCache::~HRCompactFrameCache() = default;

void HRCompactFrameCache::addFrame(const HRVideoFrame &frame)
{
    Picture picture;
    picture.size = frame.size();
    picture.format = frame.format();
    picture.pts = frame.pts();
    if (frame.depth() != 32)
        picture.whole = frame;
    else if (!storeTiles(frame, &picture))
        return;
    m_pictures.push_back(std::move(picture));
    m_lastAdded = frame;
}

HRVideoFrame HRCompactFrameCache::frame(size_t index)
{
    if (index >= m_pictures.size())
        return HRVideoFrame();
    if (m_lastRead.isNull() || index != m_lastReadIndex) {
        m_lastRead = HRVideoFrame(); // its memory serves the next, where nobody else holds it
        m_lastRead = assemble(m_pictures[index]);
        m_lastReadIndex = index;
    }
    return m_lastRead;
}

size_t HRCompactFrameCache::length()
{
    return m_pictures.size();
}

/// One flag a tile: whether it differs from the picture added last, or that has no such tile.
std::vector<bool> HRCompactFrameCache::changedTiles(const QImage &image) const
{
    const int count = TileGrid(image.size()).count();
    if (image.size() != m_lastAdded.size() || image.format() != m_lastAdded.format())
        return std::vector<bool>(count, true);
    std::vector<bool> changed(count, false);
    for (int y = 0; y < image.height(); ++y)
        markChanges(image, m_lastAdded, y, &changed);
    return changed;
}

bool HRCompactFrameCache::storeTiles(const QImage &image, Picture *picture) const
{
    const TileGrid grid(image.size());
    const std::vector<bool> changed = changedTiles(image);
    if (std::find(changed.begin(), changed.end(), true) == changed.end()) {
        picture->tiles = m_pictures.back().tiles;
        return true;
    }
    size_t size = 0;
    for (int i = 0; i < grid.count(); ++i)
        size += changed[i] ? size_t(grid.tile(i).width()) * grid.tile(i).height() : 0;
    picture->store.reset(new (std::nothrow) QRgb[size]);
    if (!picture->store)
        return false;

    const bool allChanged = size == size_t(image.width()) * image.height();
    auto tiles = std::make_shared<TileMap>(
        allChanged ? TileMap(size_t(grid.count())) : *m_pictures.back().tiles);
    QRgb *end = picture->store.get();
    for (int i = 0; i < grid.count(); ++i) {
        if (!changed[i])
            continue;
        (*tiles)[i] = end;
        end = copyTileOut(image, grid.tile(i), end);
    }
    picture->tiles = std::move(tiles);
    return true;
}

HRVideoFrame HRCompactFrameCache::assemble(const Picture &picture)
{
    HRVideoFrame frame(picture.whole, 0);
    if (picture.tiles) {
        frame = HRVideoFrame(picture.size.width(), picture.size.height(), picture.format, 0);
        if (frame.isNull())
            return frame;
        const TileGrid grid(picture.size);
        uchar *bits = frame.bits();
        for (int i = 0; i < grid.count(); ++i)
            copyTileIn((*picture.tiles)[i], grid.tile(i), bits, frame.bytesPerLine());
    }
    frame.setPts(picture.pts);
    return frame;
}

} // namespace Hintreels
