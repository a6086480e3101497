// Draws a scanning sonar off screen, frame by frame, into a video.
#include <VantCore.h>

#include <atlimage.h>

#include <GL/gl.h>

#include <cmath>
#include <cstdio>

namespace
{

constexpr int width = 640;
constexpr int height = 480;
constexpr int depth = 32;                // bits per pixel, as CapPB() wants them
constexpr double secondsPerFrame = 0.02; // an AVI file of CEAvi plays 50 frames per second
constexpr double secondsPerTurn = 4;
constexpr int usualFrames = 500; // ten seconds
constexpr double range = 50;     // metres

struct Echo {
    double bearing, distance, size; // radians clockwise from the top, metres, metres
};
constexpr Echo echoes[] = {{0.6, 31, 1.4}, {1.1, 18, 0.9}, {2.9, 40, 2.0}, {3.4, 24, 1.1}, {5.2, 36, 1.6}};

class CSweep : public CGLWnd
{
public:
    double tm = 0; // seconds

    void Render() override
    {
        glClearColor(0, 0.07F, 0.15F, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        const double high = range * 1.12;
        const double wide = high * width / height;
        glOrtho(-wide, wide, -high, high, -1, 1);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        const double beam = std::fmod(tm / secondsPerTurn, 1) * ML::pi2;
        DrawFan(beam);
        DrawRings();
        for (const Echo& echo : echoes)
            DrawEcho(echo, beam);
        glColor3d(0.96, 0.96, 0.96);
        CString text;
        text.Format(L"%05.1f\u00B0  %.1f s", ML::R2D(beam), tm);
        XyText(-wide + 2, -high + 2, 0, 6, alignLeft, text);
    }

private:
    static void Point(double bearing, double distance)
    {
        glVertex2d(std::sin(bearing) * distance, std::cos(bearing) * distance);
    }

    static void DrawFan(double beam)
    {
        constexpr int steps = 90;
        constexpr double trail = 1.4; // radians
        glBegin(GL_TRIANGLE_STRIP);
        for (int i = 0; i <= steps; ++i) {
            const double age = static_cast<double>(i) / steps;
            glColor4d(0.15, 0.75, 0.75, 0.55 * (1 - age) * (1 - age));
            glVertex2d(0, 0);
            Point(beam - age * trail, range);
        }
        glEnd();
    }

    static void DrawRings()
    {
        constexpr int rings = 5;
        for (int i = 1; i <= rings; ++i) {
            const double radius = range * i / rings;
            glColor4d(0.38, 0.61, 0.98, i == rings ? 0.9 : 0.35);
            glBegin(GL_LINE_LOOP);
            for (int degrees = 0; degrees < 360; degrees += 3)
                Point(ML::D2R(degrees), radius);
            glEnd();
            CString text;
            text.Format(L"%.0f", radius);
            XyText(0.8, radius + 0.6, 0, 4, alignLeft, text);
        }
    }

    static void DrawEcho(const Echo& echo, double beam)
    {
        // 1 when the beam has just passed, 0 a turn later.
        const double fresh = 1 - std::fmod(beam - echo.bearing + 2 * ML::pi2, ML::pi2) / ML::pi2;
        glColor4d(1, 0.75, 0.3, fresh * fresh);
        glPushMatrix();
        glTranslated(std::sin(echo.bearing) * echo.distance, std::cos(echo.bearing) * echo.distance, 0);
        glBegin(GL_TRIANGLE_FAN);
        for (int degrees = 0; degrees < 360; degrees += 15)
            Point(ML::D2R(degrees), echo.size);
        glEnd();
        glPopMatrix();
    }
};

int Record(CSweep& sweep, LPCWSTR path, int frames)
{
    CClientDC dc(&sweep);
    CImage image;
    CEAvi avi;
    if (!sweep.InitPB(dc, width, height) || !image.Create(width, height, depth) || !avi.Open(path))
        return 0;
    for (int i = 0; i < frames; ++i) {
        sweep.tm = i * secondsPerFrame;
        if (!sweep.CapPB(image) || !avi.AddDib(image))
            return 0;
    }
    return 1;
}

class CRecorderApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        const LPCWSTR path = __argc > 1 ? __wargv[1] : L"sweep.avi";
        CSweep sweep;
        m_isGood = sweep.CreateWnd(L"Recorder", WS_POPUP, CRect(0, 0, 64, 64)) &&
                   Record(sweep, path, __argc > 2 ? ::_wtoi(__wargv[2]) : usualFrames);
        std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", path);
        sweep.DestroyWindow();
        return FALSE; // there is no window to wait for
    }

    int ExitInstance() override
    {
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

private:
    bool m_isGood = false;
};

CRecorderApp theApp;

} // namespace
