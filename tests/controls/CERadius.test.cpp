#include "controls/CERadius.h"

#include "controls/InputHost.h"
#include "controls/Listener.h"
#include "controls/detail/DialGeometry.h"
#include "core/ML.h"
#include "resources/Ids.h"

#include <cmath>
#include <limits>
#include <optional>

using namespace testing;
using vant::detail::DialGeometry;

namespace
{

constexpr double tolerance = 1e-9;

/** Hears of bearings, and destroys a dial that calls it. */
class DialListener : public Listener
{
public:
    void OnBearing(double v) { bearing = v; }
    void OnDestroy() { doomed.reset(); }
    double bearing = -1;
    std::optional<CERadius> doomed;
};

HCURSOR LibraryCursor(int id)
{
    return static_cast<HCURSOR>(::LoadImageW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(id),
                                             IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE | LR_SHARED));
}

class CERadiusTest : public WndTest
{
protected:
    void Make(CERadius& dial, CSize size = {100, 100})
    {
        const CDpi dpi = CDpi::Of(host);
        dial.SetCallback(&listener, Listener::Member());
        dial.Create(dial.WndStyle(), dpi.ToPx(CRect(CPoint(20, 20), size)), &host, 8);
        dial.UpdateWindow();
    }

    /** Sends a mouse message; the point is in units. */
    static void Mouse(CERadius& dial, UINT message, int x, int y)
    {
        const CPoint px = dial.Dpi().ToPx(CPoint(x, y));
        dial.SendMessage(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(px.x, px.y));
    }

    static void Drag(CERadius& dial, CPoint from, CPoint to)
    {
        Mouse(dial, WM_LBUTTONDOWN, from.x, from.y);
        Mouse(dial, WM_MOUSEMOVE, to.x, to.y);
        Mouse(dial, WM_LBUTTONUP, to.x, to.y);
    }

    InputHost host;
    DialListener listener;
};

} // namespace

TEST(DialGeometryTest, PutsTheHandleOnTheUnitCircle)
{
    const DialGeometry dial(101, 300);
    EXPECT_EQ(dial.Diameter(), 101);
    EXPECT_EQ(dial.Radius(), 50);
    EXPECT_EQ(dial.HandleOf({0, 0, 1}), (DialGeometry::Point{50, 50}));
    EXPECT_EQ(dial.HandleOf({0, 1, 0}), (DialGeometry::Point{50, 0})) << "north is up";
    EXPECT_EQ(dial.HandleOf({1, 0, 0}), (DialGeometry::Point{100, 50}));
    EXPECT_EQ(dial.HandleOf({-0.13, 0.13, 0}), (DialGeometry::Point{44, 44})) << "halves are rounded up";

    const CV3 east = vant::detail::DialDirection(ML::pi_2, 0);
    EXPECT_NEAR(east.x, 1, tolerance);
    EXPECT_NEAR(east.y, 0, tolerance);
    const CV3 below = vant::detail::DialDirection(0, -ML::pi / 6);
    EXPECT_NEAR(below.y, std::cos(ML::pi / 6), tolerance);
    EXPECT_NEAR(below.z, 0.5, tolerance) << "below the horizon is drawn as above";

    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(vant::detail::DialDirection(nan, 0).z, 1) << "nothing is drawn outside because of it";
    EXPECT_EQ(DialGeometry(1, 40).DirectionAt({5, 5}).z, 1) << "a dial without a radius";
}

TEST_F(CERadiusTest, StartsStraightUpWithItsSkin)
{
    CERadius dial;
    EXPECT_EQ(dial.ctrlType, 131072);
    EXPECT_EQ(dial.brg, 0);
    EXPECT_EQ(dial.slope, 0);
    EXPECT_EQ(dial.dragging, 0);
    EXPECT_EQ(dial.dir.x, 0);
    EXPECT_EQ(dial.dir.y, 0);
    EXPECT_EQ(dial.dir.z, 1);
    EXPECT_EQ(dial.rc.Height(), 100);
    EXPECT_TRUE(dial.ownDC);
    // Before the first drawing the handle is where the direction of the construction is.
    dial.rc.right = 100;
    EXPECT_TRUE(dial.OnHandle(CPoint(50, 50)));

    Make(dial);
    EXPECT_FALSE(dial.OnHandle(CPoint(50, 50)));
    EXPECT_TRUE(dial.OnHandle(CPoint(50, 0))) << "drawn: bearing 0, level";
    EXPECT_NEAR(dial.dir.y, 1, tolerance);
    EXPECT_EQ(PixelOf(dial, 50, 25), Vant::light) << "the line from the middle to the handle";

    CDC& skin = dial.dcNorm;
    EXPECT_EQ(PixelOf(dial, 20, 70), skin.GetPixel(20, 70)) << "the skin as it is";
    dial.state = CECtrl::stShown;
    dial.Update(0);
    EXPECT_EQ(PixelOf(dial, 20, 70), dial.dcGrey.GetPixel(20, 70));
}

TEST_F(CERadiusTest, TakesTheHandleWithinFiveUnitsOnly)
{
    CERadius dial;
    dial.slope = ML::pi_2;
    Make(dial);
    EXPECT_TRUE(dial.OnHandle(CPoint(54, 50)));
    EXPECT_FALSE(dial.OnHandle(CPoint(55, 50)));
    EXPECT_TRUE(dial.OnHandle(CPoint(50, 46)));
    EXPECT_FALSE(dial.OnHandle(CPoint(50, 45)));

    ::SetCursor(nullptr);
    Mouse(dial, WM_MOUSEMOVE, 55, 50);
    EXPECT_EQ(::GetCursor(), nullptr);
    Mouse(dial, WM_LBUTTONDOWN, 55, 50);
    EXPECT_EQ(dial.dragging, 0);
    EXPECT_NE(::GetCapture(), dial.m_hWnd);
    EXPECT_EQ(::GetCursor(), nullptr) << "nothing happens beside the handle";
    Mouse(dial, WM_MOUSEMOVE, 54, 50);
    EXPECT_EQ(::GetCursor(), LibraryCursor(VANT_IDC_HAND));
    Mouse(dial, WM_LBUTTONUP, 54, 50);
    EXPECT_EQ(listener.calls, 0) << "there was no drag to end";
}

TEST_F(CERadiusTest, DraggingTurnsBearingAndSlope)
{
    double bound = 0;
    CERadius dial;
    dial.Init(bound);
    dial.SetCallback(&listener, static_cast<CEVal::CbDouble>(&DialListener::OnBearing));
    Make(dial);
    Mouse(dial, WM_LBUTTONDOWN, 50, 1);
    EXPECT_EQ(dial.dragging, 1);
    EXPECT_EQ(::GetCapture(), dial.m_hWnd);
    EXPECT_EQ(::GetFocus(), dial.m_hWnd);
    EXPECT_EQ(::GetCursor(), LibraryCursor(VANT_IDC_GRAB));
    EXPECT_EQ(listener.calls, 0);

    Mouse(dial, WM_MOUSEMOVE, 75, 50);
    EXPECT_NEAR(dial.brg, ML::pi_2, tolerance);
    EXPECT_NEAR(dial.slope, std::acos(0.5), tolerance);
    EXPECT_EQ(listener.calls, 1);
    EXPECT_EQ(listener.bearing, dial.brg) << "the bound variable has the bearing";
    EXPECT_EQ(bound, dial.brg);
    EXPECT_TRUE(dial.OnHandle(CPoint(75, 50))) << "at once, not only when drawn";
    dial.UpdateWindow();
    EXPECT_TRUE(dial.OnHandle(CPoint(75, 50)));
    EXPECT_EQ(PixelOf(dial, 75, 50), Vant::cyan) << "the handle";

    Mouse(dial, WM_MOUSEMOVE, -950, 1050);
    EXPECT_NEAR(dial.brg, 1.25 * ML::pi, tolerance);
    EXPECT_EQ(dial.slope, 0) << "beyond the rim it stays on the rim";
    EXPECT_EQ(dial.dir.z, 0);
    EXPECT_NEAR(dial.dir.Length(), 1, tolerance);

    Mouse(dial, WM_MOUSEMOVE, 50, 50);
    EXPECT_NEAR(dial.brg, ML::pi, tolerance) << "straight up has the bearing of a vector without direction";
    EXPECT_NEAR(dial.slope, ML::pi_2, tolerance);
    EXPECT_EQ(listener.calls, 3);
    Mouse(dial, WM_LBUTTONUP, 50, 50);
    EXPECT_EQ(listener.calls, 4) << "once more at the end";
    EXPECT_EQ(dial.dragging, 0);
    EXPECT_EQ(::GetCapture(), nullptr);
    Mouse(dial, WM_MOUSEMOVE, 90, 50);
    EXPECT_NEAR(dial.slope, ML::pi_2, tolerance);
}

TEST_F(CERadiusTest, LosingTheMouseEndsTheDrag)
{
    CERadius dial;
    Make(dial);
    Mouse(dial, WM_LBUTTONDOWN, 50, 0);
    host.SetCapture();
    EXPECT_EQ(dial.dragging, 0);
    Mouse(dial, WM_MOUSEMOVE, 50, 50);
    EXPECT_EQ(dial.slope, 0);
    ::ReleaseCapture();

    Mouse(dial, WM_LBUTTONDOWN, 50, 0);
    EXPECT_EQ(dial.dragging, 1);
    dial.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(dial.dragging, 0);
    EXPECT_EQ(::GetCapture(), nullptr);
    Mouse(dial, WM_LBUTTONUP, 50, 0);
    EXPECT_EQ(listener.calls, 0);
}

TEST_F(CERadiusTest, ArrowKeysTurnIt)
{
    CERadius dial;
    Make(dial);
    EXPECT_TRUE(dial.GetStyle() & WS_TABSTOP);
    EXPECT_TRUE(dial.GetStyle() & CECtrl::keepFocus);
    EXPECT_EQ(dial.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    const COLORREF unfocused = PixelOf(dial, 50, 99);
    dial.SetFocus();
    EXPECT_NE(PixelOf(dial, 50, 99), unfocused) << "the focus is to be seen";

    PressKey(dial, VK_RIGHT);
    EXPECT_NEAR(dial.brg, 5 * ML::d2r, tolerance);
    PressKey(dial, VK_LEFT);
    EXPECT_EQ(dial.brg, 0) << "not a full turn";
    PressKey(dial, VK_LEFT, {VK_SHIFT});
    EXPECT_NEAR(dial.brg, 359 * ML::d2r, tolerance);
    PressKey(dial, VK_DOWN);
    EXPECT_EQ(dial.slope, 0) << "level is the end";
    PressKey(dial, VK_UP, {VK_SHIFT});
    EXPECT_NEAR(dial.slope, 1 * ML::d2r, tolerance);
    EXPECT_EQ(listener.calls, 5);
    for (int i = 0; i < 19; ++i)
        PressKey(dial, VK_UP);
    EXPECT_EQ(dial.slope, ML::pi_2) << "and so is straight up";
    EXPECT_NEAR(dial.brg, 359 * ML::d2r, tolerance) << "the bearing is kept";
    PressKey(dial, 'A');
    EXPECT_EQ(listener.calls, 24);
}

TEST_F(CERadiusTest, TheBoundVariableHoldsTheBearing)
{
    double bound = 1.0;
    CERadius dial;
    dial.Init(bound);
    Make(dial);
    EXPECT_EQ(dial.brg, 1.0);
    bound = -32768.0;
    dial.Update(0);
    EXPECT_EQ(dial.brg, 1.0) << "missing data";
    bound = std::numeric_limits<double>::infinity();
    dial.Update(0);
    EXPECT_EQ(dial.brg, 1.0);
    dial.brg = 2.0;
    dial.Retreive();
    EXPECT_EQ(bound, 2.0);
    EXPECT_THAT(alarms, IsEmpty());

    int number = 3;
    dial.Init(number);
    dial.Update(0);
    dial.Retreive();
    EXPECT_EQ(dial.brg, 2.0) << "an integer is no bearing in radians";
    EXPECT_EQ(number, 3);
}

TEST_F(CERadiusTest, WorksAtAnyScaleAndSize)
{
    CDpi(144).Set(host);
    CERadius dial;
    dial.slope = ML::pi_2;
    Make(dial, {120, 80});
    CRect client;
    dial.GetClientRect(client);
    EXPECT_EQ(client.Width(), 180);
    Drag(dial, {40, 40}, {60, 40});
    EXPECT_NEAR(dial.brg, ML::pi_2, tolerance);
    EXPECT_NEAR(dial.slope, std::acos(0.5), tolerance);
    EXPECT_EQ(PixelOf(dial, 90, 60), Vant::cyan);
    EXPECT_EQ(PixelOf(dial, 170, 60), Vant::back) << "beside the dial";
}

TEST_F(CERadiusTest, SurvivesACallbackThatDestroysIt)
{
    CERadius& dial = listener.doomed.emplace();
    Make(dial);
    dial.SetCallback(&listener, static_cast<CEVal::CbNone>(&DialListener::OnDestroy));
    Mouse(dial, WM_LBUTTONDOWN, 50, 0);
    Mouse(dial, WM_MOUSEMOVE, 50, 50);
    EXPECT_FALSE(listener.doomed.has_value());
    EXPECT_EQ(::GetCapture(), nullptr);
}
