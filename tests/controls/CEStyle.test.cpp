#include "controls/ControlsTest.h"

namespace
{

using CEStyleTest = ControlsTest;

} // namespace

TEST_F(CEStyleTest, StylesAreFoundByTheirExactName)
{
    EXPECT_EQ(CEStyle::GetStyle(L"Default"), nullptr) << "the default is not in the list by itself";
    CEStyle style;
    CEStyle::AddStyle(style);
    style.name = L"Title";
    style.txtCol = RGB(1, 2, 3);
    CEStyle::AddStyle(style);
    style.txtCol = RGB(4, 5, 6); // the list has a copy
    CEStyle::AddStyle(style);

    EXPECT_EQ(CEStyle::GetStyle(L"default"), nullptr);
    ASSERT_NE(CEStyle::GetStyle(L"Default"), nullptr);
    EXPECT_EQ(CEStyle::GetStyle(L"Default")->txtCol, 0xccccccu);
    ASSERT_NE(CEStyle::GetStyle(L"Title"), nullptr);
    EXPECT_EQ(CEStyle::GetStyle(L"Title")->txtCol, RGB(1, 2, 3)) << "the first of that name";

    // The list lives as long as the process: under another name they are out of the way of what runs next.
    for (const wchar_t* name : {L"Default", L"Title", L"Title"})
        CEStyle::GetStyle(name)->name = L"Style of a test";
}

TEST_F(CEStyleTest, NewControlsCopyTheDefault)
{
    EXPECT_EQ(CEStyle::s_default.pFont, &Vant::normalF);
    EXPECT_EQ(CEStyle::s_default.pBrush, &Vant::blackB);
    EXPECT_EQ(CEStyle::s_default.pPen, &Vant::blueL);
    const CEStyle before = CEStyle::s_default;
    CEStyle::s_default.txtCol = RGB(9, 9, 9);
    const PlainCtrl ctrl;
    CEStyle::s_default = before;
    EXPECT_EQ(ctrl.style.txtCol, RGB(9, 9, 9));
    EXPECT_EQ(ctrl.style.align, 1);
}

TEST_F(CEStyleTest, SetSelectsWhatIsThere)
{
    Canvas canvas(4, 4);
    HDC dc = canvas.Dc();
    const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
    CEStyle style;
    style.pPen = nullptr;
    style.pBrush = &Vant::redB;
    style.txtCol = RGB(1, 2, 3);
    style.Set(&canvas.Dc());
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_BRUSH), Vant::redB.m_hObject);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), Vant::normalF.m_hObject);
    EXPECT_EQ(canvas.Dc().GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(canvas.Dc().GetBkMode(), TRANSPARENT);

    ASSERT_EQ(Vant::largeF.m_hObject, nullptr);
    style.pFont = &Vant::largeF; // never created: the font before stays
    style.Set(&canvas.Dc());
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), Vant::normalF.m_hObject);
}

TEST_F(CEStyleTest, BordersAreClosedAndDifferByAPixel)
{
    Canvas outer(20, 20);
    outer.Dc().SelectObject(&Vant::redL);
    CEStyle::Brdr1(&outer.Dc(), CRect(0, 0, 10, 10));
    EXPECT_EQ(outer.Bounds(Vant::red), CRect(0, 0, 11, 11));
    Canvas inner(20, 20);
    inner.Dc().SelectObject(&Vant::redL);
    CEStyle::Brdr2(&inner.Dc(), CRect(0, 0, 10, 10));
    EXPECT_EQ(inner.Bounds(Vant::red), CRect(0, 0, 10, 10));

    for (int i = 0; i <= 10; ++i)
        for (const CPoint p : {CPoint(i, 0), CPoint(10, i), CPoint(i, 10), CPoint(0, i)})
            EXPECT_EQ(outer.At(p.x, p.y), 0xC80000u) << p.x << "," << p.y;
    EXPECT_EQ(outer.At(5, 5), 0u) << "an outline only";
}
