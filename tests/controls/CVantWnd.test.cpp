#include "controls/CVantWnd.h"

#include "controls/CEText.h"
#include "controls/CEWnd.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "support/GdiCount.h"
#include "support/MessagePump.h"

#include <memory>

namespace
{

using testing::ElementsAre;

using CVantWndTest = WndTest;

/** Inserts a control when it is set up, and writes down what happens. */
class SetUpWnd : public RecordingWnd
{
public:
    void SetDefaults() override { steps += L"defaults "; }
    void SetupCtrls() override
    {
        steps += L"controls ";
        ctrl = InsText(50, L"x");
    }
    void DrawEWnd(CEWnd* drawn, CDC* dc, CRect& r) override
    {
        dc->FillSolidRect(r, drawn->key == L"red" ? RGB(255, 0, 0) : RGB(0, 255, 0));
    }
    std::wstring steps;
    CECtrl* ctrl = nullptr;
};

/** Stores into its variable, and calls back, when its window goes: as an edit field with the focus does. */
class StoringCtrl : public CEWnd
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY) {
            SetVal(99);
            Execute();
        }
        return CEWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(CVantWndTest, BeginsWithItsDefaultsAndInTheList)
{
    const int before = CVantWnd::s_wnds.GetCount();
    {
        CVantWnd first;
        CVantWnd second;
        EXPECT_EQ(first.name, L"Default");
        EXPECT_EQ(first.fixed, 300);
        EXPECT_EQ(first.isFixed, 0);
        EXPECT_EQ(first.level, 1);
        EXPECT_EQ(first.org, CPoint(0, 0));
        EXPECT_EQ(first.catName, L"ROOT");
        EXPECT_EQ(CVantWnd::s_wnds.GetCount(), before + 2);
        EXPECT_EQ(CVantWnd::s_wnds.GetTail(), &second);
        EXPECT_EQ(CVantWnd::GetWnd(L"Default"), &first);
        second.name = L"Second";
        EXPECT_EQ(CVantWnd::GetWnd(L"Second"), &second);
        EXPECT_EQ(CVantWnd::GetWnd(L"second"), nullptr);
    }
    EXPECT_EQ(CVantWnd::s_wnds.GetCount(), before);
}

TEST_F(CVantWndTest, CreatesItsControlsWithTheWindow)
{
    const int controls = CECtrl::s_eCtrls.GetCount();
    {
        SetUpWnd wnd;
        wnd.GetCat(L"section", CCtrlCat::kindStacked, 0, 0)->InsText(10, L"deleted with the window");
        wnd.CreatePopup();
        EXPECT_EQ(wnd.steps, L"defaults controls ");
        EXPECT_EQ(PlaceOf(*wnd.ctrl), CRect(10, 10, 60, 30));
        wchar_t className[32];
        ::GetClassNameW(wnd, className, 32);
        EXPECT_EQ(Vant::wndClass, className);
        EXPECT_TRUE(wnd.GetStyle() & WS_CLIPCHILDREN);

        // Another window for the same object: the same control.
        const CECtrl* const ctrl = wnd.ctrl;
        wnd.DestroyWindow();
        EXPECT_EQ(ctrl->m_hWnd, nullptr);
        wnd.CreatePopup();
        EXPECT_EQ(wnd.steps, L"defaults controls ");
        EXPECT_EQ(PlaceOf(*ctrl), CRect(10, 10, 60, 30));

        // Inserted later.
        const CECtrl* const later = wnd.InsText(30, L"later");
        EXPECT_EQ(later->m_hWnd, nullptr);
        wnd.CreateCtrls();
        EXPECT_EQ(PlaceOf(*later), CRect(62, 10, 92, 30));
    }
    EXPECT_EQ(CECtrl::s_eCtrls.GetCount(), controls);
}

TEST_F(CVantWndTest, CategoriesAreMadeOnce)
{
    RecordingWnd wnd;
    wnd.level = 4;
    CCtrlCat* const stacked = wnd.GetCat(L"A", CCtrlCat::kindStacked, 1, 0);
    EXPECT_EQ(stacked->pParent, &wnd);
    EXPECT_EQ(stacked->catName, L"A");
    EXPECT_EQ(CPoint(stacked->leftM, stacked->curX), CPoint(25, 25));
    EXPECT_EQ(stacked->y, 24);
    EXPECT_EQ(stacked->hasHdr, 1);
    EXPECT_EQ(stacked->lvlMask, 4);
    EXPECT_EQ(stacked->expanded, 2);

    EXPECT_EQ(wnd.GetCat(L"A", CCtrlCat::anchorCentre, 0, 7), stacked);
    EXPECT_EQ(stacked->kind, CCtrlCat::kindStacked);
    EXPECT_EQ(stacked->lvlMask, 4);
    stacked->NewLn();
    EXPECT_EQ(wnd.GetMgrY(), 24 + 24 + 34);

    const CCtrlCat* const anchored = wnd.GetCat(L"a", CCtrlCat::anchorCentre, 0, 7);
    EXPECT_NE(anchored, stacked);
    EXPECT_EQ(anchored->leftM, 10);
    EXPECT_EQ(anchored->lvlMask, 7);
    EXPECT_EQ(wnd.GetCat(L"B", CCtrlCat::kindStacked, 1, 0)->y, 24 + 24 + 34);
}

TEST_F(CVantWndTest, DeletingItWithItsWindowDoesNotStoreToVariables)
{
    int gain = 3;
    const auto openWnd = [&gain] {
        auto wnd = std::make_unique<RecordingWnd>();
        auto* const ctrl = new StoringCtrl;
        ctrl->Init(gain);
        wnd->InsCtrl(50, ctrl, 0);
        wnd->CreatePopup();
        return wnd;
    };
    auto wnd = openWnd();
    wnd->DestroyWindow(); // the application is still there
    EXPECT_EQ(gain, 99);
    gain = 3;
    wnd = openWnd();
    const HWND window = wnd->m_hWnd;
    wnd.reset();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(gain, 3);
}

TEST_F(CVantWndTest, FillsItsBackgroundTealWhileHighlighted)
{
    SetUpWnd wnd;
    auto* const red = new CEWnd;
    red->key = L"red";
    red->SetTarget(&wnd);
    wnd.InsCtrl(40, red, 3);
    CECtrl* const text = wnd.InsText(40, L"");
    wnd.CreatePopup(200, 100);
    wnd.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    vant::test::PumpPending();
    EXPECT_EQ(wnd.erasePending, 0);
    EXPECT_EQ(PixelOf(wnd, 150, 80), Vant::back);
    EXPECT_EQ(PixelOf(wnd, 20, 20), RGB(255, 0, 0)) << "drawn by the window for the control";
    CVantWnd::AddHlt(&wnd);
    EXPECT_EQ(PixelOf(wnd, 150, 80), Vant::teal);
    EXPECT_EQ(PixelOf(wnd, 20, 20), RGB(255, 0, 0));
    EXPECT_EQ(PixelOf(*text, 5, 5), Vant::teal) << "controls stand on it";
    CVantWnd::DelHlt(&wnd);
    EXPECT_EQ(PixelOf(wnd, 150, 80), Vant::back);
}

TEST_F(CVantWndTest, ErasesOnceOnly)
{
    RecordingWnd wnd;
    wnd.CreatePopup(50, 50);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(50, 50, 1, 32, nullptr);
    memory.SelectObject(&bitmap);
    const auto erase = [&] {
        memory.FillSolidRect(0, 0, 50, 50, RGB(1, 1, 1));
        EXPECT_NE(wnd.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(memory.m_hDC)), 0);
        return memory.GetPixel(49, 49);
    };
    EXPECT_EQ(erase(), Vant::back);
    EXPECT_EQ(erase(), RGB(1, 1, 1));
    wnd.erasePending = 1;
    CVantWnd::AddHlt(&wnd);
    EXPECT_EQ(erase(), Vant::teal);
    memory.DeleteDC();
}

TEST_F(CVantWndTest, UpdatesAndRedrawsAllWindows)
{
    RecordingWnd hidden;
    RecordingWnd shown;
    CECtrl* const ctrl = shown.InsText(50, L"x");
    shown.GetCat(L"a", CCtrlCat::anchorCentre, 0, 0)->InsText(20, L"y");
    shown.CreatePopup();
    shown.ShowWindow(SW_SHOWNOACTIVATE);
    vant::test::PumpPending();
    shown.RedrawWnd();
    ASSERT_FALSE(shown.GetUpdateRect(nullptr));
    ctrl->state &= ~CECtrl::stEnabled;
    shown.UpdateLabels();
    EXPECT_FALSE(ctrl->IsWindowEnabled());
    ctrl->state |= CECtrl::stEnabled;
    CVantWnd::UpdateAllWnds();
    EXPECT_TRUE(ctrl->IsWindowEnabled());
    EXPECT_TRUE(shown.GetUpdateRect(nullptr));
}

TEST_F(CVantWndTest, WritesListsOfTextAndOfPairs)
{
    RecordingWnd wnd;
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(200, 60, 1, 32, nullptr);
    memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 200, 60, RGB(0, 0, 0));
    const auto inkIn = [&](const CRect& r) {
        int ink = 0;
        for (int y = r.top; y < r.bottom; ++y) {
            for (int x = r.left; x < r.right; ++x)
                ink += memory.GetPixel(x, y) != RGB(0, 0, 0);
        }
        return ink;
    };
    CRect r(0, 0, 200, 20);
    wnd.StdTxt(&memory, r, L"Depth");
    EXPECT_EQ(r, CRect(0, 20, 200, 40));
    wnd.DualTxt(&memory, r, 100, L"Gain", L"12 dB");
    EXPECT_EQ(r, CRect(0, 40, 200, 60));
    EXPECT_GT(inkIn({0, 0, 60, 20}), 20);
    EXPECT_EQ(inkIn({100, 0, 200, 20}), 0);
    EXPECT_GT(inkIn({0, 20, 60, 40}), 20);
    EXPECT_EQ(inkIn({80, 20, 140, 40}), 0);
    EXPECT_GT(inkIn({150, 20, 200, 40}), 20);
    memory.DeleteDC();
}

TEST_F(CVantWndTest, ManyWindowsLeaveNoGdiObjects)
{
    const auto once = [] {
        RecordingWnd wnd;
        for (int i = 0; i < 20; ++i)
            wnd.GetCat(L"a", CCtrlCat::kindStacked, 1, 0)->InsText(10, L"x");
        wnd.CreatePopup();
        wnd.ShowWindow(SW_SHOWNOACTIVATE);
        vant::test::PumpPending();
    };
    once();
    const int before = vant::test::GdiObjectCount();
    constexpr int windows = 20;
    for (int i = 0; i < windows; ++i)
        once();
    // The system makes some of its own objects late; a leak would be one for each window at least.
    EXPECT_LT(vant::test::GdiObjectCount(), before + windows);
}

TEST_F(CVantWndTest, HelpComesFromTheControlElseItsWindowElseTheDefault)
{
    RecordingWnd wnd;
    CECtrl* const ctrl = wnd.InsCtrl(150, CECtrl::typeBtn, L"x");
    wnd.CreatePopup(200, 100);
    wnd.SetWindowPos(&CWnd::wndTopMost, 40, 40, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    vant::test::PumpPending();
    ::SetCursorPos(100, 60); // over the control
    ctrl->aux3 = L"Gain";
    wnd.topic = L"Sonar View";
    Vant::SpawnHelp();
    ctrl->aux3.Empty();
    Vant::SpawnHelp();
    ::SetCursorPos(100, 120); // over the window
    Vant::SpawnHelp();
    wnd.topic.Empty();
    Vant::SpawnHelp();
    EXPECT_THAT(PagesOfHelp(),
                ElementsAre(L"Gain.htm", L"SonarView.htm", L"SonarView.htm", L"UsingtheSoftware.htm"));
}
