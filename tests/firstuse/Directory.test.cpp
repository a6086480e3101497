// The directory that a run writes to: taken by another one, missing, in the way, moved.
#include "firstuse/FirstUse.h"

namespace
{

using testing::HasSubstr;
using testing::Not;

/** A directory on a drive that this machine lacks. */
std::wstring MissingDrive()
{
    const DWORD there = ::GetLogicalDrives();
    for (wchar_t letter = L'Y'; letter > L'C'; --letter)
        if ((there >> (letter - L'A') & 1) == 0)
            return {letter, L':', L'\\', L'x'};
    return L"";
}

} // namespace

TEST_F(FirstUse, ASecondStartShowsTheFirstWindow)
{
    PutSettings(m_dir / "one");
    PutSettings(m_dir / "two");
    Program first(m_dir, L"--seconds 0 --out one");
    const HWND wnd = first.Window();
    ASSERT_TRUE(wnd);
    ::ShowWindow(wnd, SW_MINIMIZE);
    Program aside(m_dir, L"--seconds 0.3 --out two", TestDir(), "aside");
    Program second(m_dir, L"--seconds 0 --out .\\ONE\\..\\one\\", TestDir(), "second");
    EXPECT_EQ(4, second.ExitCode());
    EXPECT_THAT(second.Err(), HasSubstr("runs already with the directory"));
    EXPECT_EQ(1, Lines(second.Err()));
    EXPECT_EQ("", second.Out());
    for (int i = 0; i < 100 && ::IsIconic(wnd); ++i)
        ::Sleep(20);
    EXPECT_FALSE(::IsIconic(wnd));
    EXPECT_EQ(0, aside.ExitCode()) << "it has a directory of its own: " << aside.Err();
    ::PostMessageW(wnd, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ(0, first.ExitCode()) << first.Err();
    EXPECT_EQ("1", Item(Contents(m_dir / "one" / "VantDemo.xml"), "Runs"));
    EXPECT_EQ("1", Item(Contents(m_dir / "two" / "VantDemo.xml"), "Runs"));
}

TEST_F(FirstUse, WithoutADirectoryItRunsAndSaysOnceThatNothingIsKept)
{
    PutSettings(m_dir / "blocked");
    std::ofstream(m_dir / "blocked" / "Logs") << "in the way";
    const std::string settings = Contents(m_dir / "blocked" / "VantDemo.xml");
    for (const std::wstring& out : {std::wstring(L"blocked"), MissingDrive()}) {
        if (out.empty())
            continue;
        Program program(m_dir, L"--seconds 0.3 --out " + out);
        ASSERT_TRUE(program.Window());
        EXPECT_EQ(1, program.ExitCode());
        EXPECT_THAT(program.Err(), HasSubstr("are not kept"));
        EXPECT_EQ(1, Lines(program.Err())) << program.Err();
        EXPECT_THAT(program.Out(), HasSubstr("drawn"));
        EXPECT_THAT(program.Out(), Not(HasSubstr("settings:")));
    }
    EXPECT_EQ(settings, Contents(m_dir / "blocked" / "VantDemo.xml"));
    EXPECT_EQ(2, std::distance(fs::directory_iterator(m_dir / "blocked"), fs::directory_iterator()));
}

TEST_F(FirstUse, LogsThatCannotBeWrittenAreOneAlarmAndOneLine)
{
    PutSettings(m_dir);
    fs::create_directories(m_dir / "Logs" / "Comms.csv");
    fs::create_directories(m_dir / "Logs" / "Console.csv");
    Program program(m_dir, L"--seconds 1 --out .");
    EXPECT_EQ(1, program.ExitCode());
    EXPECT_THAT(program.Err(), HasSubstr("not kept: every line of the other logs"));
    EXPECT_EQ(1, Lines(program.Err())) << program.Err();
    const std::string alarms = Contents(m_dir / "Logs" / "Alarms.csv");
    EXPECT_THAT(alarms, HasSubstr("06010.001"));
    EXPECT_THAT(alarms, HasSubstr("06010.002")) << "the other console";
    EXPECT_THAT(alarms, Not(HasSubstr("06010.003")));
}

TEST_F(FirstUse, WithoutAConsoleAMistakeIsShownInABox)
{
    const fs::path exe = TestDir() / "VantDemo.exe";
    std::wstring line = L"\"" + exe.wstring() + L"\" --colour";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES; // none, as from a desktop
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(::CreateProcessW(exe.c_str(), line.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr,
                                 m_dir.c_str(), &start, &process));
    HWND box = nullptr;
    for (DWORD waited = 0; waited < patience && !box; waited += 20) {
        ::Sleep(20);
        box = ::FindWindowW(L"#32770", L"VantDemo");
    }
    ASSERT_TRUE(box);
    DWORD owner = 0;
    ::GetWindowThreadProcessId(box, &owner);
    EXPECT_EQ(process.dwProcessId, owner);
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(process.hProcess, patience));
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(2U, code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

TEST_F(FirstUse, AMovedDirectoryLogsToItself)
{
    PutSettings(m_dir / "old");
    Program first(m_dir, L"--seconds 0.3 --out old");
    ASSERT_EQ(0, first.ExitCode()) << first.Err();
    fs::copy(m_dir / "old", m_dir / "new", fs::copy_options::recursive);
    const std::string before = Contents(m_dir / "old" / "Logs" / "Console.csv");
    Program second(m_dir, L"--seconds 0.3 --out new");
    ASSERT_EQ(0, second.ExitCode()) << second.Err();
    EXPECT_EQ(before, Contents(m_dir / "old" / "Logs" / "Console.csv"));
    EXPECT_THAT(Contents(m_dir / "new" / "Logs" / "Console.csv"), HasSubstr("run 2"));
}
