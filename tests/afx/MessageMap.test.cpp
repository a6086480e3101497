#include "support/MessagePump.h"
#include "support/ScreenLock.h"

#include <afxwin.h>
#include <commctrl.h>
#include <gmock/gmock.h>

#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr UINT OwnMessage = WM_APP + 1;
const UINT s_registered = ::RegisterWindowMessageW(L"VantAfxTestMessage");

using Log = std::vector<std::string>;

class Base : public CWnd
{
public:
    Log log;

    BOOL CreateHidden(CWnd* parent = nullptr)
    {
        return CreateEx(0, ::AfxRegisterWndClass(0), L"", parent != nullptr ? WS_CHILD : WS_POPUP,
                        CRect(0, 0, 200, 100), parent, 0);
    }

protected:
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        log.push_back("Base::OnSize " + std::to_string(type) + " " + std::to_string(cx) + " " +
                      std::to_string(cy));
    }
    afx_msg void OnMouseMove(UINT, CPoint at)
    {
        log.push_back("Base::OnMouseMove " + std::to_string(at.x) + " " + std::to_string(at.y));
    }
    afx_msg LRESULT OnOwn(WPARAM w, LPARAM l) { return static_cast<LRESULT>(w) * 100 + l; }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) { return static_cast<LRESULT>(w) + 1; }
    void OnPlain() { log.push_back("Base::OnPlain"); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CWnd)
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(OwnMessage, &Base::OnOwn)
    ON_REGISTERED_MESSAGE(s_registered, &Base::OnRegistered)
    ON_COMMAND(10, &Base::OnPlain)
END_MESSAGE_MAP()

class Derived : public Base
{
public:
    LRESULT answer = 0;
    bool refuse = false;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        log.push_back("Derived::OnSize");
        Base::OnSize(type, cx, cy);
    }
    afx_msg BOOL OnMouseWheel(UINT keys, short delta, CPoint at)
    {
        log.push_back("wheel " + std::to_string(keys) + " " + std::to_string(delta) + " " +
                      std::to_string(at.x) + " " + std::to_string(at.y));
        return TRUE;
    }
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        log.push_back("scroll " + std::to_string(code) + " " + std::to_string(pos) +
                      (bar != nullptr ? " bar" : ""));
    }
    void OnRange(UINT id) { log.push_back("range " + std::to_string(id)); }
    BOOL OnExtended(UINT id)
    {
        log.push_back("extended " + std::to_string(id));
        return refuse ? FALSE : TRUE;
    }
    void OnChange() { log.push_back("change"); }
    void OnFocusRange(UINT id) { log.push_back("focus " + std::to_string(id)); }
    void OnClickNotify(NMHDR* header, LRESULT* result)
    {
        log.push_back("notify " + std::to_string(header->idFrom));
        *result = answer;
    }
    void OnNotifyRange(UINT id, NMHDR*, LRESULT* result)
    {
        log.push_back("notify range " + std::to_string(id));
        *result = 7;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_WM_SIZE()
    ON_WM_MOUSEWHEEL()
    ON_WM_HSCROLL()
    ON_COMMAND_RANGE(20, 29, &Derived::OnRange)
    ON_COMMAND_EX(30, &Derived::OnExtended)
    ON_EN_CHANGE(40, &Derived::OnChange)
    ON_CONTROL_RANGE(EN_SETFOCUS, 50, 52, &Derived::OnFocusRange)
    ON_NOTIFY(NM_CLICK, 60, &Derived::OnClickNotify)
    ON_NOTIFY_RANGE(NM_CLICK, 61, 63, &Derived::OnNotifyRange)
END_MESSAGE_MAP()

template <typename Unit>
class Holder : public CWnd
{
public:
    Unit sum{};

protected:
    LRESULT OnAdd(WPARAM w, LPARAM) { return static_cast<LRESULT>(sum += static_cast<Unit>(w)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(Holder, Unit, CWnd)
    ON_MESSAGE(OwnMessage, &ThisClass::OnAdd)
END_MESSAGE_MAP()

/** A control that handles what it tells its parent. */
class Control : public CWnd
{
public:
    Log log;
    bool pass = false;
    CBrush brush{RGB(1, 2, 3)};

protected:
    BOOL OnReflectedChange()
    {
        log.push_back("control change");
        return pass ? FALSE : TRUE;
    }
    void OnReflectedFocus() { log.push_back("control focus"); }
    void OnReflectedClick(NMHDR*, LRESULT* result)
    {
        log.push_back("control notify");
        *result = 9;
    }
    HBRUSH CtlColor(CDC* dc, UINT kind)
    {
        log.push_back("control colour " + std::to_string(kind));
        if (pass)
            return nullptr;
        dc->SetTextColor(RGB(9, 8, 7));
        return brush;
    }
    void HScroll(UINT code, UINT) { log.push_back("control scroll " + std::to_string(code)); }
    void DrawItem(LPDRAWITEMSTRUCT item) { log.push_back("control draws " + std::to_string(item->CtlID)); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Control, CWnd)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &Control::OnReflectedChange)
    ON_CONTROL_REFLECT(EN_SETFOCUS, &Control::OnReflectedFocus)
    ON_NOTIFY_REFLECT(NM_CLICK, &Control::OnReflectedClick)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
END_MESSAGE_MAP()

class ColouringParent : public Derived
{
public:
    HBRUSH own = nullptr;

protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        log.push_back("parent colour");
        return own != nullptr ? own : CWnd::OnCtlColor(dc, control, kind);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouringParent, Derived)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class MessageMap : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(window.CreateHidden());
        window.log.clear();
    }
    LRESULT Send(UINT message, WPARAM w = 0, LPARAM l = 0) { return window.SendMessage(message, w, l); }

    Derived window;
};

class Reflection : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(parent.CreateHidden());
        ASSERT_TRUE(control.Create(L"EDIT", L"", WS_CHILD, CRect(0, 0, 100, 20), &parent, 40));
        parent.log.clear();
        control.log.clear();
    }
    void Tell(UINT code)
    {
        parent.SendMessage(WM_COMMAND, MAKEWPARAM(40, code), reinterpret_cast<LPARAM>(control.m_hWnd));
    }

    const ScreenLock screen;
    ColouringParent parent;
    Control control;
};

} // namespace

TEST_F(MessageMap, SearchesTheClassThenItsBases)
{
    Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 40));
    EXPECT_THAT(window.log, ElementsAre("Derived::OnSize", "Base::OnSize 0 30 40"));
    window.log.clear();
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(-3, -4));
    Send(WM_COMMAND, 10);
    EXPECT_THAT(window.log, ElementsAre("Base::OnMouseMove -3 -4", "Base::OnPlain"));
    EXPECT_EQ(Send(OwnMessage, 3, 4), 304);
    EXPECT_EQ(Send(s_registered, 5), 6);
    EXPECT_EQ(Send(OwnMessage + 1, 3, 4), 0) << "no handler: the system's default";
}

TEST_F(MessageMap, UnpacksSignedAndCombinedParameters)
{
    const LPARAM leftOfScreen = MAKELPARAM(static_cast<WORD>(-20), 30);
    EXPECT_EQ(Send(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), leftOfScreen), TRUE);
    Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 55), 0);
    EXPECT_THAT(window.log, ElementsAre("wheel 8 -120 -20 30", "scroll 4 55"));
}

TEST_F(MessageMap, RoutesCommandsByIdentifierAndRange)
{
    for (const UINT id : {19U, 20U, 29U, 30U, 31U})
        Send(WM_COMMAND, id);
    EXPECT_THAT(window.log, ElementsAre("range 20", "range 29", "extended 30"));
    EXPECT_TRUE(window.OnCmdMsg(30, CN_COMMAND, nullptr, nullptr));
    window.refuse = true;
    EXPECT_FALSE(window.OnCmdMsg(30, CN_COMMAND, nullptr, nullptr)) << "passed on";

    window.log.clear();
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(window.OnCmdMsg(25, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &window);
    EXPECT_THAT(window.log, IsEmpty()) << "only asked, not called";
}

TEST_F(MessageMap, RoutesNotificationsByCodeAndIdentifier)
{
    const LPARAM stranger = reinterpret_cast<LPARAM>(window.m_hWnd);
    Send(WM_COMMAND, MAKEWPARAM(40, EN_CHANGE), stranger);
    Send(WM_COMMAND, MAKEWPARAM(40, EN_UPDATE), stranger);
    Send(WM_COMMAND, MAKEWPARAM(51, EN_SETFOCUS), stranger);
    EXPECT_THAT(window.log, ElementsAre("change", "focus 51"));

    window.log.clear();
    window.answer = 42;
    NMHDR header{nullptr, 60, NM_CLICK};
    EXPECT_EQ(Send(WM_NOTIFY, 60, reinterpret_cast<LPARAM>(&header)), 42);
    header.idFrom = 62;
    EXPECT_EQ(Send(WM_NOTIFY, 62, reinterpret_cast<LPARAM>(&header)), 7);
    header.code = NM_DBLCLK;
    EXPECT_EQ(Send(WM_NOTIFY, 62, reinterpret_cast<LPARAM>(&header)), 0);
    EXPECT_THAT(window.log, ElementsAre("notify 60", "notify range 62"));
}

TEST(MessageMapTemplate, ServesEachInstance)
{
    Holder<short> holder;
    ASSERT_TRUE(holder.CreateEx(0, ::AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    EXPECT_EQ(holder.SendMessage(OwnMessage, 3), 3);
    EXPECT_EQ(holder.SendMessage(OwnMessage, 4), 7);
}

TEST_F(Reflection, NotificationsComeToTheControlFirst)
{
    Tell(EN_CHANGE);
    Tell(EN_SETFOCUS);
    EXPECT_THAT(control.log, ElementsAre("control change", "control focus"));
    EXPECT_THAT(parent.log, IsEmpty());

    control.pass = true;
    Tell(EN_CHANGE);
    EXPECT_THAT(parent.log, ElementsAre("change")) << "an extended handler may pass it on";

    NMHDR header{control.m_hWnd, 60, NM_CLICK};
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 60, reinterpret_cast<LPARAM>(&header)), 9);
    EXPECT_EQ(control.log.back(), "control notify");
}

TEST_F(Reflection, ARealEditAsksItsObjectForColours)
{
    parent.ShowWindow(SW_SHOW);
    control.ShowWindow(SW_SHOW);
    control.log.clear();
    CClientDC dc(&control);
    const auto brush = parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                          reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(reinterpret_cast<HBRUSH>(brush), static_cast<HBRUSH>(control.brush));
    EXPECT_EQ(dc.GetTextColor(), RGB(9, 8, 7));
    EXPECT_THAT(control.log, ElementsAre("control colour " + std::to_string(CTLCOLOR_EDIT)));

    control.log.clear();
    control.RedrawWindow();
    EXPECT_THAT(control.log, testing::Contains("control colour 1")) << "the system paints through it";

    control.pass = true;
    EXPECT_NE(parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                 reinterpret_cast<LPARAM>(control.m_hWnd)),
              0)
        << "a null brush leaves the choice to the system";

    control.log.clear();
    parent.own = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                       reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_THAT(control.log, IsEmpty()) << "the parent answered without its base";
}

TEST_F(Reflection, DrawingAndScrollingComeBackToTheControl)
{
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = 40;
    item.hwndItem = control.m_hWnd;
    parent.SendMessage(WM_DRAWITEM, 40, reinterpret_cast<LPARAM>(&item));
    EXPECT_THAT(control.log, ElementsAre("control draws 40"));
    control.log.clear();
    parent.CWnd::SendMessage(WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_THAT(parent.log, testing::Contains("scroll 1 0 bar"))
        << "its own handler, which does not call the base";
    EXPECT_THAT(control.log, IsEmpty());

    Base plain;
    ASSERT_TRUE(plain.CreateHidden());
    control.SetParent(&plain);
    plain.SendMessage(WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_THAT(control.log, ElementsAre("control scroll 1"));
}
