// CDsp: what it shows, where, and what a pick finds.

#include "display/CDspLight.h"
#include "display/CModel.h"
#include "display/Models.h"
#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetObj.h"
#include "tests/display/ChartTest.h"
#include "values/EUnits.h"

#include <cmath>
#include <limits>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using CDspTest = ChartTest;

TEST_F(CDspTest, DrawsToThePixelMillionsOfMetresAway)
{
    Tile left("left", faraway + CV3(-0.5, 0, 0), 0.05);
    Tile right("right", faraway + CV3(0.75, 0.25, 0), 0.05);
    wnd.Open(faraway, 200, 100);
    wnd.SetZoom(1);
    EXPECT_DOUBLE_EQ(wnd.PxSize(), 0.01);
    CImage image;
    wnd.Capture(image);
    EXPECT_EQ(Ink(image), CRect(45, 20, 180, 55));
    // Every pixel of a small pan shows: nothing jumps by the half metre that a float is exact to here.
    wnd.SetViewOrg(faraway + CV3(0.03, 0, 0));
    wnd.Capture(image);
    EXPECT_EQ(Ink(image), CRect(42, 20, 177, 55));

    // The orbit camera agrees with its own arithmetic.
    right.visible = 0;
    right.ModelChanged(0);
    CDspCam cam = wnd.Cam();
    cam.kind = CDspCam::orbit;
    cam.elev = ML::D2R(50);
    cam.align = ML::D2R(70);
    cam.zoom = 2;
    wnd.SetCam(cam);
    wnd.Capture(image);
    double x = 0;
    double y = 0;
    ASSERT_TRUE(wnd.Pt2Xy(left.at, x, y));
    const CRect ink = Ink(image);
    EXPECT_NEAR(ML::Mid(ink.left, ink.right), x, 1);
    EXPECT_NEAR(ML::Mid(ink.top, ink.bottom), y, 1);
}

TEST_F(CDspTest, KeepsDrawablesFromOneAnother)
{
    Tile first("first", {-50, 0, 0}, 10);
    Tile second("second", {50, 0, 0}, 10);
    Tile hidden("hidden", {0, 30, 0}, 5);
    hidden.visible = 0;
    first.also = [](CDsp& dsp) { // everything that one can forget
        glMatrixMode(GL_MODELVIEW);
        glTranslated(0, 30, 0);
        dsp.Label({std::nan(""), 0, 0}, L"nowhere", RGB(255, 255, 255));
        glEnable(GL_LIGHTING);
        glEnable(GL_CULL_FACE);
        glCullFace(GL_FRONT);
        glEnableClientState(GL_VERTEX_ARRAY);
        glDepthMask(GL_FALSE);
        glMatrixMode(GL_TEXTURE);
    };
    wnd.Open();
    CImage image;
    for (int i = 0; i < 2; ++i) {
        wnd.Capture(image);
        EXPECT_EQ(Ink(image), CRect(40, 40, 160, 60));
        EXPECT_EQ(Strokes(image, 50), 2);
    }
}

TEST_F(CDspTest, LightsWhatWantsLight)
{
    Tile tile("tile", {}, 30);
    tile.lit = 1;
    tile.mtrl.ambient = {0, 0, 0};
    tile.mtrl.specular = {0, 0, 0};
    wnd.Open();
    for (int i = 0; i < CDsp::lightCount; ++i)
        wnd.lights[i].on = 0;
    CDspLight& lamp = wnd.lights[3];
    lamp.on = 1;
    lamp.position[0] = 0;
    lamp.position[1] = 0;
    lamp.position[2] = 1;
    CImage image;
    wnd.Capture(image);
    EXPECT_EQ(At(image, 100, 50), 0xFFFFFFU);
    // From below the display the light of the eye still falls onto what it sees; that of the scene does not.
    CDspCam cam;
    cam.kind = CDspCam::orbit;
    cam.elev = ML::D2R(10);
    cam.zoom = 100;
    wnd.SetCam(cam);
    lamp.position[1] = 1;
    lamp.position[2] = 0;
    wnd.Capture(image);
    const unsigned byEye = At(image, 100, 50) & 0xFF;
    EXPECT_NEAR(byEye, 255 * std::cos(ML::D2R(10)), 4);
    wnd.lightsInScene = 1; // level now: along the tile
    wnd.Capture(image);
    EXPECT_LT(At(image, 100, 50) & 0xFF, 4U);
}

TEST_F(CDspTest, PicksEverythingUnderAPositionNearestFirst)
{
    Tile top("top", faraway + CV3(0, 0, 40), 10);
    Tile middle("middle", faraway + CV3(0, 0, 20), 10);
    Tile bottom("bottom", faraway, 30);
    bottom.part = 7;
    Tile unseen("unseen", faraway + CV3(0, 0, 50), 10);
    unseen.visible = 0;
    Tile untouchable("untouchable", faraway + CV3(0, 0, 50), 10);
    untouchable.selectable = 0;
    bool picking = false;
    middle.also = [&](CDsp& dsp) { picking = dsp.IsPicking() != 0; };
    CDspMInf inf;
    EXPECT_EQ(wnd.Pick(100, 50, inf), 0); // no window
    wnd.Open(faraway);

    EXPECT_EQ(wnd.Pick(102, 45, inf), 3);
    EXPECT_TRUE(picking);
    EXPECT_THAT(HitTexts(inf), ElementsAre("top", "middle", "bottom 7"));
    const CDspMHit& nearest = *inf.hits.GetHead();
    EXPECT_EQ(nearest.mdl, &top);
    EXPECT_LT((nearest.pt - (faraway + CV3(2, 5, 40))).Length(), 0.02);
    EXPECT_NEAR(inf.hits.GetTail()->depth - nearest.depth, 40, 0.02);
    EXPECT_LT((CV3(inf.ray[6], inf.ray[7], inf.ray[8]) - nearest.pt).Length(), 1e-9);
    EXPECT_GT(inf.ray[2], inf.ray[5]); // from above
    EXPECT_NEAR(inf.view[3], -faraway.x, 1e-6);

    EXPECT_EQ(wnd.Pick(125, 50, inf), 1);
    EXPECT_EQ(wnd.Pick(132, 50, inf), 1); // within reach of a hand
    EXPECT_EQ(wnd.Pick(190, 50, inf), 0);
    EXPECT_EQ(inf.ray[6], 0);
    EXPECT_EQ(wnd.Pick(std::nan(""), 50, inf), 0);

    // From below it is the other way round.
    CDspCam cam = wnd.Cam();
    cam.kind = CDspCam::orbit;
    cam.elev = ML::D2R(-80);
    wnd.SetCam(cam);
    double x = 0;
    double y = 0;
    ASSERT_TRUE(wnd.Pt2Xy(middle.at, x, y));
    EXPECT_EQ(wnd.Pick(x, y, inf), 3);
    EXPECT_THAT(HitTexts(inf), ElementsAre("bottom 7", "middle", "top"));
    const CDspMHit& second = *inf.hits.GetAt(inf.hits.GetHeadPos()->next);
    // The depth is the nearest within the pick, which is a few pixels wide.
    EXPECT_LT((second.pt - middle.at).Length(), 1.5);
    EXPECT_NEAR(second.depth, (cam.Eye() - second.pt).Length(), 1e-6);
}

TEST_F(CDspTest, PicksTheSidesOfModelsThatAreSeen)
{
    class ModelMdl : public CMdl
    {
    public:
        void Draw(CDsp& dsp) override { model.DrawModel(dsp); }
        void GetInf(CMdlInf& inf) override { inf.name = L"cube"; }
        CModel model;
    };
    ModelMdl mdl;
    ASSERT_EQ(mdl.model.Read3DS(WriteModel(L"cube.3ds", support::Cube())), 1);
    wnd.Open({}, 200, 100);
    wnd.SetZoom(4);
    CDspMInf inf;
    for (const int dblSided : {0, 1}) {
        for (unsigned i = 0; i < mdl.model.mtrls.GetSize(); ++i)
            mdl.model.mtrls.GetAt(i)->dblSided = dblSided;
        wnd.SetViewOrg({});
        ASSERT_EQ(wnd.Pick(100, 50, inf), 1);
        EXPECT_NEAR(inf.hits.GetHead()->pt.z, 1, 1e-3);
        // From inside only what is drawn from both sides is seen.
        CDspCam cam = wnd.Cam();
        cam.kind = CDspCam::orbit;
        cam.SetDist(0.5);
        wnd.SetCam(cam);
        EXPECT_EQ(wnd.Pick(100, 50, inf), dblSided);
        cam.kind = CDspCam::plan;
        cam.zoom = 4;
        wnd.SetCam(cam);
        EXPECT_EQ(wnd.Pick(10, 50, inf), 0);
    }
}

TEST_F(CDspTest, PicksMoreThanTheBufferHoldsAtFirst)
{
    Tile many("many", {}, 10);
    many.also = [](CDsp&) {
        for (unsigned i = 1; i <= 20'000; ++i) {
            glLoadName(i);
            glRectd(-1, -1, 1, 1);
        }
    };
    wnd.Open();
    CDspMInf inf;
    EXPECT_EQ(wnd.Pick(100, 50, inf), 20'001);
    EXPECT_LE(many.asked, 2) << "for its extents and its name, not for each part";
}

TEST_F(CDspTest, TakesOnlyCamerasThatShowSomething)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    wnd.Open(faraway);
    CDspCam cam;
    cam.kind = 7;
    cam.org = {1, nan, -inf};
    cam.zoom = nan;
    cam.align = -ML::pi_2;
    cam.elev = 2;
    cam.fov = 0;
    wnd.SetCam(cam);
    const CDspCam& taken = wnd.Cam();
    EXPECT_EQ(taken.kind, CDspCam::plan);
    EXPECT_EQ(taken.org, CV3(1, faraway.y, faraway.z));
    EXPECT_EQ(taken.zoom, 100);
    EXPECT_DOUBLE_EQ(taken.align, ML::pi3_2);
    EXPECT_EQ(taken.elev, ML::pi_2);
    EXPECT_GT(taken.fov, 0);
    EXPECT_EQ(wnd.GetUp(), CDsp::upFree);
    EXPECT_EQ(wnd.cams, 1);
    wnd.SetZoom(-5);
    EXPECT_EQ(wnd.Cam().zoom, CDspCam::minZoom);
    wnd.SetZoom(inf);
    wnd.SetViewOrg({nan, nan, nan});
    EXPECT_EQ(wnd.Cam().zoom, CDspCam::minZoom);
    EXPECT_EQ(wnd.cams, 2);

    cam.fov = ML::D2R(40);
    cam.SetDist(500);
    EXPECT_NEAR(cam.Dist(), 500, 1e-9);
}

TEST_F(CDspTest, HasNothingToShowWithoutPixels)
{
    const Tile tile("tile", {}, 10);
    wnd.graticule = wnd.northArrow = wnd.scaleBar = 1;
    wnd.Open({}, 0, 0);
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    wnd.RedrawWnd();
    CV3 pt;
    CDspMInf inf;
    EXPECT_EQ(wnd.PxSize(), 0);
    EXPECT_FALSE(wnd.Xy2Pt(0, 0, pt));
    EXPECT_EQ(wnd.Pick(0, 0, inf), 0);
    wnd.Wheel(120, {0, 0});
    wnd.Drag(MK_LBUTTON, {0, 0}, {50, 50});
    wnd.Release(MK_LBUTTON, {50, 50});
    EXPECT_TRUE(wnd.Cam().org.Finite());
    wnd.SetWindowPos(nullptr, 0, 0, 30, 20, SWP_NOZORDER | SWP_NOACTIVATE);
    wnd.insetLeft = 40; // more than there is
    wnd.RedrawWnd();
    EXPECT_EQ(wnd.PxSize(), 0);
    wnd.insetLeft = 0;
    wnd.RedrawWnd();
    EXPECT_GT(wnd.PxSize(), 0);
}

TEST_F(CDspTest, FollowsAPositionPerAxis)
{
    wnd.Open({}, 200, 100);
    ChartWnd other;
    EXPECT_EQ(wnd.Follow(L"Ship"), 0);
    auto ship = std::make_unique<CMdlPos>();
    ship->name = L"Ship";
    ship->flags = CMdlPos::ctrlPan | CMdlPos::ctrlAlign;
    ship->SetOrg(faraway);
    ship->zoom = 777;
    CVantWnd::Poll(0);
    ASSERT_EQ(wnd.Followed(), ship.get());
    EXPECT_EQ(wnd.Cam().org, faraway);
    EXPECT_EQ(wnd.Cam().zoom, 100);
    other.Follow(ship.get());

    ship->SetFromMdl(nullptr, {1, 2, 3}, 55, 1.5);
    EXPECT_EQ(wnd.Cam().org, CV3(1, 2, 3));
    EXPECT_EQ(wnd.Cam().zoom, 100); // not controlled
    EXPECT_EQ(wnd.Cam().align, 0);  // north up
    wnd.SetUp(CDsp::upCourse);
    EXPECT_EQ(wnd.Cam().align, 1.5);
    ship->SetFromMdl(nullptr, {std::nan(""), 2, 3}, 55, 1.75); // a sensor that has lost its place
    EXPECT_EQ(wnd.Cam().org, CV3(1, 2, 3));
    EXPECT_EQ(wnd.Cam().align, 1.75);

    // What the user changes goes to all, where the position lets it.
    wnd.Key(VK_LEFT);
    wnd.Key(VK_RIGHT, VK_CONTROL);
    EXPECT_EQ(wnd.Cam().org, CV3(1, 2, 3));
    EXPECT_EQ(wnd.Cam().align, 1.75);
    wnd.Key('N');
    EXPECT_EQ(wnd.GetUp(), CDsp::upCourse);
    ship->SetOrg({1, 2, 3});
    ship->SetFlag(CMdlPos::userPan | CMdlPos::userAlign);
    wnd.Key('N');
    EXPECT_EQ(wnd.GetUp(), CDsp::upNorth);
    wnd.Key(VK_RIGHT);
    EXPECT_EQ(wnd.Cam().org, CV3(11, 2, 3));
    EXPECT_EQ(other.Cam().org, CV3(11, 2, 3));
    EXPECT_EQ(ship->align, 1.75); // though this view is north up
    EXPECT_EQ(ship->zoom, 777);
    wnd.Key(VK_RIGHT, VK_CONTROL);
    EXPECT_NEAR(ship->align, ML::D2R(5), 1e-9);
    EXPECT_EQ(wnd.GetUp(), CDsp::upCourse);

    // Zooming about the mouse would pan.
    ship->UnsetFlag(CMdlPos::userPan);
    wnd.Wheel(120, {0, 0});
    EXPECT_LT(wnd.Cam().zoom, 100);
    EXPECT_EQ(wnd.Cam().org, CV3(11, 2, 3));

    ship.reset();
    EXPECT_EQ(wnd.Followed(), nullptr);
    EXPECT_EQ(other.Followed(), nullptr);
    wnd.Key(VK_LEFT, VK_SHIFT);
    CMdlPos again;
    again.name = L"Ship";
    CVantWnd::Poll(1);
    EXPECT_EQ(wnd.Followed(), &again);
    EXPECT_EQ(other.Followed(), nullptr); // it asked for that object, not for a name
    wnd.Follow(nullptr);
    again.SetFromMdl(nullptr, {5, 5, 5}, 5, 0);
    EXPECT_NE(wnd.Cam().org, CV3(5, 5, 5));
}

TEST_F(CDspTest, KeepsItsSettings)
{
    wnd.Open();
    CDspCam cam;
    cam.kind = CDspCam::orbit;
    cam.org = {489'600.125, 5'832'400.25, -31.5};
    cam.zoom = 250;
    cam.align = 1.25;
    cam.elev = -0.5;
    wnd.SetCam(cam);
    wnd.mouseMode = CDsp::mousePick;
    wnd.scaleBar = 1;
    wnd.Follow(L"Ship");
    CESet saving(1);
    CESetObj* const to = saving.AddCol(L"Views")->AddObj(L"A", L"CDsp");
    wnd.Settings(*to);
    const CString path = WriteFile(L"views.xml", "");
    ASSERT_TRUE(saving.Save(path));
    CESet loading(0);
    ASSERT_TRUE(loading.Load(path));
    CESetObj* const from = loading.GetCol(L"Views")->GetObj(L"A");
    ASSERT_NE(from, nullptr);

    ChartWnd loaded;
    loaded.Settings(*from);
    EXPECT_EQ(loaded.Cam().org, cam.org);
    EXPECT_NEAR(loaded.Cam().elev, cam.elev, 1e-5);
    EXPECT_NEAR(loaded.Cam().fov, cam.fov, 1e-5);
    EXPECT_EQ(loaded.Cam().kind, CDspCam::orbit);
    EXPECT_EQ(loaded.Cam().align, 1.25);
    EXPECT_EQ(loaded.GetUp(), CDsp::upFree);
    EXPECT_EQ(loaded.mouseMode, CDsp::mousePick);
    EXPECT_TRUE(loaded.scaleBar && !loaded.graticule && !loaded.northArrow);
    CMdlPos ship;
    ship.name = L"Ship";
    CVantWnd::Poll(0);
    EXPECT_EQ(loaded.Followed(), &ship);

    // What a file may hold that no view can be: stays as it is.
    CESet damaged(0);
    CESetObj* const odd = damaged.AddCol(L"Views")->AddObj(L"A", L"CDsp");
    odd->Add(L"CamZoom", L"-3");
    odd->Add(L"CamOrg", L"1e300, 2, 3");
    odd->Add(L"Up", L"9");
    odd->Add(L"Graticule", L"5");
    odd->Add(L"MouseMode", L"-1");
    loaded.Settings(*odd);
    EXPECT_EQ(loaded.Cam().zoom, CDspCam::minZoom);
    EXPECT_EQ(loaded.Cam().org.x, CDspCam::maxOrg);
    EXPECT_EQ(loaded.GetUp(), CDsp::upFree);
    EXPECT_EQ(loaded.mouseMode, CDsp::mousePick);
    EXPECT_EQ(loaded.graticule, 1);
}

TEST_F(CDspTest, ShowsWhatThereIs)
{
    wnd.Open();
    EXPECT_EQ(wnd.ShowMdl(nullptr), 0);
    Tile a("a", {-100, 0, 0}, 10);
    Tile b("b", {100, 50, -20}, 10);
    Tile formless("formless", {9'999, 0, 0}, 1);
    formless.hasExt = 0;
    ASSERT_EQ(wnd.ShowMdl(nullptr), 1);
    EXPECT_EQ(wnd.Cam().org, CV3(0, 25, -10));
    for (const CV3& corner : {CV3(-110, -10, 0), CV3(110, 60, -20)}) {
        double x = 0;
        double y = 0;
        ASSERT_TRUE(wnd.Pt2Xy(corner, x, y));
        EXPECT_TRUE(x > 0 && x < 200 && y > 0 && y < 100) << x << " " << y;
    }
    ASSERT_EQ(wnd.ShowMdl(&b), 1);
    EXPECT_EQ(wnd.Cam().org, b.at);
    EXPECT_EQ(wnd.ShowMdl(&formless), 0);
}

/** Columns of a row that are not black. */
std::vector<int> LitColumns(const CImage& image, int row)
{
    std::vector<int> columns;
    for (int x = 0; x < image.GetWidth(); ++x) {
        if (*static_cast<const std::uint32_t*>(image.GetPixelAddress(x, row)) & 0xFFFFFF)
            columns.push_back(x);
    }
    return columns;
}

TEST_F(CDspTest, DrawsTheGraticuleAtRoundCoordinates)
{
    // A metre per pixel: lines at least 90 units apart are 100 m apart, and at 150 % 150 m.
    wnd.Open({1'000, 2'000, 0}, 500, 300);
    wnd.graticule = 1;
    CImage image;
    wnd.Capture(image);
    EXPECT_THAT(LitColumns(image, 120), ElementsAre(50, 150, 250, 350, 450));
    CDpi(144).Set(wnd);
    wnd.Capture(image);
    EXPECT_THAT(LitColumns(image, 120), ElementsAre(0, 150, 300, 450));
    CDpi(96).Set(wnd);
    EUnits::system = 1; // round numbers of feet
    wnd.Capture(image);
    EUnits::system = 0;
    const std::vector<int> feet = LitColumns(image, 120);
    ASSERT_GE(feet.size(), 2U);
    EXPECT_NEAR(feet[1] - feet[0], 500 * 0.3048, 1);
    wnd.graticule = 0;
    wnd.Capture(image);
    EXPECT_THAT(LitColumns(image, 120), IsEmpty());
}

TEST_F(CDspTest, DrawsAScaleBarOfOneStepAndAnArrowToTheNorth)
{
    wnd.Open({}, 500, 300);
    wnd.scaleBar = 1;
    CImage image;
    wnd.Capture(image);
    CRect ink = Ink(image);
    EXPECT_EQ(ink.Width(), 100);
    EXPECT_EQ(ink.left, 16);
    EXPECT_GT(ink.top, 150);
    CDpi(192).Set(wnd);
    wnd.Capture(image);
    EXPECT_EQ(Ink(image).Width(), 200);
    CDpi(96).Set(wnd);

    wnd.scaleBar = 0;
    wnd.northArrow = 1;
    wnd.Capture(image);
    const CRect up = Ink(image);
    CDspCam cam;
    cam.align = ML::pi_2; // east up: north is to the left
    cam.zoom = 300;
    wnd.SetCam(cam);
    wnd.Capture(image);
    const CRect left = Ink(image);
    EXPECT_GT(up.Height(), up.Width());
    EXPECT_GT(left.Width(), left.Height());
    EXPECT_LT(left.left, up.left);
    EXPECT_GT(left.top, up.top);
}

TEST_F(CDspTest, WritesSharpTextsWhereTheyBelong)
{
    Tile tile("tile", {}, 1);
    tile.colour = RGB(1, 1, 1);
    tile.also = [](CDsp& dsp) { dsp.Label({0, 20, 0}, L"HHH", RGB(255, 255, 255), 5, 0); };
    wnd.Open({}, 300, 200);
    CImage image;
    wnd.Capture(image);
    const CRect ink = Ink(image);
    EXPECT_NEAR(ink.left, 156, 1);
    EXPECT_NEAR(ML::Mid(ink.top, ink.bottom), 80, 1);
    EXPECT_EQ(Strokes(image, ink.top), 6); // two legs of each letter, none blurred into another
    CDpi(192).Set(wnd);
    wnd.Capture(image);
    EXPECT_NEAR(Ink(image).Height(), 2 * ink.Height(), 2);
    EXPECT_NEAR(Ink(image).Width(), 2 * ink.Width(), 3);

    // After the lists of all windows were let go, the next window has texts of its own.
    wnd.DestroyWindow();
    CDsp::ReleaseLists();
    ChartWnd next;
    next.Open({}, 300, 200);
    CImage again;
    next.Capture(again);
    EXPECT_EQ(Ink(again), ink);
}

TEST_F(CDspTest, DrawsTheUsersChangesWithoutAPoll)
{
    wnd.Open();
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    wnd.UpdateWindow();
    CVantWnd::Poll(0);
    const int before = wnd.renders;
    for (int i = 0; i < 3; ++i)
        wnd.Wheel(40, {50, 50});
    EXPECT_EQ(wnd.renders, before);
    wnd.UpdateWindow();
    EXPECT_EQ(wnd.renders, before + 1);
    CVantWnd::Poll(1);
    EXPECT_EQ(wnd.renders, before + 1);
    wnd.SetZoom(50); // the application's wait for the poll
    EXPECT_TRUE(wnd.IsDrawNeeded());
    CVantWnd::Poll(2);
    EXPECT_EQ(wnd.renders, before + 2);
    wnd.SetZoom(50);
    CVantWnd::Poll(3);
    EXPECT_EQ(wnd.renders, before + 2);
}

} // namespace
