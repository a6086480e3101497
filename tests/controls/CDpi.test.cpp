#include "controls/ControlsTest.h"

namespace
{

using CDpiTest = ControlsTest;

} // namespace

TEST(CDpi, RoundsToTheNearestWithHalvesAwayFromZero)
{
    const CDpi large(144);
    EXPECT_EQ(large.ToPx(20), 30);
    EXPECT_EQ(large.ToPx(1), 2); // 1.5
    EXPECT_EQ(large.ToPx(-1), -2);
    EXPECT_EQ(large.ToPx(-3), -5); // -4.5
    EXPECT_EQ(large.ToUnits(100), 67);
    EXPECT_EQ(large.ToUnits(CPoint(-4, 4)), CPoint(-3, 3)); // 2.67
    EXPECT_EQ(CDpi(120).ToPx(std::numeric_limits<int>::max()), std::numeric_limits<int>::max());
    EXPECT_EQ(CDpi(0), CDpi(96));
    EXPECT_EQ(CDpi(-5).Dpi(), 96);
    EXPECT_FALSE(large.IsUnit());
}

TEST(CDpi, NeighboursStillMeetAndUnitsSurviveTheWayThere)
{
    for (const int dpi : {96, 110, 120, 144, 192}) {
        const CDpi scale(dpi);
        for (int x = -50; x < 50; ++x) {
            const CRect left = scale.ToPx(CRect(x, 0, x + 7, 9));
            const CRect right = scale.ToPx(CRect(x + 7, 0, x + 11, 9));
            ASSERT_EQ(left.right, right.left) << dpi << " " << x;
            ASSERT_EQ(scale.ToUnits(scale.ToPx(x)), x) << dpi;
        }
    }
}

TEST_F(CDpiTest, AWindowHasItsOwnScaleOrThatOfTheNearestParent)
{
    PlainCtrl outer;
    PlainCtrl inner;
    outer.rc = CRect(0, 0, 100, 100);
    Open(outer);
    inner.Create(WS_VISIBLE, CRect(0, 0, 50, 50), &outer, 2);
    EXPECT_EQ(CDpi::Of(inner).Dpi(), 96);
    CDpi(144).Set(parent);
    EXPECT_EQ(CDpi::Of(inner).Dpi(), 144);
    CDpi(192).Set(outer);
    EXPECT_EQ(CDpi::Of(inner).Dpi(), 192);
    EXPECT_EQ(CDpi::Of(parent).Dpi(), 144);
    EXPECT_EQ(inner.ClientRc(), CRect(0, 0, 25, 25));
}

TEST_F(CDpiTest, WithoutOneTheSystemDecides)
{
    CWnd other;
    ASSERT_TRUE(other.CreateEx(0, Vant::wndClass, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    const HDC screen = ::GetDC(nullptr);
    EXPECT_EQ(CDpi::Of(other).Dpi(), ::GetDeviceCaps(screen, LOGPIXELSX));
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(CDpi::Of(nullptr).Dpi(), 96);
    other.DestroyWindow();
}

TEST_F(CDpiTest, AppliedItMakesAContextTakeUnits)
{
    Canvas canvas(100, 100);
    CDpi(144).Apply(canvas.Dc());
    canvas.Dc().FillSolidRect(10, 20, 20, 10, RGB(255, 0, 0));
    EXPECT_EQ(canvas.Bounds(RGB(255, 0, 0)), CRect(15, 30, 45, 45));
}
