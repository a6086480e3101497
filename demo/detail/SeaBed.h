#pragma once

#include "demo/detail/LocalPlane.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace demo
{

/** The sea bed as far as it was sounded: a grid whose heights are means of the soundings around them, the
 * near ones counting most. Lengths are metres.
 *
 *  The grid is kept in tiles, and a sounding changes the few cells around it: a survey of any length costs
 *  the same for each sounding. */
class SeaBed
{
public:
    static constexpr double mesh = 5.0;   ///< of the grid
    static constexpr double reach = 30.0; ///< of a sounding: between two lines of a survey the bed closes
    static constexpr int tileSide = 16;   ///< cells
    static constexpr std::size_t mostTiles = 4096; ///< what lies beyond is not kept

    struct Vertex {
        float x, y; ///< from the tile's origin
        float depth;
        float surety;    ///< 0 where the last sounding is almost out of reach, 1 where there are enough
        float slopeEast; ///< change of the depth for each metre
        float slopeNorth;
    };
    /** A part of the bed that is drawn by itself. */
    struct Tile {
        GroundPoint origin;
        std::vector<Vertex> vertices;
        std::vector<std::uint32_t> triangles; ///< three vertices each, anticlockwise seen from above
    };
    using Key = std::pair<int, int>; ///< of a tile: its column and row

    void Clear();

    /** Takes a sounding. */
    void Add(const GroundPoint& place, double depth);

    /** The tiles that have changed since they were asked for last, in ascending order; they are counted as
     * drawn then. */
    std::vector<Key> TakeChanged();

    /** A tile's surface as it is now, without triangles where nothing is known. */
    Tile Surface(const Key& key) const;

    /** Depth at a place of the grid, whatever the tile; missing where no sounding reaches. */
    double DepthAt(int column, int row) const;

    double Shallowest() const noexcept { return m_shallowest; }
    double Deepest() const noexcept { return m_deepest; }
    bool IsEmpty() const noexcept { return m_tiles.empty(); }

private:
    struct Cell {
        float weight = 0.0F;
        float sum = 0.0F; // of depth times weight
    };
    struct Sums {
        std::vector<Cell> cells;
        bool changed = false;
    };

    Sums* TileOf(int column, int row);
    Cell CellAt(int column, int row) const;

    std::map<Key, Sums> m_tiles;
    double m_shallowest = 0.0;
    double m_deepest = 0.0;
};

} // namespace demo
