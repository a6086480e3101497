#include "support/GdiCount.h"
#include "support/MessagePump.h"
#include "windows/CCslComms.h"
#include "windows/WindowsTest.h"

#include <chrono>
#include <thread>

namespace
{

using testing::ElementsAre;
using ConsoleWnd = WindowsTest;
using Console = Opened<CConsole>;

constexpr int rowH = 18;

CRect Px(const CConsole& console, const CRect& units)
{
    return console.Dpi().ToPx(units);
}

void Fill(CConsole& console, int lines)
{
    console.maxEntries = 1000;
    CString text;
    for (int i = 0; i < lines; ++i) {
        text.Format(L"line %d", i);
        console.AddEntry(0, 0, text);
    }
}

/** The controls of a console's options. */
std::vector<CECtrl*> Options(CConsole& console)
{
    std::vector<CECtrl*> found;
    CCtrlCat* const cat = console.Cats().GetHead();
    for (CVantPtr* pos = cat->ctrls.GetHeadPos(); pos;)
        found.push_back(cat->ctrls.GetNext(pos));
    return found;
}

CECtrl* Option(CConsole& console, const wchar_t* caption)
{
    for (CECtrl* ctrl : Options(console))
        if (ctrl->text == caption)
            return ctrl;
    ADD_FAILURE() << "no option " << Text(caption).c_str();
    return Options(console).front();
}

void ClickCtrl(CECtrl* ctrl)
{
    ctrl->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ctrl->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

void SetOpen(CConsole& console, int expanded)
{
    console.Cats().GetHead()->expanded = expanded;
    console.LayoutWnd();
}

/** Looks at the next dialog box of this thread and answers it. */
class DialogAnswer
{
public:
    explicit DialogAnswer(WORD button)
    {
        s_button = button;
        s_timer = ::SetTimer(nullptr, 0, 50, OnTimer);
    }
    ~DialogAnswer() { ::KillTimer(nullptr, s_timer); }

    static inline std::wstring title;
    static inline std::vector<std::wstring> filters;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND wnd, LPARAM) -> BOOL {
                wchar_t text[64] = {};
                ::GetClassNameW(wnd, text, 64);
                if (std::wstring(text) != L"#32770" || !::IsWindowVisible(wnd))
                    return TRUE;
                ::GetWindowTextW(wnd, text, 64);
                title = text;
                constexpr int filterBox = 0x470;
                filters.clear();
                for (WPARAM i = 0; ::SendDlgItemMessageW(wnd, filterBox, CB_GETLBTEXT, i,
                                                         reinterpret_cast<LPARAM>(text)) > 0;
                     ++i)
                    filters.emplace_back(text);
                ::PostMessageW(wnd, WM_COMMAND, s_button, 0);
                return FALSE;
            },
            0);
    }
    static inline WORD s_button = 0;
    static inline UINT_PTR s_timer = 0;
};

} // namespace

TEST_F(ConsoleWnd, ATriggerRedrawsTheRowsThatChanged)
{
    Console console;
    console.SetupCsl(1);
    for (unsigned long id = 10; id <= 50; id += 10) {
        int state = 0;
        console.UpdateEntry(id, state, L"state");
    }
    console.Open(400, 300);
    EXPECT_EQ(console.changed, 0) << "drawn";
    EXPECT_EQ(console.Lines().size(), 5u);
    CVantWnd::Trigger(1.0, 2.0);
    EXPECT_TRUE(console.Pending().IsRectEmpty()) << "nothing has changed";

    int state = 1;
    console.UpdateEntry(30, state, L"new state");
    EXPECT_TRUE(console.Pending().IsRectEmpty()) << "not before the trigger";
    CVantWnd::Trigger(1.0, 2.0);
    EXPECT_EQ(console.changed, 0);
    // The mark of the newest entry went from the last row to this one.
    EXPECT_EQ(console.Pending(),
              Px(console, CRect(console.RowRc(2).TopLeft(), console.RowRc(4).BottomRight())));
    console.UpdateWindow();
    EXPECT_EQ(console.paints, 1);

    console.UpdateEntry(30, state, L"newer state");
    CVantWnd::Trigger(1.0, 2.0);
    EXPECT_EQ(console.Pending(), Px(console, console.RowRc(2)));
    console.Settle();

    // What the filter hides is counted in the heading, and needs no drawing after that.
    state = 0;
    console.UpdateEntry(60, state, L"hidden", CConsole::kindVerbose);
    CVantWnd::Trigger(1.0, 2.0);
    EXPECT_EQ(console.Pending().top, 0);
    console.Settle();
    console.UpdateEntry(60, state, L"hidden");
    CVantWnd::Trigger(1.0, 2.0);
    EXPECT_EQ(console.changed, 0);
    EXPECT_TRUE(console.Pending().IsRectEmpty());

    console.ShowWindow(SW_HIDE);
    console.UpdateEntry(30, state, L"unseen");
    CVantWnd::Trigger(1.0, 2.0);
    EXPECT_EQ(console.changed, 1) << "a hidden window draws when it is shown";
    console.ShowWindow(SW_SHOWNOACTIVATE);
    console.UpdateWindow();
    EXPECT_EQ(console.changed, 0);
    EXPECT_NE(console.Lines()[2].text.Find(L"unseen"), -1);
}

TEST_F(ConsoleWnd, ABusyLoggerDelaysTheRedraw)
{
    Console console;
    console.Open(400, 300);
    console.AddEntry(0, 0, L"line");
    std::atomic<bool> held = false;
    std::atomic<bool> release = false;
    std::jthread busy([&] {
        const CSingleLock guard(&console.entryLock, TRUE);
        held = true;
        while (!release)
            ::Sleep(1);
    });
    while (!held)
        ::Sleep(1);
    const auto start = std::chrono::steady_clock::now();
    CVantWnd::Trigger(0.0, 0.0);
    console.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
    EXPECT_TRUE(console.Lines().empty()) << "what was there before is drawn";
    release = true;
    busy.join();
    EXPECT_EQ(console.changed, 1);
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.Lines().size(), 1u);
    EXPECT_EQ(console.changed, 0);
}

TEST_F(ConsoleWnd, TheLastLineStaysInViewUnlessTheUserScrolledAway)
{
    Console console;
    console.Open(400, 24 + 18 + 8 + 10 * rowH + 10);
    Fill(console, 60);
    CVantWnd::Trigger(0.0, 0.0);
    const int page = console.ListRc().Height() / rowH;
    const auto end = [&] { return static_cast<int>(console.Lines().size()) - page; };
    EXPECT_EQ(console.First(), end());

    console.Key(VK_PRIOR);
    EXPECT_EQ(console.First(), 50 - page + 10 - page);
    console.Key(VK_UP);
    const int first = console.First();
    const CString read = console.Lines()[static_cast<std::size_t>(first)].text;
    console.maxEntries = 60;
    console.AddEntry(0, 0, L"one more");
    console.AddEntry(0, 0, L"one more");
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.First(), first - 2) << "the oldest two are gone";
    EXPECT_EQ(console.Lines()[static_cast<std::size_t>(console.First())].text, read);

    console.Key(VK_END);
    console.AddEntry(0, 0, L"last");
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.First(), end());
    console.Key(VK_HOME);
    EXPECT_EQ(console.First(), 0);
    console.Key(VK_DOWN);
    console.Key(VK_NEXT);
    EXPECT_EQ(console.First(), page + 1);
    console.Key(VK_END);

    // Smaller and larger: the end stays the end.
    console.SetWindowPos(nullptr, 0, 0, 400, 120, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_LT(console.ListRc().Height() / rowH, page);
    EXPECT_EQ(console.First(), 60 - console.ListRc().Height() / rowH);
}

TEST_F(ConsoleWnd, WheelAndThumbScroll)
{
    Console console;
    console.Open(400, 300);
    Fill(console, 100);
    CVantWnd::Trigger(0.0, 0.0);
    const CRect list = Px(console, console.ListRc());
    CPoint inList = list.CenterPoint();
    console.ClientToScreen(&inList);
    const auto wheel = [&](int delta, WPARAM keys = 0) {
        console.SendMessage(WM_MOUSEWHEEL, keys | (static_cast<WPARAM>(static_cast<WORD>(delta)) << 16),
                            MAKELPARAM(inList.x, inList.y));
    };
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int end = console.First();
    wheel(WHEEL_DELTA);
    EXPECT_EQ(console.First(), end - static_cast<int>(lines));
    wheel(-WHEEL_DELTA / 2);
    EXPECT_EQ(console.First(), end - static_cast<int>(lines));
    wheel(-WHEEL_DELTA / 2);
    EXPECT_EQ(console.First(), end) << "halves of a notch add up";

    const int barX = list.right - 4;
    console.Click(CPoint(barX, list.top + 2));
    EXPECT_EQ(console.First(), end - console.ListRc().Height() / rowH) << "a page";
    console.Key(VK_END);
    console.Press(WM_LBUTTONDOWN, CPoint(barX, list.bottom - 5));
    EXPECT_EQ(::GetCapture(), console.m_hWnd);
    console.Press(WM_MOUSEMOVE, CPoint(barX, (list.top + list.bottom) / 2));
    EXPECT_GT(console.First(), 20);
    EXPECT_LT(console.First(), 60);
    console.Press(WM_MOUSEMOVE, CPoint(barX, list.top - 50));
    EXPECT_EQ(console.First(), 0);
    console.Press(WM_LBUTTONUP, CPoint(barX, list.top - 50));
    EXPECT_EQ(::GetCapture(), nullptr);
    console.Press(WM_MOUSEMOVE, CPoint(barX, list.bottom));
    EXPECT_EQ(console.First(), 0) << "released";
}

TEST_F(ConsoleWnd, AKeyedListShowsWhatIsNew)
{
    Console console;
    console.SetupCsl(1);
    console.Open(400, 140);
    int state = 0;
    for (unsigned long id = 100; id < 150; ++id)
        console.UpdateEntry(id, state, L"state");
    CVantWnd::Trigger(0.0, 0.0);
    const int page = console.ListRc().Height() / rowH;
    EXPECT_EQ(console.First(), 50 - page);
    console.UpdateEntry(120, state, L"changed");
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.First(), 50 - page) << "states that change do not pull the list about";
    console.UpdateEntry(1, state, L"new");
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.First(), 0);
}

TEST_F(ConsoleWnd, OptionsFilterWhatIsShown)
{
    Console console;
    console.SetupCsl(0);
    console.Open(640, 400);
    const struct {
        const wchar_t* caption;
        const wchar_t* tip;
    } rows[] = {
        {L"Detailed", L"Display the detailed level of information"},
        {L"Verbose", L"Display the verbose level of information"},
        {L"Log To", L"Append the entries to the file"},
        {L"Display status 0 - 1000", L"Display status 0 - 1000"},
        {L"Display status 1000 - 2000", L"Display status 1000 - 2000"},
        {L"Display status 8000 - 9000", L"Display status 8000 - 9000"},
        {L"Display status 9000 - 10000 and above", L"Display status 9000 - 10000 and above"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Text(Option(console, row.caption)->tip), row.tip);
    EXPECT_FALSE(Options(console).front()->IsWindowVisible()) << "closed at first";
    const CRect closed = console.ListRc();
    SetOpen(console, 2);
    EXPECT_TRUE(Options(console).front()->IsWindowVisible());
    EXPECT_GT(console.ListRc().top, closed.top + 100);
    EXPECT_EQ(console.ListRc().bottom, closed.bottom);

    console.AddEntry(0, 500, L"low");
    console.AddEntry(0, 1500, L"higher");
    console.AddEntry(0, 12000, L"highest");
    console.AddEntry(0, 500, L"verbose", CConsole::kindVerbose);
    console.AddEntry(0, 500, L"detailed", CConsole::kindDetailed);
    CVantWnd::Trigger(0.0, 0.0);
    const auto shown = [&] {
        std::vector<std::wstring> texts;
        for (const CECEntry& line : console.Lines())
            texts.push_back(Text(line.text.Mid(line.text.Find(L") :") + 3)));
        return texts;
    };
    EXPECT_THAT(shown(), ElementsAre(L"low", L"higher", L"highest", L"detailed"));
    console.Settle();
    ClickCtrl(Option(console, L"Display status 1000 - 2000"));
    EXPECT_EQ(console.filter, 0x8fffffu & ~0x20u);
    EXPECT_THAT(shown(), ElementsAre(L"low", L"highest", L"detailed")) << "at once, without a trigger";
    EXPECT_FALSE(console.Pending().IsRectEmpty());
    ClickCtrl(Option(console, L"Display status 9000 - 10000 and above"));
    ClickCtrl(Option(console, L"Verbose"));
    ClickCtrl(Option(console, L"Detailed"));
    EXPECT_THAT(shown(), ElementsAre(L"low", L"verbose"));
    EXPECT_EQ(console.detail, 0);
    ClickCtrl(Option(console, L"Log To"));
    EXPECT_EQ(console.logTo, 1);
}

TEST_F(ConsoleWnd, OptionsFitANarrowWindow)
{
    Console console;
    console.Open(640, 500);
    SetOpen(console, 2);
    const CECtrl* const last = Option(console, L"Display status 9000 - 10000 and above");
    const auto right = [&] {
        CRect r;
        last->GetWindowRect(&r);
        console.ScreenToClient(&r);
        return r.right;
    };
    EXPECT_GT(right(), 320);
    EXPECT_LE(right(), 640);
    const int listTop = console.ListRc().top;
    console.SetWindowPos(nullptr, 0, 0, 320, 500, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_LE(right(), 320);
    EXPECT_GT(console.ListRc().top, listTop);
    // No room for entries: nothing is drawn there and nothing breaks.
    console.SetWindowPos(nullptr, 0, 0, 320, 100, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(console.ListRc().IsRectEmpty());
    console.AddEntry(0, 0, L"line");
    CVantWnd::Trigger(0.0, 0.0);
    console.Settle();
    console.Click(CPoint(160, 90));
}

TEST_F(ConsoleWnd, TheCommsConsoleOffersLogToOnly)
{
    Opened<CCslComms> comms;
    comms.SetupCsl(0);
    comms.Open(500, 300);
    int boxes = 0;
    for (CECtrl* ctrl : Options(comms))
        boxes += ctrl->ctrlType == CECtrl::typeCheck ? 1 : 0;
    EXPECT_EQ(boxes, 1);
    ClickCtrl(Option(comms, L"Log To"));
    EXPECT_EQ(comms.logTo, 1);
}

TEST_F(ConsoleWnd, TheUserChoosesTheLogFile)
{
    Console console;
    console.SetupCsl(0);
    const std::wstring before = Text(console.fileName);
    console.Open(500, 300);
    {
        const DialogAnswer cancel(IDCANCEL);
        console.OnBrowse();
    }
    EXPECT_EQ(DialogAnswer::title, L"Select CSV to save data to");
    EXPECT_THAT(DialogAnswer::filters, ElementsAre(L"CSV Files (*.csv)", L"All Files"));
    EXPECT_EQ(Text(console.fileName), before);

    console.fileName = (Dir() + L"chosen").c_str();
    const DialogAnswer ok(IDOK);
    console.OnBrowse();
    EXPECT_EQ(Text(console.fileName), Dir() + L"chosen.csv");
}

TEST_F(ConsoleWnd, KeysLeadBetweenOptionsAndEntries)
{
    const ScreenLock screen;
    Console console;
    console.Open(640, 400);
    SetOpen(console, 2);
    CECtrl* const box = Option(console, L"Verbose");
    box->SetFocus();
    ASSERT_TRUE(vant::test::PumpUntil([&] { return ::GetFocus() == box->m_hWnd; }));
    MSG escape{};
    escape.hwnd = box->m_hWnd;
    escape.message = WM_KEYDOWN;
    escape.wParam = VK_ESCAPE;
    EXPECT_TRUE(console.PreTranslateMessage(&escape));
    EXPECT_EQ(::GetFocus(), console.m_hWnd);
    escape.hwnd = console.m_hWnd;
    EXPECT_FALSE(console.PreTranslateMessage(&escape)) << "elsewhere it is for others";
}

TEST_F(ConsoleWnd, LongLinesShiftSideways)
{
    Console console;
    console.AddEntry(0, 0, CString(L'x', 300));
    console.Open(300, 200);
    const CPoint end(console.RowRc(0).left + 14, console.RowRc(0).CenterPoint().y);
    const auto lit = [&] {
        int count = 0;
        for (int x = 0; x < 8; ++x)
            for (int y = -7; y < 7; ++y)
                count += console.Pixel(end + CPoint(x, y)) != Vant::back ? 1 : 0;
        return count;
    };
    EXPECT_GT(lit(), 0);
    for (int i = 0; i < 100; ++i)
        console.Key(VK_RIGHT);
    EXPECT_GT(lit(), 0) << "not beyond the end of the longest";
    console.Settle();
    console.Key(VK_RIGHT);
    EXPECT_TRUE(console.Pending().IsRectEmpty());
    console.Key(VK_LEFT);
    EXPECT_FALSE(console.Pending().IsRectEmpty());
}

TEST_F(ConsoleWnd, ADockedConsoleIsDrawnInItsParent)
{
    CVantWnd parent;
    ASSERT_TRUE(parent.CreateWnd(L"", WS_POPUP, CRect(0, 0, 500, 400)));
    parent.ShowWindow(SW_SHOWNOACTIVATE);
    Console console;
    console.title = L"The Output Window";
    ASSERT_TRUE(console.CreateWnd(L"", WS_CHILD | WS_VISIBLE, CRect(100, 100, 400, 300), &parent, 1));
    console.Settle();
    console.AddEntry(0, 0, L"line");
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.Pending().bottom, Px(console, console.RowRc(0)).bottom);
    SetOpen(console, 2);
    vant::test::PumpPending();
    EXPECT_TRUE(Options(console).front()->IsWindowVisible());
    // The parent goes first: its child's window goes with it, the entries stay.
    parent.DestroyWindow();
    EXPECT_EQ(console.m_hWnd, nullptr);
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(console.entries.GetCount(), 1);
}

TEST_F(ConsoleWnd, DrawingLeavesNoObjectsBehind)
{
    Console console;
    console.Open(400, 300);
    Fill(console, 50);
    const auto draw = [&] {
        for (int i = 0; i < 20; ++i) {
            console.AddEntry(0, i * 700, L"line");
            CVantWnd::Trigger(0.0, 0.0);
            console.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
        vant::test::PumpPending();
    };
    draw();
    const int before = vant::test::GdiObjectCount();
    draw();
    EXPECT_LE(vant::test::GdiObjectCount(), before);
}
