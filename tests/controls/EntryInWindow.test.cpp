// Edit fields, dials and addresses as controls of a platform window.
#include "controls/CEAddr.h"
#include "controls/CERadius.h"
#include "controls/CVantWnd.h"
#include "controls/WndTest.h"
#include "support/MessagePump.h"

#include <optional>
#include <vector>

using namespace testing;
using namespace vant::test;

namespace
{

class EntryWnd : public CVantWnd
{
public:
    void SetupCtrls() override
    {
        depthEdit = dynamic_cast<CEEdit*>(InsCtrl(80, CECtrl::typeEdit, depth));
        nameEdit = dynamic_cast<CEEdit*>(InsCtrl(80, CECtrl::typeEdit, name));
        NewLn();
        address = new CEAddr;
        address->Init(server);
        InsCtrl(160, address, 20);
        NewLn();
        ctrlH = 100;
        dial = dynamic_cast<CERadius*>(InsCtrl(100, CECtrl::typeRadius, course));
    }

    double depth = 12.5;
    CString name = L"Survey";
    unsigned long server = 1;
    double course = 0;
    CEEdit* depthEdit = nullptr;
    CEEdit* nameEdit = nullptr;
    CEAddr* address = nullptr;
    CERadius* dial = nullptr;
};

class EntryInWindow : public WndTest
{
protected:
    EntryInWindow()
    {
        wnd.CreateWnd(L"entry", WS_POPUP, CRect(20, 20, 320, 260));
        wnd.ShowWindow(SW_SHOWNOACTIVATE);
        wnd.UpdCtrls();
        wnd.SetFocus();
        PumpPending();
    }
    ~EntryInWindow() override { wnd.DestroyWindow(); }

    EntryWnd wnd;
};

using EntryInWindowEnd = WndTest;

} // namespace

TEST_F(EntryInWindow, TabStopsAtEveryFieldAndNoKeyIsLost)
{
    ASSERT_TRUE(wnd.depthEdit && wnd.nameEdit && wnd.dial) << "a category makes them by their codes";
    EXPECT_EQ(TextOf(*wnd.depthEdit), L"12.5");
    EXPECT_TRUE(wnd.depthEdit->GetStyle() & ES_CENTER);
    EXPECT_FALSE(wnd.nameEdit->GetStyle() & ES_CENTER);

    std::vector<HWND> stops;
    HWND at = wnd;
    for (int i = 0; i < 7; ++i) {
        PressKey(at, VK_TAB);
        at = ::GetFocus();
        stops.push_back(at);
    }
    const auto& fields = wnd.address->edits;
    EXPECT_THAT(stops, ElementsAre(wnd.depthEdit->m_hWnd, wnd.nameEdit->m_hWnd, fields[0].m_hWnd,
                                   fields[1].m_hWnd, fields[2].m_hWnd, fields[3].m_hWnd, wnd.dial->m_hWnd));
    PressKey(at, VK_TAB, {VK_SHIFT});
    EXPECT_EQ(::GetFocus(), fields[3].m_hWnd);
    Type(fields[3], L"9");
    PressKey(fields[3], VK_TAB, {VK_SHIFT});
    EXPECT_EQ(wnd.server, 1 + 9ul * 256 * 256 * 256)
        << "all of the field was selected, and leaving stored it";

    // The window takes the focus from what the mouse moves over, but not from an entry.
    wnd.dial->SetFocus();
    wnd.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(290, 200));
    EXPECT_EQ(::GetFocus(), wnd.dial->m_hWnd);
    wnd.nameEdit->SetFocus();
    wnd.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(290, 200));
    EXPECT_EQ(::GetFocus(), wnd.nameEdit->m_hWnd);
}

TEST_F(EntryInWindow, EverythingFollowsTheWindowToAnotherScale)
{
    const auto heightOf = [](const CWnd& window) { return ScreenPlaceOf(window).Height(); };
    const auto lineOf = [](const CWnd& edit) {
        CRect client;
        edit.GetClientRect(&client);
        return client.Height();
    };
    const CRect larger(20, 20, 470, 380);
    wnd.SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&larger));
    PumpPending();
    EXPECT_EQ(heightOf(*wnd.depthEdit), 30);
    EXPECT_EQ(lineOf(*wnd.depthEdit), 24) << "a font of one and a half times the height";
    EXPECT_EQ(lineOf(wnd.address->edits[2]), 24);
    EXPECT_EQ(heightOf(*wnd.dial), 150);
    EXPECT_TRUE(wnd.dial->OnHandle(CPoint(50, 0))) << "in units it is where it was";

    const CRect normal(20, 20, 320, 260);
    wnd.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&normal));
    PumpPending();
    EXPECT_EQ(lineOf(*wnd.depthEdit), 16);
    EXPECT_EQ(lineOf(wnd.address->edits[2]), 16);
}

TEST_F(EntryInWindow, CornersShowTheHighlightOfTheWindow)
{
    // The corners of the disabled frame are all background.
    wnd.depthEdit->EnableWindow(FALSE);
    EXPECT_EQ(FramePixelOf(*wnd.depthEdit, 0, 0), Vant::back);
    EXPECT_EQ(PixelOf(*wnd.dial, 1, 1), Vant::back);
    CVantWnd::AddHlt(&wnd);
    wnd.RedrawWnd();
    PumpPending();
    EXPECT_EQ(FramePixelOf(*wnd.depthEdit, 0, 0), Vant::teal);
    EXPECT_EQ(PixelOf(*wnd.dial, 1, 1), Vant::teal);
    EXPECT_EQ(PixelOf(*wnd.dial, 99, 99), Vant::teal);
    CVantWnd::DelHlt(&wnd);
    wnd.RedrawWnd();
    PumpPending();
    EXPECT_EQ(FramePixelOf(*wnd.depthEdit, 0, 0), Vant::back);
}

TEST_F(EntryInWindowEnd, AWindowThatGoesWithItsObjectDoesNotStore)
{
    std::optional<double> depth = 1.0;
    {
        CVantWnd wnd;
        auto* const edit = dynamic_cast<CEEdit*>(wnd.InsCtrl(80, CECtrl::typeEdit, *depth));
        ASSERT_NE(edit, nullptr);
        wnd.CreateWnd(L"entry", WS_POPUP | WS_VISIBLE, CRect(20, 20, 320, 260));
        edit->SetFocus();
        edit->SetWindowText(L"2");
    }
    EXPECT_EQ(depth, 1.0);
}
