#include "controls/InputHost.h"

#include "support/MessagePump.h"

BEGIN_MESSAGE_MAP(InputHost, CWnd)
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

InputHost::InputHost(int width, int height, CDpi scale)
{
    constexpr int place = 40;
    CreateEx(WS_EX_TOOLWINDOW, Vant::wndClass, L"host", WS_POPUP | WS_CLIPCHILDREN,
             CRect(CPoint(place, place), CSize(scale.ToPx(width), scale.ToPx(height))), nullptr, 0);
    scale.Set(m_hWnd);
    ShowWindow(SW_SHOWNOACTIVATE);
    UpdateWindow();
    ::SetFocus(m_hWnd);
    vant::test::PumpPending();
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
