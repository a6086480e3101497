#include "tests/display/ViewTest.h"

#include "tests/display/Models.h"

#include <filesystem>
#include <fstream>

const std::array<ViewWnd::Side, 6> ViewWnd::sides = {{{"front", {0, -1, 0}, {0, 0, 1}},
                                                      {"back", {0, 1, 0}, {0, 0, 1}},
                                                      {"left", {-1, 0, 0}, {0, 0, 1}},
                                                      {"right", {1, 0, 0}, {0, 0, 1}},
                                                      {"top", {0, 0, 1}, {0, 1, 0}},
                                                      {"bottom", {0, 0, -1}, {0, 1, 0}}}};

void ViewWnd::Render()
{
    ++renders;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-range, range, -range, range, -100, 100);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnable(GL_DEPTH_TEST);
    const float dark[] = {0, 0, 0, 1};
    const float atEye[] = {0, 0, 1, 0};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, dark);
    glLightfv(GL_LIGHT0, GL_POSITION, atEye);
    glEnable(GL_LIGHT0);
    const CV3 right = up % front;
    const double turn[] = {right.x, up.x, front.x, 0, right.y, up.y, front.y, 0,
                           right.z, up.z, front.z, 0, 0,       0,    0,       1};
    glMultMatrixd(turn);
    scene();
}

void ViewWnd::Open(int size, CPoint at)
{
    ASSERT_TRUE(CreateEx(WS_EX_TOPMOST | WS_EX_NOACTIVATE, Vant::wndClass, L"View", WS_POPUP,
                         CRect(at, CSize(size, size)), nullptr, 0));
}

void ViewWnd::Capture(CImage& image, int size)
{
    CaptureScene(*this, image, CSize(size, size));
}

void ViewWnd::Capture(CImage& image, int size, CModel& model)
{
    const std::function<void()> before = scene;
    scene = [&] { model.DrawModel(*this); };
    Capture(image, size);
    scene = before;
}

void ViewWnd::InContext(const std::function<void()>& code)
{
    CImage image;
    const std::function<void()> before = scene;
    scene = code;
    Capture(image, 64);
    scene = before;
}

CString ViewTest::WriteFile(const std::wstring& name, const std::string& bytes)
{
    const std::wstring path = TempDir() + name;
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.good());
    return path.c_str();
}

CString ViewTest::WriteModel(const std::wstring& name, const vant::detail::ModelData& model)
{
    return WriteFile(name, support::Write3ds(model));
}

CString ViewTest::WriteImage(const std::wstring& name, COLORREF lower, COLORREF upper)
{
    constexpr int size = 16;
    CImage image;
    EXPECT_TRUE(image.Create(size, size, 24));
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            image.SetPixel(x, y, y < size / 2 ? upper : lower);
    const std::wstring path = TempDir() + name;
    EXPECT_EQ(image.Save(path.c_str()), S_OK);
    return path.c_str();
}
