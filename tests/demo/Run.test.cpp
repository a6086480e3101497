// The program itself: started as a user starts it, and judged by what it leaves.
#include "demo/Program.h"
#include "demo/detail/Geometry.h"
#include "platform/PlatformTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <string>

#include <windows.h>

using testing::HasSubstr;

namespace
{

class DemoRun : public testing::Test
{
protected:
    void SetUp() override
    {
        m_dir =
            fs::temp_directory_path() / (std::string("vantdemo-") + std::to_string(::GetCurrentProcessId()));
        fs::create_directories(m_dir);
    }

    void TearDown() override
    {
        std::error_code error;
        fs::remove_all(m_dir, error);
    }

    fs::path m_dir;

private:
    // The program's window takes the keyboard, and a script's keys go where that is.
    const ScreenLock m_screen;
};

demo::Box SavedWindow(const std::string& settings)
{
    return {Number(settings, "Left"), Number(settings, "Top"), Number(settings, "Right"),
            Number(settings, "Bottom")};
}

} // namespace

TEST_F(DemoRun, HelpIsNoMistake)
{
    Program program(m_dir, L"--help");
    EXPECT_EQ(0, program.ExitCode());
    EXPECT_THAT(program.Out(), HasSubstr("--seconds N"));
    EXPECT_EQ("", program.Err());
}

TEST_F(DemoRun, MistakesGiveOneLineAndExitCode2)
{
    std::ofstream(m_dir / "nonsense.nmea") << "this is not a log\n";
    const struct {
        const wchar_t* arguments;
        const char* error;
    } cases[] = {
        {L"--colour", "unknown option '--colour'"},
        {L"--seconds", "--seconds needs a value"},
        {L"--seconds soon", "--seconds needs a number, not 'soon'"},
        {L"--log missing.nmea", "cannot read the log 'missing.nmea'"},
        {L"--log .", "cannot read the log '.'"},
        {L"--log nonsense.nmea", "no NMEA 0183 sentence that can be used in the log 'nonsense.nmea'"},
        {L"--script --tour", "--script and --tour exclude each other"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.error);
        Program program(m_dir, c.arguments);
        EXPECT_EQ(2, program.ExitCode());
        EXPECT_EQ("", program.Out());
        const std::string error = program.Err();
        EXPECT_THAT(error, HasSubstr(c.error));
        EXPECT_EQ(1, std::count(error.begin(), error.end(), '\n')) << error;
    }
    EXPECT_FALSE(fs::exists(m_dir / "out"));
}

TEST_F(DemoRun, LeavesPictureSettingsAndLogAndNothingElse)
{
    Program program(m_dir, L"--seconds 1 --rate 10 --out out");
    ASSERT_EQ(0, program.ExitCode()) << program.Err();
    EXPECT_EQ("", program.Err());
    EXPECT_THAT(program.Out(), HasSubstr("sentences: "));
    EXPECT_THAT(program.Out(), HasSubstr(" rejected"));
    EXPECT_THAT(program.Out(), HasSubstr(" drawn"));
    EXPECT_THAT(program.Out(), HasSubstr("alarms:    0 raised, 0 still on"));
    EXPECT_THAT(Contents(m_dir / "out" / "demo.png"), testing::StartsWith("\x89PNG"));
    EXPECT_THAT(Contents(m_dir / "out" / "demo.log"), HasSubstr("end: "));
    EXPECT_EQ("1", Item(Contents(m_dir / "out" / "VantDemo.xml"), "Runs"));

    std::set<std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_dir))
        files.insert(entry.path().filename().string());
    EXPECT_EQ((std::set<std::string>{"out", "demo.png", "screen.png", "chart.png", "orbit.png", "demo.log",
                                     "VantDemo.xml", "Logs", "Console.csv", "Comms.csv", "stdout.txt",
                                     "stderr.txt"}),
              files);
    EXPECT_THAT(Contents(m_dir / "out" / "Logs" / "Comms.csv"), HasSubstr("$GPGGA,"));
}

TEST_F(DemoRun, AlarmsAreRecordedAndCounted)
{
    std::ofstream log(m_dir / "shoal.nmea", std::ios::binary);
    log << "$SDDPT,3.00,0.6*62\r\n";
    log.close();
    Program program(m_dir, L"--log shoal.nmea --seconds 2 --rate 20 --out .");
    ASSERT_EQ(0, program.ExitCode()) << program.Err();
    EXPECT_THAT(program.Out(), HasSubstr("alarms:    2 raised, 2 still on"));
    const std::string alarms = Contents(m_dir / "Logs" / "Alarms.csv");
    EXPECT_THAT(alarms, HasSubstr("03001.001"));
    EXPECT_THAT(alarms, HasSubstr("Shallow water: 3.6m, limit 14.0m\r\n"));
    EXPECT_THAT(alarms, HasSubstr("No position for 5 s\r\n"));
    EXPECT_THAT(Contents(m_dir / "demo.log"), HasSubstr("alarm: Shallow water"));
}

TEST_F(DemoRun, ComesBackWhereItWas)
{
    std::string saved[2];
    for (std::string& settings : saved) {
        Program program(m_dir, L"--seconds 0.3 --out .");
        if (&settings == &saved[0]) {
            const HWND wnd = program.Window();
            ASSERT_TRUE(wnd);
            ::SetWindowPos(wnd, nullptr, 70, 60, 1100, 760, SWP_NOZORDER | SWP_NOACTIVATE);
        }
        ASSERT_EQ(0, program.ExitCode()) << program.Err();
        settings = Contents(m_dir / "VantDemo.xml");
    }
    EXPECT_EQ((demo::Box{70, 60, 1170, 820}), SavedWindow(saved[0]));
    EXPECT_EQ(SavedWindow(saved[0]), SavedWindow(saved[1]));
    EXPECT_EQ("1", Item(saved[0], "Runs"));
    EXPECT_EQ("2", Item(saved[1], "Runs"));
}

TEST_F(DemoRun, FollowsTheDotsPerInchOfItsMonitor)
{
    Program program(m_dir, L"--seconds 0 --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    const HWND header = ::FindWindowExW(wnd, nullptr, nullptr, L"Header");
    ASSERT_TRUE(header);
    RECT before{};
    ::GetClientRect(header, &before);
    ::SendMessageW(wnd, WM_DPICHANGED, MAKEWPARAM(144, 144), 0); // of another monitor, the size staying
    RECT after{};
    ::GetClientRect(header, &after);
    EXPECT_EQ(before.bottom * 3 / 2, after.bottom);
    ::PostMessageW(wnd, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ(0, program.ExitCode()) << program.Err();
}

TEST_F(DemoRun, OnAFinerMonitorItsWindowsTakeAsManyDotsPerInchAsFitThere)
{
    Program program(m_dir, L"--seconds 0 --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    const struct {
        HWND window;
        const wchar_t* part; // its height is the same in units whatever the window's
    } windows[] = {{wnd, L"Header"}, {::FindWindowW(nullptr, L"Depth colours"), L"Depth palette"}};
    ::SetWindowPos(windows[1].window, nullptr, 0, 0, 1590, 1190,
                   SWP_NOZORDER | SWP_NOACTIVATE); // room for more
    int heights[2][2] = {};
    for (const int dpi : {USER_DEFAULT_SCREEN_DPI, 4 * USER_DEFAULT_SCREEN_DPI}) {
        for (const auto& each : windows) {
            const HWND part = ::FindWindowExW(each.window, nullptr, nullptr, each.part);
            ASSERT_TRUE(part) << dpi;
            ::SendMessageW(each.window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), 0);
            RECT client{};
            ::GetClientRect(part, &client);
            heights[&each - windows][dpi != USER_DEFAULT_SCREEN_DPI] = client.bottom;
        }
    }
    for (const auto& [usual, fine] : heights) {
        EXPECT_GT(fine, usual * 5 / 4);
        EXPECT_LT(fine, usual * 2) << "at four times as many the bridge would not fit this screen";
    }
    ::PostMessageW(wnd, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ(0, program.ExitCode()) << program.Err();
}

TEST_F(DemoRun, AVideoThatItsUserEndsIsToldOf)
{
    Program program(m_dir, L"--seconds 0 --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    const auto waitFor = [this](auto isThere) {
        for (DWORD waited = 0; waited < patience && !isThere(); waited += 20)
            ::Sleep(20);
    };
    ::PostMessageW(wnd, WM_CHAR, L'v', 1);
    waitFor([this] { return fs::exists(m_dir / "orbit.avi"); });
    ::PostMessageW(wnd, WM_CHAR, L'v', 1);
    waitFor([this] { return Contents(m_dir / "demo.log").find("orbit.avi") != std::string::npos; });
    EXPECT_THAT(Contents(m_dir / "demo.log"), HasSubstr(" frames saved to "));
    ::PostMessageW(wnd, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ(0, program.ExitCode()) << program.Err();
}

TEST_F(DemoRun, ALostWindowComesBackToTheScreen)
{
    std::ofstream(m_dir / "VantDemo.xml") << "<Corvane date=\"\">\n<Collection name=\"VantDemo\">\n"
                                             "<Object name=\"Display\" type=\"DemoSettings\">\n"
                                             "<Left val=\"-9000\"/>\n<Top val=\"8000\"/>\n"
                                             "<Right val=\"-7800\"/>\n<Bottom val=\"8800\"/>\n"
                                             "<DepthSpan val=\"-5\"/>\n<Gain val=\"400\"/>\n<Units "
                                             "val=\"7\"/>\n</Object>\n</Collection>\n</Corvane>\n";
    Program program(m_dir, L"--seconds 0.3 --out .");
    ASSERT_EQ(0, program.ExitCode()) << program.Err();
    const std::string settings = Contents(m_dir / "VantDemo.xml");
    const demo::Box window = SavedWindow(settings);
    RECT screen{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    EXPECT_GE(window.left, screen.left);
    EXPECT_GE(window.top, screen.top);
    EXPECT_LE(window.right, screen.right);
    EXPECT_LE(window.bottom, screen.bottom);
    EXPECT_EQ("120", Item(settings, "DepthSpan")) << "no span that can be shown";
    EXPECT_EQ("0", Item(settings, "Gain")) << "beyond the slider";
    EXPECT_EQ("0", Item(settings, "Units")) << "no such system";
}

TEST_F(DemoRun, TheScriptPassesAndWhatItSetIsRestored)
{
    {
        Program program(m_dir, L"--script --seconds 1 --out .");
        EXPECT_EQ(0, program.ExitCode()) << program.Err() << program.Out();
        const std::string out = program.Out();
        std::size_t passed = 0;
        for (std::size_t at = out.find("script: "); at != std::string::npos;
             at = out.find("script: ", at + 1)) {
            const std::string line = out.substr(at, out.find('\r', at) - at);
            EXPECT_THAT(line, testing::EndsWith(" ... ok"));
            ++passed;
        }
        EXPECT_GE(passed, 60U);
    }
    for (const char* const picture :
         {"step-invalid.png", "step-message.png", "step-alarm.png", "step-category.png", "step-units.png",
          "step-dial.png", "step-course-up.png", "step-views.png", "step-colours.png", "step-remote.png",
          "step-survey.png", "step-menu.png", "step-video.png", "orbit.avi", "demo.png"})
        EXPECT_TRUE(fs::exists(m_dir / picture)) << picture;
    const std::string video = Contents(m_dir / "orbit.avi");
    EXPECT_THAT(video, testing::StartsWith("RIFF"));
    EXPECT_GT(video.size(), 25U * 400 * 250 * 3) << "half a second";
    EXPECT_THAT(Contents(m_dir / "Logs" / "Alarms.csv"),
                HasSubstr("Incorrect Text: Not in user specified range 0 to 1000"));

    {
        Program again(m_dir, L"--seconds 0.3 --out .");
        ASSERT_EQ(0, again.ExitCode()) << again.Err();
    }
    const std::string settings = Contents(m_dir / "VantDemo.xml");
    EXPECT_EQ("2", Item(settings, "Runs"));
    EXPECT_EQ("15.5", Item(settings, "ShallowLimit"));
    EXPECT_EQ("0", Item(settings, "SurveyOpen"));
    EXPECT_NE("0", Item(settings, "SurveyRight")) << "where it was shown";
    EXPECT_EQ("0x2a00140a", Item(settings, "Address")) << "10.20.0.42";
    EXPECT_THAT(Item(settings, "BeamSlope"), testing::StartsWith("1.22")) << "70 degrees";
}

TEST_F(DemoRun, AFailingScriptStopsAndSaysSo)
{
    std::ofstream log(m_dir / "deep.nmea", std::ios::binary);
    log << "$SDDPT,60.0,0.6*67\r\n"; // never shallow: no alarm for the script to see
    log.close();
    Program program(m_dir, L"--script --log deep.nmea --seconds 1 --out .");
    EXPECT_EQ(3, program.ExitCode());
    EXPECT_THAT(program.Out(), HasSubstr("a message tells of it ... FAILED"));
    EXPECT_THAT(program.Err(), HasSubstr("the script"));
}

TEST_F(DemoRun, ATourThatIsCutShortFailsAndLeavesTheSettings)
{
    const std::string mine = "<Corvane date=\"\">\n</Corvane>\n";
    std::ofstream(m_dir / "VantDemo.xml", std::ios::binary) << mine;
    Program program(m_dir, L"--tour --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    ::PostMessageW(wnd, WM_CLOSE, 0, 0);
    EXPECT_EQ(3, program.ExitCode());
    EXPECT_EQ(mine, Contents(m_dir / "VantDemo.xml"));
    EXPECT_THAT(program.Err(), HasSubstr("the script or the tour failed"));
}

TEST_F(DemoRun, AClosedCategoryComesBackClosed)
{
    std::ofstream(m_dir / "VantDemo.xml") << "<Corvane date=\"\">\n<Collection name=\"VantWnds\">\n"
                                             "<Object name=\"Setup\" type=\"CSetupWnd\">\n"
                                             "<Playback val=\"0\"/>\n</Object>\n</Collection>\n</Corvane>\n";
    Program program(m_dir, L"--seconds 0.3 --out .");
    ASSERT_EQ(0, program.ExitCode()) << program.Err();
    const std::string settings = Contents(m_dir / "VantDemo.xml");
    EXPECT_EQ("0", Item(settings, "Playback"));
    EXPECT_EQ("2", Item(settings, "Alarm_limits")) << "the others are open";
}

TEST_F(DemoRun, KeysChangeTheDisplayAndAreRemembered)
{
    Program program(m_dir, L"--seconds 0 --out .");
    const HWND wnd = program.Window();
    ASSERT_TRUE(wnd);
    for (const wchar_t key : {L'h', L'd', L'u', L' ', L'+', L'c', L's'})
        ::PostMessageW(wnd, WM_CHAR, key, 1);
    ::PostMessageW(wnd, WM_KEYDOWN, VK_ESCAPE, 1);
    ASSERT_EQ(0, program.ExitCode()) << program.Err();
    const std::string settings = Contents(m_dir / "VantDemo.xml");
    EXPECT_EQ("0", Item(settings, "HeadingUp"));
    EXPECT_EQ("300", Item(settings, "DepthSpan"));
    EXPECT_EQ("1", Item(settings, "Units"));
    EXPECT_EQ("2", Item(settings, "ImgInd"));
    EXPECT_TRUE(fs::exists(m_dir / "picture-001.png"));
    EXPECT_EQ("0", Item(settings, "ChartOpen"));
    EXPECT_EQ("1", Item(settings, "OrbitOpen"));
    EXPECT_FALSE(fs::exists(m_dir / "chart.png")) << "it was not open";
    EXPECT_TRUE(fs::exists(m_dir / "orbit.png"));
}
