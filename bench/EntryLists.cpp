// Lists of many entries, against the system's list box, and against the same list with few entries: what is
// in view costs the same, however much is not.
#include "Compare.h"
#include "Library.h"

#include "controls/CECb.h"
#include "controls/CEList.h"

#include <catch2/catch.hpp>

#include <string>

namespace
{

constexpr int many = 100'000;
constexpr int few = 200;
const CSize hostSize(400, 440);
const CRect place(10, 10, 210, 414); // 20 rows

CString TextOf(int entry)
{
    CString text;
    text.Format(L"Line %06d", entry);
    return text;
}

/** A library's list that is open, with so many entries. */
struct OpenList {
    OpenList(HostWnd& host, int count)
    {
        for (int i = 0; i < count; ++i)
            list.Add(TextOf(i), i);
        list.Create(list.WndStyle(), place, &host, 1);
    }
    CEList list;
};

/** Scrolls row by row and draws what comes into view. */
Round Scroll(CEList& list)
{
    return [&list](Stopwatch& watch) {
        constexpr int steps = 50;
        list.ScrollTo(list.GetCount() / 2);
        watch.Measure([&] {
            for (int i = 0; i < steps; ++i) {
                list.ScrollTo(list.First() + 1);
                list.UpdateWindow();
            }
        });
        REQUIRE(list.First() == list.GetCount() / 2 + steps);
    };
}

/** Opens the list of a combo box and draws it. */
Round OpenBox(CECb& box)
{
    return [&box](Stopwatch& watch) {
        watch.Measure([&] {
            box.Open();
            box.List().UpdateWindow();
        });
        REQUIRE(box.IsOpen());
        box.Close();
    };
}

} // namespace

TEST_CASE("Filling and opening a list", "[entries]")
{
    const Library library;
    HostWnd host(hostSize);
    const auto ours = [&](Stopwatch& watch) {
        CEList list;
        watch.Measure([&] {
            list.Create(list.WndStyle(), place, &host, 1);
            for (int i = 0; i < many; ++i)
                list.Add(TextOf(i), i);
            list.UpdateWindow();
        });
        REQUIRE(list.GetCount() == many);
    };
    const auto peer = [&](Stopwatch& watch) {
        HWND box = nullptr;
        watch.Measure([&] {
            box = ::CreateWindowExW(0, L"LISTBOX", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL, place.left,
                                    place.top, place.Width(), place.Height(), host.m_hWnd, nullptr, nullptr,
                                    nullptr);
            ::SendMessageW(box, WM_SETREDRAW, FALSE, 0);
            for (int i = 0; i < many; ++i)
                ::SendMessageW(box, LB_ADDSTRING, 0,
                               reinterpret_cast<LPARAM>(static_cast<LPCWSTR>(TextOf(i))));
            ::SendMessageW(box, WM_SETREDRAW, TRUE, 0);
            ::UpdateWindow(box);
        });
        REQUIRE(::SendMessageW(box, LB_GETCOUNT, 0, 0) == many);
        ::DestroyWindow(box);
    };
    Compare("list box: fill with 100,000 and open (system's list box)", ours, peer,
            {.target = 1.0, .rounds = 5});
}

TEST_CASE("Scrolling and opening a long list", "[entries]")
{
    const Library library;
    HostWnd host(hostSize);
    OpenList longList(host, many);
    OpenList shortList(host, few);
    Compare("list box: scroll 50 rows of 100,000 (of 200)", Scroll(longList.list), Scroll(shortList.list),
            {.target = 1.15, .rounds = 31});

    longList.list.DestroyWindow();
    shortList.list.DestroyWindow();
    CECb longBox;
    CECb shortBox;
    for (int i = 0; i < many; ++i)
        longBox.Add(TextOf(i), i);
    for (int i = 0; i < few; ++i)
        shortBox.Add(TextOf(i), i);
    int top = 10;
    for (CECb* const box : {&longBox, &shortBox}) {
        box->Create(box->WndStyle(), CRect(10, top, 210, top + 20), &host, 1);
        top += 30;
    }
    Compare("combo box: open with 100,000 (with 200)", OpenBox(longBox), OpenBox(shortBox),
            {.target = 1.15, .rounds = 31});
}
