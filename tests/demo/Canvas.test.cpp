#include "demo/detail/Canvas.h"

#include "demo/detail/Quantities.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <random>

using namespace demo;

namespace
{

constexpr Ink white{255, 255, 255};

struct Picture {
    int width;
    int height;
    std::vector<std::uint32_t> pixels;
    Canvas canvas;

    Picture(int w, int h)
        : width(w)
        , height(h)
        , pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) + 2, 0)
        , canvas(pixels.data() + 1, w, h)
    {
        pixels.front() = pixels.back() = 0xDEADBEEF;
    }

    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x) + 1]; }

    /** Sum of one channel over the picture, 1 for a pixel that is fully white. */
    double Area() const
    {
        double sum = 0.0;
        for (std::size_t i = 1; i + 1 < pixels.size(); ++i)
            sum += (pixels[i] & 0xFFU) / 255.0;
        return sum;
    }

    bool IsFramed() const { return pixels.front() == 0xDEADBEEF && pixels.back() == 0xDEADBEEF; }
};

} // namespace

TEST(Canvas, CoversPixelsByTheirShare)
{
    Picture picture(8, 4);
    Path path;
    const Point box[] = {{1.25, 1.0}, {4.5, 1.0}, {4.5, 2.5}, {1.25, 2.5}};
    path.AddPolygon(box);
    picture.canvas.Fill(path, white);
    EXPECT_EQ(0U, picture.At(0, 1));
    EXPECT_EQ(191U, picture.At(1, 1) & 0xFFU);
    EXPECT_EQ(0xFFFFFFU, picture.At(2, 1));
    EXPECT_EQ(128U, picture.At(4, 1) & 0xFFU);
    EXPECT_EQ(0U, picture.At(5, 1));
    EXPECT_EQ(128U, picture.At(2, 2) & 0xFFU);
    EXPECT_EQ(64U, picture.At(4, 2) & 0xFFU);
    EXPECT_EQ(0U, picture.At(2, 0));
    EXPECT_EQ(0U, picture.At(2, 3));
}

TEST(Canvas, ShapesHaveTheirArea)
{
    Picture picture(100, 100);
    Path circle;
    circle.AddCircle({50.3, 49.6}, 30.0);
    picture.canvas.Fill(circle, white);
    EXPECT_NEAR(std::numbers::pi * 900.0, picture.Area(), 12.0);

    Picture ringPicture(100, 100);
    Path ring;
    ring.AddRing({50.0, 50.0}, 20.0, 30.0);
    ringPicture.canvas.Fill(ring, white);
    EXPECT_NEAR(std::numbers::pi * 500.0, ringPicture.Area(), 12.0);
    EXPECT_EQ(0U, ringPicture.At(50, 50));

    Picture arcPicture(100, 100);
    Path arc;
    arc.AddArc({50.0, 50.0}, 20.0, 30.0, 0.0, std::numbers::pi / 2.0);
    arcPicture.canvas.Fill(arc, white);
    EXPECT_NEAR(std::numbers::pi * 125.0, arcPicture.Area(), 4.0);
    EXPECT_NE(0U, arcPicture.At(67, 32)) << "clockwise from the top: the upper right";
}

TEST(Canvas, OverlapsInOnePathAreCoveredOnce)
{
    Picture picture(40, 20);
    Path path;
    const Point line[] = {{5.0, 10.0}, {20.0, 10.0}, {35.0, 10.0}};
    path.AddPolyline(line, 4.0);
    picture.canvas.Fill(path, {200, 200, 200, 0.5});
    EXPECT_EQ(100U, picture.At(20, 10) & 0xFFU) << "the joint is no darker than the rest";
    EXPECT_EQ(100U, picture.At(12, 10) & 0xFFU);
    EXPECT_NEAR(30.0 * 4.0 + std::numbers::pi * 4.0, picture.Area() * 255.0 / 100.0, 2.5);
}

TEST(Canvas, ANeedleIsMadeUprightAndPlaced)
{
    Path needle;
    needle.AddLine({0.0, 0.0}, {0.0, -10.0}, 2.0);
    needle.Place(90.0 * degree, {20.0, 20.0});
    Picture picture(40, 40);
    picture.canvas.Fill(needle, white);
    EXPECT_NE(0U, picture.At(28, 20));
    EXPECT_EQ(0U, picture.At(20, 12));
    EXPECT_NEAR(20.0, picture.Area(), 0.2);
}

TEST(Canvas, StaysInsideTheClipAndThePicture)
{
    Picture picture(20, 20);
    Path path;
    path.AddCircle({10.0, 10.0}, 200.0);
    picture.canvas.SetClip({5, 5, 10, 10});
    picture.canvas.Fill(path, white);
    EXPECT_NEAR(25.0, picture.Area(), 1e-9);
    picture.canvas.ClearClip();
    picture.canvas.Fill(path, white);
    EXPECT_NEAR(400.0, picture.Area(), 1e-9);
    EXPECT_TRUE(picture.IsFramed());
}

TEST(Canvas, SurvivesAnyShape)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> around(-30.0, 60.0);
    const double wild[] = {1.0e30,
                           -1.0e30,
                           0.0,
                           1.0e9,
                           std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()};
    Picture picture(31, 17);
    for (int round = 0; round < 3000; ++round) {
        Path path;
        std::vector<Point> points;
        for (std::size_t n = random() % 9; n > 0; --n)
            points.push_back({random() % 50 == 0 ? wild[random() % 6] : around(random),
                              random() % 50 == 0 ? wild[random() % 6] : around(random)});
        path.AddPolygon(points);
        path.AddPolyline(points, around(random));
        picture.canvas.SetClip({static_cast<int>(around(random)), static_cast<int>(around(random)),
                                static_cast<int>(around(random)), static_cast<int>(around(random))});
        picture.canvas.FillFading(path, white, {0, 0, 0, 0.0}, 0.0, around(random));
    }
    EXPECT_TRUE(picture.IsFramed());
}
