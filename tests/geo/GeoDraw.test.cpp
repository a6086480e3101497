// Geographic objects in a view. With VANT_PICTURES naming a directory, a picture of them is saved there, to
// be looked at.

#include "geo/CArDb.h"
#include "geo/CArKinds.h"
#include "geo/CRtDb.h"
#include "geo/CWyDb.h"
#include "tests/display/ChartTest.h"
#include "tests/geo/Routes.h"

#include <cstdlib>

namespace
{

constexpr int side = 200;

/** Draws its routes in one of its ways. */
class Lines : public CRtCat
{
public:
    enum Way { line, band, markers };
    explicit Lines(Way itsWay, COLORREF itsColour = RGB(255, 255, 255))
        : way(itsWay)
        , colour(itsColour)
    {
    }
    void DrawModel(CDsp& dsp) override
    {
        glColor3ub(GetRValue(colour), GetGValue(colour), GetBValue(colour));
        for (CVantPtr* pos = GetHeadPos(); pos;) {
            CRoute* const route = GetNext(pos);
            if (way == line)
                route->DwLineRt(dsp);
            else if (way == band)
                route->DwSolidRt(dsp, width);
            else
                route->DwMrkrs(dsp);
        }
    }
    int MouseEvent(CDsp&, UINT msg, UINT, CPoint pt) override
    {
        ++events;
        return msg == WM_LBUTTONDOWN ? pt.x : 0;
    }

    Way way;
    COLORREF colour;
    double width = 20;
    int events = 0;
};

class Marked : public CRoute
{
public:
    void DwMrkrs(CDsp& dsp) override { DwMrkr(dsp, *GetTail(), 20); }
};

class GeoDraw : public ChartTest
{
protected:
    GeoDraw()
    {
        routes.lit = areas.lit = wyPts.lit = 0;
        wnd.Open(faraway, side, side);
    }

    /** A route whose nodes are metres from the middle of the picture. */
    template <class Route = CRoute>
    Lines& AddRoute(Lines::Way way, std::vector<CV3> places)
    {
        auto* const cat = new Lines(way);
        auto* const route = new Route;
        for (CV3& place : places)
            place += faraway;
        Fill(*route, places);
        cat->AddTail(route);
        routes.AddTail(cat);
        return *cat;
    }
    template <class Kind = CArFree>
    void AddArea(LPCWSTR name, const std::vector<CV3>& places)
    {
        if (areas.IsEmpty())
            areas.AddTail(new CArCat);
        auto* const area = new Kind;
        area->name = name;
        for (const CV3& place : places)
            area->AddTail(new CV3(faraway + place));
        areas.GetHead()->AddTail(area);
    }
    /** The smallest rectangle around what is drawn: metres east and north of the middle. */
    CRect Drawn()
    {
        wnd.Capture(image);
        const CRect ink = Ink(image);
        return {ink.left - side / 2, side / 2 - ink.bottom, ink.right - side / 2, side / 2 - ink.top};
    }
    /** The colour at a place, metres from the middle. */
    std::uint32_t ColourAt(int east, int north) { return At(image, side / 2 + east, side / 2 - 1 - north); }
    std::string HitAt(int east, int north)
    {
        CDspMInf inf;
        if (!wnd.Pick(side / 2 + east, side / 2 - north, inf))
            return "";
        return std::string(CStringA(inf.hits.GetHead()->text)) + " " +
               std::to_string(inf.hits.GetHead()->part);
    }

    CRtDb routes;
    CArDb areas;
    CWyDb wyPts;
    CImage image;
};

TEST_F(GeoDraw, LineIsExactFarAwayFromZero)
{
    AddRoute(Lines::line, {{-50, 10.5, 0}, {0, 10.5, 0}, {0.03, 10.5, 0}, {60, 10.5, 0}});
    EXPECT_EQ(Drawn(), CRect(-50, 10, 60, 11));
    wnd.SetZoom(2); // a hundredth of a metre per pixel
    wnd.SetViewOrg(faraway + CV3(59.5, 10.75, 0));
    EXPECT_EQ(Drawn(), CRect(-100, -26, 50, -25)) << "a quarter of a metre down, half a metre right";
}

TEST_F(GeoDraw, ManyNodesShowAsTheFewThatCanBeToldApart)
{
    std::vector<CV3> places;
    for (int i = 0; i <= 300'000; ++i)
        places.push_back({-49.5 + i / 3000.0, i < 150'000 ? 0.5 : 20.5, 0});
    AddRoute(Lines::line, places);
    Drawn();
    EXPECT_EQ(ColourAt(-25, 0), 0xFFFFFFU);
    EXPECT_EQ(ColourAt(-25, 20), 0U);
    EXPECT_EQ(ColourAt(0, 10), 0xFFFFFFU);
    EXPECT_EQ(ColourAt(25, 20), 0xFFFFFFU);
}

TEST_F(GeoDraw, BandHasItsWidthAndFilledCorners)
{
    AddRoute(Lines::band, {{-40, -40, 0}, {-40, 40, 0}, {40, 40, 0}});
    EXPECT_EQ(Drawn(), CRect(-50, -40, 40, 50));
    EXPECT_EQ(ColourAt(-49, 48), 0xFFFFFFU) << "mitred";
    EXPECT_EQ(ColourAt(-31, 0), 0xFFFFFFU);
    EXPECT_EQ(ColourAt(-28, 0), 0U);
    EXPECT_EQ(ColourAt(0, 28), 0U);

    // There and back: the end is cut, not drawn out without bounds.
    routes.RemoveAll();
    AddRoute(Lines::band, {{0, -40, 0}, {0, -40, 10}, {0, 40, 0}, {0, -40, 0}});
    EXPECT_EQ(Drawn(), CRect(-10, -40, 10, 40));
}

TEST_F(GeoDraw, LightFallsOnBandsOnly)
{
    AddRoute(Lines::line, {{-40, 50.5, 0}, {40, 50.5, 0}});
    AddRoute(Lines::band, {{-40, 0, 0}, {40, 0, 0}});
    routes.lit = 1;
    routes.mtrl.ambient = routes.mtrl.specular = CRgbf(0, 0, 0);
    routes.mtrl.diffuse = CRgbf(1, 0, 0);
    Drawn();
    EXPECT_EQ(ColourAt(0, 50), 0xFFFFFFU);
    EXPECT_EQ(ColourAt(0, 0) & 0xFFFFU, 0U) << "the material's red";
    EXPECT_NE(ColourAt(0, 0), 0U);
}

TEST_F(GeoDraw, MarkersAreTheApplications)
{
    AddRoute(Lines::markers, {{-40, 0, 0}, {40, 0, 0}});
    EXPECT_TRUE(Drawn().IsRectEmpty());
    AddRoute<Marked>(Lines::markers, {{-40, 0, 0}, {40, 30, 0}});
    const auto expectDiamondAt = [&](int east, int north) {
        Drawn();
        for (const auto& [right, up] :
             {std::pair(8, 0), std::pair(-8, 0), std::pair(0, 8), std::pair(0, -8)}) {
            EXPECT_EQ(ColourAt(east + right, north + up), 0xFFFFFFU) << right << ' ' << up;
            EXPECT_EQ(ColourAt(east + right * 3 / 2, north + up * 3 / 2), 0U) << right << ' ' << up;
        }
        EXPECT_EQ(ColourAt(east + 7, north + 7), 0U);
    };
    expectDiamondAt(40, 30);
    wnd.SetZoom(2 * side);
    expectDiamondAt(20, 15);
}

TEST_F(GeoDraw, NothingToDrawAndWhatIsNotANumber)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (const Lines::Way way : {Lines::line, Lines::band}) {
        AddRoute(way, {});
        AddRoute(way, {{0, 0, 0}});
        AddRoute(way, {{0, 0, 0}, {0, 0, 0}});
    }
    AddRoute(Lines::band, {{0, 0, 0}, {50, 0, 0}}).width = none;
    routes.AddTail(new CRtCat);
    routes.AddTail(nullptr);
    AddArea(L"", {});
    AddArea(L"", {{5, 5, 5}});
    EXPECT_TRUE(Drawn().IsRectEmpty());
    AddRoute(Lines::line, {{none, 0, 0}, {-20, 0.5, 0}, {none, none, none}, {20, 0.5, 0}});
    EXPECT_EQ(Drawn(), CRect(-20, 0, 20, 1));
}

TEST_F(GeoDraw, DatabaseHandsTheMouseOnAndKeepsSettingsApart)
{
    Lines& under = AddRoute(Lines::line, {{-40, 0.5, 0}, {40, 0.5, 0}});
    under.colour = RGB(255, 0, 0);
    Lines& over = AddRoute(Lines::line, {{0.5, -40, 0}, {0.5, 40, 0}});
    over.colour = RGB(0, 0, 255);
    Drawn();
    EXPECT_EQ(ColourAt(20, 0), 0xFF0000U);
    EXPECT_EQ(ColourAt(0, 20), 0x0000FFU);
    EXPECT_EQ(HitAt(20, 0), "Routes 0");
    EXPECT_EQ(HitAt(0, 20), "Routes 1");

    EXPECT_EQ(routes.MouseEvent(wnd, WM_MOUSEMOVE, 0, {7, 7}), 0);
    EXPECT_EQ(routes.MouseEvent(wnd, WM_LBUTTONDOWN, MK_LBUTTON, {7, 7}), 7);
    EXPECT_EQ(under.events, 2);
    EXPECT_EQ(over.events, 1);
    CRtCat plain;
    EXPECT_EQ(plain.MouseEvent(wnd, WM_LBUTTONDOWN, 0, {}), 0);
    CMdlInf inf;
    routes.GetInf(inf);
    EXPECT_EQ(inf.lower, faraway + CV3(-40, -40, 0));
    EXPECT_EQ(inf.upper, faraway + CV3(40, 40, 0));

    const CRtDb copy(routes);
    ASSERT_EQ(copy.GetCount(), 2);
    EXPECT_EQ(Places(*copy.GetHead()->GetHead()).size(), 2U);
    EXPECT_TRUE(CRtCat() < under || !(under < CRtCat()));
}

TEST_F(GeoDraw, AreasAndWaypointsShowAndTellTheirNames)
{
    areas.mtrl.diffuse = CRgbf(1, 1, 0);
    AddArea(L"Berth", {{-50, -50, 0}, {50, -50, 0}, {50, 50, 0}, {-50, 50, 0}});
    AddArea<CArRt>(L"Fairway", {{-90, 60, 0}, {-90, 80, 0}, {90, 80, 0}});
    wyPts.AddTail(new CWyCat);
    wyPts.GetHead()->name = L"Buoys";
    wyPts.GetHead()->AddTail(new CWyPt(faraway.x, faraway.y, faraway.z));
    wyPts.GetHead()->AddTail(new CWyPt(faraway.x + 70, faraway.y, faraway.z));
    EXPECT_EQ(Drawn(), CRect(-91, -51, 90, 81));
    EXPECT_EQ(ColourAt(-50, 10), 0xFFFF00U) << "closed";
    EXPECT_EQ(ColourAt(0, 70), 0U) << "not closed";
    EXPECT_EQ(ColourAt(70, 0), 0xFFFFFFU);
    EXPECT_EQ(ColourAt(40, 0), 0U);
    EXPECT_EQ(HitAt(-50, 10), "Berth 0");
    EXPECT_EQ(HitAt(60, 80), "Fairway 1");
    EXPECT_EQ(HitAt(70, 0), "Buoys 1");
    EXPECT_EQ(HitAt(40, 0), "");
    if (const char* const pictures = std::getenv("VANT_PICTURES"))
        image.Save(CString(pictures) + L"\\geo.png");
}

TEST_F(GeoDraw, APickOfVeryManyPartsNamesEachInOrder)
{
    constexpr int count = 30'000;
    RandomGeometry random;
    for (LPCWSTR const name : {L"Buoys", L"Soundings"}) {
        auto* const cat = new CWyCat;
        cat->name = name;
        for (int i = 0; i < count / 2; ++i)
            cat->AddTail(new CWyPt(faraway.x, faraway.y, faraway.z + random.Number(-50, 50)));
        wyPts.AddTail(cat);
    }
    wyPts.GetHead()->AddHead(nullptr);
    AddArea(L"Berth", {{-50, 0, 60}, {50, 0, 60}});
    AddArea(L"", {{-50, 0, 70}, {50, 0, 70}});
    CDspMInf inf;
    ASSERT_EQ(wnd.Pick(side / 2, side / 2, inf), count + 2);
    EXPECT_EQ(inf.hits.GetHead()->text, L"Areas") << "one without a name";
    EXPECT_EQ(inf.hits.GetAt(inf.hits.GetHeadPos()->next)->text, L"Berth");
    double before = 0;
    int soundings = 0;
    for (CVantPtr* pos = inf.hits.GetHeadPos(); pos;) {
        const CDspMHit& hit = *inf.hits.GetNext(pos);
        ASSERT_GE(hit.depth, before);
        before = hit.depth;
        if (hit.mdl == &wyPts) {
            ASSERT_EQ(hit.text, hit.part < count / 2 ? L"Buoys" : L"Soundings") << hit.part;
            soundings += hit.part < count / 2 ? 0 : 1;
        }
    }
    EXPECT_EQ(soundings, count / 2);
    // Later, when the view has been drawn again, it is still known by its number.
    Drawn();
    CDspMHit hit;
    hit.part = count - 1;
    wyPts.OnHit(wnd, hit);
    EXPECT_EQ(hit.text, L"Soundings");
}

} // namespace
