// Other machines. Each case needs one, and is skipped on any other.
#include "firstuse/FirstUse.h"

namespace
{

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

bool HasOpenGL()
{
    const HWND wnd =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 8, 8, nullptr, nullptr, nullptr, nullptr);
    const HDC dc = ::GetDC(wnd);
    PIXELFORMATDESCRIPTOR wanted{};
    wanted.nSize = sizeof wanted;
    wanted.nVersion = 1;
    wanted.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    ::SetPixelFormat(dc, ::ChoosePixelFormat(dc, &wanted), &wanted);
    const HGLRC rc = ::wglCreateContext(dc);
    ::wglDeleteContext(rc);
    ::ReleaseDC(wnd, dc);
    ::DestroyWindow(wnd);
    return rc != nullptr;
}

/** The children of a window that reach beyond its client area. */
std::vector<std::wstring> ChildrenCutOff(HWND wnd)
{
    struct Search {
        HWND parent;
        RECT client;
        std::vector<std::wstring> found;
    } search{wnd, {}, {}};
    ::GetClientRect(wnd, &search.client);
    ::EnumChildWindows(
        wnd,
        [](HWND child, LPARAM param) -> BOOL {
            auto& s = *reinterpret_cast<Search*>(param);
            if (::GetAncestor(child, GA_PARENT) != s.parent || !::IsWindowVisible(child))
                return TRUE;
            RECT place{};
            RECT both{};
            ::GetWindowRect(child, &place);
            ::MapWindowPoints(nullptr, s.parent, reinterpret_cast<POINT*>(&place), 2);
            ::UnionRect(&both, &place, &s.client);
            wchar_t title[64];
            ::GetWindowTextW(child, title, static_cast<int>(std::size(title)));
            if (!::EqualRect(&both, &s.client))
                s.found.emplace_back(title);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

TEST_F(FirstUse, WithoutOpenGLTheViewsSayWhatIsMissing)
{
    if (HasOpenGL())
        GTEST_SKIP() << "this machine has OpenGL";
    Program program(m_dir, L"--seconds 1 --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    ::PostMessageW(wnd, WM_CHAR, L'v', 1); // a video of a view that cannot be drawn
    EXPECT_EQ(0, program.ExitCode());
    EXPECT_THAT(program.Err(), HasSubstr("offers no OpenGL"));
    EXPECT_EQ(1, Lines(program.Err())) << program.Err();
    EXPECT_TRUE(fs::exists(m_dir / "chart.png")) << "with the view's own words in it";
    EXPECT_THAT(Contents(m_dir / "demo.log"), HasSubstr("frames drawn"));
}

TEST_F(FirstUse, WithoutPixelBuffersPicturesComeFromTheScreen)
{
    Program program(m_dir, L"--seconds 0.5 --no-pbuffers --out .");
    EXPECT_EQ(0, program.ExitCode());
    EXPECT_THAT(program.Err(), IsEmpty());
    for (const char* const picture : {"chart.png", "orbit.png"})
        EXPECT_GT(fs::file_size(m_dir / picture), 20000U) << picture << " shows next to nothing";
    EXPECT_FALSE(fs::exists(m_dir / "Logs" / "Alarms.csv"));
}

TEST_F(FirstUse, AtMoreDotsPerInchTheWindowFitsTheScreen)
{
    if (::GetDpiForSystem() == USER_DEFAULT_SCREEN_DPI)
        GTEST_SKIP() << "this machine's screen has 96 DPI";
    PutSettings(m_dir);
    Program program(m_dir, L"--seconds 2 --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    RECT work{};
    RECT place{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    ::GetWindowRect(wnd, &place);
    EXPECT_GE(place.left, work.left);
    EXPECT_GE(place.top, work.top);
    EXPECT_LE(place.right, work.right);
    EXPECT_LE(place.bottom, work.bottom);
    EXPECT_THAT(ChildrenCutOff(wnd), IsEmpty());
    EXPECT_EQ(0, program.ExitCode()) << program.Err();
    EXPECT_TRUE(fs::exists(m_dir / "screen.png"));
}

TEST_F(FirstUse, WithADecimalCommaTheSettingsHaveAPoint)
{
    wchar_t decimal[8];
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal, static_cast<int>(std::size(decimal)));
    if (decimal != std::wstring(L","))
        GTEST_SKIP() << "this machine's language has no decimal comma";
    PutSettings(m_dir, "<ShallowLimit val=\"15.5\"/>\r\n<DepthSpan val=\"90.25\"/>\r\n");
    Program program(m_dir, L"--seconds 1.5 --rate 20 --out .");
    ASSERT_EQ(0, program.ExitCode()) << program.Err();
    EXPECT_THAT(program.Out(), Not(HasSubstr(" 0 used")));
    const std::string settings = Contents(m_dir / "VantDemo.xml");
    EXPECT_EQ("15.5", Item(settings, "ShallowLimit"));
    EXPECT_EQ("90.25", Item(settings, "DepthSpan"));
    EXPECT_THAT(Contents(m_dir / "Logs" / "Alarms.csv"), HasSubstr("m, limit 15.5m"));
}
