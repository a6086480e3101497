#include "windows/MsgTest.h"

#include "support/GdiCount.h"
#include "support/LogRecorder.h"

#include <thread>

namespace
{

using vant::detail::LogTarget;

class CEMsgBoxTest : public MsgTest
{
protected:
    static CEMsgBox& Box() { return Vant::msgBox; }

    static void Tick() { Box().SendMessage(WM_TIMER, 1); }

    static void Click(CPoint at) { Box().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }

    static void Key(UINT message, UINT key) { Box().SendMessage(message, key, 1); }

    static bool IsShown() { return Box().m_hWnd && ::IsWindowVisible(Box().m_hWnd); }

    /** Whether a timer ran, which it does not any more. */
    static bool EndTimer() { return ::KillTimer(Box().m_hWnd, 1) != FALSE; }
};

int WindowsOfThread()
{
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND, LPARAM data) -> BOOL {
            ++*reinterpret_cast<int*>(data);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace

TEST_F(CEMsgBoxTest, TextIsCutAtThreeLineFeeds)
{
    const struct {
        const wchar_t* text;
        MsgTexts lines;
    } rows[] = {
        {L"", {}},
        {L"one", {L"one"}},
        {L"one\ntwo", {L"one", L"two"}},
        {L"one\n", {L"one"}},
        {L"\n\nthree", {L"", L"", L"three"}},
        {L"one\ntwo\nthree\nfour", {L"one", L"two", L"three", L"four"}},
        {L"1\n2\n3\n4\n5", {L"1", L"2", L"3", L"4\n5"}},
        {L"1\n2\n3\n4\n5\n", {L"1", L"2", L"3", L"4\n5\n"}},
    };
    for (const auto& row : rows) {
        Box().DisplayMsg(0, row.text, 5);
        EXPECT_EQ(Texts(Box().lines), row.lines) << testing::PrintToString(row.text);
    }
}

TEST_F(CEMsgBoxTest, HidesAtItsLastTickAndIsUsableAgain)
{
    ASSERT_EQ(Box().DisplayMsg(Vant::msgWarnIcon, L"shoal", 3), 1);
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(Box().active);
    Tick();
    Tick();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Box().ticks, 2);
    Box().SendMessage(WM_TIMER, 7);
    EXPECT_EQ(Box().ticks, 2) << "another timer";
    Tick();
    EXPECT_FALSE(IsShown());
    EXPECT_FALSE(Box().active);
    EXPECT_EQ(Box().ticks, 0);
    EXPECT_FALSE(EndTimer()) << "no timer while it is hidden";
    Tick();
    EXPECT_EQ(Box().ticks, 0);

    Box().DisplayMsg(0, L"again", 1);
    EXPECT_TRUE(IsShown());
    // The box is a control too: updating it does not bring it back.
    Tick();
    Box().Update(0);
    EXPECT_FALSE(IsShown());

    Box().DisplayMsg(0, L"hidden by the application", 5);
    Tick();
    Box().ShowWindow(SW_HIDE);
    EXPECT_FALSE(Box().active);
    EXPECT_EQ(Box().ticks, 0);
    EXPECT_FALSE(EndTimer());
}

TEST_F(CEMsgBoxTest, ASecondMessageDoesNotResetTheTicks)
{
    Box().DisplayMsg(Vant::msgWarnIcon, L"first\nline", 3);
    const HWND window = Box().m_hWnd;
    Tick();
    Tick();
    Box().DisplayMsg(Vant::msgStopIcon, L"second", 3);
    EXPECT_EQ(Box().m_hWnd, window);
    EXPECT_EQ(Box().msgType, 0x02);
    EXPECT_EQ(Texts(Box().lines), (MsgTexts{L"second"}));
    EXPECT_EQ(Box().ticks, 2);
    Tick();
    EXPECT_FALSE(IsShown());
}

TEST_F(CEMsgBoxTest, TheStayFlagIsNeverCleared)
{
    CEMsgBox box;
    const auto ticks = [&box](int count) {
        for (int i = 0; i < count; ++i)
            box.SendMessage(WM_TIMER, 1);
        return box.IsWindowVisible() != FALSE;
    };
    box.DisplayMsg(Vant::msgStay, L"stay", 2);
    EXPECT_TRUE(ticks(5));
    EXPECT_EQ(box.ticks, 0);
    box.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(300, 220));
    EXPECT_FALSE(box.IsWindowVisible());
    box.DisplayMsg(0, L"go", 2);
    EXPECT_TRUE(box.stay);
    EXPECT_TRUE(ticks(5));
}

TEST_F(CEMsgBoxTest, OnlyItsButtonCloses)
{
    const struct {
        CPoint at;
        bool closes;
    } rows[] = {
        {{234, 210}, false}, {{300, 199}, false}, {{336, 235}, false}, {{335, 236}, false}, {{50, 50}, false},
        {{235, 200}, true},  {{335, 200}, true},  {{235, 235}, true},  {{335, 235}, true},
    };
    for (const auto& row : rows) {
        Box().DisplayMsg(0, L"click", 5);
        Tick();
        Click(row.at);
        EXPECT_EQ(IsShown(), !row.closes) << row.at.x << ", " << row.at.y;
        EXPECT_EQ(Box().ticks, row.closes ? 0 : 1);
        Box().Close();
    }

    // At one and a half times the size, on a screen that has changed.
    Box().DisplayMsg(0, L"click", 5);
    Box().SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144));
    EXPECT_EQ(PlaceOf(Box().m_hWnd).Size(), CSize(525, 375));
    Click(CPoint(350, 300));
    EXPECT_TRUE(IsShown());
    Click(CPoint(500, 350));
    EXPECT_FALSE(IsShown());
}

TEST_F(CEMsgBoxTest, KeysCloseIt)
{
    const ScreenLock screen;
    for (const UINT key : {UINT{VK_ESCAPE}, UINT{VK_RETURN}}) {
        Box().DisplayMsg(0, L"key", 5);
        Key(WM_KEYDOWN, 'A');
        EXPECT_TRUE(IsShown());
        Key(WM_KEYDOWN, key);
        EXPECT_FALSE(IsShown()) << key;
    }
    Box().DisplayMsg(0, L"space", 5);
    Key(WM_KEYUP, VK_SPACE);
    EXPECT_TRUE(IsShown()) << "the key went down elsewhere";
    Key(WM_KEYDOWN, VK_SPACE);
    EXPECT_TRUE(Box().look & CECtrl::lookPressed);
    Box().SendMessage(WM_KILLFOCUS);
    EXPECT_FALSE(Box().look & CECtrl::lookPressed);
    Key(WM_KEYUP, VK_SPACE);
    EXPECT_TRUE(IsShown());
    Key(WM_KEYDOWN, VK_SPACE);
    Key(WM_KEYUP, VK_SPACE);
    EXPECT_FALSE(IsShown());
}

TEST_F(CEMsgBoxTest, AltF6LeadsToItAndBack)
{
    const ScreenLock screen;
    MainWnd main(CRect(100, 150, 900, 750));
    const auto altF6 = [] {
        ::PostMessageW(::GetFocus(), WM_SYSKEYDOWN, VK_F6, 1 << 29);
        vant::test::PumpPending();
        return ::GetFocus();
    };
    main.Wnd().SetFocus();
    Box().DisplayMsg(0, L"message", 5);
    EXPECT_EQ(altF6(), Box().m_hWnd);
    EXPECT_EQ(altF6(), main.Wnd().m_hWnd);
    EXPECT_EQ(altF6(), Box().m_hWnd);
    Key(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), main.Wnd().m_hWnd);
    EXPECT_EQ(altF6(), main.Wnd().m_hWnd) << "while it is hidden";
}

TEST_F(CEMsgBoxTest, ComesWithoutFocusInTheMiddleOfTheApplication)
{
    const ScreenLock screen;
    EXPECT_EQ(Box().m_hWnd, nullptr) << "no window before the first message";
    {
        MainWnd main(CRect(100, 150, 900, 750));
        main.Wnd().SetFocus();
        Box().DisplayMsg(0, L"middle", 5);
        EXPECT_EQ(PlaceOf(Box().m_hWnd), CRect(CPoint(325, 325), CSize(350, 250)));
        EXPECT_EQ(::GetFocus(), main.Wnd().m_hWnd);
        EXPECT_TRUE(Box().GetExStyle() & WS_EX_TOPMOST);
        EXPECT_TRUE(Box().GetStyle() & WS_POPUP);

        CDpi(144).Set(main.Wnd().m_hWnd);
        main.Wnd().MoveWindow(-300, -200, 400, 300);
        Box().DisplayMsg(0, L"at the edge, at another scale", 5);
        EXPECT_EQ(PlaceOf(Box().m_hWnd), CRect(CPoint(0, 0), CSize(525, 375)));
    }
    EXPECT_EQ(Box().m_hWnd, nullptr) << "goes with the main window";
    EXPECT_FALSE(Box().active);

    Box().DisplayMsg(0, L"alone", 5);
    const CRect place = PlaceOf(Box().m_hWnd);
    const CPoint off = place.CenterPoint() - PrimaryWorkArea().CenterPoint();
    EXPECT_LE(std::abs(off.x) + std::abs(off.y), 2);
}

TEST_F(CEMsgBoxTest, ATextWithoutRoomIsInTheToolTip)
{
    Box().DisplayMsg(0, L"short", 5);
    EXPECT_EQ(Text(Box().tip), L"");
    CString text;
    for (int i = 0; i < 40; ++i)
        text += L"a text that never ends ";
    Box().DisplayMsg(0, text, 5);
    EXPECT_EQ(Text(Box().tip), Text(text));
    Box().DisplayMsg(0, L"1\n2\n3\n4", 5);
    EXPECT_EQ(Text(Box().tip), L"");
}

TEST_F(CEMsgBoxTest, AHugeMessageTakesNoLongerThanALongOne)
{
    for (const wchar_t* const piece : {L"word ", L"letters", L"\n"}) {
        CString text;
        while (text.GetLength() < 2'000'000)
            text += text.IsEmpty() ? CString(piece) : text;
        const ULONGLONG start = ::GetTickCount64();
        Box().DisplayMsg(0, text, 5);
        EXPECT_LT(::GetTickCount64() - start, 3000u);
    }
}

TEST_F(CEMsgBoxTest, MsgBoxReturnsAtOnce)
{
    EXPECT_EQ(Vant::MsgBox(Vant::msgWarnIcon, L"%d m\nbelow", 3), 1);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Texts(Box().lines), (MsgTexts{L"3 m", L"below"}));
    EXPECT_EQ(Box().tickLimit, 5);
    EXPECT_EQ(Box().msgType, 0x01);
}

TEST_F(CEMsgBoxTest, AnotherThreadsMessageIsShownByTheUiThread)
{
    int results[2] = {};
    std::thread([&results] {
        results[0] = Vant::MsgBox(0, L"from afar");
        results[1] = Vant::MsgBox(Vant::msgStopIcon, L"from further");
    }).join();
    EXPECT_EQ(results[0], 1);
    EXPECT_EQ(results[1], 1);
    EXPECT_FALSE(IsShown());
    vant::test::PumpPending();
    ASSERT_TRUE(IsShown());
    EXPECT_EQ(::GetWindowThreadProcessId(Box().m_hWnd, nullptr), ::GetCurrentThreadId());
    EXPECT_EQ(Texts(Box().lines), (MsgTexts{L"from further"}));
    // What nobody has handled yet ends with the platform.
    std::thread([] { Vant::MsgBox(0, L"too late"); }).join();
    Vant::Exit();
    vant::test::PumpPending();
    EXPECT_FALSE(IsShown());
}

TEST_F(CEMsgBoxTest, WithoutThePlatformTheSystemAndTheConsoleTell)
{
    Vant::Exit();
    const vant::test::RecordLogs logs;
    const auto calls = vant::detail::Calls();
    vant::detail::Calls().messageBox = [](LPCWSTR, LPCWSTR, UINT) { return IDCANCEL; };
    EXPECT_EQ(Vant::MsgBox(Vant::msgModal | Vant::msgCancel, L"?"), IDCANCEL);
    EXPECT_EQ(Vant::MsgBox(0, L"!"), 1);
    vant::detail::Calls() = calls;
    EXPECT_EQ(Box().m_hWnd, nullptr);
    EXPECT_THAT(Messages(LogTarget::console), testing::ElementsAre(Logged{0, 0, L"!"}));
}

TEST_F(CEMsgBoxTest, NothingIsLeftByStartingAndStopping)
{
    const auto cycle = [] {
        Vant::Init();
        Vant::MsgBox(Vant::msgStopIcon, L"box");
        Vant::toolTip.Show();
        Vant::Exit();
        EXPECT_EQ(Vant::msgBox.m_hWnd, nullptr);
        EXPECT_EQ(Vant::toolTip.m_hWnd, nullptr);
    };
    cycle();
    const int windows = WindowsOfThread();
    const int objects = vant::test::GdiObjectCount();
    cycle();
    Vant::Init();
    cycle();
    EXPECT_EQ(WindowsOfThread(), windows);
    EXPECT_EQ(vant::test::GdiObjectCount(), objects);
}
