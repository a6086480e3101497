// Areas that know what lies inside: asks them, prints the answers, and draws them into a picture if it is
// given a file name. Ends with exit code 1 if an answer is wrong.
#include "CLines.h"
#include "CShapes.h"

#include <atlimage.h>

#include <cstdio>
#include <memory>

namespace
{

const CV3 somewhere(489'600, 5'832'400, 0); // metres east and north, as real charts have them

CV3* At(double east, double north)
{
    return new CV3(somewhere + CV3(east, north, 0));
}

/** Hears how far off its route a boat is. */
class CWatch : public CObject
{
public:
    void OnOffTrack(double across) { offTrack = across; }
    double offTrack = 0;
};

class CAreasApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        const CDspGrp group;
        CRtDb routes; // drawn first, under the areas
        CArDb areas;
        routes.lit = 0;
        areas.lit = 0;
        areas.mtrl.diffuse = CRgbf(1.0F, 0.75F, 0.3F);
        Fill(routes, areas);
        Ask(*areas.GetHead());
        if (__argc > 1)
            TakePicture(__wargv[1]);
        Vant::Exit();
        return FALSE; // there is no window to wait for
    }

    int ExitInstance() override
    {
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

private:
    static void Fill(CRtDb& routes, CArDb& areas)
    {
        auto* const line = new CLine;
        for (const CV3& node : {CV3(-250, -150, 0), CV3(-150, 0, 0), CV3(0, 40, 0), CV3(200, 150, 0)})
            line->AddTail(new CRtV3(somewhere.x + node.x, somewhere.y + node.y, 0));
        line->Recalc();
        routes.AddTail(new CLines(60));
        routes.GetHead()->AddTail(line);

        auto* const shoal = new CPolygon;
        for (CV3* const vertex : {At(60, -60), At(220, -150), At(200, 20), At(130, -70)})
            shoal->AddTail(vertex);
        auto* const cats = new CArCat;
        cats->AddTail(shoal);
        cats->AddTail(new CDisc(somewhere.x - 150, somewhere.y + 100, 40));
        cats->AddTail(new CTurned(somewhere.x - 20, somewhere.y - 120, 160, 60, ML::D2R(60)));
        cats->AddTail(new CCorridor(*line, 30, 30));
        areas.AddTail(cats);
    }

    void Ask(CArCat& areas)
    {
        struct Question {
            const char* area;
            CV3 in;
            CV3 out;
        };
        // The second place of each lies in the hollow, or in what would be inside of the shape's upright box.
        const Question questions[] = {{"polygon", {190, -30, 0}, {120, -40, 0}},
                                      {"circle", {-150, 139, 0}, {-120, 130, 0}},
                                      {"rectangle at an angle", {40, -90, 0}, {40, -150, 0}},
                                      {"corridor", {-80, 40, 0}, {-80, 60, 0}}};
        CVantPtr* pos = areas.GetHeadPos();
        for (const auto& [name, in, out] : questions) {
            CArea& area = *areas.GetNext(pos);
            const bool isRight = area.Inside(somewhere + in) && !area.Inside(somewhere + out);
            std::printf("%-22s %s\n", name, isRight ? "right" : "wrong");
            m_isGood = m_isGood && isRight;
        }
        CWatch watch;
        areas.GetTail()->ProcTgt(CArProcTgt(&watch), somewhere.x - 150, somewhere.y - 36,
                                 static_cast<void (CObject::*)(double)>(&CWatch::OnOffTrack));
        std::printf("%.1f m right of the route\n", watch.offTrack);
        m_isGood = m_isGood && ML::LessThanT(watch.offTrack, 30) && watch.offTrack > 0;
    }

    void TakePicture(const CString& file)
    {
        CDsp view;
        view.SetViewOrg(somewhere);
        view.SetZoom(420);
        constexpr int width = 800;
        constexpr int height = 560;
        CImage image;
        m_isGood = m_isGood && view.CreateWnd(L"Areas", WS_POPUP, CRect(0, 0, width, height)) &&
                   image.Create(width, height, 32) && view.InitPB(CClientDC(&view), width, height) &&
                   view.CapPB(image) && SUCCEEDED(image.Save(file));
        view.DestroyWindow();
    }

    bool m_isGood = true;
};

CAreasApp theApp;

} // namespace
