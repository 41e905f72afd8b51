// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRCompactFrameCache_p.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace Hintreels {

namespace {

// Small tiles follow the pointer and a line of text closely; smaller ones make the maps heavy: at
// 16 pixels a map weighs 1.6 % of its picture.
constexpr int tileSide = 16;

// From this share of new pixels on, a picture is kept as it is: reading it then costs nothing, and
// those after it are put together from long rows. In a screen recording that is a scene or a key
// picture now and then.
constexpr double wholeShare = 0.25;

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

/// Marks the tiles, from number @p first on, in which two stretches of a row differ.
void markChanges(const QRgb *a, const QRgb *b, int width, int first, std::vector<bool> *changed)
{
    // Most rows of a screen recording are alike from end to end.
    if (std::memcmp(a, b, size_t(width) * sizeof(QRgb)) == 0)
        return;
    for (int x = 0, tile = first; x < width; x += tileSide, ++tile) {
        const size_t bytes = size_t(qMin(tileSide, width - x)) * sizeof(QRgb);
        if (!(*changed)[tile] && std::memcmp(a + x, b + x, bytes) != 0)
            (*changed)[tile] = true;
    }
}

void copyRow(QRgb *target, const QRgb *source, int width)
{
    // Nearly all rows are those of whole tiles; of a size that is known they are a few moves.
    if (width == tileSide)
        std::memcpy(target, source, tileSide * sizeof(QRgb));
    else
        std::memcpy(target, source, size_t(width) * sizeof(QRgb));
}

QRgb *copyTileOut(const QImage &image, const QRect &tile, QRgb *store)
{
    for (int y = tile.top(); y <= tile.bottom(); ++y, store += tile.width())
        copyRow(store, pixels(image, { tile.left(), y }), tile.width());
    return store;
}

void copyIn(const QRgb *source, int sourceStride, const QRect &area, QRgb *target, int targetStride)
{
    target += qint64(area.top()) * targetStride + area.left();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        copyRow(target, source, area.width());
        source += sourceStride;
        target += targetStride;
    }
}

} // namespace

HRCompactFrameCache::HRCompactFrameCache(const QString &name)
    : HRVideoFrameCache(name)
{
}

HRCompactFrameCache::~HRCompactFrameCache() = default;

void HRCompactFrameCache::addFrame(const HRVideoFrame &picture)
{
    StoredPicture stored;
    stored.size = picture.size();
    stored.format = picture.format();
    stored.pts = picture.pts();
    const bool isStored = store(picture, &stored);
    m_lastAdded = isStored ? picture.cacheKey() : 0;
    if (isStored)
        m_pictures.push_back(std::move(stored));
}

HRVideoFrame HRCompactFrameCache::frame(size_t index)
{
    if (index >= m_pictures.size())
        return HRVideoFrame();
    const StoredPicture &stored = m_pictures[index];
    HRVideoFrame picture = stored.tiles ? assemble(stored) : HRVideoFrame(stored.whole, 0);
    picture.setPts(stored.pts);
    return picture;
}

size_t HRCompactFrameCache::length()
{
    return m_pictures.size();
}

/// False where there is no memory.
bool HRCompactFrameCache::store(const HRVideoFrame &image, StoredPicture *stored) const
{
    const std::vector<bool> changed = changedTiles(image);
    const TileGrid grid(image.size());
    size_t pixelCount = 0;
    for (int i = 0; i < int(changed.size()); ++i)
        pixelCount += changed[i] ? size_t(grid.tile(i).width()) * grid.tile(i).height() : 0;

    const double share = double(pixelCount) / (double(image.width()) * image.height());
    if (pixelCount > 0 && image.depth() == 32 && share < wholeShare)
        return storeTiles(image, changed, pixelCount, stored);
    const bool isNew = pixelCount > 0 || image.isNull();
    stored->whole = isNew ? image : m_pictures.back().whole;
    stored->tiles = isNew ? nullptr : m_pictures.back().tiles;
    return true;
}

bool HRCompactFrameCache::storeTiles(const QImage &image, const std::vector<bool> &changed,
    size_t pixelCount, StoredPicture *stored) const
{
    stored->store.reset(new (std::nothrow) QRgb[pixelCount]);
    if (!stored->store)
        return false;
    auto tiles = std::make_shared<TileMap>(lastMap());
    QRgb *end = stored->store.get();
    for (int row = 0; row < int(tiles->size()); ++row)
        end = storeRow(image, changed, row, end, &(*tiles)[row]);
    stored->tiles = std::move(tiles);
    return true;
}

/// Puts a row of tiles of its own in place of one in which tiles changed.
/// @return the end of what is stored
QRgb *HRCompactFrameCache::storeRow(const QImage &image, const std::vector<bool> &changed, int row,
    QRgb *store, std::shared_ptr<const TileRow> *tiles)
{
    const TileGrid grid(image.size());
    const int first = row * grid.columns();
    std::shared_ptr<TileRow> own;
    for (int column = 0; column < grid.columns(); ++column) {
        if (!changed[first + column])
            continue;
        if (!own)
            own = std::make_shared<TileRow>(**tiles);
        const QRect tile = grid.tile(first + column);
        (*own)[column] = { store, tile.width() };
        store = copyTileOut(image, tile, store);
    }
    if (own)
        *tiles = std::move(own);
    return store;
}

/// One flag a tile: whether it differs from the picture added last, or that has no such tile.
std::vector<bool> HRCompactFrameCache::changedTiles(const HRVideoFrame &image) const
{
    const int count = TileGrid(image.size()).count();
    if (m_pictures.empty() || image.size() != m_pictures.back().size
        || image.format() != m_pictures.back().format || image.depth() != 32)
        return std::vector<bool>(count, true);
    const StoredPicture &last = m_pictures.back();
    std::vector<bool> changed(count, false);
    const bool isDamageKnown = m_lastAdded != 0 && image.damageBase() == m_lastAdded;
    for (int row = 0; row * tileSide < image.height(); ++row) {
        const QRect area(0, row * tileSide, image.width(), tileSide);
        if (isDamageKnown && !image.damage().intersects(area))
            continue;
        if (last.tiles)
            markRow(*(*last.tiles)[row], image, row, &changed);
        else
            markRowOfWhole(last.whole, image, row, &changed);
    }
    return changed;
}

/// Marks the tiles of a row that differ between two images.
void HRCompactFrameCache::markRowOfWhole(
    const QImage &last, const QImage &image, int row, std::vector<bool> *changed)
{
    const int bottom = qMin((row + 1) * tileSide, image.height());
    for (int y = row * tileSide; y < bottom; ++y) {
        markChanges(pixels(image, { 0, y }), pixels(last, { 0, y }), image.width(),
            row * TileGrid(image.size()).columns(), changed);
    }
}

/// Marks the tiles of a row that differ from those of the picture added last, which is put together
/// for that nowhere: it would take as much memory as the picture itself.
void HRCompactFrameCache::markRow(
    const TileRow &tiles, const QImage &image, int row, std::vector<bool> *changed)
{
    const int columns = int(tiles.size());
    const int top = row * tileSide;
    const int height = qMin(tileSide, image.height() - top);
    const int stride = image.bytesPerLine() / int(sizeof(QRgb));
    for (int i = 0; i < columns;) {
        const int run = runOfTiles(tiles, i);
        const int left = i * tileSide;
        const int width = qMin(run * tileSide, image.width() - left);
        const QRgb *const corner = pixels(image, { left, top });
        for (int y = 0; y < height; ++y) {
            markChanges(corner + qint64(y) * stride, tiles[i].pixels + qint64(y) * tiles[i].stride,
                width, row * columns + i, changed);
        }
        i += run;
    }
}

/// Where the tiles of the picture added last lie.
HRCompactFrameCache::TileMap HRCompactFrameCache::lastMap() const
{
    const StoredPicture &last = m_pictures.back();
    if (last.tiles)
        return *last.tiles;
    const TileGrid grid(last.size);
    const int stride = last.whole.bytesPerLine() / int(sizeof(QRgb));
    TileMap map;
    for (int first = 0; first < grid.count(); first += grid.columns()) {
        TileRow row;
        for (int i = first; i < first + grid.columns(); ++i)
            row.push_back({ pixels(last.whole, grid.tile(i).topLeft()), stride });
        map.push_back(std::make_shared<const TileRow>(std::move(row)));
    }
    return map;
}

HRVideoFrame HRCompactFrameCache::assemble(const StoredPicture &stored)
{
    if (m_buffers[1].tiles == stored.tiles)
        return m_buffers[1].picture;
    takeBuffer(stored);
    Buffer &buffer = m_buffers[1];
    if (buffer.picture.isNull())
        return HRVideoFrame();
    for (int row = 0; row < int(stored.tiles->size()); ++row) {
        const TileRow *wanted = (*stored.tiles)[row].get();
        const TileRow *present = buffer.tiles ? (*buffer.tiles)[row].get() : nullptr;
        if (wanted != present)
            assembleRow(*wanted, present, row, &buffer.picture);
    }
    buffer.tiles = stored.tiles;
    return buffer.picture;
}

/// @param present the tiles that @p target has in this row; null where it has none
void HRCompactFrameCache::assembleRow(
    const TileRow &tiles, const TileRow *present, int row, HRVideoFrame *target)
{
    const TileGrid grid(target->size());
    auto *targetPixels = reinterpret_cast<QRgb *>(target->bits());
    const int targetStride = target->bytesPerLine() / int(sizeof(QRgb));
    const int first = row * grid.columns();
    for (int i = 0; i < grid.columns();) {
        if (present && (*present)[i].pixels == tiles[i].pixels) {
            ++i;
            continue;
        }
        const int run = runOfTiles(tiles, i);
        const QRect area = grid.tile(first + i) | grid.tile(first + i + run - 1);
        copyIn(tiles[i].pixels, tiles[i].stride, area, targetPixels, targetStride);
        i += run;
    }
}

/// Puts last the buffer to write a picture to: what was put together last, or else before that, if
/// nobody holds it any more. Memory that is new to the process costs more than all the copying, and
/// most tiles of the picture are there already. Whoever lets go of a picture before he reads the
/// next makes do with one buffer.
void HRCompactFrameCache::takeBuffer(const StoredPicture &stored)
{
    if (isFree(m_buffers[1], stored))
        return;
    std::swap(m_buffers[0], m_buffers[1]);
    if (isFree(m_buffers[1], stored))
        return;
    m_buffers[1] = {}; // before there is another
    m_buffers[1].picture
        = HRVideoFrame(stored.size.width(), stored.size.height(), stored.format, 0);
}

bool HRCompactFrameCache::isFree(const Buffer &buffer, const StoredPicture &stored)
{
    const HRVideoFrame &picture = buffer.picture;
    if (picture.size() != stored.size || picture.format() != stored.format || !picture.isDetached())
        return false;
    // Counting up and down joins this thread with the one that let go last; asking does not.
    const HRVideoFrame counted = picture;
    return true;
}

/// The number of tiles from @p first on that lie side by side in a whole picture, as in the row.
int HRCompactFrameCache::runOfTiles(const TileRow &tiles, int first)
{
    const int end = int(tiles.size());
    int next = first + 1;
    while (next < end && tiles[next].pixels == tiles[next - 1].pixels + tileSide
        && tiles[next].stride == tiles[first].stride)
        ++next;
    return next - first;
}

} // namespace Hintreels
