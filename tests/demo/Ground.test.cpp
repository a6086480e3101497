// What the chart and the orbit view draw of the ground: plane, track and sea bed.
#include "demo/detail/LocalPlane.h"
#include "demo/detail/SeaBed.h"
#include "demo/detail/TrackRuns.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace demo;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double metre = 1.0 / 6371000.0; // of latitude, radians

const LocalPlane equator(0.0, 0.0);

/** A track of places around the equator's origin, all joined. */
History<TrackPoint> TrackOf(std::initializer_list<GroundPoint> places)
{
    History<TrackPoint> track(100);
    for (const GroundPoint& place : places)
        track.Add({place.north * metre, place.east * metre, !track.IsEmpty()});
    return track;
}

constexpr GroundWindow window{{0, 0}, {100, 100}, 2.0, {50, 50}};

} // namespace

TEST(LocalPlane, CountsFromItsOrigin)
{
    const LocalPlane plane(54.4712 * degree, 179.9999 * degree);
    const GroundPoint north = plane.PlaceOf(54.4712 * degree + 100 * metre, 179.9999 * degree);
    EXPECT_NEAR(0.0, north.east, 1e-6);
    EXPECT_NEAR(100.0, north.north, 1e-6);
    const GroundPoint east = plane.PlaceOf(54.4712 * degree, -179.9999 * degree);
    EXPECT_NEAR(0.0002 * degree / metre * std::cos(54.4712 * degree), east.east, 1e-3)
        << "over the date line";
}

TEST(TrackRuns, KeepsWhatCrossesTheWindowInItsOwnCoordinates)
{
    const auto track =
        TrackOf({{-300, 50}, {-200, 50}, {20, 50}, {60, 50}, {160, 50}, {170, 300}, {-300, 300}});
    const TrackRuns runs = TrackRuns::Of(track, equator, window);
    EXPECT_THAT(runs.points, ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(runs.ends, ElementsAre(4));
    EXPECT_NEAR(-30.0F, runs.vertices[1].x, 1e-3F);
    EXPECT_NEAR(0.0F, runs.vertices[1].y, 1e-3F);
}

TEST(TrackRuns, ALongPieceThatCrossesWithoutAPointInsideStays)
{
    EXPECT_THAT(TrackRuns::Of(TrackOf({{-500, 40}, {700, 60}}), equator, window).points, ElementsAre(0, 1));
    EXPECT_THAT(TrackRuns::Of(TrackOf({{-500, 140}, {700, 160}}), equator, window).points, IsEmpty());
}

TEST(TrackRuns, DropOutsDivideAndNeighboursWithinAPixelGo)
{
    History<TrackPoint> track(100);
    for (int i = 0; i < 41; ++i) // half a metre apart: every fourth is told apart
        track.Add({50 * metre, (10 + i * 0.5) * metre, i > 0 && i != 20});
    const TrackRuns runs = TrackRuns::Of(track, equator, window);
    ASSERT_EQ(2U, runs.ends.size());
    EXPECT_EQ(19U, runs.points[runs.ends[0] - 1]) << "the last one before the gap";
    EXPECT_EQ(20U, runs.points[runs.ends[0]]);
    EXPECT_EQ(40U, runs.points.back()) << "the newest one always";
    EXPECT_NEAR(13, static_cast<double>(runs.points.size()), 2);
    EXPECT_THAT(TrackRuns::Of(TrackOf({{5, 5}}), equator, window, runs).points, IsEmpty()) << "of one point";
}

TEST(TrackRuns, StaysExactFarFromTheOrigin)
{
    const double remote = 3.0e6; // metres: single precision knows quarters there
    const GroundWindow there{{remote, remote}, {remote + 10, remote + 10}, 0.0, {remote, remote}};
    const TrackRuns runs =
        TrackRuns::Of(TrackOf({{remote + 1.01, remote + 2}, {remote + 1.02, remote + 2}}), equator, there);
    ASSERT_EQ(2U, runs.vertices.size());
    EXPECT_NEAR(0.01F, runs.vertices[1].x - runs.vertices[0].x, 1e-5F);
}

TEST(SeaBed, IsTheMeanOfWhatWasSoundedNearby)
{
    SeaBed bed;
    EXPECT_TRUE(bed.IsEmpty());
    bed.Add({2.0, 3.0}, 12.0);
    EXPECT_NEAR(12.0, bed.DepthAt(0, 0), 1e-5);
    EXPECT_EQ(missing, bed.DepthAt(8, 0)) << "40 m away";
    bed.Add({42.0, 3.0}, 16.0);
    EXPECT_NEAR(12.0, bed.DepthAt(0, 0), 0.01) << "the sounding beside it counts most";
    EXPECT_NEAR(14.0, (bed.DepthAt(4, 0) + bed.DepthAt(5, 0)) / 2, 0.3) << "half-way";
    EXPECT_EQ(12.0, bed.Shallowest());
    EXPECT_EQ(16.0, bed.Deepest());
    bed.Add({0, 0}, missing);
    bed.Add({1e9, 0}, 5.0);
    EXPECT_EQ(12.0, bed.Shallowest()) << "neither is a sounding of this place";
    bed.Clear();
    EXPECT_TRUE(bed.IsEmpty());
}

TEST(SeaBed, TilesCloseAndTellOfChanges)
{
    SeaBed bed;
    bed.Add({-1.0, 40.0}, 10.0); // at the border of two tiles
    std::vector<SeaBed::Key> keys = bed.TakeChanged();
    ASSERT_THAT(keys, ElementsAre(SeaBed::Key(-1, 0), SeaBed::Key(0, 0)));
    EXPECT_THAT(bed.TakeChanged(), IsEmpty());

    const SeaBed::Tile west = bed.Surface(keys[0]);
    const SeaBed::Tile east = bed.Surface(keys[1]);
    EXPECT_EQ(-80.0, west.origin.east);
    const auto rightMost = [](const SeaBed::Tile& tile) {
        float x = 0;
        for (const SeaBed::Vertex& vertex : tile.vertices)
            x = std::max(x, vertex.x);
        return tile.origin.east + static_cast<double>(x);
    };
    EXPECT_EQ(0.0, rightMost(west)) << "up to where the other one begins";
    double area = 0.0;
    for (const SeaBed::Tile& tile : {west, east}) {
        for (std::size_t i = 0; i < tile.triangles.size(); i += 3) {
            const auto at = [&](std::size_t corner) { return tile.vertices[tile.triangles[i + corner]]; };
            const float twice =
                (at(1).x - at(0).x) * (at(2).y - at(0).y) - (at(2).x - at(0).x) * (at(1).y - at(0).y);
            EXPECT_GT(twice, 0.0F) << "anticlockwise";
            area += static_cast<double>(twice) / 2;
        }
    }
    EXPECT_NEAR(std::numbers::pi * 28 * 28, area, 500) << "the circle that a sounding reaches";

    bed.Add({11.0, 40.0}, 10.0);
    EXPECT_THAT(bed.TakeChanged(), testing::Contains(SeaBed::Key(-1, 0)))
        << "its edge changes with the other's";
}

TEST(SeaBed, SlopesFollowTheGround)
{
    SeaBed bed;
    for (int x = -60; x <= 60; x += 5)
        for (int y = -60; y <= 60; y += 5)
            bed.Add({static_cast<double>(x), static_cast<double>(y)}, 20.0 + 0.1 * x);
    const SeaBed::Tile tile = bed.Surface({0, 0});
    ASSERT_FALSE(tile.vertices.empty());
    EXPECT_NEAR(0.1F, tile.vertices.front().slopeEast, 0.02F);
    EXPECT_NEAR(0.0F, tile.vertices.front().slopeNorth, 0.01F);
}
