#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetObj.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"
#include "windows/WindowsTest.h"

#include <atomic>
#include <filesystem>
#include <regex>
#include <thread>

namespace
{

using testing::ElementsAre;
using testing::EndsWith;
using testing::MatchesRegex;
using ConsoleFile = WindowsTest;

std::vector<std::wstring> ItemNames(const CESetObj& obj)
{
    std::vector<std::wstring> names;
    for (CVantPtr* pos = obj.GetHeadPos(); pos;)
        names.push_back(Text(obj.GetNext(pos)->m_name));
    return names;
}

} // namespace

TEST_F(ConsoleFile, NothingIsWrittenWhileLoggingIsOff)
{
    CConsole console;
    console.SetupCsl(0);
    console.filter = 0xFFFFFFFF;
    console.AddEntry(0, 0, L"line");
    console.LogEntry(console.entries.GetHead());
    EXPECT_FALSE(std::filesystem::exists(Dir() + L"Logs"));

    console.logTo = 1;
    console.fileName.Empty();
    console.AddEntry(0, 0, L"line");
    EXPECT_FALSE(std::filesystem::exists(Dir() + L"Logs"));
}

TEST_F(ConsoleFile, EntriesThatPassAreAppendedAsLines)
{
    CConsole console;
    console.SetupCsl(1);
    console.logTo = 1;
    console.filter &= ~(1u << 5);
    console.AddEntry(0, 10, L"$GPGGA,1,\"two\"");
    console.AddEntry(0, 1500, L"of a hidden level");
    console.AddEntry(0, 10, L"of a hidden kind", CConsole::kindVerbose);
    int state = 2000;
    console.UpdateEntry(40, state, L"first\r\nsecond\nthird\r");
    console.UpdateEntry(40, state, L"");
    EXPECT_THAT(FileLines(console.fileName),
                ElementsAre(MatchesRegex("00001. \\(..:..:..\\) :.GPGGA,1,\"two\""),
                            MatchesRegex("00040.001 \\(..:..:..\\) :first second third "),
                            MatchesRegex("00040.002 \\(..:..:..\\) :")));
    EXPECT_EQ(Text(console.fileName), Dir() + L"Logs\\Status.csv");

    console.LogEntry(console.FindEntry(40));
    console.LogEntry(nullptr);
    EXPECT_EQ(FileLines(console.fileName).size(), 4u);
}

TEST_F(ConsoleFile, AFileThatCannotBeOpenedRaisesAnAlarm)
{
    std::filesystem::create_directories(Dir() + L"Logs\\Console.csv");
    std::filesystem::create_directories(Dir() + L"Logs\\Alarms.csv");
    Vant::csl.logTo = Vant::alarm.logTo = 1;
    Vant::Console(0, L"lost line");
    CECEntry alarm;
    ASSERT_TRUE(Vant::alarm.GetEntry(6010, alarm));
    EXPECT_EQ(alarm.repeats, 1) << "the alarm's own line is lost in silence";
    EXPECT_THAT(Text(alarm.text),
                testing::HasSubstr(L"Could not open file <" + Dir() + L"Logs\\Console.csv>"));
    EXPECT_THAT(Text(alarm.text), testing::HasSubstr(L"lost line"));

    Vant::Alarm(5, 0, L"other");
    ASSERT_TRUE(Vant::alarm.GetEntry(6010, alarm));
    EXPECT_EQ(alarm.repeats, 2);
    EXPECT_THAT(Ids(Vant::alarm), ElementsAre(5u, 6010u));
}

TEST_F(ConsoleFile, FailingFilesHoldNobodyUp)
{
    // A receiver of alarms that logs itself: were a console locked while its file is written, two threads
    // that come from different consoles would wait for each other.
    class Receiver : public CVantWnd
    {
    public:
        Receiver() { s_infoRx.AddTail(this); }
        void OnInfoMsg(int, void*) override { Vant::Console(0, L"an alarm"); }
    };
    std::filesystem::create_directories(Dir() + L"Logs\\Console.csv");
    std::filesystem::create_directories(Dir() + L"Logs\\Alarms.csv");
    Vant::csl.logTo = Vant::alarm.logTo = 1;
    const Receiver receiver;
    constexpr int rounds = 100;
    {
        std::vector<std::jthread> crew;
        for (int t = 0; t < 4; ++t)
            crew.emplace_back([t] {
                for (int i = 0; i < rounds; ++i) {
                    if (t % 2)
                        Vant::Console(0, L"line");
                    else
                        Vant::Alarm(7, 0, L"alarm");
                }
            });
    }
    EXPECT_GE(Vant::csl.seq, 4 * rounds) << "own lines, and one for each alarm";
}

TEST_F(ConsoleFile, FourThreadsLoseNothingAndTheWindowIsNotHeldUp)
{
    constexpr int perThread = 10000;
    constexpr int threads = 4;
    CConsole console;
    console.SetupCsl(0);
    console.logTo = 1;
    ASSERT_TRUE(console.CreateWnd(L"", WS_POPUP, CRect(0, 0, 300, 200)));
    console.ShowWindow(SW_SHOWNOACTIVATE);

    const ULONGLONG begin = ::GetTickCount64();
    std::atomic<int> running = threads;
    ULONGLONG longest = 0;
    int triggers = 0;
    {
        std::vector<std::jthread> crew;
        for (int t = 0; t < threads; ++t)
            crew.emplace_back([&, t] {
                CString text;
                for (int i = 0; i < perThread; ++i) {
                    text.Format(L"thread %d line %d;", t, i);
                    console.AddEntry(0, 0, text);
                }
                --running;
            });
        while (running > 0) {
            const ULONGLONG start = ::GetTickCount64();
            CVantWnd::Trigger(0.0, 0.0);
            console.UpdateWindow();
            longest = std::max(longest, ::GetTickCount64() - start);
            ++triggers;
            ::Sleep(5);
        }
    }
    EXPECT_GT(triggers, 10);
    // A trigger takes a few milliseconds. The limit leaves room for a machine that is busy with other things;
    // a trigger that waited for the loggers would take as long as they run.
    EXPECT_LT(longest, std::max<ULONGLONG>(1000, (::GetTickCount64() - begin) / 4)) << "ms";

    const auto lines = FileLines(console.fileName);
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(perThread * threads));
    std::vector<int> seen(perThread * threads + 1);
    int next[threads] = {};
    std::vector<std::vector<int>> numbers(threads, std::vector<int>(perThread));
    const std::regex form("(\\d{5})\\. \\(\\d\\d:\\d\\d:\\d\\d\\) :thread (\\d) line (\\d+);");
    for (const std::string& line : lines) {
        std::smatch parts;
        ASSERT_TRUE(std::regex_match(line, parts, form)) << line;
        ++seen[static_cast<std::size_t>(std::stoi(parts[1]))];
        const auto t = static_cast<std::size_t>(std::stoi(parts[2]));
        EXPECT_EQ(std::stoi(parts[3]), next[t]++) << "a thread's own lines keep their order";
    }
    EXPECT_EQ(std::count(seen.begin() + 1, seen.end(), 1), perThread * threads) << "every number once";
    EXPECT_EQ(console.seq, perThread * threads);
    EXPECT_EQ(console.entries.GetCount(), 20);
}

TEST_F(ConsoleFile, SettingsComeBack)
{
    const CString file = (Dir() + L"set.xml").c_str();
    {
        CConsole console;
        console.name = L"Console";
        console.fileName = L"D:\\Survey 7\\log.csv";
        console.detail = 0;
        console.logTo = 1;
        console.level = 3;
        CESet set(1);
        CESetObj& obj = *set.AddCol(L"Wnds")->AddObj(L"Console", L"CConsole");
        console.Settings(obj);
        EXPECT_THAT(ItemNames(obj), ElementsAre(L"Level", L"FName", L"CslDetail", L"LogTo"));
        ASSERT_TRUE(set.Save(file));
    }
    CConsole console;
    console.SetupCsl(0);
    ASSERT_TRUE(console.CreateWnd(L"", WS_POPUP, CRect(0, 0, 300, 200)));
    CESet set(0);
    ASSERT_TRUE(set.Load(file));
    console.changed = 0;
    console.Settings(*set.GetCol(L"Wnds")->GetObj(L"Console"));
    EXPECT_EQ(Text(console.fileName), L"D:\\Survey 7\\log.csv");
    EXPECT_EQ(console.detail, 0);
    EXPECT_EQ(console.logTo, 1);
    EXPECT_EQ(console.level, 3);
}

TEST_F(ConsoleFile, ALogFileBelowTheDataDirectoryMovesWithIt)
{
    CConsole console;
    console.name = L"Console";
    console.SetupCsl(0);
    CESet set(1);
    CESetObj& obj = *set.AddCol(L"Wnds")->AddObj(L"Console", L"CConsole");
    console.Settings(obj);
    CConsole typed;
    const std::wstring withTwo = Dir() + L"\\typed.csv";
    typed.fileName = withTwo.c_str();
    CESetObj& other = *set.GetCol(L"Wnds")->AddObj(L"Typed", L"CConsole");
    typed.Settings(other);
    const CString file = (Dir() + L"set.xml").c_str();
    ASSERT_TRUE(set.Save(file));
    EXPECT_EQ(Text(typed.fileName), withTwo) << "storing changes nothing";
    EXPECT_EQ(Text(console.fileName), Dir() + L"Logs\\Console.csv");

    const CString before = Vant::dataDir;
    for (const wchar_t* moved : {L"D:\\Moved\\", L"D:\\M\\"}) {
        Vant::dataDir = moved;
        CESet loaded(0);
        ASSERT_TRUE(loaded.Load(file));
        console.Settings(*loaded.GetCol(L"Wnds")->GetObj(L"Console"));
        EXPECT_EQ(Text(console.fileName), std::wstring(moved) + L"Logs\\Console.csv");
        typed.Settings(*loaded.GetCol(L"Wnds")->GetObj(L"Typed"));
        EXPECT_EQ(Text(typed.fileName), std::wstring(moved) + L"typed.csv");
    }
    Vant::dataDir = before;
}

TEST_F(ConsoleFile, ALogOutsideTheCodePageIsFoundAgain)
{
    const CString before = Vant::dataDir;
    Vant::dataDir += L"\u6D4B\u8BD5\\";
    const CString file = (Dir() + L"set.xml").c_str();
    const CString elsewhere = L"D:\\\u6D4B\\log.csv";
    for (const bool isBelow : {true, false}) {
        CConsole console;
        console.SetupCsl(0);
        const CString usual = console.fileName;
        if (!isBelow)
            console.fileName = elsewhere;
        CESet set(1);
        console.Settings(*set.AddCol(L"Wnds")->AddObj(L"Console", L"CConsole"));
        ASSERT_TRUE(set.Save(file));
        console.SetupCsl(0);
        CESet read(0);
        ASSERT_TRUE(read.Load(file));
        console.Settings(*read.GetCol(L"Wnds")->GetObj(L"Console"));
        EXPECT_EQ(console.fileName, usual) << "a name that was lost is not taken";
    }
    Vant::dataDir = before;
}

TEST_F(ConsoleFile, TheCommsConsoleHasAFileOfItsOwn)
{
    CCslComms comms;
    comms.SetupCsl(0);
    comms.logTo = 1;
    comms.AddEntry(0, 0, L"$GPZDA");
    EXPECT_EQ(comms.entries.GetHead()->kind, static_cast<unsigned int>(CConsole::kindComms));
    EXPECT_THAT(FileLines((Dir() + L"Logs\\Comms.csv").c_str()), ElementsAre(EndsWith(":$GPZDA")));
    EXPECT_FALSE(std::filesystem::exists(Dir() + L"Logs\\Console.csv"));
}
