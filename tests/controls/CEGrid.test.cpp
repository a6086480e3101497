#include "controls/GridTest.h"
#include "settings/CESet.h"

using namespace vant::test;
using testing::ElementsAre;

namespace
{

std::wstring Clipboard(HWND owner)
{
    if (!::OpenClipboard(owner))
        return L"not open";
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    const auto* const text = data ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr;
    std::wstring copy = text ? text : L"no text";
    if (text)
        ::GlobalUnlock(data);
    ::CloseClipboard();
    return copy;
}

} // namespace

TEST_F(CEGridTest, ShowsWhatItIsBoundTo)
{
    Bind();
    Open();
    EXPECT_EQ(grid->CellText(0, 1), L"12.5");
    EXPECT_EQ(grid->CellText(1, 1), L"No Data");
    EXPECT_EQ(grid->CellText(4, 0), L"");
    EXPECT_EQ(grid->CellText(0, 3), L"");
    grid->GetCol(1)->units = 0;
    grid->GetCol(1)->decimals = 1;
    EUnits::system = 1;
    EXPECT_EQ(grid->CellText(3, 1), L"98.4");

    short other = 77;
    CEVal* const own = grid->InitCell(2, 2, other);
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(grid->InitCell(4, 0, other), nullptr);
    EXPECT_EQ(grid->CellText(2, 2), L"77");
    grid->SetRows(3);
    own->scale = 2;
    EXPECT_EQ(grid->CellText(2, 2), L"154") << "the value that was given out stays the cell's";
    grid->RowsInserted(0, 2);
    EXPECT_EQ(grid->CellText(4, 2), L"154");
    own->scale = 1;
    grid->RowsRemoved(0, 2);
    EXPECT_EQ(grid->CellText(2, 2), L"77");
    grid->RowsRemoved(2, 1);
    EXPECT_EQ(grid->CellText(2, 2), L"") << "as the array has it";
}

TEST_F(CEGridTest, WhatIsCurrentIsNeverInAHiddenColumn)
{
    Bind();
    grid->GetCol(0)->hidden = 1;
    grid->GetCol(2)->hidden = 1;
    Open();
    EXPECT_EQ(Current(), std::pair(0, 1));
    EXPECT_TRUE(grid->IsSelected(0, 1));
    row = 3;
    grid->Update(1);
    grid->Sel(2, 0);
    EXPECT_EQ(Current(), std::pair(2, 1));
    grid->Sel(2, 2);
    EXPECT_EQ(Current(), std::pair(2, 1)) << "no farther one to the right";
    EXPECT_EQ(grid->SelText(true), L"Depth\r\n7.25\r\n");
}

TEST_F(CEGridTest, KeysGoEverywhere)
{
    BindSource(1000000);
    grid->Init(row);
    grid->SetCallback(&owner, static_cast<CEVal::CbInt>(&GridOwner::OnRow));
    Open();
    EXPECT_EQ(grid->Page(), 6);
    Key(VK_DOWN);
    Key(VK_RIGHT);
    EXPECT_EQ(Current(), std::pair(1, 1));
    Key(VK_NEXT);
    EXPECT_EQ(grid->CurRow(), 6);
    EXPECT_EQ(grid->First(), 1);
    Key(VK_END, {VK_CONTROL});
    EXPECT_EQ(Current(), std::pair(999999, 2));
    EXPECT_EQ(grid->First(), 999994);
    Key(VK_HOME);
    EXPECT_EQ(Current(), std::pair(999999, 0));
    Key(VK_PRIOR);
    Key(VK_TAB);
    EXPECT_EQ(Current(), std::pair(999994, 1));
    Key(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(grid->CurCol(), 0);
    EXPECT_THAT(owner.heard, ElementsAre(1, 6, 999999, 999994));
    EXPECT_EQ(row, 999994);
    Key(VK_HOME, {VK_CONTROL});
    Key(VK_DOWN, {VK_SHIFT});
    Key(VK_SPACE, {VK_SHIFT});
    EXPECT_TRUE(grid->IsSelected(0, 2));
    EXPECT_TRUE(grid->IsSelected(1, 0));
    EXPECT_FALSE(grid->IsSelected(2, 0));

    row = 500000;
    grid->Update(1);
    EXPECT_EQ(grid->CurRow(), 500000);
    EXPECT_FALSE(grid->CellRc(500000, 0).IsRectEmpty());
    EXPECT_TRUE(grid->CellRc(0, 0).IsRectEmpty());
}

TEST_F(CEGridTest, ARowThatWasLoadedWaitsForItsRows)
{
    row = 2;
    Bind();
    Open();
    grid->SetRows(0);
    grid->SetRows(4);
    EXPECT_EQ(row, 2);
    grid->Update(1);
    EXPECT_EQ(grid->CurRow(), 2);
    grid->RowsRemoved(0, 1);
    EXPECT_EQ(row, 1) << "the same row";
}

TEST_F(CEGridTest, EnterTellsOfACellOnly)
{
    Bind();
    grid->GetCol(0)->readOnly = 1;
    Open();
    Key(VK_RETURN);
    EXPECT_THAT(host.told, ElementsAre(UINT{LBN_DBLCLK}));
    grid->SetRows(0);
    Key(VK_RETURN);
    EXPECT_EQ(host.told.size(), 1u) << "there is no row to speak of";
}

TEST_F(CEGridTest, TabLeavesAtTheEndOfARow)
{
    Bind();
    Open();
    MSG tab = {grid->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    const auto wants = [&] {
        return (grid->SendMessage(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)) & DLGC_WANTTAB) != 0;
    };
    EXPECT_TRUE(wants());
    grid->Sel(2, 2);
    EXPECT_FALSE(wants());
    const HeldKeys shift({VK_SHIFT});
    EXPECT_TRUE(wants());
}

TEST_F(CEGridTest, OnlyWhatIsInViewIsAskedFor)
{
    BindSource(1000000);
    Open();
    for (const int first : {0, 500000, 999994}) {
        grid->ScrollTo(first, 0);
        owner.asked = 0;
        grid->RedrawWindow();
        EXPECT_GT(owner.asked, 0);
        EXPECT_LE(owner.asked, 7 * 3) << first;
    }
    // The thumb of a bar has its way, however many rows there are.
    grid->ScrollTo(0, 0);
    Mouse(WM_LBUTTONDOWN, {190, 30});
    Mouse(WM_MOUSEMOVE, {190, 84});
    EXPECT_NEAR(grid->First(), 550000, 60000);
    Mouse(WM_MOUSEMOVE, {190, 400});
    EXPECT_EQ(grid->First(), 999994);
    Mouse(WM_LBUTTONUP, {190, 400}, 0);
    EXPECT_NE(::GetCapture(), grid->m_hWnd);
}

TEST_F(CEGridTest, WheelsScrollByPartsOfANotch)
{
    BindSource(1000);
    grid->GetCol(0)->width = 400;
    Open();
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const auto wheel = [&](UINT message, int delta, WPARAM keys = 0) {
        grid->SendMessage(message, MAKEWPARAM(keys, static_cast<WORD>(delta)), 0);
    };
    for (int i = 0; i < 4; ++i)
        wheel(WM_MOUSEWHEEL, -30);
    EXPECT_EQ(grid->First(), static_cast<int>(lines));
    wheel(WM_MOUSEHWHEEL, 60);
    const int half = grid->Offset();
    EXPECT_GT(half, 0);
    wheel(WM_MOUSEHWHEEL, 60);
    EXPECT_EQ(grid->Offset(), 2 * half);
    wheel(WM_MOUSEWHEEL, 120, MK_SHIFT);
    EXPECT_EQ(grid->Offset(), 0);
}

TEST_F(CEGridTest, TheMouseSelects)
{
    Bind();
    grid->rowNumbers = 1;
    Open();
    ClickCell(1, 1);
    ClickCell(3, 0, MK_LBUTTON | MK_SHIFT);
    ClickCell(0, 2, MK_LBUTTON | MK_CONTROL);
    EXPECT_EQ(grid->SelText(false), L"\t\twreck\r\n1\tNo Data\t\r\n2\t7.25\t\r\n1\t30\t\r\n");
    Click({8, grid->CellRc(2, 0).CenterPoint().y});
    EXPECT_TRUE(grid->IsSelected(2, 2));
    EXPECT_FALSE(grid->IsSelected(1, 1));

    // Dragged below the grid, and the rows go while the mouse is down.
    Mouse(WM_LBUTTONDOWN, grid->CellRc(0, 0).CenterPoint());
    Mouse(WM_MOUSEMOVE, grid->CellRc(3, 1).CenterPoint());
    EXPECT_TRUE(grid->IsSelected(3, 1));
    grid->SetRows(2);
    Mouse(WM_MOUSEMOVE, {100, 300});
    EXPECT_TRUE(grid->IsSelected(1, 0));
    grid->SetRows(0);
    Mouse(WM_MOUSEMOVE, {100, 20});
    Mouse(WM_LBUTTONUP, {100, 20}, 0);
    EXPECT_EQ(grid->CurRow(), -1);
    EXPECT_EQ(row, -1);
}

TEST_F(CEGridTest, ClicksOnHeadingsSort)
{
    Bind();
    Open();
    grid->Sel(2, 0);
    ClickHeading(0);
    EXPECT_THAT(Order(), ElementsAre(1, 3, 2, 0));
    EXPECT_EQ(Current(), std::pair(2, 0)) << "stays with its row";
    ClickHeading(0);
    EXPECT_THAT(Order(), ElementsAre(0, 2, 1, 3));
    EXPECT_EQ(log[0].line, 3) << "the application's rows stay";
    ClickHeading(0);
    EXPECT_THAT(Order(), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(grid->SortCol(), -1);
    ClickHeading(1);
    EXPECT_THAT(Order(), ElementsAre(2, 0, 3, 1)) << "no data last";
    ClickHeading(1);
    EXPECT_THAT(Order(), ElementsAre(3, 0, 2, 1));
    ClickHeading(2);
    EXPECT_THAT(Order(), ElementsAre(2, 3, 1, 0)) << "upper and lower case are the same";
    EXPECT_EQ(row, -1) << "the user went nowhere";
    grid->GetCol(0)->sortable = 0;
    ClickHeading(0);
    EXPECT_EQ(grid->SortCol(), 2);
}

TEST_F(CEGridTest, TheSourceSortsItsRows)
{
    BindSource(10, true);
    Open();
    ClickHeading(2);
    ClickHeading(1);
    EXPECT_EQ(grid->SortCol(), 2) << "it cannot sort by that";
    grid->Sort(-1, CEGrid::sortNone);
    EXPECT_THAT(owner.sorted, ElementsAre(std::pair(2, 1), std::pair(1, 1), std::pair(2, 0)));
    // What is being typed belongs to a row that the source would put elsewhere.
    grid->Sort(2, CEGrid::sortUp);
    owner.sorted.clear();
    grid->Sel(3, 1);
    ASSERT_EQ(grid->BeginEdit(), 1);
    grid->SortAgain();
    EXPECT_EQ(grid->Sort(-1, CEGrid::sortNone), 0);
    EXPECT_THAT(owner.sorted, ElementsAre());
    EXPECT_EQ(grid->EndEdit(false), 1);
    EXPECT_EQ(grid->Sort(-1, CEGrid::sortNone), 1);
    grid->Sort(2, CEGrid::sortUp);
    grid->RemoveCols();
    EXPECT_EQ(owner.sorted.back(), std::pair(2, 0)) << "in its own order again, as the grid says";
    BindSource(10, true);

    grid->SetSource(&owner, static_cast<CEGrid::GetFn>(&GridOwner::Get));
    grid->Sort(1, CEGrid::sortDown);
    EXPECT_EQ(grid->RowAt(0), 9) << "by the grid itself";
}

TEST_F(CEGridTest, BordersOfHeadingsSetWidths)
{
    Bind();
    Open();
    const CPoint border(grid->HeadingRc(1).right, 10);
    Mouse(WM_LBUTTONDOWN, border);
    Mouse(WM_MOUSEMOVE, border + CPoint(25, 0));
    EXPECT_EQ(grid->GetCol(1)->width, 85);
    Mouse(WM_MOUSEMOVE, {-500, 10});
    EXPECT_EQ(grid->GetCol(1)->width, vant::detail::ColumnLayout::leastWidth);
    Key(VK_ESCAPE);
    EXPECT_EQ(grid->GetCol(1)->width, 60);
    Mouse(WM_MOUSEMOVE, {150, 10});
    EXPECT_EQ(grid->GetCol(1)->width, 60) << "let go of";

    log[0].note = L"a wreck in two pieces";
    grid->FitCol(2);
    const int fitted = grid->GetCol(2)->width;
    EXPECT_GT(fitted, 100);
    grid->ScrollTo(0, 1000);
    CString tip;
    Mouse(WM_MOUSEMOVE, grid->CellRc(0, 2).CenterPoint(), 0);
    grid->GetTip(tip);
    EXPECT_EQ(tip, L"");
    grid->GetCol(2)->width = fitted - 20;
    grid->Update(1);
    Mouse(WM_MOUSEMOVE, grid->CellRc(0, 2).CenterPoint(), 0);
    grid->GetTip(tip);
    EXPECT_EQ(tip, L"a wreck in two pieces");

    // Without its columns there is nothing to drag any more.
    grid->ScrollTo(0, 0);
    Mouse(WM_LBUTTONDOWN, {grid->HeadingRc(0).right, 10});
    grid->RemoveCols();
    Mouse(WM_MOUSEMOVE, {150, 10});
    Mouse(WM_LBUTTONUP, {150, 10}, 0);
    grid->RedrawWindow();
    EXPECT_EQ(grid->CurCol(), -1);
}

TEST_F(CEGridTest, CallbacksMayDestroyIt)
{
    Bind();
    Open();
    grid->Sel(0, 1);
    owner.also = [this] { grid->RemoveCols(); };
    Enter(L"3");
    EXPECT_EQ(grid->ColCount(), 0);
    EXPECT_FALSE(grid->IsEditing());

    Bind();
    grid->Sel(0, 1);
    owner.also = [this] { grid = std::make_unique<CEGrid>(); };
    Key(VK_F2);
    Type(::GetFocus(), L"4");
    Key(VK_RETURN);
    EXPECT_EQ(log[0].depth, 4);
    EXPECT_EQ(grid->ColCount(), 0);

    Bind();
    Open();
    owner.also = [this] { grid.reset(); };
    Key(VK_DOWN);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(CEGridTest, CopiesForOtherPrograms)
{
    Bind();
    grid->GetCol(1)->units = 0;
    log[0].note = L"two\r\nlines";
    Open();
    Key('A', {VK_CONTROL});
    Key('C', {VK_CONTROL, VK_SHIFT});
    EXPECT_EQ(Clipboard(host), L"Line\tDepth m\tNote\r\n3\t12.5\ttwo lines\r\n1\tNo data\tBuoy\r\n"
                               L"2\t7.25\t\r\n1\t30\talga\r\n");
    grid->Sel(3, 0);
    Key('C', {VK_CONTROL});
    EXPECT_EQ(Clipboard(host), L"1\r\n");

    // Another program has it.
    InputHost other;
    ASSERT_TRUE(::OpenClipboard(other));
    EXPECT_EQ(grid->Copy(false), 0);
    ::CloseClipboard();
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0].id, 41u);
}

TEST_F(CEGridTest, WidthsAndOrderAreKept)
{
    Bind();
    grid->aux1 = L"Log (all)";
    grid->GetCol(1)->width = 123;
    grid->Sort(2, CEGrid::sortDown);
    CESet set(1);
    CESetObj* const obj = set.AddCol(L"Windows")->AddObj(L"Plan", L"CPlan");
    grid->Settings(*obj);

    CESet loaded(0);
    CESetObj* const stored = loaded.AddCol(L"Windows")->AddObj(L"Plan", L"CPlan");
    for (CVantPtr* pos = obj->GetHeadPos(); pos;) {
        const CESetItm& item = *obj->GetNext(pos);
        stored->Add(item.m_name, item.m_value);
    }
    stored->Add(L"Log__all__Width_Line", L"999999");
    grid = std::make_unique<CEGrid>();
    grid->aux1 = L"Log (all)";
    grid->AddCol(L"Note", 80)->InitRows(&log[0].note, sizeof log[0]);
    grid->AddCol(L"Depth", 60)->InitRows(&log[0].depth, sizeof log[0]);
    grid->Settings(*stored);
    EXPECT_EQ(grid->GetCol(1)->width, 123);
    EXPECT_EQ(grid->SortCol(), 0) << "by its name";
    grid->SetRows(4);
    EXPECT_THAT(Order(), ElementsAre(0, 1, 3, 2)) << "once there are rows";
}
