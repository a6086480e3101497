#include "demo/detail/WindowPlace.h"

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
    const Box far{INT_MAX - 10, INT_MIN + 10, INT_MAX, INT_MIN + 30};
    const Box kept = KeepOnScreen(far, one);
    EXPECT_EQ(kept, demo::Overlap(kept, one[0]));
    EXPECT_EQ(far, KeepOnScreen(far, {}));
}
