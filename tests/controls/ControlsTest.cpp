#include "controls/ControlsTest.h"

#include "support/MessagePump.h"

ControlsTest::ControlsTest()
{
    EXPECT_TRUE(parent.CreateEx(WS_EX_TOPMOST | WS_EX_NOACTIVATE, Vant::wndClass, L"Parent", WS_POPUP,
                                CRect(50, 50, 450, 350), nullptr, 0));
    CDpi(CDpi::base).Set(parent);
}

ControlsTest::~ControlsTest()
{
    parent.DestroyWindow();
}

void ControlsTest::ShowParent()
{
    parent.ShowWindow(SW_SHOWNOACTIVATE);
    vant::test::PumpPending();
}

void ControlsTest::Open(CECtrl& ctrl, int dpi)
{
    const CDpi scale(dpi);
    scale.Set(parent);
    ASSERT_EQ(ctrl.Create(ctrl.WndStyle(), scale.ToPx(ctrl.rc), &parent, 0), 1);
}

void ControlsTest::DrawTo(CECtrl& ctrl, Canvas& canvas)
{
    const int saved = canvas.Dc().SaveDC();
    ctrl.Dpi().Apply(canvas.Dc());
    ctrl.Draw(&canvas.Dc());
    canvas.Dc().RestoreDC(saved);
}
