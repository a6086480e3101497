// A view of a sea bed and a boat that it follows: in a window, or as two pictures.
#include "CBoat.h"
#include "CSeabed.h"

#include <atlimage.h>

#include <cstdio>
#include <memory>

namespace
{

const CV3 somewhere(489'600, 5'832'400, 0); // metres east and north, as real charts have them
constexpr double timePerPoll = 0.25;        // seconds

/** Shows in its title what was picked, and drives everything by its timer. */
class CViewWnd : public CDsp
{
public:
    CViewWnd()
    {
        name = L"View";
        SetViewOrg(somewhere);
        SetZoom(560);
        Follow(L"Boat");
    }

    void OnPick(CDspMInf& inf, int) override
    {
        SetWindowText(inf.count ? inf.hits.GetHead()->text : CString(L"Nothing there"));
    }

    int Picture(const CString& file)
    {
        constexpr int width = 900;
        constexpr int height = 560;
        constexpr int depth = 32;
        CClientDC dc(this);
        CImage image;
        if (!InitPB(dc, width, height) || !image.Create(width, height, depth) || !CapPB(image))
            return 0;
        // What counts on a screen is the colour; a picture's viewer would show through.
        for (int row = 0; row < height; ++row)
            for (int column = 0; column < width; ++column)
                static_cast<unsigned char*>(image.GetPixelAddress(column, row))[3] = 255;
        const bool isSaved = SUCCEEDED(image.Save(file));
        std::printf(isSaved ? "%ls\n" : "%ls could not be written\n", static_cast<LPCWSTR>(file));
        return isSaved;
    }

protected:
    afx_msg void OnDestroy()
    {
        CDsp::OnDestroy();
        ::PostQuitMessage(0);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CViewWnd, CDsp)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

class CViewApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        m_group = std::make_unique<CDspGrp>();
        m_seabed = std::make_unique<CSeabed>(somewhere);
        m_boat = std::make_unique<CBoat>(somewhere);
        m_view = std::make_unique<CViewWnd>();
        const bool takesPictures = __argc > 2;
        const DWORD style = takesPictures ? WS_POPUP : WS_OVERLAPPEDWINDOW | WS_VISIBLE;
        if (!m_view->CreateWnd(L"View", style, CRect(100, 100, 1000, 700)))
            return FALSE;
        m_pMainWnd = m_view.get();
        if (!takesPictures)
            return TRUE;
        for (int i = 0; i < 800; ++i)
            m_boat->MoveTo(m_time += timePerPoll);
        m_isGood = TakePictures();
        return FALSE;
    }

    BOOL OnIdle(LONG) override
    {
        m_boat->MoveTo(m_time += timePerPoll);
        CVantWnd::Poll(m_time);
        ::Sleep(20);
        return TRUE;
    }

    int ExitInstance() override
    {
        if (m_view && m_view->m_hWnd)
            m_view->DestroyWindow();
        m_view.reset();
        m_boat.reset();
        m_seabed.reset();
        m_group.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

private:
    bool TakePictures()
    {
        if (!m_view->Picture(__wargv[1]))
            return false;
        CDspCam cam = m_view->Cam();
        cam.kind = CDspCam::orbit;
        cam.align = ML::D2R(330);
        cam.elev = ML::D2R(33);
        cam.org = somewhere + CV3(0, 0, -20);
        cam.zoom = 520;
        m_view->SetCam(cam);
        return m_view->Picture(__wargv[2]) != 0;
    }

    std::unique_ptr<CDspGrp> m_group;
    std::unique_ptr<CSeabed> m_seabed;
    std::unique_ptr<CBoat> m_boat;
    std::unique_ptr<CViewWnd> m_view;
    double m_time = 0;
    bool m_isGood = true;
};

CViewApp theApp;

} // namespace
