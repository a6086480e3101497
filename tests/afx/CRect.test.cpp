#include <afx.h>

#include <gtest/gtest.h>

TEST(CPoint, AddsAndSubtracts)
{
    CPoint p(3, 4);
    p += CSize(1, 1);
    p -= POINT{2, 0};
    EXPECT_EQ(p, CPoint(2, 5));
    EXPECT_EQ(p - CPoint(1, 1), CSize(1, 4));
    EXPECT_EQ(-p, CPoint(-2, -5));
    EXPECT_EQ(CPoint(MAKELPARAM(0xFFFF, 7)), CPoint(-1, 7)) << "mouse positions are signed";
    EXPECT_EQ(CSize(2, 3) + CPoint(1, 1), CPoint(3, 4));
    EXPECT_EQ(-CSize(2, 3) + CSize(1, 1), CSize(-1, -2));
}

TEST(CRect, MeasuresAndMoves)
{
    CRect r(10, 20, 30, 60);
    EXPECT_EQ(r.Width(), 20);
    EXPECT_EQ(r.Height(), 40);
    EXPECT_EQ(r.Size(), CSize(20, 40));
    EXPECT_EQ(r.CenterPoint(), CPoint(20, 40));
    r.TopLeft() += CSize(1, 2);
    EXPECT_EQ(r, CRect(11, 22, 30, 60));
    EXPECT_TRUE(r.PtInRect(CPoint(11, 22)));
    EXPECT_FALSE(r.PtInRect(CPoint(30, 40)));
    r.MoveToXY(0, 0);
    EXPECT_EQ(r, CRect(0, 0, 19, 38));
    r.MoveToY(5);
    r.OffsetRect(CPoint(1, 0));
    EXPECT_EQ(r, CRect(CPoint(1, 5), CSize(19, 38)));
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    EXPECT_TRUE(CRect().IsRectNull());
}

TEST(CRect, GrowsAndShrinks)
{
    CRect r(10, 10, 20, 20);
    r.InflateRect(1, 2);
    EXPECT_EQ(r, CRect(9, 8, 21, 22));
    r.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(r, CRect(8, 6, 24, 26));
    r.DeflateRect(CSize(1, 1));
    EXPECT_EQ(r, CRect(9, 7, 23, 25));
    const CRect border(1, 2, 3, 4);
    r.DeflateRect(border);
    EXPECT_EQ(r, CRect(10, 9, 20, 21));
    r += border;
    EXPECT_EQ(r, CRect(9, 7, 23, 25));
    CRect turned(30, 40, 10, 20);
    turned.NormalizeRect();
    EXPECT_EQ(turned, CRect(10, 20, 30, 40));
}

TEST(CRect, IntersectsAndUnites)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 20, 8);
    EXPECT_EQ(a & b, CRect(5, 5, 10, 8));
    EXPECT_EQ(a | b, CRect(0, 0, 20, 10));
    EXPECT_EQ(a | CRect(), a);
    CRect r = a;
    r &= CRect(50, 50, 60, 60);
    EXPECT_TRUE(r.IsRectNull());
    r = a;
    r |= b;
    EXPECT_EQ(r, CRect(0, 0, 20, 10));
    EXPECT_TRUE(r.SubtractRect(a, CRect(5, 0, 20, 10)));
    EXPECT_EQ(r, CRect(0, 0, 5, 10));
    EXPECT_EQ(a + CPoint(1, 2), CRect(1, 2, 11, 12));
    EXPECT_EQ(a - CSize(1, 2), CRect(-1, -2, 9, 8));
}
