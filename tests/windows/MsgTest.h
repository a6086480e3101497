#pragma once

#include "platform/PlatformTest.h"
#include "support/MessagePump.h"
#include "windows/CEMsgBox.h"
#include "windows/CEToolTip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

inline void PrintTo(const CRect& r, std::ostream* out)
{
    *out << "(" << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << ")";
}

using MsgTexts = std::array<std::wstring, 4>;

inline MsgTexts Texts(const std::array<CString, 4>& lines)
{
    return {Text(lines[0]), Text(lines[1]), Text(lines[2]), Text(lines[3])};
}

inline CRect PlaceOf(HWND wnd)
{
    CRect r;
    ::GetWindowRect(wnd, &r);
    return r;
}

inline CRect PrimaryWorkArea()
{
    CRect r;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &r, 0);
    return r;
}

inline bool IsInside(const CRect& r, const CRect& area)
{
    CRect common;
    common.IntersectRect(r, area);
    return common == r;
}

/** The platform started; the message box as if it had never been used. */
class MsgTest : public testing::Test
{
protected:
    MsgTest()
    {
        Vant::msgBox.stay = 0; // the mark of a test that stayed before this one
        Vant::Init();
    }
    ~MsgTest() override
    {
        ::AfxGetThread()->m_pMainWnd = nullptr;
        Vant::Exit();
    }

    /** A window as the application's main one, shown without the focus. */
    class MainWnd
    {
    public:
        explicit MainWnd(const CRect& place)
        {
            m_wnd.CreateEx(0, Vant::wndClass, L"", WS_POPUP, place, nullptr, 0);
            m_wnd.ShowWindow(SW_SHOWNOACTIVATE);
            ::AfxGetThread()->m_pMainWnd = &m_wnd;
        }
        ~MainWnd()
        {
            ::AfxGetThread()->m_pMainWnd = nullptr;
            m_wnd.DestroyWindow();
        }
        MainWnd(const MainWnd&) = delete;
        MainWnd& operator=(const MainWnd&) = delete;
        CWnd& Wnd() { return m_wnd; }

    private:
        CWnd m_wnd;
    };
};
