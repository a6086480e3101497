#include "controls/detail/DropPlace.h"
#include "controls/detail/TypeAhead.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace vant::detail;

namespace vant::detail
{
void PrintTo(const ScreenBox& r, std::ostream* out)
{
    *out << "(" << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << ")";
}
} // namespace vant::detail

TEST(DropPlace, OpensWhereThereIsRoom)
{
    const ScreenBox area{0, 0, 1000, 800};
    const ScreenBox high{100, 100, 200, 120};
    const ScreenBox low{100, 700, 200, 720};
    const DropSize size{300, 100, 24};
    EXPECT_EQ(PlaceDrop(high, area, Side::Below, size), (ScreenBox{100, 120, 200, 420}));
    EXPECT_EQ(PlaceDrop(low, area, Side::Below, size), (ScreenBox{100, 400, 200, 700}));
    EXPECT_EQ(PlaceDrop(low, area, Side::Above, size), (ScreenBox{100, 400, 200, 700}));
    EXPECT_EQ(PlaceDrop(high, area, Side::Above, size), (ScreenBox{100, 120, 200, 420}));
    EXPECT_EQ(PlaceDrop(high, area, Side::Right, size), (ScreenBox{200, 100, 500, 200}));
    EXPECT_EQ(PlaceDrop(high, area, Side::Left, size), (ScreenBox{200, 100, 500, 200})) << "more room there";

    EXPECT_EQ(PlaceDrop(high, area, Side::Below, {900, 100, 24}), (ScreenBox{100, 120, 200, 800})) << "cut";
    EXPECT_EQ(PlaceDrop(low, area, Side::Below, {900, 100, 24}), (ScreenBox{100, 0, 200, 700}));
}

TEST(DropPlace, StaysInsideTheArea)
{
    // A monitor to the left of the main one.
    const ScreenBox area{-1000, -200, 0, 600};
    EXPECT_EQ(PlaceDrop({-50, 0, 50, 20}, area, Side::Below, {100, 100, 24}), (ScreenBox{-100, 20, 0, 120}));
    EXPECT_EQ(PlaceDrop({-1100, 590, -1000, 640}, area, Side::Below, {100, 100, 24}),
              (ScreenBox{-1000, 490, -900, 590}));
    EXPECT_EQ(PlaceDrop({-500, 0, -400, 20}, area, Side::Below, {100, 2000, 24}),
              (ScreenBox{-1000, 20, 1000, 120}))
        << "what is too wide begins at the left";
    // No room on either side: one entry over the box.
    EXPECT_EQ(PlaceDrop({-500, -200, -400, 600}, area, Side::Below, {100, 100, 24}),
              (ScreenBox{-500, 576, -400, 600}));
}

TEST(TypeAhead, CountsTogetherWhatIsTypedSoon)
{
    TypeAhead typed;
    EXPECT_FALSE(typed.IsTyping(0));
    EXPECT_EQ(typed.Type(L's', 5000), L"s");
    EXPECT_FALSE(typed.IsRepeated());
    EXPECT_EQ(typed.Type(L't', 5999), L"st");
    EXPECT_TRUE(typed.IsTyping(6998));
    EXPECT_FALSE(typed.IsTyping(6999));
    EXPECT_EQ(typed.Type(L't', 6999), L"t");
    EXPECT_EQ(typed.Type(L't', 7000), L"tt");
    EXPECT_TRUE(typed.IsRepeated());
    EXPECT_EQ(typed.Type(L'a', 7000), L"tta");
    EXPECT_FALSE(typed.IsRepeated());
    typed.Reset();
    EXPECT_EQ(typed.Type(L'a', 7001), L"a");

    // The system's clock begins anew after 49.7 days.
    typed.Reset();
    EXPECT_EQ(typed.Type(L'x', 0xFFFFFFF0u), L"x");
    EXPECT_EQ(typed.Type(L'y', 0x00000010u), L"xy");
}
