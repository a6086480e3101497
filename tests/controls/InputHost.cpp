#include "controls/InputHost.h"

#include "support/MessagePump.h"

BEGIN_MESSAGE_MAP(vant::test::InputHost, CWnd)
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace vant::test
{

InputHost::InputHost(int width, int height, CDpi scale)
{
    constexpr int place = 40;
    CreateEx(WS_EX_TOOLWINDOW, Vant::wndClass, L"host", WS_POPUP | WS_CLIPCHILDREN,
             CRect(CPoint(place, place), CSize(scale.ToPx(width), scale.ToPx(height))), nullptr, 0);
    scale.Set(m_hWnd);
    ShowWindow(SW_SHOWNOACTIVATE);
    UpdateWindow();
    ::SetFocus(m_hWnd);
    PumpPending();
}

InputHost::~InputHost()
{
    DestroyWindow();
}

BOOL InputHost::PreTranslateMessage(MSG* msg)
{
    if (msg->message == WM_KEYDOWN)
        keysSeen.push_back(msg->wParam);
    return CWnd::PreTranslateMessage(msg);
}

BOOL InputHost::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(client);
    dc->FillRect(client, &Vant::backB);
    return TRUE;
}

void Type(HWND window, const std::wstring& characters)
{
    for (const wchar_t character : characters)
        ::PostMessageW(window, WM_CHAR, character, 1);
    PumpPending();
}

void Press(HWND window, UINT virtualKey, const std::vector<UINT>& held)
{
    const HeldKeys keys(held);
    const LPARAM scanCode = static_cast<LPARAM>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)) << 16;
    constexpr LPARAM released = static_cast<LPARAM>(0xC0000000u);
    ::PostMessageW(window, WM_KEYDOWN, virtualKey, scanCode | 1);
    PumpPending();
    ::PostMessageW(window, WM_KEYUP, virtualKey, scanCode | 1 | released);
    PumpPending();
}

HeldKeys::HeldKeys(const std::vector<UINT>& keys, BYTE state)
{
    ::GetKeyboardState(m_before);
    BYTE now[256] = {};
    for (const UINT key : keys)
        now[key] = state;
    ::SetKeyboardState(now);
}

HeldKeys::~HeldKeys()
{
    ::SetKeyboardState(m_before);
}

COLORREF PixelOf(HWND window, int x, int y)
{
    ::UpdateWindow(window);
    const HDC dc = ::GetDC(window);
    const COLORREF colour = ::GetPixel(dc, x, y);
    ::ReleaseDC(window, dc);
    return colour;
}

COLORREF FramePixelOf(HWND window, int x, int y)
{
    ::UpdateWindow(window);
    const HDC dc = ::GetWindowDC(window);
    const COLORREF colour = ::GetPixel(dc, x, y);
    ::ReleaseDC(window, dc);
    return colour;
}

std::wstring TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return Text(text);
}

ControlInputTest::ControlInputTest()
{
    Vant::Init();
    alarms.clear();
    vant::detail::Windows().infoMsg = [](int message, void* data) {
        const auto& entry = *static_cast<CECEntry*>(data);
        if (message == Vant::alarmInfo)
            alarms.push_back({entry.id, entry.state, Text(entry.text)});
    };
}

ControlInputTest::~ControlInputTest()
{
    vant::detail::Windows() = m_windows;
    Vant::Exit();
}

} // namespace vant::test
