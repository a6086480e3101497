// The examples as their reader starts them: each shows its window, leaves a picture of it, and says what came
// of its idea.
#include "support/ScreenLock.h"

#include <gmock/gmock.h>

#include <afxwin.h>
#include <atlimage.h>
#include <vfw.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace
{

constexpr DWORD patience = 90000; // milliseconds until a run counts as hanging

class Examples : public testing::Test
{
protected:
    Examples()
        : m_dir(Programs().parent_path() / "tests" / "examples" /
                testing::UnitTest::GetInstance()->current_test_info()->name())
    {
        fs::remove_all(m_dir);
        fs::create_directories(m_dir);
    }

    fs::path File(const wchar_t* name) const { return m_dir / name; }

    /** Starts an example. Its output goes to a file. */
    void Start(const std::wstring& example, const std::wstring& arguments)
    {
        const fs::path exe = Programs() / (example + L".exe");
        std::wstring line = L"\"" + exe.wstring() + L"\" " + arguments;
        SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = start.hStdError = ::CreateFileW(m_said.c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                                           &inherit, CREATE_ALWAYS, 0, nullptr);
        EXPECT_TRUE(::CreateProcessW(exe.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                     m_dir.c_str(), &start, &m_process))
            << "error " << ::GetLastError();
        ::CloseHandle(start.hStdOutput);
    }

    /** The window of the example that was started, once it is visible. */
    HWND Window() const
    {
        struct Search {
            DWORD process;
            HWND wnd;
        } search{m_process.dwProcessId, nullptr};
        for (DWORD waited = 0; waited < patience && !search.wnd; waited += 50) {
            ::Sleep(50);
            ::EnumWindows(
                [](HWND wnd, LPARAM param) -> BOOL {
                    auto& s = *reinterpret_cast<Search*>(param);
                    DWORD process = 0;
                    ::GetWindowThreadProcessId(wnd, &process);
                    if (process == s.process && ::IsWindowVisible(wnd))
                        s.wnd = wnd;
                    return s.wnd == nullptr;
                },
                reinterpret_cast<LPARAM>(&search));
        }
        return search.wnd;
    }

    /** Whether it goes on by itself for a while. */
    bool StaysOpen() const
    {
        constexpr DWORD aWhile = 700; // milliseconds
        return ::WaitForSingleObject(m_process.hProcess, aWhile) == WAIT_TIMEOUT;
    }

    /** Waits for its end. @return what it has said */
    std::string Finish()
    {
        if (::WaitForSingleObject(m_process.hProcess, patience) != WAIT_OBJECT_0)
            ::TerminateProcess(m_process.hProcess, 99);
        ::WaitForSingleObject(m_process.hProcess, patience);
        ::GetExitCodeProcess(m_process.hProcess, &exitCode);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
        std::ifstream file(m_said);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::string Run(const std::wstring& example, const std::wstring& arguments)
    {
        Start(example, arguments);
        return Finish();
    }

    /** Runs it for its picture, which must show something. */
    std::string TakePicture(const std::wstring& example)
    {
        std::string said = Run(example, L"--picture picture.png");
        EXPECT_EQ(exitCode, 0U) << said;
        CheckPicture(File(L"picture.png"));
        return said;
    }

    DWORD exitCode = 98;

private:
    static fs::path Programs()
    {
        wchar_t self[1024];
        const DWORD length = ::GetModuleFileNameW(nullptr, self, static_cast<DWORD>(std::size(self)));
        return fs::path(std::wstring(self, length)).parent_path();
    }

    static void CheckPicture(const fs::path& path)
    {
        constexpr int leastSide = 200; // pixels
        constexpr std::size_t leastColours = 20;
        constexpr double mostOfOne = 0.97; // a window of one colour shows nothing
        CImage image;
        ASSERT_TRUE(SUCCEEDED(image.Load(path.c_str()))) << path;
        ASSERT_GE(image.GetWidth(), leastSide);
        ASSERT_GE(image.GetHeight(), leastSide);
        ASSERT_GE(image.GetBPP(), 24);
        std::map<COLORREF, int> pixels;
        for (int y = 0; y < image.GetHeight(); ++y) {
            for (int x = 0; x < image.GetWidth(); ++x) {
                const auto* const bytes = static_cast<const BYTE*>(image.GetPixelAddress(x, y));
                ++pixels[RGB(bytes[2], bytes[1], bytes[0])];
            }
        }
        const auto most = std::max_element(pixels.begin(), pixels.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        EXPECT_GE(pixels.size(), leastColours);
        EXPECT_LT(most->second, mostOfOne * image.GetWidth() * image.GetHeight());
    }

    const ScreenLock m_screen;
    const fs::path m_dir;
    const fs::path m_said = m_dir / "said.txt";
    PROCESS_INFORMATION m_process{};
};

/** Waits until something holds, as long as a slow machine may need. @return whether it does */
template <class Condition>
bool ComesTrue(Condition condition)
{
    for (DWORD waited = 0; waited < patience; waited += 50) {
        if (condition())
            return true;
        ::Sleep(50);
    }
    return condition();
}

/** What a window shows, as the colours of some of its pixels: those of one moment, so they are copied first.
 */
std::vector<COLORREF> Shown(HWND wnd)
{
    CRect client;
    ::GetClientRect(wnd, client);
    const HDC dc = ::GetDC(wnd);
    const HDC copy = ::CreateCompatibleDC(dc);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(dc, client.Width(), client.Height());
    const HGDIOBJ before = ::SelectObject(copy, bitmap);
    ::BitBlt(copy, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    std::vector<COLORREF> colours;
    constexpr int apart = 20; // pixels
    for (int y = 0; y < client.Height(); y += apart)
        for (int x = 0; x < client.Width(); x += apart)
            colours.push_back(::GetPixel(copy, x, y));
    ::SelectObject(copy, before);
    ::DeleteObject(bitmap);
    ::DeleteDC(copy);
    ::ReleaseDC(wnd, dc);
    return colours;
}

/** The numbers of each line that a pattern matches. */
std::vector<std::vector<double>> Numbers(const std::string& said, const char* pattern)
{
    std::vector<std::vector<double>> found;
    const std::regex expression(pattern);
    for (std::sregex_iterator it(said.begin(), said.end(), expression); it != std::sregex_iterator(); ++it) {
        auto& numbers = found.emplace_back();
        for (std::size_t i = 1; i < it->size(); ++i)
            numbers.push_back(std::stod((*it)[i]));
    }
    return found;
}

TEST_F(Examples, SayThatAPictureCouldNotBeWritten)
{
    EXPECT_THAT(Run(L"hello", L"--picture no-such-folder\\picture.png"), HasSubstr("could not be written"));
    EXPECT_NE(exitCode, 0U);
}

TEST_F(Examples, StayOpenForTheirUserAndEndWithTheirWindow)
{
    const auto hasFrame = [video = File(L"sweep.avi")] {
        constexpr std::uintmax_t frameBytes = 640'000;
        std::error_code error;
        const std::uintmax_t size = fs::file_size(video, error);
        return !error && size > frameBytes;
    };
    std::wistringstream names(EXAMPLES);
    for (std::wstring example; names >> example;) {
        SCOPED_TRACE(fs::path(example).string());
        Start(example, L"");
        const HWND wnd = Window();
        EXPECT_TRUE(StaysOpen());
        EXPECT_TRUE(example != L"recorder" || ComesTrue(hasFrame));
        ::PostMessageW(wnd, WM_CLOSE, 0, 0);
        const std::string said = Finish();
        EXPECT_EQ(exitCode, 0U) << said;
    }
    EXPECT_TRUE(fs::exists(File(L"form.xml")));
    EXPECT_TRUE(hasFrame()); // a recording that is cut off keeps its frames
}

TEST_F(Examples, HelloShowsAValue)
{
    EXPECT_THAT(TakePicture(L"hello"), HasSubstr("VantCore 2.07"));
}

TEST_F(Examples, FormRefusesWhatIsOutOfRangeAndRemembersTheRest)
{
    const std::string first = TakePicture(L"form");
    EXPECT_THAT(first, HasSubstr("at the start: 4.0m; 2.5m/s; 45.0"));
    EXPECT_THAT(first, HasSubstr("Not in user specified range 0 to 10"));
    // The field that was left with 80 in it has its old value again; the one that still has 99 keeps its own.
    EXPECT_THAT(first, HasSubstr("at the end: 6.5m; 2.5m/s; 45.0"));
    EXPECT_THAT(TakePicture(L"form"), HasSubstr("at the start: 6.5m; 2.5m/s; 45.0"));
}

TEST_F(Examples, PlotShowsWhatTheThreadSends)
{
    const auto plotted = Numbers(TakePicture(L"plot"), R"((\d+) samples, an axis from (\S+) to (\S+) m)");
    ASSERT_EQ(plotted.size(), 1U);
    EXPECT_GT(plotted[0][0], 100); // six seconds, a sample every 5 ms where the machine is free
    // A sea bed from 20.7 to 27.3 m, of which a slow machine has seen half at least.
    EXPECT_GE(plotted[0][1], 15);
    EXPECT_LE(plotted[0][1], 24);
    EXPECT_GE(plotted[0][2], 24);
    EXPECT_LE(plotted[0][2], 30);
}

double DistanceToOutline(const std::vector<std::pair<double, double>>& outline, double x, double y)
{
    double nearest = 1e9;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const auto [ax, ay] = outline[i];
        const auto [bx, by] = outline[(i + 1) % outline.size()];
        const double length = std::hypot(bx - ax, by - ay);
        const double along =
            std::clamp(((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / length, 0.0, length) / length;
        nearest = std::min(nearest, std::hypot(ax + along * (bx - ax) - x, ay + along * (by - ay) - y));
    }
    return nearest;
}

TEST_F(Examples, ChartTellsWhenTheBoatCrossesAnOutline)
{
    const std::string said = TakePicture(L"chart");
    const std::vector<std::pair<double, double>> bank = {
        {-230, 60}, {-150, 10}, {-60, 40}, {-90, 120}, {-190, 130}};
    const std::vector<std::pair<double, double>> cable = {{120, -110}, {170, -110}, {220, 150}, {180, 150}};
    constexpr double step = 4; // metres that the boat makes at most between two looks
    const struct {
        const char* pattern;
        const std::vector<std::pair<double, double>>& outline;
    } events[] = {{R"(Inside Tern Bank at (\S+) (\S+))", bank},
                  {R"(Clear of Tern Bank at (\S+) (\S+))", bank},
                  {R"(Inside Cable at (\S+) (\S+))", cable}};
    double before = -1e9;
    for (const auto& [pattern, outline] : events) {
        const auto places = Numbers(said, pattern);
        ASSERT_EQ(places.size(), 1U) << pattern << "\n" << said;
        const double east = places[0][0] - 489'600;
        EXPECT_LT(DistanceToOutline(outline, east, places[0][1] - 5'832'400), step) << pattern;
        EXPECT_GT(east, before) << pattern;
        before = east;
    }
}

TEST_F(Examples, ModelTellsWhatAModelIsMadeOf)
{
    const std::string said = TakePicture(L"model");
    EXPECT_THAT(said, HasSubstr("buoy.3ds: 3 meshes, 2958 triangles"));
    for (const char* const material : {"Yellow paint", "Black paint", "Steel", "Solar cells", "Glass"})
        EXPECT_THAT(said, HasSubstr(std::string("material ") + material));
    EXPECT_THAT(Run(L"model", L"no-such.3ds --picture picture.png"),
                HasSubstr("no-such.3ds could not be shown"));
    EXPECT_NE(exitCode, 0U);
}

TEST_F(Examples, ModelIsPaintedWithPresetsByAKey)
{
    Start(L"model", L"");
    const HWND wnd = Window();
    std::vector<COLORREF> own;
    ASSERT_TRUE(ComesTrue([&] { // the model is drawn, not only what is behind it, and nothing more comes
        const std::vector<COLORREF> before = std::exchange(own, Shown(wnd));
        return before == own && std::set(own.begin(), own.end()).size() > 5;
    }));
    ::PostMessageW(wnd, WM_KEYDOWN, 'M', 1);
    EXPECT_TRUE(ComesTrue([&] { return Shown(wnd) != own; }));
    constexpr int presets = 20;
    for (int i = 0; i < presets; ++i)
        ::PostMessageW(wnd, WM_KEYDOWN, 'M', 1);
    EXPECT_TRUE(ComesTrue([&] { return Shown(wnd) == own; })); // after the last one its own again
    EXPECT_TRUE(StaysOpen());
    ::PostMessageW(wnd, WM_CLOSE, 0, 0);
    Finish();
    EXPECT_EQ(exitCode, 0U);
}

TEST_F(Examples, RecorderWritesAVideoOfItsFrames)
{
    EXPECT_THAT(TakePicture(L"recorder"), HasSubstr("75 frames recorded"));
    const fs::path video = File(L"sweep.avi");
    ::AVIFileInit();
    PAVISTREAM stream = nullptr;
    ASSERT_EQ(::AVIStreamOpenFromFileW(&stream, video.c_str(), streamtypeVIDEO, 0, OF_READ, nullptr), 0);
    AVISTREAMINFOW info{};
    EXPECT_EQ(::AVIStreamInfoW(stream, &info, sizeof info), 0);
    EXPECT_EQ(info.dwLength, 75U);
    EXPECT_EQ(info.rcFrame.right, 400);
    EXPECT_EQ(info.dwRate / info.dwScale, 50U);
    // The sweep has moved on from the first frame to the last.
    const auto frame = [&](LONG number) {
        std::vector<char> bytes(static_cast<std::size_t>(info.dwSuggestedBufferSize));
        LONG size = 0;
        EXPECT_EQ(
            ::AVIStreamRead(stream, number, 1, bytes.data(), static_cast<LONG>(bytes.size()), &size, nullptr),
            0);
        bytes.resize(static_cast<std::size_t>(size));
        return bytes;
    };
    EXPECT_FALSE(frame(0).empty());
    EXPECT_NE(frame(0), frame(74));
    ::AVIStreamRelease(stream);
    ::AVIFileExit();
    fs::remove(video); // tens of megabytes, where no codec is installed
}

TEST_F(Examples, TimesourceConvergesOnWhatTheReceiverIsAhead)
{
    const auto lines = Numbers(TakePicture(L"timesource"),
                               R"(rate (\S+), ahead (\S+) ms, a time stamp is converted (\S+) ms off)");
    ASSERT_GE(lines.size(), 5U);
    // Messages come 20 ms late on the average, and a machine that has much to do delays them more.
    EXPECT_NEAR(lines.back()[0], 1.0, 1e-3);
    EXPECT_NEAR(lines.back()[1], 300, 40);
    EXPECT_NEAR(lines.back()[1] + lines.back()[2], 300, 5); // by fits at most a poll apart
}

TEST_F(Examples, JogdialAdjustsWhatGlows)
{
    EXPECT_THAT(TakePicture(L"jogdial"), HasSubstr("range 60 m")); // by one notch, from 50
}

} // namespace
