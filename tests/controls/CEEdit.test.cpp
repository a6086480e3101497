#include "controls/CEEdit.h"

#include "controls/InputHost.h"
#include "controls/Listener.h"
#include "support/EveryType.h"
#include "support/GdiCount.h"
#include "support/MessagePump.h"

#include <optional>

using namespace testing;
using namespace vant::test;

namespace
{

constexpr wchar_t backspace = 8;

/** Counts what it is told. */
/** Destroys a field that calls it. */
class Destroyer : public CObject
{
public:
    void OnDestroy() { doomed.reset(); }
    std::optional<CEEdit> doomed;
};

/** Counts how often its frame is painted because the window was invalidated as a whole. */
class CountedEdit : public CEEdit
{
public:
    int frames = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        frames += message == WM_NCPAINT;
        return CEEdit::WindowProc(message, wParam, lParam);
    }
};

class CEEditTest : public WndTest
{
protected:
    void Make(CEEdit& edit, int x = 20, int y = 20)
    {
        const CDpi dpi = CDpi::Of(host);
        edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, dpi.ToPx(CRect(CPoint(x, y), CSize(100, 20))), &host,
                    7);
    }

    /** What the window's parent answers when the edit asks for its colours. */
    HBRUSH AskColours(CEEdit& edit, COLORREF& text, COLORREF& back)
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const LRESULT brush =
            host.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)),
                             reinterpret_cast<LPARAM>(edit.m_hWnd));
        text = dc.GetTextColor();
        back = dc.GetBkColor();
        return reinterpret_cast<HBRUSH>(brush);
    }

    InputHost host;
};

DWORD Selection(const CEEdit& edit)
{
    return static_cast<DWORD>(::SendMessageW(edit, EM_GETSEL, 0, 0));
}

DWORD AllOf(const CEEdit& edit)
{
    return static_cast<DWORD>(MAKELONG(0, edit.GetWindowTextLength()));
}

} // namespace

TEST_F(CEEditTest, LetsInWhatTheBoundTypeHasRoomFor)
{
    vant::test::EveryType variables;
    auto& [pointer, text, c, s, i, uc, us, ui, f, d, ul, i64] = variables;
    const std::wstring typed = L"A 0+9-.Ee,\u00E9";
    const std::wstring integers = L"0+9-";
    const std::wstring naturals = L"09";
    const std::wstring reals = L"0+9-.Ee";

    CEEdit edit;
    edit.Init(text);
    Make(edit);
    const auto typedInto = [&](auto& variable) {
        edit.Init(variable);
        edit.SetWindowText(L"");
        Type(edit, typed);
        return TextOf(edit);
    };
    EXPECT_EQ(typedInto(text), typed);
    EXPECT_EQ(typedInto(c), integers);
    EXPECT_EQ(typedInto(s), integers);
    EXPECT_EQ(typedInto(i), integers);
    EXPECT_EQ(typedInto(uc), naturals);
    EXPECT_EQ(typedInto(us), naturals);
    EXPECT_EQ(typedInto(ui), naturals);
    EXPECT_EQ(typedInto(f), reals);
    EXPECT_EQ(typedInto(d), reals);
    EXPECT_EQ(typedInto(ul), naturals);
    EXPECT_EQ(typedInto(i64), L"") << "no printable character";
    edit.Init(&pointer);
    Type(edit, typed);
    EXPECT_EQ(TextOf(edit), L"") << "no printable character";

    edit.Init(i);
    Type(edit, L"123");
    Type(edit, {backspace});
    EXPECT_EQ(TextOf(edit), L"12") << "control characters pass";
}

TEST_F(CEEditTest, IsBlueWhileTheTextIsNotValid)
{
    int value = 5;
    CountedEdit edit;
    edit.Init(value);
    edit.SetRange(0, 100);
    Make(edit);
    COLORREF text = 0;
    COLORREF back = 1;
    EXPECT_EQ(PixelOf(edit, 1, 1), RGB(0, 0, 0));
    EXPECT_EQ(AskColours(edit, text, back), static_cast<HBRUSH>(Vant::blackB));
    EXPECT_EQ(text, edit.style.txtCol);
    EXPECT_EQ(back, RGB(0, 0, 0));
    EXPECT_EQ(edit.validNow, 1);

    edit.SetFocus();
    PumpPending();
    edit.SendMessage(EM_SETSEL, 0, -1);
    edit.frames = 0;
    Type(edit, L"101");
    EXPECT_EQ(edit.validNow, 0);
    EXPECT_EQ(edit.frames, 1) << "painted anew once, when the text ceased to be valid";
    EXPECT_EQ(PixelOf(edit, 1, 1), Vant::blue);
    EXPECT_EQ(AskColours(edit, text, back), static_cast<HBRUSH>(Vant::blueB));
    EXPECT_EQ(text, edit.style.txtCol);
    EXPECT_EQ(back, Vant::blue);
    Type(edit, L"2");
    EXPECT_EQ(edit.frames, 1) << "still invalid";

    Type(edit, {backspace, backspace});
    EXPECT_EQ(edit.validNow, 1);
    EXPECT_EQ(edit.frames, 2);
    EXPECT_EQ(PixelOf(edit, 1, 1), RGB(0, 0, 0));
}

TEST_F(CEEditTest, TakesItsColoursFromTheStyle)
{
    int value = 5;
    CEEdit edit;
    edit.Init(value);
    edit.style.greyBk = 1;
    edit.style.txtCol = RGB(1, 2, 3);
    Make(edit);
    COLORREF text = 0;
    COLORREF back = 0;
    EXPECT_EQ(AskColours(edit, text, back), static_cast<HBRUSH>(Vant::greyB));
    EXPECT_EQ(text, RGB(1, 2, 3));
    EXPECT_EQ(back, Vant::grey);
    EXPECT_EQ(PixelOf(edit, 1, 1), Vant::grey);

    edit.style.greyBk = 0;
    edit.style.pBrush = &Vant::tealB;
    edit.Update(0);
    EXPECT_EQ(PixelOf(edit, 1, 1), Vant::teal) << "the style's own brush, once updated";
    EXPECT_EQ(AskColours(edit, text, back), static_cast<HBRUSH>(Vant::tealB));
    EXPECT_EQ(back, RGB(0, 0, 0)) << "behind the letters it is black nevertheless";
}

TEST_F(CEEditTest, StoresAValidTextWhenItLosesTheFocus)
{
    int value = 5;
    Listener listener;
    CEEdit edit;
    edit.Init(value);
    edit.SetCallback(&listener, Listener::Member());
    Make(edit);
    EXPECT_EQ(TextOf(edit), L"5");
    edit.SetFocus();
    edit.SetWindowText(L"");
    Type(edit, L"42");
    EXPECT_EQ(value, 5) << "not before the focus is lost";
    host.SetFocus();
    EXPECT_EQ(value, 42);
    EXPECT_EQ(listener.calls, 1);
    EXPECT_THAT(alarms, IsEmpty());
}

TEST_F(CEEditTest, ReportsAnInvalidTextOnceAndShowsTheStoredValueAgain)
{
    int value = 5;
    Listener listener;
    CEEdit edit;
    edit.Init(value);
    edit.SetRange(0, 100);
    edit.SetCallback(&listener, Listener::Member());
    Make(edit);
    edit.SetFocus();
    edit.SetWindowText(L"");
    Type(edit, L"1-");
    host.SetFocus();
    EXPECT_THAT(alarms, ElementsAre(Logged{40, 1, L"Incorrect Text: Not Valid Integer"}));
    EXPECT_EQ(TextOf(edit), L"5");

    edit.SetFocus();
    edit.SetWindowText(L"101");
    PixelOf(edit, 1, 1);
    EXPECT_EQ(edit.validNow, 0);
    host.SetFocus();
    ASSERT_EQ(alarms.size(), 2u);
    EXPECT_EQ(alarms[1].text, L"Incorrect Text: Not in user specified range 0 to 100");
    EXPECT_EQ(PixelOf(edit, 1, 1), RGB(0, 0, 0)) << "no longer blue";
    EXPECT_EQ(value, 5);
    EXPECT_EQ(listener.calls, 0);
}

TEST_F(CEEditTest, EscapeLeavesWithoutStoringAndKeepsTheText)
{
    int value = 5;
    CEEdit edit;
    edit.Init(value);
    Make(edit);
    edit.SetFocus();
    edit.SetWindowText(L"");
    Type(edit, L"42");
    PressKey(edit, VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(TextOf(edit), L"42");
    EXPECT_EQ(edit.escaped, 0);

    edit.Update(0);
    EXPECT_EQ(TextOf(edit), L"42");
    edit.Update(1);
    EXPECT_EQ(TextOf(edit), L"5");

    edit.SetFocus();
    edit.SetWindowText(L"-");
    PressKey(edit, VK_ESCAPE);
    EXPECT_THAT(alarms, IsEmpty()) << "an invalid text is not reported either";
    EXPECT_EQ(TextOf(edit), L"-");

    edit.SetFocus();
    edit.SetWindowText(L"43");
    host.SetFocus();
    EXPECT_EQ(value, 43) << "the next loss of the focus stores again";
}

TEST_F(CEEditTest, EnterAndTwoKeysMoveBetweenLinkedFields)
{
    CString names[2] = {L"left", L"right"};
    CEEdit left;
    CEEdit right;
    left.Init(names[0]);
    right.Init(names[1]);
    left.SetLinks(nullptr, &right);
    right.SetLinks(&left, nullptr);
    left.SetLinkChrs('<', '>');
    right.SetLinkChrs('<', '>');
    Make(left);
    Make(right, 200);

    left.SetFocus();
    PressKey(left, VK_RETURN);
    EXPECT_EQ(::GetFocus(), right.m_hWnd);
    EXPECT_EQ(Selection(right), AllOf(right));
    PressKey(right, VK_RETURN);
    EXPECT_EQ(::GetFocus(), host.m_hWnd) << "the last field gives the focus to the window";

    right.SetFocus();
    Type(right, L"<");
    EXPECT_EQ(::GetFocus(), left.m_hWnd);
    EXPECT_EQ(Selection(left), AllOf(left));
    Type(left, L"x<");
    EXPECT_EQ(::GetFocus(), left.m_hWnd) << "there is none to go to";
    Type(left, L">");
    EXPECT_EQ(::GetFocus(), right.m_hWnd);
    Type(right, L"y>z");
    EXPECT_EQ(::GetFocus(), right.m_hWnd);
    host.SetFocus();
    EXPECT_EQ(Text(names[0]), L"x") << "what was selected has been replaced, and no key of the links typed";
    EXPECT_EQ(Text(names[1]), L"yz");
}

TEST_F(CEEditTest, UpdateEnablesAndShowsTheValue)
{
    CEEdit edit;
    edit.Update(1);
    Make(edit);
    edit.Update(1);
    EXPECT_FALSE(edit.IsWindowEnabled()) << "nothing is bound";
    EXPECT_TRUE(edit.WndStyle() & WS_DISABLED);

    int value = 5;
    edit.Init(value);
    edit.Update(1);
    EXPECT_TRUE(edit.IsWindowEnabled());
    EXPECT_EQ(TextOf(edit), L"5");

    value = 6;
    edit.Update(0);
    EXPECT_EQ(TextOf(edit), L"5");
    edit.state = 0;
    edit.Update(1);
    EXPECT_FALSE(edit.IsWindowEnabled());
    EXPECT_EQ(TextOf(edit), L"5") << "a disabled field keeps its text";
    edit.state = CECtrl::stShown;
    edit.Update(1);
    EXPECT_TRUE(edit.IsWindowEnabled()) << "only a state of 0 disables";
    EXPECT_EQ(TextOf(edit), L"6");

    int mode = 1;
    edit.enIf = 1;
    edit.Update(1);
    EXPECT_TRUE(edit.IsWindowEnabled()) << "no variable, no condition";
    edit.pEnVar = &mode;
    edit.enVal = 2;
    value = 7;
    edit.Update(1);
    EXPECT_FALSE(edit.IsWindowEnabled());
    EXPECT_EQ(TextOf(edit), L"7") << "the condition does not hold up the text";
    mode = 2;
    edit.Update(0);
    EXPECT_TRUE(edit.IsWindowEnabled());

    edit.state = CECtrl::stEnabled;
    edit.Update(0);
    EXPECT_TRUE(edit.IsWindowVisible()) << "showing and hiding are left alone";

    edit.SetFocus();
    mode = 1;
    edit.Update(0);
    EXPECT_EQ(::GetFocus(), host.m_hWnd) << "the keyboard is not left to a disabled field";
    mode = 2;
    edit.Update(0);

    edit.SendMessage(EM_SETSEL, 1, 1);
    edit.Update(1);
    EXPECT_EQ(Selection(edit), static_cast<DWORD>(MAKELONG(1, 1))) << "the same text does not move the caret";
    edit.maxChars = 2;
    edit.Update(0);
    edit.SetFocus();
    Type(edit, L"123");
    EXPECT_EQ(TextOf(edit), L"71");
}

TEST_F(CEEditTest, IsCreatedWithAlignmentAndItsTipIsOptional)
{
    const auto alignment = [this](auto& variable, int align) {
        CEEdit edit;
        edit.Init(variable);
        edit.style.align = align;
        Make(edit);
        EXPECT_TRUE((edit.GetStyle() & ES_AUTOHSCROLL) != 0);
        wchar_t name[16] = {};
        ::GetClassNameW(edit, name, 16);
        EXPECT_STRCASEEQ(CStringA(name), "EDIT");
        return edit.GetStyle() & (ES_CENTER | ES_RIGHT);
    };
    CString text;
    double number = 0;
    EXPECT_EQ(alignment(text, 1), static_cast<DWORD>(ES_LEFT));
    EXPECT_EQ(alignment(number, 1), static_cast<DWORD>(ES_CENTER));
    EXPECT_EQ(alignment(number, 2), static_cast<DWORD>(ES_RIGHT));

    CEEdit edit;
    EXPECT_EQ(edit.ctrlType, 64);
    EXPECT_EQ(edit.Create(WS_CHILD, CRect(0, 0, 0, 0), nullptr, 1), 1) << "refused, and 1 all the same";
    EXPECT_EQ(edit.m_hWnd, nullptr);
    CString tip = L"before";
    edit.GetTip(tip);
    EXPECT_EQ(Text(tip), L"before");
    edit.tip = L"Depth";
    edit.GetTip(tip);
    EXPECT_EQ(Text(tip), L"Depth");
}

TEST_F(CEEditTest, KeepsItsKeysFromTheWindowAround)
{
    CString text = L"abc";
    CEEdit edit;
    edit.Init(text);
    Make(edit);
    edit.SetFocus();
    edit.SendMessage(EM_SETSEL, 1, 1);
    PressKey(edit, VK_DELETE);
    EXPECT_EQ(TextOf(edit), L"ac");
    PressKey(edit, 'A', {VK_CONTROL});
    PressKey(edit, VK_TAB, {VK_CONTROL});
    EXPECT_THAT(host.keysSeen, IsEmpty());

    PressKey(edit, VK_TAB);
    PressKey(edit, VK_LEFT);
    EXPECT_THAT(host.keysSeen, ElementsAre(VK_TAB, VK_LEFT));
    host.keysSeen.clear();
    {
        // Control has been pressed and let go: its state is 1, not 0.
        const HeldKeys toggled({VK_CONTROL}, 1);
        ::PostMessageW(edit, WM_KEYDOWN, VK_RIGHT, 1);
        ::PostMessageW(edit, WM_KEYDOWN, VK_TAB, 1);
        PumpPending();
    }
    EXPECT_THAT(host.keysSeen, ElementsAre(VK_TAB)) << "Tab moves on unless Control is really down";

    PressKey(edit, VK_ESCAPE);
    PressKey(host, VK_ESCAPE);
    EXPECT_EQ(host.keysSeen.size(), 2u);
}

TEST_F(CEEditTest, SurvivesACallbackThatDestroysIt)
{
    int value = 0;
    Destroyer destroyer;
    CEEdit& edit = destroyer.doomed.emplace();
    edit.Init(value);
    edit.SetCallback(&destroyer, static_cast<CEVal::CbNone>(&Destroyer::OnDestroy));
    Make(edit);
    edit.SetFocus();
    edit.SetWindowText(L"8");
    host.SetFocus();
    EXPECT_EQ(value, 8);
    EXPECT_FALSE(destroyer.doomed.has_value());

    CEEdit& another = destroyer.doomed.emplace();
    another.Init(value);
    Make(another);
    another.SetFocus();
    another.SetWindowText(L"9");
    destroyer.doomed.reset();
    EXPECT_EQ(value, 8) << "an object that goes with its window does not touch its variable";
}

TEST_F(CEEditTest, PutsItsLineInTheMiddleAndShowsTheFocus)
{
    int value = 5;
    CEEdit edit;
    edit.Init(value);
    Make(edit);
    CRect window;
    CRect client;
    edit.GetWindowRect(window);
    edit.GetClientRect(client);
    edit.ClientToScreen(client);
    EXPECT_EQ(client.Height(), 16) << "the height of the font";
    EXPECT_LE(std::abs((client.top - window.top) - (window.bottom - client.bottom)), 1);
    const CRect formatted = [&] {
        CRect r;
        edit.SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&r));
        return r;
    }();
    EXPECT_LE(formatted.Height(), client.Height()) << "nothing of the line is cut";
    EXPECT_EQ(::SendMessageW(edit, WM_NCHITTEST, 0, MAKELPARAM(window.left, window.top)), HTCLIENT);

    const auto frame = [&edit] { return FramePixelOf(edit, 50, 0); };
    const COLORREF normal = frame();
    edit.SetFocus();
    PumpPending();
    const COLORREF focused = frame();
    edit.SetWindowText(L"x");
    host.SetFocus();
    PumpPending();
    edit.EnableWindow(FALSE);
    PumpPending();
    const COLORREF disabled = frame();
    EXPECT_NE(normal, focused);
    EXPECT_NE(normal, disabled);
    EXPECT_NE(focused, disabled);
    edit.EnableWindow(TRUE);
    EXPECT_EQ(frame(), normal);
}

TEST_F(CEEditTest, FollowsTheScaleOfItsWindowWithAFontOfItsOwn)
{
    int value = 5;
    CEEdit edit;
    edit.Init(value);
    Make(edit);
    EXPECT_EQ(edit.GetFont()->GetSafeHandle(), Vant::normalF.GetSafeHandle());

    const auto lineHeight = [&] {
        CRect client;
        edit.GetClientRect(client);
        return client.Height();
    };
    int before = 0;
    for (int i = 0; i < 4; ++i) {
        const CDpi larger(144);
        larger.Set(host);
        edit.MoveWindow(larger.ToPx(CRect(20, 20, 120, 40)));
        edit.Update(0);
        EXPECT_NE(edit.GetFont()->GetSafeHandle(), Vant::normalF.GetSafeHandle());
        EXPECT_EQ(lineHeight(), 24);
        CDpi().Set(host);
        edit.MoveWindow(CRect(20, 20, 120, 40));
        edit.SendMessage(WM_DPICHANGED_AFTERPARENT);
        EXPECT_EQ(edit.GetFont()->GetSafeHandle(), Vant::normalF.GetSafeHandle());
        EXPECT_EQ(lineHeight(), 16);
        if (i == 0)
            before = GdiObjectCount(); // once the system has made what it keeps
    }
    EXPECT_EQ(GdiObjectCount(), before);
}

TEST_F(CEEditTest, DrawsElsewhereWhatTheWindowShows)
{
    CString value = L"Depth";
    CEEdit edit;
    edit.Init(value);
    edit.style.greyBk = 1;
    Make(edit);
    PumpPending();

    CClientDC screen(&host);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 100, 20);
    CBitmap* const before = memory.SelectObject(&bitmap);
    edit.Draw(&memory);
    int letters = 0;
    int different = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 100; ++x) {
            const COLORREF shown = FramePixelOf(edit, x, y);
            letters += shown == edit.style.txtCol;
            different += shown != memory.GetPixel(x, y);
        }
    }
    memory.SelectObject(before);
    EXPECT_GT(letters, 20);
    EXPECT_LT(different, letters / 4) << "but for the smoothing of letters";
}
