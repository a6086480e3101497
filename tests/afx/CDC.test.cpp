#include "afx/Thrown.h"
#include "support/GdiCount.h"

#include <afxwin.h>
#include <gtest/gtest.h>

namespace
{

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);
constexpr COLORREF Black = RGB(0, 0, 0);

/** A bitmap in a memory device context, black at first. */
class Canvas : public testing::Test
{
protected:
    void SetUp() override
    {
        CClientDC screen(nullptr);
        ASSERT_TRUE(dc.CreateCompatibleDC(&screen));
        ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 64, 64));
        old = dc.SelectObject(&bitmap);
        ASSERT_NE(old, nullptr);
        dc.PatBlt(0, 0, 64, 64, BLACKNESS);
    }
    void TearDown() override { dc.SelectObject(old); }

    CDC dc;
    CBitmap bitmap;
    CBitmap* old = nullptr;
};

} // namespace

TEST_F(Canvas, LinesAndAreasFallOnTheirPixels)
{
    CPen pen(PS_SOLID, 1, Red);
    CBrush brush(Green);
    CPen* oldPen = dc.SelectObject(&pen);
    CBrush* oldBrush = dc.SelectObject(&brush);
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    dc.Rectangle(CRect(2, 3, 12, 13));
    EXPECT_EQ(dc.GetPixel(2, 3), Red);
    EXPECT_EQ(dc.GetPixel(11, 12), Red);
    EXPECT_EQ(dc.GetPixel(5, 5), Green);
    EXPECT_EQ(dc.GetPixel(12, 13), Black);

    EXPECT_EQ(dc.MoveTo(20, 20), CPoint(0, 0));
    dc.LineTo(30, 20);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(30, 20));
    EXPECT_EQ(dc.GetPixel(29, 20), Red);
    EXPECT_EQ(dc.GetPixel(30, 20), Black) << "the end is not drawn";

    dc.FillSolidRect(40, 40, 4, 4, Blue);
    EXPECT_EQ(dc.GetPixel(43, 43), Blue);
    EXPECT_EQ(dc.GetBkColor(), Blue) << "deliberately left changed";
    dc.Draw3dRect(CRect(50, 50, 60, 60), Red, Green);
    EXPECT_EQ(dc.GetPixel(50, 58), Red);
    EXPECT_EQ(dc.GetPixel(59, 50), Green);
    EXPECT_EQ(dc.GetPixel(55, 59), Green);
    EXPECT_EQ(dc.GetPixel(55, 55), Black);

    EXPECT_EQ(dc.SelectObject(oldPen), &pen);
    EXPECT_EQ(dc.SelectObject(oldBrush), &brush);
}

TEST_F(Canvas, CopiesStretchesAndBlends)
{
    CDC source;
    ASSERT_TRUE(source.CreateCompatibleDC(&dc));
    CBitmap image;
    ASSERT_TRUE(image.CreateCompatibleBitmap(&dc, 8, 8));
    CBitmap* before = source.SelectObject(&image);
    source.FillSolidRect(0, 0, 8, 8, Red);
    source.FillSolidRect(4, 0, 4, 8, Green);

    dc.BitBlt(10, 10, 8, 8, &source, 0, 0, SRCCOPY);
    EXPECT_EQ(dc.GetPixel(10, 10), Red);
    EXPECT_EQ(dc.GetPixel(17, 17), Green);
    EXPECT_EQ(dc.GetPixel(18, 18), Black);
    dc.SetStretchBltMode(COLORONCOLOR);
    dc.StretchBlt(20, 20, 16, 16, &source, 0, 0, 8, 8, SRCCOPY);
    EXPECT_EQ(dc.GetPixel(27, 35), Red);
    EXPECT_EQ(dc.GetPixel(28, 35), Green);
    dc.TransparentBlt(40, 40, 8, 8, &source, 0, 0, 8, 8, Red);
    EXPECT_EQ(dc.GetPixel(40, 40), Black);
    EXPECT_EQ(dc.GetPixel(47, 40), Green);

    constexpr BYTE Half = 128;
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, Half, 0};
    dc.FillSolidRect(0, 0, 8, 8, Blue);
    ASSERT_TRUE(dc.AlphaBlend(0, 0, 8, 8, &source, 0, 0, 8, 8, blend));
    const COLORREF mixed = dc.GetPixel(1, 1);
    EXPECT_NEAR(GetRValue(mixed), 128, 2);
    EXPECT_NEAR(GetBValue(mixed), 127, 2);

    TRIVERTEX ends[2] = {{50, 0, 0, 0, 0, 0}, {60, 10, 0xff00, 0, 0, 0}};
    GRADIENT_RECT whole{0, 1};
    ASSERT_TRUE(dc.GradientFill(ends, 2, &whole, 1, GRADIENT_FILL_RECT_H));
    EXPECT_LT(GetRValue(dc.GetPixel(51, 5)), GetRValue(dc.GetPixel(58, 5)));
    source.SelectObject(before);
}

TEST_F(Canvas, ClippingMappingAndSavedState)
{
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(CRect(10, 10, 20, 20));
    dc.FillSolidRect(0, 0, 64, 64, Red);
    EXPECT_EQ(dc.GetPixel(10, 10), Red);
    CRect box;
    EXPECT_EQ(dc.GetClipBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(10, 10, 20, 20));
    dc.RestoreDC(saved);
    EXPECT_EQ(dc.GetPixel(9, 9), Black) << "outside nothing was drawn";

    CRgn region;
    ASSERT_TRUE(region.CreateRectRgn(0, 0, 4, 4));
    EXPECT_EQ(dc.SelectClipRgn(&region), SIMPLEREGION);
    EXPECT_FALSE(dc.PtVisible(5, 5));
    dc.SelectClipRgn(nullptr);
    EXPECT_TRUE(dc.PtVisible(5, 5));

    EXPECT_EQ(dc.SetViewportOrg(8, 9), CPoint(0, 0));
    dc.SetPixel(1, 1, Green);
    EXPECT_EQ(dc.SetViewportOrg(0, 0), CPoint(8, 9));
    EXPECT_EQ(dc.GetPixel(9, 10), Green);

    dc.SetMapMode(MM_ISOTROPIC);
    EXPECT_EQ(dc.GetMapMode(), MM_ISOTROPIC);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(50, 50);
    CPoint point(20, 40);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(10, 20));
}

TEST_F(Canvas, TextIsMeasuredAndDrawn)
{
    CFont font;
    LOGFONT description{};
    description.lfHeight = 20;
    ::lstrcpynW(description.lfFaceName, L"Arial", LF_FACESIZE);
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    LOGFONT back{};
    EXPECT_GT(font.GetLogFont(&back), 0);
    EXPECT_EQ(back.lfHeight, 20);
    CFont* before = dc.SelectObject(&font);
    EXPECT_EQ(dc.GetCurrentFont(), &font);

    const CString text(L"HHH");
    const CSize one = dc.GetTextExtent(L"H", 1);
    const CSize three = dc.GetTextExtent(text);
    EXPECT_GT(one.cx, 0);
    EXPECT_EQ(three.cx, 3 * one.cx);
    EXPECT_EQ(dc.GetTextExtent(L"HHH", -1), three) << "the length is found";
    TEXTMETRIC metrics{};
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(metrics.tmHeight, three.cy);

    dc.SetTextColor(Green);
    dc.SetBkMode(TRANSPARENT);
    CRect area(0, 0, 64, 64);
    EXPECT_EQ(dc.DrawText(text, &area, DT_SINGLELINE | DT_TOP), three.cy);
    int lit = 0;
    for (int x = 0; x < 64; ++x)
        for (int y = 0; y < 64; ++y)
            lit += dc.GetPixel(x, y) != Black ? 1 : 0;
    EXPECT_GT(lit, 20);
    dc.SelectObject(before);
}

TEST(GdiLifetime, TenThousandRoundsEndWhereTheyBegan)
{
    constexpr int Rounds = 10000;
    const auto round = [] {
        CClientDC screen(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 4, 4);
        CPen pen(PS_SOLID, 1, Red);
        CBrush brush(Green);
        CFont font;
        font.CreatePointFont(90, L"Arial");
        CRgn region;
        region.CreateRectRgn(0, 0, 2, 2);
        CBitmap* oldBitmap = memory.SelectObject(&bitmap);
        CPen* oldPen = memory.SelectObject(&pen);
        CBrush* oldBrush = memory.SelectObject(&brush);
        CFont* oldFont = memory.SelectObject(&font);
        memory.SelectObject(&region);
        memory.Rectangle(0, 0, 4, 4);
        memory.SelectObject(oldFont);
        memory.SelectObject(oldBrush);
        memory.SelectObject(oldPen);
        memory.SelectObject(oldBitmap);
    };
    round();
    const int before = vant::test::GdiObjectCount();
    ASSERT_GT(before, 0) << "a count that sees nothing proves nothing";
    {
        CPen counted(PS_SOLID, 1, Red);
        ASSERT_EQ(vant::test::GdiObjectCount(), before + 1);
    }
    for (int i = 0; i < Rounds; ++i)
        round();
    EXPECT_EQ(vant::test::GdiObjectCount(), before);
}

TEST(GdiLifetime, ADeletedObjectMayBeCreatedAnew)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, nullptr));
    const int before = vant::test::GdiObjectCount();
    EXPECT_TRUE(bitmap.DeleteObject());
    EXPECT_FALSE(bitmap.DeleteObject()) << "only once";
    const DWORD pixels[4] = {0xff0000, 0xff00, 0xff, 0};
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, pixels));
    DWORD back[4] = {};
    EXPECT_EQ(bitmap.GetBitmapBits(sizeof back, back), sizeof back);
    EXPECT_EQ(back[1], 0xff00U);
    BITMAP size{};
    EXPECT_GT(bitmap.GetBitmap(&size), 0);
    EXPECT_EQ(size.bmWidth, 2);
    EXPECT_EQ(vant::test::GdiObjectCount(), before);
    EXPECT_FALSE(bitmap.LoadBitmap(12345U)) << "no such resource";
    EXPECT_TRUE(Throws<CResourceException>([] { CBrush pattern(static_cast<CBitmap*>(nullptr)); }));
}
