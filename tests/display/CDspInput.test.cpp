// CDsp: mouse and keys, as messages.

#include "controls/CEMenu.h"
#include "tests/display/ChartTest.h"

#include <memory>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class CDspInputTest : public ChartTest
{
protected:
    void OrbitAt(double elev)
    {
        CDspCam cam = wnd.Cam();
        cam.kind = CDspCam::orbit;
        cam.elev = ML::D2R(elev);
        cam.align = ML::D2R(30);
        wnd.SetCam(cam);
    }

    static double Apart(const CV3& a, const CV3& b) { return (a - b).Length(); }
};

/** A tile with entries in the menu. */
class MenuTile : public Tile
{
public:
    using Tile::Tile;

    int OnMenu(CDsp&, CEMenu& menu) override
    {
        menu.Add((L"Remove " + std::wstring(name.begin(), name.end())).c_str())->Choice(chosen, 1);
        return 1;
    }

    int chosen = 0;
};

TEST_F(CDspInputTest, PansWhatWasTakenHoldOf)
{
    wnd.Open(faraway);
    wnd.Drag(MK_LBUTTON, {50, 20}, {90, 80});
    EXPECT_LT(Apart(wnd.Cam().org, faraway + CV3(-40, 60, 0)), 1e-6);
    // While the button is down the view may follow something: what is held stays under the mouse.
    const CV3 held = wnd.Under(90, 80);
    wnd.SetZoom(50);
    wnd.Send(WM_MOUSEMOVE, MK_LBUTTON, 91, 80);
    EXPECT_LT(Apart(wnd.Under(91, 80), held), 1e-6);
    wnd.Release(MK_LBUTTON, {91, 80});
    const CDspCam after = wnd.Cam();
    wnd.Send(WM_MOUSEMOVE, 0, 10, 10);
    EXPECT_EQ(wnd.Cam(), after);

    wnd.SetZoom(100);
    wnd.mouseMode = CDsp::mouseRotate;
    for (const double elev : {40.0, 90.0, -60.0}) {
        OrbitAt(elev);
        const CV3 ground = wnd.Under(60, 70);
        wnd.Drag(MK_MBUTTON, {60, 70}, {120, 60});
        wnd.Release(MK_MBUTTON, {120, 60});
        EXPECT_LT(Apart(wnd.Under(120, 60), ground), 1e-6) << elev;
        EXPECT_EQ(wnd.Cam().org.z, faraway.z);
    }
    // Seen from the side there is no ground to hold: the view moves across the line of sight.
    OrbitAt(0);
    const CV3 before = wnd.Cam().org;
    wnd.Drag(MK_MBUTTON, {100, 50}, {100, 30});
    wnd.Release(MK_MBUTTON, {100, 30});
    EXPECT_LT(Apart(wnd.Cam().org, before - CV3(0, 0, 20)), 1e-6);
}

TEST_F(CDspInputTest, ZoomsAboutTheMouse)
{
    wnd.Open(faraway);
    const CV3 fixedPt = wnd.Under(20, 80);
    wnd.Wheel(120, {20, 80});
    EXPECT_DOUBLE_EQ(wnd.Cam().zoom, 80);
    EXPECT_LT(Apart(wnd.Under(20, 80), fixedPt), 1e-6);
    for (int i = 0; i < 8; ++i) // of a wheel without notches
        wnd.Wheel(-15, {20, 80});
    EXPECT_NEAR(wnd.Cam().zoom, 100, 1e-9);
    EXPECT_LT(Apart(wnd.Cam().org, faraway), 1e-6);
    wnd.Wheel(-120, {20, 80}, MK_CONTROL);
    EXPECT_NEAR(wnd.Cam().zoom, 104, 1e-9);

    OrbitAt(40);
    const CV3 ground = wnd.Under(150, 60);
    wnd.Wheel(360, {150, 60});
    EXPECT_LT(Apart(wnd.Under(150, 60), ground), 1e-6);

    // At the limits the view neither moves nor jumps.
    for (int i = 0; i < 200; ++i)
        wnd.Wheel(120, {20, 80});
    EXPECT_EQ(wnd.Cam().zoom, CDspCam::minZoom);
    const CDspCam closest = wnd.Cam();
    wnd.Wheel(120, {20, 80});
    EXPECT_EQ(wnd.Cam(), closest);
    for (int i = 0; i < 200; ++i)
        wnd.Wheel(-120, {100, 50});
    EXPECT_EQ(wnd.Cam().zoom, CDspCam::maxZoom);

    wnd.SetZoom(100);
    wnd.mouseMode = CDsp::mouseZoom;
    wnd.Drag(MK_LBUTTON, {50, 10}, {50, 130});
    wnd.Release(MK_LBUTTON, {50, 130});
    EXPECT_NEAR(wnd.Cam().zoom, 200, 1e-6);
}

TEST_F(CDspInputTest, Turns)
{
    wnd.Open();
    wnd.Drag(MK_RBUTTON, {100, 0}, {200, 50}); // clockwise by a right angle: west is up then
    wnd.Release(MK_RBUTTON, {200, 50});
    EXPECT_NEAR(wnd.Cam().align, ML::pi3_2, 1e-9);
    EXPECT_EQ(wnd.GetUp(), CDsp::upFree);
    EXPECT_THAT(wnd.picks, IsEmpty()); // it was no click

    OrbitAt(40);
    wnd.mouseMode = CDsp::mouseRotate;
    wnd.Drag(MK_LBUTTON, {50, 50}, {75, 30});
    wnd.Release(MK_LBUTTON, {75, 30});
    EXPECT_NEAR(ML::R2D(wnd.Cam().align), 40, 1e-9);
    EXPECT_NEAR(ML::R2D(wnd.Cam().elev), 32, 1e-9);
    wnd.Drag(MK_LBUTTON, {50, 0}, {50, 2'000});
    wnd.Release(MK_LBUTTON, {50, 2'000});
    EXPECT_EQ(wnd.Cam().elev, ML::pi_2);
}

TEST_F(CDspInputTest, PicksByClicksAndKeys)
{
    const Tile tile("tile", faraway, 10);
    wnd.Open(faraway);
    wnd.Send(WM_LBUTTONDOWN, MK_LBUTTON, 100, 50);
    wnd.Release(MK_LBUTTON, {100, 50});
    wnd.Key(VK_SPACE);
    EXPECT_THAT(wnd.picks, IsEmpty());
    wnd.mouseMode = CDsp::mousePick;
    wnd.Send(WM_LBUTTONDOWN, MK_LBUTTON, 105, 50);
    wnd.Send(WM_MOUSEMOVE, MK_LBUTTON, 106, 51); // a hand that trembles
    wnd.Release(MK_LBUTTON, {106, 51});
    ASSERT_THAT(wnd.picks, SizeIs(1));
    EXPECT_EQ(wnd.picks[0].how, CDsp::pickClick);
    EXPECT_THAT(wnd.picks[0].hits, ElementsAre("tile"));
    EXPECT_LT(Apart(wnd.picks[0].nearest, faraway + CV3(6, -1, 0)), 0.02);
    EXPECT_EQ(wnd.Cam().org, faraway);
    wnd.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, 180, 50);
    wnd.Key(VK_RETURN);
    ASSERT_THAT(wnd.picks, SizeIs(3));
    EXPECT_EQ(wnd.picks[1].how, CDsp::pickDblClick);
    EXPECT_THAT(wnd.picks[1].hits, IsEmpty());
    EXPECT_THAT(wnd.picks[2].hits, ElementsAre("tile"));

    wnd.mouseMode = CDsp::mousePan;
    wnd.Send(WM_RBUTTONDOWN, MK_RBUTTON, 100, 55);
    wnd.Release(MK_RBUTTON, {100, 55});
    wnd.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(wnd.m_hWnd), MAKELPARAM(-1, -1));
    ASSERT_THAT(wnd.picks, SizeIs(5));
    for (const auto i : {3U, 4U}) {
        EXPECT_EQ(wnd.picks[i].how, CDsp::pickMenu);
        EXPECT_THAT(wnd.picks[i].hits, ElementsAre("tile"));
    }
    wnd.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, 130, 60);
    EXPECT_LT(Apart(wnd.Cam().org, faraway + CV3(30, -10, 0)), 1e-6);
}

TEST_F(CDspInputTest, EndsADragHoweverItEnds)
{
    wnd.Open(faraway);
    wnd.Drag(MK_LBUTTON, {50, 50}, {80, 50});
    EXPECT_EQ(CWnd::GetCapture(), &wnd);
    wnd.Send(WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, 80, 50); // has no say in it
    wnd.Release(MK_RBUTTON, {80, 50});
    wnd.Key(VK_ESCAPE);
    EXPECT_EQ(wnd.Cam().org, faraway);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    wnd.Send(WM_MOUSEMOVE, MK_LBUTTON, 10, 10);
    wnd.Release(MK_LBUTTON, {10, 10});
    EXPECT_EQ(wnd.Cam().org, faraway);

    wnd.Drag(MK_RBUTTON, {100, 0}, {150, 40});
    wnd.Key(VK_ESCAPE);
    EXPECT_EQ(wnd.Cam().align, 0);
    EXPECT_EQ(wnd.GetUp(), CDsp::upNorth);

    for (int way = 0; way < 3; ++way) {
        wnd.Drag(MK_LBUTTON, {50, 50}, {80, 50});
        if (way == 0)
            ::ReleaseCapture();
        else if (way == 1)
            wnd.SendMessage(WM_CANCELMODE);
        else
            wnd.Send(WM_MOUSEMOVE, 0, 80, 50); // released over another program
        const CDspCam left = wnd.Cam();
        wnd.Send(WM_MOUSEMOVE, MK_LBUTTON, 10, 10);
        EXPECT_EQ(wnd.Cam(), left) << way;
        EXPECT_EQ(CWnd::GetCapture(), nullptr) << way;
    }
    wnd.Drag(MK_LBUTTON, {50, 50}, {80, 50});
    wnd.DestroyWindow();
}

TEST_F(CDspInputTest, ObeysTheKeys)
{
    const Tile tile("tile", {300, 0, 0}, 10);
    wnd.Open({0, 0, 5}, 200, 100);
    const auto org = [&] { return wnd.Cam().org; };
    wnd.Key(VK_RIGHT);
    wnd.Key(VK_UP, VK_SHIFT);
    EXPECT_LT(Apart(org(), {10, 1, 5}), 1e-9);
    wnd.Key(VK_ADD);
    EXPECT_NEAR(wnd.Cam().zoom, 80, 1e-9);
    wnd.Key(VK_OEM_MINUS);
    EXPECT_NEAR(wnd.Cam().zoom, 100, 1e-9);
    wnd.Key('Z');
    EXPECT_EQ(wnd.mouseMode, CDsp::mouseZoom);
    wnd.Key(VK_UP);
    EXPECT_NEAR(wnd.Cam().zoom, 80, 1e-9);
    wnd.Key('R');
    wnd.Key(VK_RIGHT);
    EXPECT_NEAR(wnd.Cam().align, ML::D2R(5), 1e-9);
    wnd.SetCourse(1);
    EXPECT_NEAR(wnd.Cam().align, ML::D2R(5), 1e-9);
    wnd.Key('C');
    EXPECT_EQ(wnd.Cam().align, 1);
    wnd.SetCourse(2);
    EXPECT_EQ(wnd.Cam().align, 2);
    wnd.Key('N');
    EXPECT_EQ(wnd.Cam().align, 0);
    wnd.Key('V');
    EXPECT_EQ(wnd.Cam().kind, CDspCam::orbit);
    const double elev = wnd.Cam().elev;
    wnd.Key(VK_UP);
    EXPECT_NEAR(wnd.Cam().elev, elev + ML::D2R(5), 1e-9);
    wnd.Key('V');
    wnd.Key('G');
    EXPECT_EQ(wnd.graticule, 1);
    wnd.Key('P');
    EXPECT_EQ(wnd.mouseMode, CDsp::mousePan);
    wnd.Key('S', VK_CONTROL); // some other program's
    EXPECT_EQ(wnd.mouseMode, CDsp::mousePan);
    wnd.Key(VK_HOME);
    EXPECT_EQ(org(), CV3(300, 0, 0));
    EXPECT_TRUE(wnd.SendMessage(WM_GETDLGCODE) & DLGC_WANTARROWS);
}

TEST_F(CDspInputTest, OpensTheMenuOfWhatIsUnderTheMouse)
{
    const ScreenLock screen;
    MenuTile upper("upper", faraway + CV3(0, 0, 5), 10);
    MenuTile lower("lower", faraway, 20);
    Tile mute("mute", faraway + CV3(60, 0, 0), 10);
    wnd.Open(faraway);
    const auto openAt = [this](CPoint at, std::initializer_list<UINT> keys) {
        for (const UINT key : keys)
            wnd.PostMessage(WM_KEYDOWN, key, 0);
        wnd.Send(WM_RBUTTONDOWN, MK_RBUTTON, at.x, at.y);
        wnd.Release(MK_RBUTTON, at);
    };
    openAt({100, 50}, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(upper.chosen, 1) << "the nearest comes first";
    openAt({100, 50}, {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(lower.chosen, 1);
    openAt({160, 50}, {});
    ASSERT_THAT(wnd.picks, SizeIs(3)) << "without entries no menu waits for the user";
    EXPECT_THAT(wnd.picks[2].hits, ElementsAre("mute"));

    // A drawable that goes while the menu is open takes the menu along.
    auto passing = std::make_unique<MenuTile>("passing", faraway + CV3(-60, 0, 0), 10);
    static std::unique_ptr<MenuTile>* leaving = nullptr;
    leaving = &passing;
    ::SetTimer(wnd.m_hWnd, 77, 100, [](HWND view, UINT, UINT_PTR timer, DWORD) {
        ::KillTimer(view, timer);
        leaving->reset();
    });
    openAt({40, 50}, {});
    EXPECT_FALSE(passing);
    EXPECT_THAT(wnd.picks.back().hits, ElementsAre("passing"));
}

} // namespace
