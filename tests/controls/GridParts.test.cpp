#include "controls/detail/CellSelection.h"
#include "controls/detail/ColumnLayout.h"
#include "controls/detail/SortIndex.h"
#include "controls/detail/TabText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

using namespace vant::detail;
using testing::ElementsAre;
using testing::Pair;

namespace vant::detail
{
static void PrintTo(const CellRange& r, std::ostream* out)
{
    *out << "rows " << r.top << "-" << r.bottom << ", columns " << r.left << "-" << r.right;
}
} // namespace vant::detail

namespace
{

CellSelection Selection(int rows, int cols)
{
    CellSelection sel;
    sel.SetSize(rows, cols);
    return sel;
}

template <class Key>
std::vector<int> Sorted(const std::vector<Key>& keys, bool descending)
{
    SortIndex order;
    order.Sort(keys, descending);
    std::vector<int> rows;
    for (int place = 0; place < static_cast<int>(keys.size()); ++place) {
        rows.push_back(order.RowAt(place));
        EXPECT_EQ(order.PlaceOf(rows.back()), place);
    }
    return rows;
}

} // namespace

TEST(ColumnLayout, HiddenColumnsAreNowhere)
{
    ColumnLayout layout;
    layout.Set({50, 0, 30, 0});
    EXPECT_EQ(layout.Total(), 80);
    EXPECT_EQ(layout.At(49), 0);
    EXPECT_EQ(layout.At(50), 2);
    EXPECT_EQ(layout.At(80), -1);
    EXPECT_EQ(layout.At(-1), -1);
    EXPECT_EQ(layout.BorderAt(52, 4), 0) << "not the hidden one's";
    EXPECT_EQ(layout.BorderAt(76, 4), 2);
    EXPECT_EQ(layout.BorderAt(60, 4), -1);
    EXPECT_EQ(layout.Next(0, 1), 2);
    EXPECT_EQ(layout.Next(2, 1), -1);
    EXPECT_EQ(layout.Next(layout.Count(), -1), 2);
}

TEST(CellSelection, ExtendsFromWhereItBegan)
{
    CellSelection sel = Selection(10, 4);
    EXPECT_EQ(sel.Current(), (GridCell{0, 0}));
    sel.Go({5, 2});
    sel.Extend({3, 3});
    sel.Extend({7, 1});
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{5, 1, 7, 2}));
    sel.Extend({99, -5});
    EXPECT_EQ(sel.Current(), (GridCell{9, 0}));
    sel.Toggle({0, 3}, true);
    sel.Extend({1, 3});
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{5, 0, 9, 2}, CellRange{0, 0, 1, 3}));
    EXPECT_THAT(sel.RowSpans(), ElementsAre(Pair(0, 1), Pair(5, 9)));
    EXPECT_THAT(sel.Columns(), ElementsAre(true, true, true, true));
    sel.wholeRows = true;
    sel.Go({4, 2});
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{4, 0, 4, 3}));
}

TEST(CellSelection, ACellIsTakenOutOfTheMiddle)
{
    CellSelection sel = Selection(5, 5);
    sel.All();
    sel.Toggle({2, 2});
    for (int row = 0; row < 5; ++row)
        for (int col = 0; col < 5; ++col)
            EXPECT_EQ(sel.Has(row, col), row != 2 || col != 2) << row << ", " << col;
    EXPECT_EQ(sel.Current(), (GridCell{2, 2}));
    sel.Extend({2, 3});
    EXPECT_TRUE(sel.Has(2, 2)) << "a new range, and no old one replaced";
    EXPECT_TRUE(sel.Has(4, 4));
}

TEST(CellSelection, MovesWithItsRows)
{
    CellSelection sel = Selection(10, 2);
    sel.Go({4, 0});
    sel.Extend({6, 1});
    sel.InsertRows(5, 3);
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{4, 0, 9, 1}));
    sel.InsertRows(0, 1);
    EXPECT_EQ(sel.Current(), (GridCell{10, 1}));
    sel.RemoveRows(0, 6);
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{0, 0, 4, 1}));
    sel.RemoveRows(3, 2);
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{0, 0, 2, 1}));
    EXPECT_EQ(sel.Current(), (GridCell{3, 1})) << "the row that came to the place of its own";
    sel.Go({0, 1});
    sel.RemoveRows(0, 1);
    EXPECT_THAT(sel.Ranges(), ElementsAre(CellRange{0, 1, 0, 1})) << "something is always selected";
    sel.RemoveRows(0, 5);
    EXPECT_EQ(sel.Current(), GridCell());
}

TEST(SortIndex, IsStableBothWays)
{
    EXPECT_THAT(Sorted<int>({2, 1, 2, 1}, false), ElementsAre(1, 3, 0, 2));
    EXPECT_THAT(Sorted<int>({2, 1, 2, 1}, true), ElementsAre(0, 2, 1, 3));
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(Sorted<double>({none, 2, none, 1}, false), ElementsAre(3, 1, 0, 2));
    EXPECT_THAT(Sorted<double>({none, 2, none, 1}, true), ElementsAre(1, 3, 0, 2)) << "missing stays last";
}

TEST(SortIndex, FollowsItsRows)
{
    SortIndex order;
    order.Sort(std::vector<int>{5, 4, 3, 2, 1}, false);
    order.InsertRows(1, 2);
    EXPECT_EQ(order.RowAt(0), 6);
    EXPECT_EQ(order.RowAt(4), 0);
    EXPECT_EQ(order.RowAt(5), 1) << "new ones stand last";
    EXPECT_THAT(order.RemoveRows(0, 2), ElementsAre(Pair(4, 5)));
    EXPECT_EQ(order.PlaceOf(0), 4);
    EXPECT_EQ(order.RowAt(0), 4);
}

TEST(TabText, KeepsTheShapeOfTheTable)
{
    TabText text;
    text.AddCell(L"");
    text.AddCell(L"a\t\r\nb");
    text.AddCell(std::wstring_view(L"\0c\n", 3));
    text.EndRow();
    text.AddCell(L"1");
    text.EndRow();
    EXPECT_EQ(text.Text(), L"\ta b\t c \r\n1\r\n");
}
