// chart: a route, areas, and an alarm while the boat is in one of them.
// The library keeps areas and draws them; what lies inside is for the application to say, which knows its
// shapes: CArea::Inside() is a hook. How far it is off the route the library tells. Mouse, keys: docs/3d.md.
#include <VantCore.h>

#include <GL/gl.h>
#include <cmath>
#include <cstdio>
#include <memory>

const CV3 somewhere(489'600, 5'832'400, 0); // metres east and north, as real charts have them

class CPolygon : public CArFree
{
public:
    CPolygon(const wchar_t* itsName, std::initializer_list<CV3> vertices)
    {
        name = itsName;
        for (const CV3& vertex : vertices)
            AddTail(new CV3(somewhere + vertex));
    }

    int Inside(double x, double y) override
    {
        int isInside = 0; // a line to the east crosses the outline an odd number of times from inside
        const CV3* a = GetTail();
        for (CVantPtr* pos = GetHeadPos(); pos;) {
            const CV3* const b = GetNext(pos);
            isInside ^= (a->y > y) != (b->y > y) && ML::Interpolate(a->y, b->y, y, a->x, b->x) > x;
            a = b;
        }
        return isInside;
    }
    int hasBoat = 0;
};

class CChartWnd : public CDsp
{
public:
    CChartWnd()
    {
        m_group.RegDsp(this);
        SetViewOrg(somewhere);
        SetZoom(460); // metres from the lower to the upper edge
        for (const CV3& node : {CV3(-300, -130, 0), CV3(-140, 40, 0), CV3(60, -20, 0), CV3(290, 130, 0)})
            m_route.AddTail(new CRtV3(somewhere.x + node.x, somewhere.y + node.y, 0));
        m_route.Recalc();
        m_areas.lit = 0;
        m_areas.mtrl.diffuse = CRgbf(1.0F, 0.75F, 0.3F);
        m_areas.AddTail(new CArCat);
        for (CPolygon* const area : {m_bank, m_cable})
            m_areas.GetHead()->AddTail(area);
    }

    void Advance(double seconds)
    {
        m_t += seconds;
        CRtV3 place;
        m_route.Q2Entry(std::fmod(4 * m_t, m_route.GetTail()->q), place); // 4 metres per second
        m_boat = place.Pos() + CV3(0, 20 * std::sin(m_t / 9), 0);         // badly steered
        for (CPolygon* const area : {m_bank, m_cable}) {
            if (area->hasBoat == area->Inside(m_boat.x, m_boat.y))
                continue;
            area->hasBoat = !area->hasBoat;
            m_text = (area->hasBoat ? L"Inside " : L"Clear of ") + area->name;
            Vant::Alarm(area == m_bank ? 1 : 2, area->hasBoat ? 1 : -1, L"%s", m_text.GetString());
            std::printf("%ls at %.1f %.1f\n", m_text.GetString(), m_boat.x, m_boat.y);
        }
        NeedDraw();
    }

    void DrawScene() override
    {
        glDisable(GL_LIGHTING);
        glDisable(GL_DEPTH_TEST); // all lies in one plane: what is drawn later covers
        glColor3ub(0, 36, 66);
        m_route.DwSolidRt(*this, 70); // metres wide
        glColor3ub(98, 155, 247);
        glLineWidth(2);
        m_route.DwLineRt(*this);
        CDsp::DrawScene(); // the drawables of the group: the areas
        glColor3ub(245, 245, 245);
        CRoute::DwMrkr(*this, CRtV3(m_boat.x, m_boat.y, 0), 18);
        Label(m_boat, L"Boat", Vant::light, 14, 0);
    }

    void DrawOverlay() override
    {
        CDsp::DrawOverlay();
        double across = 0, along = 0; // metres; the first one to the right
        TgtCalc::XTrk(m_route, m_boat, across, along);
        CString text;
        text.Format(L"%.0f m to %s of the route", std::abs(across), across > 0 ? L"starboard" : L"port");
        OverlayTxt(90, OverlaySize().y - 30, text, Vant::light, 18);
        OverlayTxt(90, OverlaySize().y - 60, m_text, RGB(255, 190, 80), 24);
    }

private:
    CDspGrp m_group; // brings drawables and views together
    CArDb m_areas;   // owns the polygons
    CPolygon* const m_bank = new CPolygon(
        L"Tern Bank", {{-230, 60, 0}, {-150, 10, 0}, {-60, 40, 0}, {-90, 120, 0}, {-190, 130, 0}});
    CPolygon* const m_cable =
        new CPolygon(L"Cable", {{120, -110, 0}, {170, -110, 0}, {220, 150, 0}, {180, 150, 0}});
    CRoute m_route;
    CV3 m_boat;
    CString m_text;
    double m_t = 0; // seconds
};

class CChartApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        m_wnd = std::make_unique<CChartWnd>();
        m_pMainWnd = m_wnd.get();
        m_isGood = m_wnd->CreateWnd(L"Chart", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 900, 640));
        ::SetTimer(nullptr, 0, 20,
                   [](HWND, UINT, UINT_PTR, DWORD) { static_cast<CChartApp*>(AfxGetApp())->Tick(); });
        if (!m_isGood || __argc < 3) // chart --picture FILE
            return m_isGood;
        for (int i = 0; i < 290; ++i)
            m_wnd->Advance(0.5);
        m_wnd->RedrawWnd();
        m_isGood = Vant::PrintScn(__wargv[2]);
        std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[2]);
        return FALSE;
    }

    void Tick()
    {
        m_wnd->Advance(0.1);
        CVantWnd::Poll(0); // draws what has changed
    }

    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CChartWnd> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
