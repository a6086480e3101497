#include "controls/ControlsTest.h"

#include "controls/CEWnd.h"
#include "controls/CVantWnd.h"
#include "controls/detail/PaintBuffer.h"
#include "support/GdiCount.h"
#include "support/MessagePump.h"

#include <cstdlib>
#include <memory>

namespace
{

using PaintingTest = ControlsTest;

/** Draws for a CEWnd. */
class Painter : public CObject
{
public:
    void Paint(CEWnd* ctrl, CDC* dc, CRect& r)
    {
        asked = ctrl;
        client = r;
        dc->FillSolidRect(r, RGB(200, 0, 0));
    }
    static CEWnd::DrawFn Member() { return static_cast<CEWnd::DrawFn>(&Painter::Paint); }

    CEWnd* asked = nullptr;
    CRect client;
};

/** Looks where it is told to draw. */
class Spy : public PlainCtrl
{
public:
    void Draw(CDC* dc) override
    {
        PlainCtrl::Draw(dc);
        intoMemory = ::GetObjectType(dc->m_hDC) == OBJ_MEMDC;
        mapMode = dc->GetMapMode();
    }
    bool intoMemory = false;
    int mapMode = 0;
};

} // namespace

TEST_F(PaintingTest, GoesThroughABitmapOrStraight)
{
    ShowParent();
    for (const int dpi : {96, 144}) {
        for (const int dblBuf : {1, 0}) {
            Spy ctrl;
            ctrl.rc = CRect(20, 20, 60, 50);
            ctrl.dblBuf = dblBuf;
            Open(ctrl, dpi);
            ctrl.RedrawWindow();
            EXPECT_EQ(ctrl.intoMemory, dblBuf != 0);
            EXPECT_EQ(ctrl.mapMode, dpi == 96 ? MM_TEXT : MM_ANISOTROPIC);
            CRect client;
            ctrl.GetClientRect(&client);
            EXPECT_EQ(PixelOf(ctrl, 0, 0), ctrl.colour) << dpi << " " << dblBuf;
            EXPECT_EQ(PixelOf(ctrl, client.right - 1, client.bottom - 1), ctrl.colour);
        }
    }
}

TEST_F(PaintingTest, WhatDrawLeavesOutIsBackground)
{
    ShowParent();
    CEWnd ctrl; // without a target it draws nothing
    ctrl.rc = CRect(20, 20, 60, 50);
    Open(ctrl);
    ctrl.RedrawWindow();
    EXPECT_EQ(PixelOf(ctrl, 10, 10), Vant::back);
    EXPECT_EQ(ctrl.ctrlType, 8192);

    Painter painter;
    ctrl.SetCallback(&painter, Painter::Member());
    ctrl.RedrawWindow();
    EXPECT_EQ(painter.asked, &ctrl);
    EXPECT_EQ(painter.client, CRect(0, 0, 40, 30));
    EXPECT_EQ(PixelOf(ctrl, 10, 10), RGB(200, 0, 0));

    painter.asked = nullptr;
    ctrl.SetCallback(&painter, static_cast<CEWnd::DrawFn>(nullptr));
    ctrl.RedrawWindow();
    EXPECT_EQ(painter.asked, nullptr);
}

TEST_F(PaintingTest, AWindowDrawsForItsControls)
{
    struct Panel : CVantWnd {
        void DrawEWnd(CEWnd* ctrl, CDC* dc, CRect& r) override
        {
            asked = ctrl;
            dc->FillSolidRect(r, RGB(0, 200, 0));
        }
        CEWnd* asked = nullptr;
    } panel;
    CEWnd ctrl;
    ctrl.rc = CRect(0, 0, 40, 30);
    ctrl.SetTarget(&panel);
    Canvas canvas(40, 30);
    ctrl.Draw(&canvas.Dc());
    EXPECT_EQ(panel.asked, &ctrl) << "the override of the window's class";
    EXPECT_EQ(canvas.Bounds(RGB(0, 200, 0)), CRect(0, 0, 40, 30));

    panel.asked = nullptr;
    ctrl.SetTarget(nullptr);
    ctrl.Draw(&canvas.Dc());
    EXPECT_EQ(panel.asked, nullptr);

    ctrl.pWnd = &panel;
    EXPECT_EQ(ctrl.BackCol(), Vant::back);
    CVantWnd::AddHlt(&panel);
    EXPECT_EQ(ctrl.BackCol(), Vant::teal);
    CVantWnd::DelHlt(&panel);
}

TEST_F(PaintingTest, ErasingDoesNothing)
{
    PlainCtrl ctrl;
    ctrl.rc = CRect(0, 0, 10, 10);
    Open(ctrl);
    Canvas canvas(10, 10);
    canvas.Fill(RGB(1, 2, 3));
    EXPECT_NE(ctrl.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc().m_hDC)), 0);
    EXPECT_EQ(canvas.Bounds(RGB(1, 2, 3)), CRect(0, 0, 10, 10));
    EXPECT_EQ(ctrl.draws, 0);
}

TEST_F(PaintingTest, AnEmptyControlPaintsNothing)
{
    ShowParent();
    PlainCtrl ctrl;
    ctrl.rc = CRect(0, 0, 0, 20);
    Open(ctrl);
    Send(ctrl, WM_PAINT);
    EXPECT_EQ(ctrl.draws, 0);
    EXPECT_TRUE(vant::test::PumpPending());
}

TEST_F(PaintingTest, WithoutMemoryTheBufferDrawsAtOnce)
{
    Canvas canvas(30, 30);
    const int tooLarge = 1 << 20;
    vant::detail::PaintBuffer buffer(canvas.Dc(), {tooLarge, tooLarge}, CDpi(144), RGB(0, 0, 0));
    buffer.Dc().FillSolidRect(0, 0, 10, 10, RGB(255, 0, 0));
    buffer.Show();
    EXPECT_EQ(canvas.Bounds(RGB(255, 0, 0)), CRect(0, 0, 15, 15));
}

TEST_F(PaintingTest, TenThousandPaintsLeakNothing)
{
    ShowParent();
    constexpr int count = 100;
    std::vector<std::unique_ptr<PlainCtrl>> ctrls;
    for (int i = 0; i < count; ++i) {
        ctrls.push_back(std::make_unique<PlainCtrl>());
        ctrls.back()->rc = CRect(CPoint(i % 10 * 25, i / 10 * 18), CSize(24, 17));
        Open(*ctrls.back(), i % 2 ? 96 : 144);
    }
    const auto repaint = [this] {
        parent.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    };
    repaint();
    const int before = vant::test::GdiObjectCount();
    // VANT_REPAINTS sets another count for a long run by hand.
    const wchar_t* const asked = ::_wgetenv(L"VANT_REPAINTS");
    const int rounds = asked ? ::_wtoi(asked) : 100;
    for (int round = 0; round < rounds; ++round)
        repaint();
    int draws = 0;
    for (const auto& ctrl : ctrls)
        draws += ctrl->draws;
    EXPECT_GE(draws, rounds * count);
    EXPECT_EQ(vant::test::GdiObjectCount(), before);
}
