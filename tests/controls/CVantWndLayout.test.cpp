#include "controls/CECheck.h"
#include "controls/CEFlex.h"
#include "controls/CELabel.h"
#include "controls/CEText.h"
#include "controls/CEWnd.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "support/MessagePump.h"

namespace
{

using testing::ElementsAre;

/** Counts how often its window is moved, shown or hidden. */
class CountedCtrl : public CEWnd
{
public:
    int moves = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        moves += message == WM_WINDOWPOSCHANGING ? 1 : 0;
        return CEWnd::WindowProc(message, wParam, lParam);
    }
};

/** A window with two sections of one line each and one anchored button. */
class SectionsWnd : public RecordingWnd
{
public:
    SectionsWnd()
    {
        first = GetCat(L"First", kindStacked, 1, 0);
        second = GetCat(L"Second", kindStacked, 1, 0);
        a = first->InsCtrl(60, typeBtn, L"a");
        first->NewLn();
        b = second->InsCtrl(60, typeBtn, L"b");
        second->NewLn();
        corner = GetCat(L"Corner", anchorBottomRight, 0, 0)->InsCtrl(50, typeBtn, L"c");
    }
    /** The nth child of a class, in the order of creation. */
    template <class Ctrl>
    Ctrl* Nth(int n)
    {
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            auto* const found = dynamic_cast<Ctrl*>(FromHandlePermanent(child));
            if (found && n-- == 0)
                return found;
        }
        return nullptr;
    }
    static constexpr int typeBtn = CECtrl::typeBtn;
    CCtrlCat* first;
    CCtrlCat* second;
    CECtrl* a;
    CECtrl* b;
    CECtrl* corner;
};

class CVantWndLayout : public WndTest
{
protected:
    static void SetDpi(CWnd& wnd, int dpi, const CRect& suggested)
    {
        RECT r = suggested;
        wnd.SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&r));
    }
};

} // namespace

TEST_F(CVantWndLayout, FlexMovesEachEdgeByItsShare)
{
    const CRect base(10, 10, 60, 30);
    EXPECT_EQ(CEFlex().Apply(base, 100, 50), base);
    EXPECT_EQ(CEFlex(0, 0, 1, 0).Apply(base, 100, 50), CRect(10, 10, 160, 30));
    EXPECT_EQ(CEFlex(1, 0, 1, 0).Apply(base, 100, 50), CRect(110, 10, 160, 30));
    EXPECT_EQ(CEFlex(0, 1, 1, 1).Apply(base, 100, 50), CRect(10, 60, 160, 80));
    EXPECT_EQ(CEFlex(0, 0, 0.5, 0.25).Apply(base, 5, 5), CRect(10, 10, 63, 31)); // 2.5 up, 1.25 down
    EXPECT_EQ(CEFlex(1, 1, 0, 0).Apply(base, 100, 50), CRect(110, 60, 110, 60)) << "never inside out";
}

TEST_F(CVantWndLayout, SectionsStandOneUnderTheOther)
{
    SectionsWnd wnd;
    wnd.CreatePopup(400, 300);
    EXPECT_EQ(CPoint(wnd.first->x, wnd.first->y), CPoint(0, 24));
    EXPECT_EQ(CPoint(wnd.second->x, wnd.second->y), CPoint(0, 24 + 24 + 34));
    EXPECT_EQ(PlaceOf(*wnd.a), CRect(25, 52, 85, 72));
    EXPECT_EQ(PlaceOf(*wnd.b), CRect(25, 110, 85, 130));
    EXPECT_EQ(wnd.GetMgrY(), 140);
    EXPECT_EQ(PlaceOf(*wnd.Nth<CECheck>(1)).top, 82);
    EXPECT_EQ(PlaceOf(*wnd.Nth<CELabel>(1)).top, 82);
    EXPECT_EQ(wnd.Nth<CELabel>(1)->text, L"Second");
    EXPECT_EQ(PlaceOf(*wnd.corner), CRect(400 - 62 - 5 + 10, 306, 400 - 62 - 5 + 60, 326));

    wnd.SetWndXY(30, 7);
    EXPECT_EQ(CPoint(wnd.second->x, wnd.second->y), CPoint(30, 89));
    EXPECT_EQ(PlaceOf(*wnd.b), CRect(55, 117, 115, 137));
    wnd.SetWndX(0);
    wnd.SetWndY(0);
    EXPECT_EQ(PlaceOf(*wnd.b), CRect(25, 110, 85, 130));

    // The window's own controls come first, and keep at least the room that they need.
    const CECtrl* const own = wnd.InsText(50, L"own");
    wnd.NewLn();
    wnd.NewLn();
    wnd.CreateCtrls();
    wnd.LayoutWnd(1);
    EXPECT_EQ(PlaceOf(*own), CRect(10, 10, 60, 30));
    EXPECT_EQ(wnd.first->y, 24 + 58);
    wnd.mgrExtra = 100;
    wnd.LayoutWnd(1);
    EXPECT_EQ(wnd.first->y, 24 + 100);
}

TEST_F(CVantWndLayout, SectionsCloseAndOpenByMouseAndKey)
{
    SectionsWnd wnd;
    wnd.CreatePopup();
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    wnd.a->SetFocus();
    CECheck& box = *wnd.Nth<CECheck>(0);
    EXPECT_TRUE(box.IsChecked()) << "open at first";
    Click(box);
    EXPECT_EQ(wnd.first->expanded, 0);
    EXPECT_FALSE(box.IsChecked());
    EXPECT_FALSE(IsShown(*wnd.a));
    EXPECT_EQ(wnd.a->state, 7);
    EXPECT_EQ(wnd.second->y, 48);
    EXPECT_EQ(PlaceOf(*wnd.b), CRect(25, 76, 85, 96));
    EXPECT_TRUE(IsShown(*wnd.b));
    EXPECT_EQ(wnd.first->GetCtrlHeight(), 24);

    box.SetFocus();
    PressKey(VK_SPACE);
    EXPECT_EQ(wnd.first->expanded, 1);
    EXPECT_TRUE(IsShown(*wnd.a));
    EXPECT_EQ(wnd.a->state, 3);
    EXPECT_EQ(PlaceOf(*wnd.b), CRect(25, 110, 85, 130));

    // The title does the same. The focus does not stay in what is hidden.
    wnd.a->SetFocus();
    Click(*wnd.Nth<CELabel>(0));
    EXPECT_EQ(wnd.first->expanded, 0);
    wnd.first->expanded = 1;
    wnd.LayoutWnd();
    wnd.a->SetFocus();
    wnd.first->expanded = 0;
    wnd.LayoutWnd();
    EXPECT_EQ(::GetFocus(), box.m_hWnd);
}

TEST_F(CVantWndLayout, MovesOnlyWhatIsNotInItsPlace)
{
    SectionsWnd wnd;
    auto* const ctrl = new CountedCtrl;
    wnd.second->InsCtrl(20, ctrl, 0);
    wnd.CreatePopup();
    ctrl->moves = 0;
    wnd.LayoutWnd();
    wnd.MoveWindow(0, 0, 500, 350);
    EXPECT_EQ(ctrl->moves, 0);
    wnd.first->expanded = 0;
    wnd.LayoutWnd();
    EXPECT_EQ(ctrl->moves, 1);
}

TEST_F(CVantWndLayout, TellsItsParentUnlessQuiet)
{
    RecordingWnd outer;
    outer.CreatePopup();
    RecordingWnd middle;
    middle.CreateChild(outer, {0, 0, 200, 200});
    RecordingWnd inner;
    inner.CreateChild(middle, {0, 0, 100, 100});
    vant::test::PumpPending();
    const auto layouts = [&] {
        vant::test::PumpPending();
        const std::vector<int> counts = {inner.layouts, middle.layouts, outer.layouts};
        inner.layouts = middle.layouts = outer.layouts = 0;
        return counts;
    };
    layouts();
    inner.LayoutWnd(1);
    EXPECT_THAT(layouts(), ElementsAre(1, 0, 0));
    inner.LayoutWnd();
    EXPECT_EQ(middle.layouts, 0) << "the message is posted, not sent";
    EXPECT_THAT(layouts(), ElementsAre(1, 1, 1));
    middle.SendMessage(5225);
    EXPECT_THAT(layouts(), ElementsAre(0, 1, 1));
    inner.MoveWindow(0, 0, 50, 50);
    EXPECT_THAT(layouts(), ElementsAre(1, 0, 0));

    SectionsWnd sections;
    sections.CreateChild(outer, {200, 0, 400, 300});
    layouts();
    Click(*sections.Nth<CECheck>(0));
    EXPECT_THAT(layouts(), ElementsAre(0, 0, 1)) << "a section that opens or closes changes the layout";
}

TEST_F(CVantWndLayout, FlexibleChildrenGrowBeyondTheMinimum)
{
    RecordingWnd wnd;
    CEFlex wide(0, 0, 1, 0);
    CECtrl* const ctrl = wnd.InsText(100, L"x", nullptr, DT_LEFT, &wide);
    CECtrl* const section =
        wnd.GetCat(L"s", CCtrlCat::kindStacked, 1, 0)->InsText(50, L"y", nullptr, DT_LEFT, &wide);
    wnd.CreatePopup(200, 150);
    RecordingWnd child;
    child.CreateChild(wnd, {20, 60, 120, 110});
    wnd.SetupFlex(&child, CEFlex(1, 1, 1, 1));
    wnd.SetupFlex(nullptr, wide);
    ASSERT_NE(wnd.GetFlex(&child), nullptr);
    EXPECT_EQ(wnd.GetFlex(&child)->rc, CRect(20, 60, 120, 110));
    EXPECT_EQ(wnd.GetFlex(ctrl)->rc, ctrl->rc);
    EXPECT_EQ(wnd.GetFlex(&wnd), nullptr);
    const auto places = [&] { return std::vector<CRect>{PlaceOf(*ctrl), PlaceOf(*section), PlaceOf(child)}; };
    const CRect inSection(25, 52, 75, 72);

    wnd.MoveWindow(0, 0, 300, 250);
    EXPECT_THAT(places(), ElementsAre(CRect(10, 10, 110, 30), inSection, CRect(20, 60, 120, 110)))
        << "without a minimum nothing is flexed";
    wnd.minW = 200;
    wnd.minH = 150;
    wnd.UpdateFlex();
    const CRect wideInSection(25, 52, 175, 72);
    EXPECT_THAT(places(), ElementsAre(CRect(10, 10, 210, 30), wideInSection, CRect(120, 160, 220, 210)));
    wnd.LayoutWnd();
    EXPECT_EQ(PlaceOf(*section), wideInSection) << "a layout keeps it";
    wnd.MoveWindow(0, 0, 100, 100);
    EXPECT_THAT(places(), ElementsAre(CRect(10, 10, 110, 30), inSection, CRect(20, 60, 120, 110)))
        << "below the minimum";
    // A minimum of 0 lets all of the size count as growth, a negative one none.
    wnd.minW = 0;
    wnd.minH = 50;
    wnd.UpdateFlex();
    EXPECT_EQ(PlaceOf(child), CRect(120, 110, 220, 160));
    wnd.minW = -1;
    wnd.UpdateFlex();
    EXPECT_EQ(PlaceOf(child), CRect(20, 110, 120, 160));
}

TEST_F(CVantWndLayout, ScrollBarTakesItsRoomFromFlexibleChildrenToo)
{
    SectionsWnd wnd;
    wnd.CreatePopup(400, 139); // the sections reach down to 140
    RecordingWnd child;
    child.CreateChild(wnd, {100, 0, 380, 20});
    wnd.second->expanded = 0;
    wnd.LayoutWnd();
    ASSERT_EQ(wnd.ClientRc().Width(), 400);
    wnd.SetupFlex(&child, CEFlex(0, 0, 1, 0));
    wnd.minW = 360;
    wnd.GetFlex(&child)->rc.right -= 40;
    wnd.UpdateFlex();
    ASSERT_EQ(PlaceOf(child).right, 380);
    Click(*wnd.Nth<CECheck>(1));
    ASSERT_EQ(wnd.ClientRc().Width(), 388);
    EXPECT_EQ(PlaceOf(child).right, 368);
    Click(*wnd.Nth<CECheck>(1));
    EXPECT_EQ(wnd.ClientRc().Width(), 400);
    EXPECT_EQ(PlaceOf(child).right, 380);
}

TEST_F(CVantWndLayout, FollowsTheScaleAndComesBack)
{
    SectionsWnd wnd;
    CEFlex wide(0, 0, 1, 0);
    wnd.minW = 200;
    CECtrl* const flexible = wnd.InsText(50, L"f", nullptr, DT_LEFT, &wide);
    wnd.CreatePopup(400, 300);
    RecordingWnd child;
    CECtrl* const nested = child.InsText(31, L"n");
    child.CreateChild(wnd, {101, 51, 203, 153});
    const auto places = [&] {
        return std::vector<CRect>{PlaceOf(*wnd.a), PlaceOf(*wnd.b),    PlaceOf(*wnd.corner),
                                  PlaceOf(child),  PlaceOf(*flexible), PlaceOf(*nested)};
    };
    const std::vector<CRect> before = places();
    ASSERT_EQ(before[4], CRect(10, 10, 260, 30));
    SetDpi(wnd, 144, {10, 20, 610, 470});
    CRect outer;
    wnd.GetWindowRect(&outer);
    EXPECT_EQ(outer, CRect(10, 20, 610, 470));
    EXPECT_EQ(wnd.ClientRc(), CRect(0, 0, 400, 300));
    EXPECT_EQ(child.Dpi(), CDpi(144));
    const CDpi dpi(144);
    std::vector<CRect> scaled;
    for (const CRect& r : before)
        scaled.push_back(dpi.ToPx(r));
    EXPECT_THAT(places(), testing::ElementsAreArray(scaled));

    SetDpi(wnd, 96, {0, 0, 400, 300});
    EXPECT_THAT(places(), testing::ElementsAreArray(before));

    // A window created in it has its scale from the start.
    SetDpi(wnd, 192, {0, 0, 800, 600});
    RecordingWnd late;
    const CECtrl* const ctrl = late.InsText(31, L"l");
    late.CreateChild(wnd, {10, 10, 110, 60});
    EXPECT_EQ(PlaceOf(late), CRect(20, 20, 220, 120));
    EXPECT_EQ(PlaceOf(*ctrl), CRect(20, 20, 82, 60));
}
