#include "controls/detail/RowScroll.h"

#include <gtest/gtest.h>

using vant::detail::RowScroll;

TEST(RowScroll, StaysWithinTheRows)
{
    RowScroll scroll;
    EXPECT_TRUE(scroll.AtEnd());
    scroll.SetRows(30);
    scroll.SetPage(10);
    scroll.ScrollTo(100);
    EXPECT_EQ(scroll.First(), 20);
    scroll.ScrollTo(-3);
    EXPECT_EQ(scroll.First(), 0);

    // Fewer rows or a taller page pull the first row back.
    scroll.ScrollTo(20);
    scroll.SetRows(25);
    EXPECT_EQ(scroll.First(), 15);
    scroll.SetPage(40);
    EXPECT_EQ(scroll.First(), 0);
    scroll.SetPage(0);
    EXPECT_EQ(scroll.Page(), 1);
    scroll.SetRows(-1);
    EXPECT_EQ(scroll.Rows(), 0);
}

TEST(RowScroll, ShowsARowWithTheLeastScrolling)
{
    RowScroll scroll;
    scroll.SetRows(30);
    scroll.SetPage(10);
    scroll.Show(9);
    EXPECT_EQ(scroll.First(), 0);
    scroll.Show(10);
    EXPECT_EQ(scroll.First(), 1);
    scroll.Show(0);
    EXPECT_EQ(scroll.First(), 0);
}

TEST(RowScroll, TheThumbStandsForTheRowsInView)
{
    RowScroll scroll;
    scroll.SetRows(10);
    scroll.SetPage(10);
    EXPECT_EQ(scroll.Thumb(100, 20), (RowScroll::Span{}));
    EXPECT_EQ(scroll.FirstAt(50, 100, 20), 0);

    scroll.SetRows(40);
    EXPECT_EQ(scroll.Thumb(100, 20), (RowScroll::Span{0, 25}));
    scroll.ScrollTo(30);
    EXPECT_EQ(scroll.Thumb(100, 20), (RowScroll::Span{75, 25}));
    // However many rows there are, the thumb can be gripped, as far as there is room.
    scroll.SetRows(2'000'000'000);
    EXPECT_EQ(scroll.Thumb(100, 20).length, 20);
    EXPECT_EQ(scroll.Thumb(15, 20).length, 15);
    EXPECT_EQ(scroll.FirstAt(7, 15, 20), 0);
    EXPECT_EQ(scroll.Thumb(0, 20), (RowScroll::Span{}));
}

TEST(RowScroll, APlaceOfTheThumbLeadsBackToItsRow)
{
    RowScroll scroll;
    scroll.SetRows(57);
    scroll.SetPage(7);
    for (int first = 0; first <= scroll.MaxFirst(); ++first) {
        scroll.ScrollTo(first);
        EXPECT_EQ(scroll.FirstAt(scroll.Thumb(300, 20).from, 300, 20), first);
    }
    EXPECT_EQ(scroll.FirstAt(-10, 300, 20), 0);
    EXPECT_EQ(scroll.FirstAt(1000, 300, 20), scroll.MaxFirst());
}
