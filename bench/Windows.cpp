// Windows full of controls, against as many bare windows of the system that do the least that could stand for
// them: each a child window with its own number, drawn as text into a bitmap first.
#include "Compare.h"
#include "Library.h"

#include "controls/CVantWnd.h"

#include <catch2/catch.hpp>

#include <vector>

namespace
{

constexpr int perLine = 40;
constexpr int cellW = 50; // of a control and the gap behind it
constexpr int cellH = 24;
const CRect place(20, 20, 1220, 1020);

/** A platform window with `count` read-outs. */
class CControls : public CVantWnd
{
public:
    explicit CControls(int count)
        : m_values(static_cast<std::size_t>(count))
    {
    }

    void Open(int show)
    {
        CreateWnd(L"controls", WS_POPUP, place);
        ShowWindow(show);
    }

    void SetupCtrls() override
    {
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            if (i > 0 && i % perLine == 0)
                NewLn();
            InsCtrl(cellW - gap, CECtrl::typeText, m_values[i])->decimals = 1;
        }
    }

    void Change()
    {
        for (double& value : m_values)
            value += 0.1;
    }

private:
    std::vector<double> m_values;
};

/** The bare windows. */
class BareWindows
{
public:
    explicit BareWindows(int count)
        : m_values(static_cast<std::size_t>(count))
        , m_children(static_cast<std::size_t>(count))
    {
        WNDCLASSW wc{};
        wc.lpfnWndProc = Paint;
        wc.hInstance = ::GetModuleHandleW(nullptr);
        wc.lpszClassName = L"BareChild";
        ::RegisterClassW(&wc);
    }
    ~BareWindows() { ::DestroyWindow(m_parent); }
    BareWindows(const BareWindows&) = delete;
    BareWindows& operator=(const BareWindows&) = delete;

    void Open(int show)
    {
        m_parent =
            ::CreateWindowExW(0, Vant::wndClass, L"bare", WS_POPUP | WS_CLIPCHILDREN, place.left, place.top,
                              place.Width(), place.Height(), nullptr, nullptr, nullptr, nullptr);
        for (std::size_t i = 0; i < m_children.size(); ++i) {
            m_children[i] = ::CreateWindowExW(0, L"BareChild", L"", WS_CHILD | WS_VISIBLE, 0, 0, 1, 1,
                                              m_parent, nullptr, nullptr, nullptr);
            ::SetWindowLongPtrW(m_children[i], GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&m_values[i]));
        }
        ::ShowWindow(m_parent, show);
    }

    void Layout() const
    {
        for (int i = 0; i < static_cast<int>(m_children.size()); ++i)
            ::SetWindowPos(m_children[static_cast<std::size_t>(i)], nullptr, 10 + i % perLine * cellW,
                           10 + i / perLine * cellH, cellW - 2, cellH - 4, SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void Change()
    {
        for (double& value : m_values)
            value += 0.1;
    }

    void Invalidate() const
    {
        for (const HWND child : m_children)
            ::InvalidateRect(child, nullptr, TRUE);
    }

    HWND Parent() const { return m_parent; }

private:
    static LRESULT CALLBACK Paint(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_ERASEBKGND)
            return 1;
        if (message != WM_PAINT)
            return ::DefWindowProcW(wnd, message, wParam, lParam);
        PAINTSTRUCT paint;
        const HDC dc = ::BeginPaint(wnd, &paint);
        RECT client;
        ::GetClientRect(wnd, &client);
        const HDC memory = ::CreateCompatibleDC(dc);
        const HBITMAP bitmap = ::CreateCompatibleBitmap(dc, client.right, client.bottom);
        const HGDIOBJ old = ::SelectObject(memory, bitmap);
        ::FillRect(memory, &client, Vant::backB);
        ::SelectObject(memory, Vant::normalF);
        ::SetTextColor(memory, Vant::light);
        ::SetBkMode(memory, TRANSPARENT);
        const auto* value = reinterpret_cast<const double*>(::GetWindowLongPtrW(wnd, GWLP_USERDATA));
        wchar_t text[32];
        ::_snwprintf(text, 32, L"%.1f", *value);
        ::DrawTextW(memory, text, -1, &client, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        ::BitBlt(dc, 0, 0, client.right, client.bottom, memory, 0, 0, SRCCOPY);
        ::SelectObject(memory, old);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
        ::EndPaint(wnd, &paint);
        return 0;
    }

    std::vector<double> m_values;
    std::vector<HWND> m_children;
    HWND m_parent = nullptr;
};

void Repaint(HWND wnd)
{
    ::RedrawWindow(wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

} // namespace

TEST_CASE("A window of many controls", "[windows]")
{
    const Library library;
    static constexpr int controls = 2000;
    const auto ours = [](Stopwatch& watch) {
        CControls window(controls);
        watch.Measure([&] {
            window.Open(SW_HIDE);
            window.LayoutWnd(1);
            window.Change();
            window.UpdCtrls();
        });
        REQUIRE(window.ctrls.GetCount() == controls);
    };
    const auto peer = [](Stopwatch& watch) {
        BareWindows window(controls);
        watch.Measure([&] {
            window.Open(SW_HIDE);
            window.Layout();
            window.Change();
            window.Invalidate();
        });
        REQUIRE(::GetWindow(window.Parent(), GW_CHILD));
    };
    Compare("windows: create, lay out, update 2,000 controls (bare windows)", ours, peer,
            {.target = 1.5, .rounds = 11});
}

TEST_CASE("Repainting a window of controls", "[windows]")
{
    const Library library;
    constexpr int controls = 200;
    CControls window(controls);
    window.Open(SW_SHOWNOACTIVATE);
    window.LayoutWnd(1);
    BareWindows bare(controls);
    bare.Open(SW_SHOWNOACTIVATE);
    bare.Layout();
    const auto ours = [&](Stopwatch& watch) {
        window.Change();
        watch.Measure([&] { Repaint(window); });
    };
    const auto peer = [&](Stopwatch& watch) {
        bare.Change();
        watch.Measure([&] { Repaint(bare.Parent()); });
    };
    Compare("windows: repaint 200 controls (bare windows)", ours, peer,
            {.target = std::nullopt, .rounds = 31});
}
