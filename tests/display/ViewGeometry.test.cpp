// The arithmetic of views, without a window: cameras, graticules, selection records.

#include "display/detail/ViewGeometry.h"
#include "display/detail/Graticule.h"
#include "display/detail/SelectHits.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace
{

using namespace vant::detail;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double degree = std::numbers::pi / 180;
constexpr Point3 faraway{489'600.125, 5'832'400.25, -31};

ViewCamera Chart(double align = 0)
{
    return {false, faraway, 300, align * degree, 0, 40 * degree};
}

ViewCamera Scene(double align = 30, double elev = 35)
{
    return {true, faraway, 300, align * degree, elev * degree, 40 * degree};
}

double Distance(const Point3& a, const Point3& b)
{
    return std::sqrt(Dot(a - b, a - b));
}

/** What OpenGL makes of a point: the matrices applied, from -1 to 1. */
Point3 ByMatrices(const ViewGeometry& view, const ViewMatrix& projection, const Point3& pt)
{
    const ViewMatrix modelView = view.ModelView(pt); // the point is the zero of the coordinates
    double clip[4];
    for (std::size_t row = 0; row < 4; ++row) {
        clip[row] = 0;
        for (std::size_t i = 0; i < 4; ++i)
            clip[row] += projection[i * 4 + row] * modelView[12 + i];
    }
    return {clip[0] / clip[3], clip[1] / clip[3], clip[2] / clip[3]};
}

TEST(ViewGeometryTest, ShowsAChartWithItsBearingUp)
{
    const ViewGeometry north(Chart(), 400, 200);
    EXPECT_DOUBLE_EQ(north.PxSize(), 1.5);
    double x = 0;
    double y = 0;
    ASSERT_TRUE(north.ToPx(faraway + Point3{15, 30, 5}, x, y));
    EXPECT_NEAR(x, 210, 1e-6);
    EXPECT_NEAR(y, 80, 1e-6);
    // East up: what is east is above the middle, what is north to the left.
    const ViewGeometry east(Chart(90), 400, 200);
    ASSERT_TRUE(east.ToPx(faraway + Point3{15, 30, 0}, x, y));
    EXPECT_NEAR(x, 180, 1e-6);
    EXPECT_NEAR(y, 90, 1e-6);
    EXPECT_FALSE(ViewGeometry(Chart(), 400, 0.5).ToPx(faraway, x, y));
}

TEST(ViewGeometryTest, OrbitsAroundItsOrigin)
{
    const ViewGeometry view(Scene(0, 35), 400, 200);
    const double distance = EyeDistance(view.Camera());
    EXPECT_NEAR(Distance(view.AtDepth(200, 100, distance), faraway), 0, 1e-6);
    // The eye is south of what it looks at, and above it.
    const Point3 eye = view.AtDepth(200, 100, 0);
    EXPECT_NEAR(eye.y - faraway.y, -distance * std::cos(35 * degree), 1e-6);
    EXPECT_NEAR(eye.z - faraway.z, distance * std::sin(35 * degree), 1e-6);
    // The height of the view at the origin is the zoom, whatever the angle of the lens.
    double x = 0;
    double y = 0;
    ASSERT_TRUE(view.ToPx(faraway + view.Axes().up * 150, x, y));
    EXPECT_NEAR(y, 0, 1e-6);
    EXPECT_FALSE(view.ToPx(eye + view.Axes().front * 10, x, y));
}

TEST(ViewGeometryTest, AgreesWithTheMatricesThatDraw)
{
    for (ViewGeometry view :
         {ViewGeometry(Chart(25), 640, 480), ViewGeometry(Scene(), 640, 480),
          ViewGeometry(Scene(200, -60), 640, 480), ViewGeometry(Scene(10, 90), 480, 640)}) {
        for (const bool fits : {false, true}) {
            if (fits)
                view.FitDepth({faraway - Point3{90, 90, 60}, faraway + Point3{90, 90, 10}});
            const Point3 pt = faraway + Point3{40, -25, 7};
            const Point3 drawn = ByMatrices(view, view.Projection(), pt);
            double x = 0;
            double y = 0;
            ASSERT_TRUE(view.ToPx(pt, x, y));
            EXPECT_NEAR((drawn.x + 1) / 2 * view.Width(), x, 1e-6);
            EXPECT_NEAR((1 - drawn.y) / 2 * view.Height(), y, 1e-6);
            const double depth = view.DepthOfWindow((drawn.z + 1) / 2);
            EXPECT_LT(Distance(view.AtDepth(x, y, depth), pt), 1e-4);
            EXPECT_GE(drawn.z, -1);
            EXPECT_LE(drawn.z, 1);
            // A pick sees the same, a pixel being the whole of it.
            const Point3 picked = ByMatrices(view, view.PickProjection(x, y, 1), pt);
            EXPECT_NEAR(picked.x, 0, 1e-5);
            EXPECT_NEAR(picked.y, 0, 1e-5);
            const Point3 beside = ByMatrices(view, view.PickProjection(x + 3, y, 10), pt);
            EXPECT_NEAR(beside.x, -0.6, 1e-5);
        }
    }
}

TEST(ViewGeometryTest, FindsTheGroundUnderAPosition)
{
    for (const ViewGeometry& view : {ViewGeometry(Chart(25), 640, 480), ViewGeometry(Scene(), 640, 480)}) {
        Point3 pt;
        ASSERT_TRUE(view.OnLevel(100, 400, -40, pt));
        double x = 0;
        double y = 0;
        ASSERT_TRUE(view.ToPx(pt, x, y));
        EXPECT_EQ(pt.z, -40);
        EXPECT_NEAR(x, 100, 1e-6);
        EXPECT_NEAR(y, 400, 1e-6);
    }
    Point3 pt{1, 2, 3};
    EXPECT_FALSE(ViewGeometry(Scene(30, 5), 640, 480).OnLevel(320, 2, -31, pt)); // the sky
    EXPECT_FALSE(ViewGeometry(Scene(30, 0), 640, 480).OnLevel(320, 240, -31, pt));
    EXPECT_EQ(pt, (Point3{1, 2, 3}));
    // Where the ground cannot be taken hold of, the plane across the view can.
    const ViewGeometry flat(Scene(30, 0), 640, 480);
    bool isLevel = true;
    const Point3 grabbed = flat.Grab(320, 100, isLevel);
    EXPECT_FALSE(isLevel);
    ASSERT_TRUE(flat.OnGrabbed(320, 100, isLevel, pt));
    EXPECT_EQ(grabbed, pt);
}

TEST(GraticuleTest, HasTheRoundLinesOfTheView)
{
    const std::vector<GridLine> lines = PlanGrid(ViewGeometry(Chart(), 200, 100), 200);
    ASSERT_EQ(lines.size(), 4U); // 600 m wide, 300 m high
    EXPECT_EQ(lines[0].steps, 489'400 / 200);
    EXPECT_TRUE(lines[0].isEasting);
    EXPECT_NEAR(lines[0].x0, 100 - 200.125 / 3, 1e-6);
    EXPECT_EQ(lines[0].x0, lines[0].x1);
    EXPECT_NEAR(std::abs(lines[0].y1 - lines[0].y0), 100, 1e-6);
    EXPECT_EQ(lines[3].steps, 5'832'400 / 200);
    EXPECT_FALSE(lines[3].isEasting);

    // Turned, clipped to the view.
    for (const GridLine& line : PlanGrid(ViewGeometry(Chart(33), 200, 100), 50)) {
        for (const double at : {line.x0, line.x1})
            EXPECT_TRUE(at >= -1e-9 && at <= 200 + 1e-9);
        for (const double at : {line.y0, line.y1})
            EXPECT_TRUE(at >= -1e-9 && at <= 100 + 1e-9);
    }
    EXPECT_THAT(PlanGrid(ViewGeometry(Chart(), 200, 100), 1e-4), IsEmpty());
    EXPECT_THAT(PlanGrid(ViewGeometry(Chart(), 200, 100), 0), IsEmpty());
    EXPECT_THAT(PlanGrid(ViewGeometry(Chart(), 200, 100), std::nan("")), IsEmpty());
    EXPECT_THAT(PlanGrid(ViewGeometry(Chart(), 0, 0), 10), IsEmpty());

    const GroundLines ground = GroundGrid(ViewGeometry(Scene(), 200, 100), 50);
    EXPECT_EQ(ground.centre, (Point3{489'600, 5'832'400, -31}));
    EXPECT_FALSE(ground.lines.empty());
    for (const GroundLine& line : ground.lines)
        EXPECT_TRUE(line.strengthFrom >= 0 && line.strengthFrom <= 1);
}

TEST(GraticuleTest, WritesCoordinates)
{
    EXPECT_EQ(GridText(29'162, 200, false), L"5 832 400 N");
    EXPECT_EQ(GridText(-3, 0.15, true), L"0.45 W");
    EXPECT_EQ(GridText(0, 5, true), L"0");
    EXPECT_EQ(GridText(-2, 1'000, false), L"2 000 S");
    EXPECT_EQ(GridNumber(-0.0004, 0.5), L"0.0");
    EXPECT_EQ(GridNumber(-1'234.5, 0.5), L"-1 234.5");
    EXPECT_EQ(GridNumber(999, 1), L"999");
    // Feet come from metres, a little off.
    EXPECT_EQ(GridNumber(5.0000001, 5.0000001), L"5");
}

TEST(GraticuleTest, PutsTextsToTheEdgesWithoutOverlap)
{
    const ViewGeometry view(Chart(), 200, 100);
    const auto at = [&](const GridLine& line, std::size_t choice = 0) {
        const TextPlace place = PlacesAtEdges(line, view, 30, 10, 4)[choice];
        return std::vector{place.left, place.top, place.right, place.bottom};
    };
    EXPECT_THAT(at({80, 0, 80, 100, 1, true}), ElementsAre(65, 86, 95, 96));
    EXPECT_THAT(at({0, 50, 200, 50, 1, false}), ElementsAre(4, 45, 34, 55));
    EXPECT_THAT(at({150, 0, 200, 50, 1, false}), ElementsAre(166, 45, 196, 55));
    EXPECT_THAT(at({150, 0, 200, 50, 1, false}, 1), ElementsAre(135, 4, 165, 14));

    TakenPlaces taken;
    EXPECT_TRUE(taken.Take({0, 0, 10, 10}, 0));
    EXPECT_TRUE(taken.Take({10, 0, 20, 10}, 0));
    EXPECT_FALSE(taken.Take({22, 0, 30, 10}, 3));
    EXPECT_FALSE(taken.Take({5, 5, 6, 6}, 0));
    EXPECT_TRUE(taken.Take({24, 0, 30, 10}, 3));
}

TEST(SelectHitsTest, ReadsRecordsAndJoinsThoseOfOneName)
{
    constexpr std::uint32_t half = 0x80000000;
    const std::uint32_t buffer[] = {2, half, half, 7, 1, 0, 5, 9, 2, 1, half, 7,
                                    1, 1,    3,    4, 8, 3, 2, 2, 7, 2, 6};
    const std::vector<SelectHit> hits = ReadSelectHits(buffer, 5);
    ASSERT_EQ(hits.size(), 4U);
    EXPECT_EQ(hits[0].owner, 7U);
    EXPECT_EQ(hits[0].part, 1U);
    EXPECT_NEAR(hits[0].depth, 0, 1e-9); // the second record is nearer
    EXPECT_EQ(hits[1].owner, 0U);
    EXPECT_EQ(hits[2].owner, 8U);
    EXPECT_EQ(hits[2].part, 0U);
    EXPECT_EQ(hits[3].part, 2U); // names below the second do not matter

    // More than there is, and a record that ends outside.
    EXPECT_EQ(ReadSelectHits(buffer, 100).size(), 4U);
    const std::uint32_t broken[] = {2, 0, 0, 1, 1, std::numeric_limits<std::uint32_t>::max(), 0, 0, 1};
    EXPECT_EQ(ReadSelectHits(broken, 2).size(), 1U);
    EXPECT_THAT(ReadSelectHits({}, 3), IsEmpty());
}

} // namespace
