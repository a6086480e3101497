#pragma once

#include "platform/Vant.h"

#include <afxwin.h>

/** The library, started for a case and stopped after it: each case stands alone, in any order. */
class Library
{
public:
    Library() { Vant::Init(); }
    ~Library() { Vant::Exit(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

/** A visible window for what is compared to stand in. It takes no focus. */
class HostWnd : public CWnd
{
public:
    explicit HostWnd(CSize size)
    {
        CreateEx(WS_EX_TOOLWINDOW, Vant::wndClass, L"bench", WS_POPUP, CRect(CPoint(20, 20), size), nullptr,
                 0);
        ShowWindow(SW_SHOWNOACTIVATE);
    }
    ~HostWnd() override { DestroyWindow(); }
};
