#include "support/MessagePump.h"
#include "support/ScreenLock.h"

#include <afxwin.h>
#include <gmock/gmock.h>

#include <stdexcept>
#include <vector>

using testing::Contains;
using testing::ElementsAre;
using vant::test::PumpPending;

namespace
{

constexpr UINT Throw = WM_APP + 1;
constexpr UINT ThrowStandard = WM_APP + 2;
constexpr UINT DestroyYourself = WM_APP + 3;

/** Writes down the messages it gets, of those a test asks for. */
class Recorder : public CWnd
{
public:
    explicit Recorder(std::vector<UINT>& seen, std::vector<UINT> wanted = {})
        : m_seen(seen)
        , m_wanted(std::move(wanted))
    {
    }

    BOOL Open(DWORD style = WS_POPUP)
    {
        return CreateEx(0, ::AfxRegisterWndClass(0), L"Recorder", style, CRect(10, 20, 210, 120), nullptr, 0);
    }
    BOOL failCreate = FALSE;
    BOOL refuse = FALSE;
    int gone = 0;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return !refuse && CWnd::PreCreateWindow(cs); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (std::find(m_wanted.begin(), m_wanted.end(), message) != m_wanted.end())
            m_seen.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (CWnd::OnCreate(create) == -1)
            return -1;
        return failCreate ? -1 : 0;
    }
    LRESULT OnThrow(WPARAM, LPARAM) { ::AfxThrowResourceException(); }
    LRESULT OnThrowStandard(WPARAM, LPARAM) { throw std::runtime_error("thrown by a handler"); }
    void PostNcDestroy() override { ++gone; }

    DECLARE_MESSAGE_MAP()

private:
    std::vector<UINT>& m_seen;
    std::vector<UINT> m_wanted;
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    ON_WM_CREATE()
    ON_MESSAGE(Throw, &Recorder::OnThrow)
    ON_MESSAGE(ThrowStandard, &Recorder::OnThrowStandard)
END_MESSAGE_MAP()

/** Frees itself, from within any of its handlers. */
class SelfDestroying : public CWnd
{
public:
    static int s_alive;
    SelfDestroying() { ++s_alive; }
    ~SelfDestroying() override { --s_alive; }

protected:
    LRESULT OnDestroyYourself(WPARAM, LPARAM)
    {
        DestroyWindow();
        return 5;
    }
    afx_msg void OnLButtonDown(UINT, CPoint) { DestroyWindow(); }
    afx_msg void OnTimer(UINT_PTR) { DestroyWindow(); }
    void OnCommand10() { DestroyWindow(); }
    void PostNcDestroy() override { delete this; }
    DECLARE_MESSAGE_MAP()
};

int SelfDestroying::s_alive = 0;

BEGIN_MESSAGE_MAP(SelfDestroying, CWnd)
    ON_MESSAGE(DestroyYourself, &SelfDestroying::OnDestroyYourself)
    ON_WM_LBUTTONDOWN()
    ON_WM_TIMER()
    ON_COMMAND(10, &SelfDestroying::OnCommand10)
END_MESSAGE_MAP()

class UpperCaseEdit : public CEdit
{
public:
    bool created = false;
    int changes = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        const int result = CEdit::OnCreate(create);
        created = true;
        SetWindowText(L"made");
        return result;
    }
    afx_msg void OnChar(UINT ch, UINT, UINT)
    {
        if (ch == 'x')
            return;
        DefWindowProc(WM_CHAR, ch >= 'a' && ch <= 'z' ? ch - ('a' - 'A') : ch, 1);
    }
    void OnReflectedChange() { ++changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(UpperCaseEdit, CEdit)
    ON_WM_CREATE()
    ON_WM_CHAR()
    ON_CONTROL_REFLECT(EN_CHANGE, &UpperCaseEdit::OnReflectedChange)
END_MESSAGE_MAP()

CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

} // namespace

TEST(CWndMessages, ComeInTheSystemsOrderFromTheFirstOn)
{
    std::vector<UINT> seen;
    Recorder window(seen, {WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE, WM_SHOWWINDOW, WM_SIZE, WM_MOVE, WM_DESTROY,
                           WM_NCDESTROY, WM_ENABLE});
    ASSERT_TRUE(window.Open());
    // WM_SIZE and WM_MOVE of the creation itself are the system's business.
    ASSERT_GE(seen.size(), 3U);
    EXPECT_THAT(std::vector<UINT>(seen.begin(), seen.begin() + 3),
                ElementsAre(WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE));

    seen.clear();
    window.EnableWindow(FALSE);
    window.EnableWindow(TRUE);
    EXPECT_THAT(seen, ElementsAre(WM_ENABLE, WM_ENABLE));

    seen.clear();
    window.ShowWindow(SW_SHOWNA);
    EXPECT_THAT(seen, Contains(WM_SHOWWINDOW));

    seen.clear();
    window.MoveWindow(30, 40, 300, 200);
    EXPECT_THAT(seen, ElementsAre(WM_NCCALCSIZE, WM_MOVE, WM_SIZE));
    CRect rect;
    window.GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(30, 40, 330, 240));
    window.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(0, 0, 300, 200));

    seen.clear();
    ASSERT_TRUE(window.DestroyWindow());
    // Whether hiding comes with a WM_SHOWWINDOW differs between systems.
    std::erase(seen, static_cast<UINT>(WM_SHOWWINDOW));
    EXPECT_THAT(seen, ElementsAre(WM_DESTROY, WM_NCDESTROY));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.gone, 1);
    EXPECT_FALSE(window.DestroyWindow());
}

TEST(CWndCreation, FailureEndsInPostNcDestroyOnce)
{
    std::vector<UINT> seen;
    Recorder refused(seen);
    refused.refuse = TRUE;
    EXPECT_FALSE(refused.Open());
    EXPECT_EQ(refused.gone, 1);

    Recorder failed(seen);
    failed.failCreate = TRUE;
    EXPECT_FALSE(failed.Open());
    EXPECT_EQ(failed.gone, 1);
    EXPECT_EQ(failed.m_hWnd, nullptr);

    Recorder unknown(seen);
    EXPECT_FALSE(unknown.CreateEx(0, L"no such class", L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    EXPECT_EQ(unknown.gone, 1);

    failed.failCreate = FALSE;
    EXPECT_TRUE(failed.Open()) << "the object can be used again";
    EXPECT_FALSE(failed.Open()) << "but has one window at a time";
    EXPECT_TRUE(::IsWindow(failed.m_hWnd));
    EXPECT_EQ(failed.gone, 1) << "which a second creation leaves alone";
}

TEST(CWndCreation, AChildTellsItsParentAndDiesWithIt)
{
    std::vector<UINT> seen;
    Recorder parent(seen);
    ASSERT_TRUE(parent.Open());
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, L"child", WS_VISIBLE, CRect(5, 6, 55, 46), &parent, 77));
    EXPECT_EQ(child.GetParent(), &parent);
    EXPECT_EQ(parent.GetDlgItem(77), &child);
    EXPECT_EQ(child.GetDlgCtrlID(), 77);
    EXPECT_TRUE(parent.IsChild(&child));
    EXPECT_EQ(parent.GetWindow(GW_CHILD), &child);
    EXPECT_EQ(parent.ChildWindowFromPoint(CPoint(10, 10)), &child);
    EXPECT_EQ(child.GetTopLevelParent(), &parent);
    EXPECT_EQ(child.GetOwner(), &parent);
    CRect rect;
    child.GetClientRect(&rect);
    child.MapWindowPoints(&parent, &rect);
    EXPECT_EQ(rect, CRect(5, 6, 55, 46));

    parent.DestroyWindow();
    EXPECT_EQ(child.m_hWnd, nullptr);
}

TEST(CWndHandlers, ExceptionsStayInside)
{
    std::vector<UINT> seen;
    Recorder window(seen);
    ASSERT_TRUE(window.Open());
    EXPECT_EQ(window.SendMessage(Throw), 0);
    EXPECT_EQ(window.SendMessage(ThrowStandard), 0);
    EXPECT_TRUE(::IsWindow(window.m_hWnd));

    struct ThrowsInCreate : CWnd {
        void PreSubclassWindow() override { throw std::runtime_error("too early"); }
    } early;
    EXPECT_FALSE(early.CreateEx(0, ::AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
}

TEST(CWndHandlers, MayDestroyTheirOwnWindow)
{
    const auto open = [] {
        auto* window = new SelfDestroying;
        EXPECT_TRUE(
            window->CreateEx(0, ::AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
        return window->m_hWnd;
    };
    HWND window = open();
    EXPECT_EQ(::SendMessageW(window, DestroyYourself, 0, 0), 5);
    EXPECT_FALSE(::IsWindow(window));
    window = open();
    ::SendMessageW(window, WM_LBUTTONDOWN, 0, 0);
    window = open();
    ::SendMessageW(window, WM_COMMAND, 10, 0);
    window = open();
    ::SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(window));
    window = open();
    ::SetTimer(window, 1, 10, nullptr);
    EXPECT_TRUE(vant::test::PumpUntil([window] { return !::IsWindow(window); }));
    EXPECT_EQ(SelfDestroying::s_alive, 0);
}

TEST(CWndSubclass, AnEditIsHandledFromItsCreationOn)
{
    const ScreenLock screen;
    std::vector<UINT> seen;
    Recorder parent(seen);
    ASSERT_TRUE(parent.Open(WS_POPUP | WS_VISIBLE));
    UpperCaseEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 100, 20), &parent, 1));
    EXPECT_TRUE(edit.created);
    EXPECT_EQ(TextOf(edit), L"made");

    edit.SetSel(0, -1);
    edit.changes = 0;
    for (const wchar_t ch : {L'a', L'x', L'b', L'7'})
        edit.SendMessage(WM_CHAR, ch, 1);
    EXPECT_EQ(TextOf(edit), L"AB7");
    EXPECT_EQ(edit.changes, 3);
    edit.SetSel(1, 2);
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 2)));
    edit.ReplaceSel(L"--");
    EXPECT_EQ(TextOf(edit), L"A--7");
}

TEST(CWndSubclass, AnExistingWindowIsTakenOverAndGivenBack)
{
    std::vector<UINT> seen;
    Recorder parent(seen);
    ASSERT_TRUE(parent.Open());
    const HWND plain =
        ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 90, 20, parent, nullptr, nullptr, nullptr);
    const LONG_PTR original = ::GetWindowLongPtrW(plain, GWLP_WNDPROC);
    UpperCaseEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(plain));
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), &edit);
    UpperCaseEdit second;
    EXPECT_FALSE(second.SubclassWindow(plain)) << "one object per window";
    ::SendMessageW(plain, WM_CHAR, L'q', 1);
    EXPECT_EQ(TextOf(edit), L"Q");

    EXPECT_EQ(edit.UnsubclassWindow(), plain);
    EXPECT_EQ(::GetWindowLongPtrW(plain, GWLP_WNDPROC), original);
    ::SendMessageW(plain, WM_CHAR, L'q', 1);
    EXPECT_EQ(TextOf(*CWnd::FromHandle(plain)), L"Qq");

    ASSERT_TRUE(edit.SubclassWindow(plain));
    edit.Detach();
    ::SendMessageW(plain, WM_CHAR, L'z', 1);
    EXPECT_EQ(TextOf(*CWnd::FromHandle(plain)), L"Qqz") << "without its object the control works on";
    ASSERT_TRUE(second.SubclassWindow(plain));
    ::SendMessageW(plain, WM_CHAR, L'q', 1);
    EXPECT_EQ(TextOf(second), L"QqzQ") << "and under its next one it is still what its class makes it";
}

TEST(CWndState, StylesTextFontAndScrollBars)
{
    std::vector<UINT> seen;
    Recorder window(seen);
    ASSERT_TRUE(window.Open(WS_POPUP | WS_HSCROLL));
    EXPECT_TRUE(window.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
    EXPECT_FALSE(window.ModifyStyle(0, WS_BORDER)) << "nothing left to change";
    EXPECT_TRUE((window.GetStyle() & WS_BORDER) != 0);
    EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_TOOLWINDOW));

    const CString lengthy(L'w', 5000);
    window.SetWindowText(lengthy);
    EXPECT_EQ(TextOf(window), lengthy);

    SCROLLINFO info{};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 20;
    window.SetScrollInfo(SB_HORZ, &info);
    EXPECT_EQ(window.GetScrollPos(SB_HORZ), 20);
    EXPECT_EQ(window.GetScrollLimit(SB_HORZ), 90);

    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &window, 1));
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Arial"));
    edit.SetFont(&font);
    EXPECT_EQ(edit.GetFont(), &font);

    window.CenterWindow();
    CRect rect;
    window.GetWindowRect(&rect);
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_NEAR(rect.CenterPoint().x, (work.left + work.right) / 2, 1);
}

TEST(CFrameWndLife, FreesItselfAndPaintsItsBackground)
{
    static int s_alive = 0;
    struct Frame : CFrameWnd {
        Frame() { ++s_alive; }
        ~Frame() override { --s_alive; }
    };
    auto* frame = new Frame;
    ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_POPUP, CRect(0, 0, 100, 80)));
    EXPECT_FALSE(frame->Create(nullptr, L"again", WS_POPUP, CRect(0, 0, 100, 80)));
    ASSERT_EQ(s_alive, 1) << "a second creation frees nothing";
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(s_alive, 0);
    EXPECT_FALSE((new Frame)->Create(L"no such class", L"frame"));
    EXPECT_EQ(s_alive, 0) << "a creation that fails frees it too";
}
