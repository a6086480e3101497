#include "demo/detail/SeaBed.h"

#include "demo/detail/Quantities.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace demo
{
namespace
{

constexpr float leastWeight = 0.02F; // below it a mean would hang on one far sounding
constexpr float sureWeight = 8.0F;
constexpr double farthest = 1.0e6; // metres from the plane's origin: beyond, nothing was sounded

int TileIndex(int cell) noexcept
{
    return cell >= 0 ? cell / SeaBed::tileSide : -((-cell - 1) / SeaBed::tileSide) - 1;
}

std::size_t CellIndex(int column, int row) noexcept
{
    const int x = column - TileIndex(column) * SeaBed::tileSide;
    const int y = row - TileIndex(row) * SeaBed::tileSide;
    return static_cast<std::size_t>(y * SeaBed::tileSide + x);
}

} // namespace

void SeaBed::Clear()
{
    *this = {};
}

SeaBed::Sums* SeaBed::TileOf(int column, int row)
{
    const Key key{TileIndex(column), TileIndex(row)};
    const auto found = m_tiles.find(key);
    if (found != m_tiles.end())
        return &found->second;
    if (m_tiles.size() >= mostTiles)
        return nullptr;
    Sums& tile = m_tiles[key];
    tile.cells.resize(static_cast<std::size_t>(tileSide) * tileSide);
    return &tile;
}

void SeaBed::Add(const GroundPoint& place, double depth)
{
    if (IsMissing(depth) || !std::isfinite(depth) || !(std::hypot(place.east, place.north) < farthest))
        return;
    m_shallowest = IsEmpty() ? depth : std::min(m_shallowest, depth);
    m_deepest = IsEmpty() ? depth : std::max(m_deepest, depth);
    const auto first = [](double at) { return static_cast<int>(std::ceil((at - reach) / mesh)); };
    const auto last = [](double at) { return static_cast<int>(std::floor((at + reach) / mesh)); };
    for (int row = first(place.north); row <= last(place.north); ++row) {
        for (int column = first(place.east); column <= last(place.east); ++column) {
            const double x = (column * mesh - place.east) / reach;
            const double y = (row * mesh - place.north) / reach;
            const double square = x * x + y * y;
            Sums* const tile = square < 1.0 ? TileOf(column, row) : nullptr;
            if (!tile)
                continue;
            // Falls off steeply, so that a bank keeps its height, and smoothly to nothing at the reach.
            const double fall = 1.0 - square;
            const auto weight = static_cast<float>(fall * fall / (0.01 + square));
            Cell& cell = tile->cells[CellIndex(column, row)];
            cell.weight += weight;
            cell.sum += weight * static_cast<float>(depth);
            tile->changed = true;
        }
    }
}

SeaBed::Cell SeaBed::CellAt(int column, int row) const
{
    const auto found = m_tiles.find({TileIndex(column), TileIndex(row)});
    return found != m_tiles.end() ? found->second.cells[CellIndex(column, row)] : Cell{};
}

double SeaBed::DepthAt(int column, int row) const
{
    const Cell cell = CellAt(column, row);
    return cell.weight > leastWeight ? static_cast<double>(cell.sum / cell.weight) : missing;
}

std::vector<SeaBed::Key> SeaBed::TakeChanged()
{
    std::set<Key> keys;
    for (auto& [key, tile] : m_tiles) {
        if (!tile.changed)
            continue;
        tile.changed = false;
        // Its first cells are the last ones of its neighbours in the west and the south.
        for (const Key& shared : {key, Key{key.first - 1, key.second}, Key{key.first, key.second - 1},
                                  Key{key.first - 1, key.second - 1}})
            if (m_tiles.contains(shared))
                keys.insert(shared);
    }
    return {keys.begin(), keys.end()};
}

SeaBed::Tile SeaBed::Surface(const Key& key) const
{
    constexpr int side = tileSide + 1; // the last ones are the neighbours' first, so that no gap is left
    const int left = key.first * tileSide;
    const int bottom = key.second * tileSide;
    Tile tile{{left * mesh, bottom * mesh}, {}, {}};
    std::vector<std::uint32_t> numbers(static_cast<std::size_t>(side) * side, UINT32_MAX);
    const auto number = [&](int x, int y) -> std::uint32_t& {
        return numbers[static_cast<std::size_t>(y * side + x)];
    };
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double depth = DepthAt(left + x, bottom + y);
            if (IsMissing(depth))
                continue;
            const auto slope = [&](int dx, int dy) {
                const double after = DepthAt(left + x + dx, bottom + y + dy);
                const double before = DepthAt(left + x - dx, bottom + y - dy);
                return static_cast<float>(
                    IsMissing(after) || IsMissing(before) ? 0.0 : (after - before) / (2.0 * mesh));
            };
            const float surety = std::min(CellAt(left + x, bottom + y).weight / sureWeight, 1.0F);
            number(x, y) = static_cast<std::uint32_t>(tile.vertices.size());
            tile.vertices.push_back({static_cast<float>(x * mesh), static_cast<float>(y * mesh),
                                     static_cast<float>(depth), surety, slope(1, 0), slope(0, 1)});
        }
    }
    const auto add = [&](std::uint32_t a, std::uint32_t b, std::uint32_t c) {
        if (a != UINT32_MAX && b != UINT32_MAX && c != UINT32_MAX)
            tile.triangles.insert(tile.triangles.end(), {a, b, c});
    };
    for (int y = 0; y + 1 < side; ++y) {
        for (int x = 0; x + 1 < side; ++x) {
            const std::uint32_t a = number(x, y);
            const std::uint32_t b = number(x + 1, y);
            const std::uint32_t c = number(x + 1, y + 1);
            const std::uint32_t d = number(x, y + 1);
            if (a != UINT32_MAX && c != UINT32_MAX) {
                add(a, b, c);
                add(a, c, d);
            } else {
                add(a, b, d);
                add(b, c, d);
            }
        }
    }
    return tile;
}

} // namespace demo
