// recorder: a scanning sonar on the screen, and what it shows in a video.
//   recorder [FILE.avi]     into sweep.avi without a name
// The same Render() draws the window and, off screen in the size of the video (InitPB, CapPB), the frames
// that CEAvi takes: 50 in a second. docs/video.md tells of long recordings, and of what a crash leaves.
#include <VantCore.h>

#include <atlimage.h>

#include <GL/gl.h>
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

constexpr double range = 50; // metres

struct Echo {
    double bearing, distance; // radians clockwise from the top, metres
} constexpr echoes[] = {{0.4, 36}, {0.6, 31}, {1.1, 18}, {1.3, 22}, {2.4, 37},
                        {2.5, 40}, {3.4, 24}, {4.4, 12}, {5.2, 36}, {5.3, 30}};

class CSweep : public CGLWnd
{
public:
    BOOL Begin(const CString& file, int frames)
    {
        m_toCome = frames;
        return InitPB(CClientDC(this), 400, 400) && m_image.Create(400, 400, 32) && m_avi.Open(file);
    }

    /** Goes on by a frame. @return whether it was recorded */
    bool Step()
    {
        m_tm += 0.02; // an AVI file plays 50 frames per second
        RedrawWnd();
        if (m_toCome > 0 && CapPB(m_image) && m_avi.AddDib(m_image))
            return m_toCome-- > 0;
        m_toCome = 0;
        m_avi.Close(); // it is complete, or the disk is
        return false;
    }

    void Render() override
    {
        const double high = range * 1.15;
        const double wide = high * ViewRc().Width() / std::abs(ViewRc().Height());
        const double beam = std::fmod(m_tm / 4, 1) * ML::pi2;
        glClearColor(0, 0.07F, 0.15F, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        glLoadIdentity();
        glOrtho(-wide, wide, -high, high, -1, 1);
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        DrawFan(beam);
        DrawRings();
        DrawEchoes(beam);
        glColor3d(0.96, 0.96, 0.96);
        XyText(2 - wide, 2 - high, 0, 5, alignLeft, m_toCome > 0 ? L"Recording" : L"Recorded");
    }

private:
    static void Point(double bearing, double distance)
    {
        glVertex2d(std::sin(bearing) * distance, std::cos(bearing) * distance);
    }

    static void DrawFan(double beam)
    {
        glBegin(GL_TRIANGLE_STRIP);
        for (int degrees = 0; degrees <= 80; ++degrees) { // of trail
            glColor4d(0.15, 0.75, 0.75, 0.55 * ML::Sqr(1 - degrees / 80.0));
            glVertex2d(0, 0);
            Point(beam - ML::D2R(degrees), range);
        }
        glEnd();
    }

    static void DrawRings()
    {
        for (int radius = 10; radius <= range; radius += 10) {
            glColor4d(0.38, 0.61, 0.98, radius < range ? 0.35 : 0.9);
            glBegin(GL_LINE_LOOP);
            for (int degrees = 0; degrees < 360; degrees += 3)
                Point(ML::D2R(degrees), radius);
            glEnd();
            XyText(0.8, radius + 0.6, 0, 4, alignLeft, std::to_wstring(radius).c_str());
        }
    }

    void DrawEchoes(double beam) const
    {
        glEnable(GL_POINT_SMOOTH);
        glPointSize(static_cast<float>(ViewRc().Width()) / 40);
        glBegin(GL_POINTS);
        for (const Echo& echo : echoes) {
            const double turnsAgo = std::fmod(beam - echo.bearing + ML::pi2, ML::pi2) / ML::pi2;
            glColor4d(1, 0.75, 0.3, 1 - turnsAgo);
            Point(echo.bearing, echo.distance);
        }
        glEnd();
    }

    CEAvi m_avi;
    CImage m_image;
    int m_toCome = 0; // frames
    double m_tm = 0;  // seconds
};

class CRecorderApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        m_wnd = std::make_unique<CSweep>();
        m_pMainWnd = m_wnd.get();
        const CRect place(100, 100, 616, 640);
        m_isGood = m_wnd->CreateWnd(L"Recorder", WS_OVERLAPPEDWINDOW | WS_VISIBLE, place) &&
                   m_wnd->Begin(__argc == 2 ? __wargv[1] : L"sweep.avi", __argc < 3 ? 500 : 75);
        ::SetTimer(nullptr, 0, 10,
                   [](HWND, UINT, UINT_PTR, DWORD) { static_cast<CRecorderApp*>(AfxGetApp())->Tick(); });
        return m_isGood;
    }

    void Tick()
    {
        if (m_wnd->Step()) {
            ++m_frames;
        } else if (__argc > 2) {
            m_isGood = Vant::PrintScn(__wargv[2]);
            std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[2]);
            m_wnd->PostMessage(WM_CLOSE);
        }
    }

    int ExitInstance() override
    {
        m_wnd.reset();
        std::printf("%d frames recorded\n", m_frames);
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CSweep> m_wnd;
    int m_frames = 0; // recorded
    BOOL m_isGood = FALSE;
} theApp;
