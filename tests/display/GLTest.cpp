#include "display/GLTest.h"

#include <algorithm>
#include <cstdlib>

void CaptureScene(CGLWnd& wnd, CImage& image, CSize size, bool topDown)
{
    if (wnd.PbWidth() != size.cx || wnd.PbHeight() != size.cy) {
        CClientDC dc(&wnd);
        ASSERT_EQ(wnd.InitPB(dc, size.cx, size.cy), 1);
    }
    ASSERT_TRUE(image.Create(size.cx, topDown ? -size.cy : size.cy, 32));
    ASSERT_EQ(wnd.CapPB(image), 1);
}

void SceneWnd::Render()
{
    ++renders;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, ViewRc().Width(), 0, ViewRc().Height(), -100, 100);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glColor3f(1, 1, 1);
    scene();
}

void SceneWnd::CreatePopup(int width, int height, CPoint at)
{
    ASSERT_TRUE(CreateEx(WS_EX_TOPMOST | WS_EX_NOACTIVATE, Vant::wndClass, L"Scene", WS_POPUP,
                         CRect(at, CSize(width, height)), nullptr, 0));
}

int SceneWnd::InitPB(int width, int height)
{
    CClientDC dc(this);
    return CGLWnd::InitPB(dc, width, height);
}

void SceneWnd::Capture(CImage& image, int width, int height, bool topDown)
{
    CaptureScene(*this, image, CSize(width, height), topDown);
}

void SceneWnd::InContext(const std::function<void()>& code)
{
    CImage image;
    const std::function<void()> before = scene;
    scene = code;
    Capture(image, 64, 64);
    scene = before;
}

GLTest::~GLTest()
{
    CDsp::ReleaseLists();
    vant::detail::GL() = m_gl;
    vant::detail::Pbuffers() = m_pbuffers;
    Vant::Exit();
}

std::uint32_t GLTest::At(const CImage& image, int x, int y)
{
    return *static_cast<const std::uint32_t*>(image.GetPixelAddress(x, y)) & 0xFFFFFF;
}

testing::AssertionResult GLTest::IsNear(std::uint32_t got, std::uint32_t wanted, int tolerance)
{
    bool isNear = true;
    for (const int shift : {0, 8, 16})
        isNear = isNear && std::abs(static_cast<int>(got >> shift & 0xFF) -
                                    static_cast<int>(wanted >> shift & 0xFF)) <= tolerance;
    return (isNear ? testing::AssertionSuccess() : testing::AssertionFailure())
           << std::hex << got << ", wanted " << wanted;
}

bool GLTest::IsLit(const CImage& image, int x, int y)
{
    return (At(image, x, y) & 0xFF00) >= 0x8000;
}

CRect GLTest::Ink(const CImage& image)
{
    CRect ink(image.GetWidth(), image.GetHeight(), 0, 0);
    for (int y = 0; y < image.GetHeight(); ++y) {
        for (int x = 0; x < image.GetWidth(); ++x) {
            if (!IsLit(image, x, y))
                continue;
            ink.left = std::min<LONG>(ink.left, x);
            ink.top = std::min<LONG>(ink.top, y);
            ink.right = std::max<LONG>(ink.right, x + 1);
            ink.bottom = std::max<LONG>(ink.bottom, y + 1);
        }
    }
    return ink.right ? ink : CRect(0, 0, 0, 0);
}

int GLTest::Strokes(const CImage& image, int y)
{
    int strokes = 0;
    for (int x = 1; x < image.GetWidth(); ++x)
        strokes += IsLit(image, x, y) && !IsLit(image, x - 1, y);
    return strokes;
}

std::vector<std::wstring> GLTest::AlarmTexts()
{
    std::vector<std::wstring> texts;
    for (const Logged& alarm : alarms)
        texts.push_back(alarm.text);
    return texts;
}
