#include "controls/GridTest.h"

using namespace vant::test;
using testing::ElementsAre;

TEST_F(CEGridTest, CellsAreEditedInPlace)
{
    Bind();
    grid->GetCol(1)->SetRange(0, 200);
    Open();
    grid->Sel(0, 1);
    Key(VK_F2);
    ASSERT_TRUE(grid->IsEditing());
    EXPECT_EQ(TextOf(*grid->Editor()), L"12.5");
    EXPECT_EQ(::GetFocus(), grid->Editor()->m_hWnd);
    Key(VK_ESCAPE);
    EXPECT_FALSE(grid->IsEditing());
    EXPECT_EQ(::GetFocus(), grid->m_hWnd);

    Enter(L"4x5");
    EXPECT_EQ(log[0].depth, 45) << "a letter is not let in";
    EXPECT_EQ(Current(), std::pair(1, 1));
    EXPECT_THAT(owner.edited, ElementsAre(45));
    Type(grid->m_hWnd, L"x");
    EXPECT_FALSE(grid->IsEditing()) << "nothing that could begin a number";
    Enter(L"31", VK_TAB);
    EXPECT_EQ(log[1].depth, 31);
    EXPECT_EQ(Current(), std::pair(1, 2));
    ASSERT_TRUE(grid->IsEditing()) << "Tab goes on";
    Type(::GetFocus(), L"mast");
    Key(VK_TAB);
    EXPECT_EQ(log[1].note, L"mast");
    EXPECT_EQ(Current(), std::pair(2, 0)) << "in the next row";
    Key(VK_UP);
    EXPECT_EQ(Current(), std::pair(1, 0));
    EXPECT_THAT(alarms, ElementsAre());

    grid->Sel(2, 1);
    Enter(L"201");
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0].id, 40u);
    EXPECT_EQ(alarms[0].text, L"Incorrect Text: Not in user specified range 0 to 200");
    EXPECT_EQ(log[2].depth, 7.25);
    EXPECT_EQ(Current(), std::pair(2, 1)) << "stays";

    // A text that was not changed is not stored, however few digits it shows.
    log[2].depth = 7.123456789;
    Key(VK_RETURN);
    Key(VK_RETURN);
    EXPECT_EQ(log[2].depth, 7.123456789);
    EXPECT_EQ(Current(), std::pair(3, 1));
    // A click elsewhere stores.
    Type(grid->m_hWnd, L"8");
    ClickCell(0, 0);
    EXPECT_EQ(log[3].depth, 8);
}

TEST_F(CEGridTest, WhatCannotBeEditedIsNot)
{
    Bind();
    int mode = 1;
    CEGridCol& depth = *grid->GetCol(1);
    depth.enIf = 1;
    depth.pEnVar = &mode;
    grid->GetCol(2)->readOnly = 1;
    Open();
    grid->Sel(0, 2);
    Type(grid->m_hWnd, L"a");
    EXPECT_FALSE(grid->IsEditing());
    grid->GetCol(2)->readOnly = 0;
    Type(grid->m_hWnd, L"\x7F");
    EXPECT_FALSE(grid->IsEditing()) << "Ctrl and Backspace";
    grid->Sel(0, 1);
    EXPECT_EQ(grid->BeginEdit(), 0);
    mode = 0;
    EXPECT_EQ(grid->BeginEdit(), 1);
    grid->Editor()->SetWindowText(L"99");
    mode = 1;
    grid->Update(1);
    EXPECT_FALSE(grid->IsEditing());
    EXPECT_EQ(log[0].depth, 12.5) << "given up";
}

TEST_F(CEGridTest, AnEditStaysWithItsRow)
{
    Bind();
    Open();
    ClickCell(1, 1);
    EXPECT_EQ(row, 1);
    ASSERT_EQ(grid->BeginEdit(), 1);
    grid->Editor()->SetWindowText(L"5");
    log.insert(log.begin(), Sounding{9, 9, L"new"});
    grid->GetCol(0)->InitRows(&log[0].line, sizeof log[0]);
    grid->GetCol(1)->InitRows(&log[0].depth, sizeof log[0]);
    grid->GetCol(2)->InitRows(&log[0].note, sizeof log[0]);
    grid->RowsInserted(0, 1);
    EXPECT_EQ(grid->EndEdit(true), 1);
    EXPECT_EQ(log[2].depth, 5);
    EXPECT_EQ(log[1].depth, 12.5);
    EXPECT_EQ(Current(), std::pair(2, 1));
    EXPECT_EQ(row, 2);

    grid->Sort(1, CEGrid::sortUp);
    ASSERT_EQ(grid->BeginEdit(), 1);
    grid->Editor()->SetWindowText(L"500");
    grid->RowsRemoved(2, 1);
    EXPECT_FALSE(grid->IsEditing());
    EXPECT_EQ(log[2].depth, 5) << "given up";
    EXPECT_EQ(Order().size(), 4u);
}

TEST_F(CEGridTest, TheSourceTakesWhatIsEdited)
{
    BindSource(50);
    Open();
    grid->Sel(4, 1);
    Enter(L"8.5");
    EXPECT_EQ(owner.put.row, 4);
    EXPECT_EQ(owner.put.num, 8.5);
    grid->Sel(7, 0);
    Enter(L"12");
    EXPECT_EQ(owner.put.num, 12);
    owner.allows = 0;
    grid->Sel(3, 2);
    Enter(L"text");
    EXPECT_EQ(owner.put.text, L"text");
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0].text, L"Incorrect Text: Locked");
    EXPECT_EQ(Current(), std::pair(3, 2));
}
