// A grid of a million rows: against the same grid with few, since what is in view costs the same however much
// is not; against the system's list view, which asks for its rows as well; and its sorting against the bare
// sort of the same numbers.
#include "Compare.h"
#include "Library.h"

#include "controls/CEGrid.h"

#include <commctrl.h>

#include <catch2/catch.hpp>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace
{

constexpr int many = 1'000'000;
constexpr int few = 200;
constexpr int columns = 6;
constexpr int steps = 50;
const CRect place(10, 10, 510, 458); // 21 rows and the headings

struct Record {
    double values[columns];
};

std::vector<Record> MakeRecords()
{
    std::vector<Record> records(many);
    unsigned seed = 1;
    for (Record& record : records)
        for (double& value : record.values)
            value = (seed = seed * 1664525u + 1013904223u) / 1000.0;
    return records;
}

std::vector<Record>& Records()
{
    static std::vector<Record> records = MakeRecords();
    return records;
}

CString TextOf(int row, int col)
{
    CString text;
    text.Format(L"%0.2lf", Records()[static_cast<std::size_t>(row)].values[col]);
    return text;
}

/** A window that gives a list view its texts. */
class CListViewHost : public HostWnd
{
public:
    CListViewHost()
        : HostWnd(CSize(540, 480))
    {
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto* const header = message == WM_NOTIFY ? reinterpret_cast<NMHDR*>(lParam) : nullptr;
        if (!header || header->code != LVN_GETDISPINFOW)
            return CWnd::WindowProc(message, wParam, lParam);
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(lParam)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, TextOf(item.iItem, item.iSubItem), item.cchTextMax);
        return 0;
    }
};

void Fill(CEGrid& grid, int rows)
{
    for (int col = 0; col < columns; ++col) {
        CEGridCol* const column = grid.AddCol(L"Value");
        column->InitRows(&Records()[0].values[col], sizeof(Record));
        column->decimals = 2;
    }
    grid.SetRows(rows);
}

/** Scrolls row by row and draws what comes into view. */
Round Scroll(CEGrid& grid)
{
    return [&grid](Stopwatch& watch) {
        const int start = grid.Rows() / 2;
        grid.ScrollTo(start, 0);
        grid.UpdateWindow();
        watch.Measure([&] {
            for (int i = 1; i <= steps; ++i) {
                grid.ScrollTo(start + i, 0);
                grid.UpdateWindow();
            }
        });
        REQUIRE(grid.First() == start + steps);
    };
}

/** The system's list view with rows that it asks for. */
HWND OpenListView(HostWnd& host)
{
    ::LoadLibraryW(L"comctl32.dll");
    const HWND view = ::CreateWindowExW(
        0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, place.left, place.top,
        place.Width(), place.Height(), host.m_hWnd, nullptr, nullptr, nullptr);
    wchar_t caption[] = L"Value";
    for (int col = 0; col < columns; ++col) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
        column.fmt = LVCFMT_RIGHT;
        column.cx = 80;
        column.pszText = caption;
        ::SendMessageW(view, LVM_INSERTCOLUMNW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&column));
    }
    ::SendMessageW(view, LVM_SETITEMCOUNT, many, 0);
    return view;
}

} // namespace

TEST_CASE("Scrolling a grid of a million rows", "[grid]")
{
    const Library library;
    CListViewHost host;
    CEGrid longGrid;
    CEGrid shortGrid;
    Fill(longGrid, many);
    Fill(shortGrid, few);
    longGrid.Create(longGrid.WndStyle(), place, &host, 1);
    shortGrid.Create(shortGrid.WndStyle(), place, &host, 2);
    Compare("grid: scroll 50 rows of 1,000,000 (of 200)", Scroll(longGrid), Scroll(shortGrid),
            {.target = 1.15, .rounds = 31});

    shortGrid.DestroyWindow();
    const HWND view = OpenListView(host);
    REQUIRE(view);
    const auto peer = [view](Stopwatch& watch) {
        ::SendMessageW(view, LVM_ENSUREVISIBLE, many / 2, FALSE);
        ::UpdateWindow(view);
        const LRESULT start = ::SendMessageW(view, LVM_GETTOPINDEX, 0, 0);
        watch.Measure([&] {
            RECT row{LVIR_BOUNDS, 0, 0, 0};
            ::SendMessageW(view, LVM_GETITEMRECT, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(&row));
            for (int i = 1; i <= steps; ++i) {
                ::SendMessageW(view, LVM_SCROLL, 0, row.bottom - row.top);
                // The grid draws all of its rows; a list view moves those that stay.
                ::InvalidateRect(view, nullptr, FALSE);
                ::UpdateWindow(view);
            }
        });
        REQUIRE(::SendMessageW(view, LVM_GETTOPINDEX, 0, 0) == start + steps);
        ::SendMessageW(view, LVM_ENSUREVISIBLE, 0, FALSE);
    };
    Compare("grid: scroll 50 rows of 1,000,000 (system's list view)", Scroll(longGrid), peer,
            {.target = 1.0, .rounds = 15});
    ::DestroyWindow(view);
}

TEST_CASE("Sorting a grid of a million rows", "[grid]")
{
    CEGrid grid;
    Fill(grid, many);
    const auto ours = [&grid](Stopwatch& watch) {
        watch.Measure([&] { grid.Sort(2, CEGrid::sortUp); });
        grid.Sort(-1, CEGrid::sortNone);
    };
    const auto peer = [](Stopwatch& watch) {
        std::vector<int> order(many);
        watch.Measure([&] {
            std::iota(order.begin(), order.end(), 0);
            const auto key = [](int row) { return Records()[static_cast<std::size_t>(row)].values[2]; };
            std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return key(a) < key(b); });
        });
        Keep(order);
    };
    Compare("grid: sort 1,000,000 rows by a column (std::stable_sort)", ours, peer,
            {.target = 1.5, .rounds = 7});
}
