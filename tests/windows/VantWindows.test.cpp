#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"
#include "windows/WindowsTest.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using VantWindows = WindowsTest;

/** Keeps what the alarm broadcast brought. */
class Receiver : public CVantWnd
{
public:
    Receiver() { s_infoRx.AddTail(this); }
    ~Receiver() override { s_infoRx.RemoveAt(s_infoRx.Find(this)); }
    void OnInfoMsg(int msg, void* data) override
    {
        if (msg == Vant::alarmInfo)
            got.push_back(static_cast<CECEntry*>(data));
    }
    std::vector<CECEntry*> got;
};

} // namespace

// Outside a fixture: messages that come before the platform is started.
TEST(VantWindowsEarly, LoggersWorkBeforeInit)
{
    if (Vant::csl.cslKind != -1)
        GTEST_SKIP() << "another test has started the platform in this process";
    Vant::Console(0, L"early %d", 1);
    Vant::Alarm(3, 0, L"early");
    EXPECT_EQ(Vant::csl.entries.GetCount(), 1);
    ASSERT_NE(Vant::alarm.FindEntry(3), nullptr);
    EXPECT_EQ(Vant::alarm.FindEntry(3)->kind, static_cast<unsigned int>(CConsole::kindAlarm));
}

TEST_F(VantWindows, InitPreparesTheConsoles)
{
    const struct {
        CConsole& console;
        int kind;
        const wchar_t* name;
        const wchar_t* file;
    } rows[] = {
        {Vant::csl, 0, L"Console", L"Console.csv"},
        {Vant::comms, 0, L"Comms", L"Comms.csv"},
        {Vant::alarm, 2, L"Alarms", L"Alarms.csv"},
        {Vant::status, 1, L"Status", L"Status.csv"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.console.cslKind, row.kind) << Text(row.name).c_str();
        EXPECT_EQ(Text(row.console.name), row.name);
        EXPECT_EQ(Text(row.console.title), L"The Output Window");
        EXPECT_EQ(Text(row.console.fileName), Dir() + L"Logs\\" + row.file);
        EXPECT_EQ(row.console.m_hWnd, nullptr) << "windows are the application's to create";
        EXPECT_EQ(CVantWnd::GetWnd(row.name), &row.console);
        EXPECT_NE(CVantWnd::s_trigRx.Find(&row.console), nullptr);
    }
    ASSERT_TRUE(Vant::status.CreateWnd(L"", WS_POPUP, CRect(0, 0, 300, 200)));
    CString title;
    Vant::status.GetWindowText(title);
    EXPECT_EQ(Text(title), L"The Output Window");
    Vant::status.DestroyWindow();
}

TEST_F(VantWindows, EachLoggerHasItsConsoleAndKind)
{
    Vant::Console(2, L"%d lines", 7);
    Vant::Comms(3, L"$GPGGA");
    Vant::Status(4001, 5, L"locked");
    Vant::Status(4001, 6, L"lost");
    Vant::Alarm(40, 2, L"bad text");
    const struct {
        CConsole& console;
        unsigned int kind;
        unsigned int id;
        int state;
        const wchar_t* message;
    } rows[] = {
        {Vant::csl, CConsole::kindConsole, 0, 2, L"7 lines"},
        {Vant::comms, CConsole::kindComms, 0, 3, L"$GPGGA"},
        {Vant::status, CConsole::kindStatus, 4001, 6, L"lost"},
        {Vant::alarm, CConsole::kindAlarm, 40, 2, L"bad text"},
    };
    for (const auto& row : rows) {
        EXPECT_THAT(Messages(row.console), ElementsAre(row.message));
        const CECEntry& entry = *row.console.entries.GetHead();
        EXPECT_EQ(entry.kind, row.kind) << Text(row.message).c_str();
        EXPECT_EQ(entry.id, row.id);
        EXPECT_EQ(entry.state, row.state);
    }
    Vant::Status(4001, -1, L"done");
    EXPECT_THAT(Messages(Vant::status), IsEmpty());
}

TEST_F(VantWindows, AlarmsReachSoundAndWindows)
{
    Receiver receiver;
    Vant::options = 0x08;
    Vant::Alarm(40, 1, L"loud");
    EXPECT_EQ(sounds, std::vector{3049});
    EXPECT_THAT(receiver.got, ElementsAre(Vant::alarm.FindEntry(40)));
    Vant::Alarm(41, 0, L"quiet");
    EXPECT_EQ(receiver.got.size(), 2u);

    // Recorded, and nothing else: the alarm is over.
    Vant::Alarm(40, -1, L"over");
    EXPECT_EQ(sounds.size(), 1u);
    EXPECT_EQ(receiver.got.size(), 2u);
    EXPECT_EQ(Vant::alarm.FindEntry(40)->state, -1);
    EXPECT_EQ(Vant::alarm.FindEntry(40)->repeats, 2);
    Vant::options = 0x29;
}
