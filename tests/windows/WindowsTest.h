#pragma once

#include "platform/PlatformTest.h"
#include "windows/CConsole.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

/** A console whose inside can be seen. */
template <class Base>
class Opened : public Base
{
public:
    using Base::Lines;
    using Base::ListRc;
    using Base::RowRc;

    /** Creates its window and shows it without the focus. */
    void Open(int width, int height)
    {
        ASSERT_TRUE(this->CreateWnd(L"", WS_POPUP, CRect(0, 0, width, height)));
        this->ShowWindow(SW_SHOWNOACTIVATE);
        Settle();
    }
    /** Paints what waits to be painted. */
    void Settle()
    {
        this->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        paints = 0;
    }
    void Draw(CDC* dc) override
    {
        ++paints;
        Base::Draw(dc);
    }
    /** The first line in view. */
    int First() const { return (ListRc().top - RowRc(0).top) / RowRc(0).Height(); }
    /** The area that waits to be painted. */
    CRect Pending()
    {
        CRect r;
        return this->GetUpdateRect(&r) ? r : CRect();
    }
    void Key(UINT key) { this->SendMessage(WM_KEYDOWN, key, 0); }
    void Press(UINT message, CPoint at) { this->SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }
    void Click(CPoint at)
    {
        Press(WM_LBUTTONDOWN, at);
        Press(WM_LBUTTONUP, at);
    }
    /** A pixel of what the window draws. */
    COLORREF Pixel(CPoint at)
    {
        CDC memory;
        CBitmap bitmap;
        CClientDC screen(this);
        const CRect client = this->ClientRc();
        memory.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height());
        CBitmap* const before = memory.SelectObject(&bitmap);
        Draw(&memory);
        const COLORREF pixel = memory.GetPixel(at);
        memory.SelectObject(before);
        return pixel;
    }

    int paints = 0;
};

/** A started platform with its data in a directory of the test. */
class WindowsTest : public testing::Test
{
protected:
    WindowsTest();
    ~WindowsTest() override;

    static std::wstring Dir(); ///< ends with a backslash
    static std::string Bytes(const CString& file);
    static std::vector<std::string> FileLines(const CString& file);

    /** The texts of the entries without their headers. */
    static std::vector<std::wstring> Messages(CConsole& console);
    static std::vector<unsigned int> Ids(CConsole& console);

    /** Sounds that were asked for. */
    static inline std::vector<int> sounds;

private:
    vant::detail::SystemCalls m_calls = vant::detail::Calls();
};
