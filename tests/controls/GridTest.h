#pragma once

#include "controls/CEEdit.h"
#include "controls/GridOwner.h"
#include "controls/ToldHost.h"
#include "support/MessagePump.h"
#include "values/EUnits.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/** A grid of 200 x 120 in a window: six rows without the headings. */
class CEGridTest : public WndTest
{
protected:
    ~CEGridTest() override { EUnits::system = 0; }

    void Bind()
    {
        grid->AddCol(L"Line", 50)->InitRows(&log[0].line, sizeof log[0]);
        CEGridCol* const depth = grid->AddCol(L"Depth", 60);
        depth->InitRows(&log[0].depth, sizeof log[0]);
        depth->SetCallback(&owner, static_cast<CEVal::CbDouble>(&GridOwner::OnEdit));
        grid->AddCol(L"Note", 80)->InitRows(&log[0].note, sizeof log[0]);
        grid->SetRows(static_cast<int>(log.size()));
        grid->Init(row);
        grid->SetCallback(&owner, static_cast<CEVal::CbInt>(&GridOwner::OnRow));
    }
    void BindSource(int rows, bool sorts = false)
    {
        grid->AddCol(L"Number", 60, 4);
        grid->AddCol(L"Half", 60, 9);
        grid->AddCol(L"Text", 60);
        grid->SetSource(&owner, static_cast<CEGrid::GetFn>(&GridOwner::Get),
                        static_cast<CEGrid::PutFn>(&GridOwner::Put),
                        sorts ? static_cast<CEGrid::SortFn>(&GridOwner::Sort) : nullptr);
        grid->SetRows(rows);
    }
    void Open(CDpi dpi = CDpi())
    {
        dpi.Set(host);
        ASSERT_EQ(grid->Create(grid->WndStyle(), dpi.ToPx(CRect(10, 10, 210, 158)), &host, 7), 1);
        grid->SetFocus();
        vant::test::PumpPending();
    }
    void Mouse(UINT message, CPoint at, WPARAM flags = MK_LBUTTON)
    {
        grid->SendMessage(message, flags, MAKELPARAM(at.x, at.y));
    }
    void Click(CPoint at, WPARAM flags = MK_LBUTTON)
    {
        Mouse(WM_LBUTTONDOWN, at, flags);
        if (::IsWindow(grid->m_hWnd))
            Mouse(WM_LBUTTONUP, at, 0);
    }
    void ClickCell(int atRow, int col, WPARAM flags = MK_LBUTTON)
    {
        Click(grid->CellRc(atRow, col).CenterPoint(), flags);
    }
    void ClickHeading(int col) { Click(grid->HeadingRc(col).CenterPoint()); }
    void Key(UINT key, const std::vector<UINT>& held = {}) { PressKey(::GetFocus(), key, held); }
    /** Types into what has the focus, and presses a key. */
    void Enter(const std::wstring& text, UINT key = VK_RETURN)
    {
        Type(grid->m_hWnd, text.substr(0, 1));
        Type(::GetFocus(), text.substr(1));
        Key(key);
    }
    std::pair<int, int> Current() const { return {grid->CurRow(), grid->CurCol()}; }
    std::vector<int> Order() const
    {
        std::vector<int> rows;
        for (int place = 0; place < grid->Rows(); ++place)
            rows.push_back(grid->RowAt(place));
        return rows;
    }

    std::vector<Sounding> log = {
        {3, 12.5, L"wreck"}, {1, -32768.0, L"Buoy"}, {2, 7.25, L""}, {1, 30, L"alga"}};
    GridOwner owner;
    vant::test::ToldHost host;
    int row = -1;
    std::unique_ptr<CEGrid> grid = std::make_unique<CEGrid>();
};
