#include "demo/detail/WindowPlace.h"
#include "demo/detail/PopupPlaces.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <vector>

using demo::Box;
using demo::KeepOnScreen;

namespace demo
{
void PrintTo(const Box& box, std::ostream* out)
{
    *out << box.left << "," << box.top << " to " << box.right << "," << box.bottom;
}
} // namespace demo

namespace
{
const std::vector<Box> one = {{0, 0, 1600, 1160}};
const std::vector<Box> two = {{0, 0, 1600, 1160}, {1600, 200, 2880, 1224}};
} // namespace

TEST(WindowPlace, LeavesAWindowThatCanBeReached)
{
    for (const Box& window :
         {Box{100, 100, 1380, 900}, Box{-1000, 300, 280, 1100}, Box{1400, 1100, 2680, 1900}})
        EXPECT_EQ(window, KeepOnScreen(window, one));
    EXPECT_EQ((Box{1700, 300, 2500, 900}), KeepOnScreen({1700, 300, 2500, 900}, two))
        << "on the second monitor";
}

TEST(WindowPlace, BringsBackALostWindow)
{
    EXPECT_EQ((Box{0, 360, 1280, 1160}), KeepOnScreen({-5000, 3000, -3720, 3800}, one));
    EXPECT_EQ((Box{320, 100, 1600, 900}), KeepOnScreen({1580, 100, 2860, 900}, one))
        << "too little to take hold of";
    EXPECT_EQ((Box{100, 0, 1380, 800}), KeepOnScreen({100, -30, 1380, 770}, one))
        << "title bar above the screen";
    EXPECT_EQ((Box{1600, 424, 2880, 1224}), KeepOnScreen({1700, 1300, 2980, 2100}, two))
        << "to the nearest monitor";
}

TEST(WindowPlace, ShrinksWhatDoesNotFit)
{
    EXPECT_EQ((Box{0, 0, 1600, 1160}), KeepOnScreen({3000, 0, 6840, 2160}, one));
}

TEST(WindowPlace, SurvivesAnyNumbers)
{
    const Box outside{INT_MAX - 10, INT_MIN + 10, INT_MAX, INT_MIN + 30};
    const Box kept = KeepOnScreen(outside, one);
    EXPECT_EQ(kept, demo::Overlap(kept, one[0]));
    EXPECT_EQ(outside, KeepOnScreen(outside, {}));
}

TEST(PopupPlaces, TheViewsLieBesideTheBridgeWhereTheScreenHasRoom)
{
    constexpr int width = 1508;
    constexpr int height = 1013;
    constexpr int least = 713;
    const auto apart = [](const Box& a, const Box& b) {
        const Box both = demo::Overlap(a, b);
        return both.Width() == 0 || both.Height() == 0;
    };
    const auto inside = [](const Box& a, const Box& work) { return demo::Overlap(a, work) == a; };
    for (const Box& work : {Box{0, 0, 1920, 1040}, Box{0, 0, 1600, 1200}, Box{0, 40, 2560, 1440}}) {
        const Box bridge = demo::BridgePlace(width, height, least, work, 1.0);
        const auto views = demo::PopupPlaces::Beside(bridge, work, 1.0);
        const Box all[] = {bridge, views.chart, views.orbit, views.colours};
        for (const Box& box : all) {
            EXPECT_TRUE(inside(box, work)) << work.Width();
            for (const Box& other : all)
                EXPECT_TRUE(&box == &other || apart(box, other)) << work.Width();
        }
        EXPECT_TRUE(inside(views.survey, bridge)) << "over it: it is closed at first";
        EXPECT_GE(views.chart.Width(), demo::PopupPlaces::leastWidth);
        EXPECT_GE(views.orbit.Height(), demo::PopupPlaces::leastHeight);
        EXPECT_GE(views.colours.Width(), demo::PopupPlaces::leastWidth);
        EXPECT_GE(bridge.Height(), least);
    }
}

TEST(PopupPlaces, OnASmallScreenTheyLieOverTheBridge)
{
    const Box work{0, 0, 1366, 728};
    const Box bridge = demo::BridgePlace(1508, 1013, 713, work, 1.0);
    EXPECT_EQ(work, bridge);
    const auto views = demo::PopupPlaces::Beside(bridge, work, 1.0);
    EXPECT_EQ(views.chart, demo::Overlap(views.chart, work));
    EXPECT_EQ(views.orbit, demo::Overlap(views.orbit, work));
    EXPECT_EQ(views.colours, demo::Overlap(views.colours, work));
    EXPECT_EQ(views.survey, demo::Overlap(views.survey, work));
    EXPECT_GT(views.orbit.left, views.chart.left) << "each can be taken hold of";
    EXPECT_GT(views.orbit.top, views.chart.top);
}
