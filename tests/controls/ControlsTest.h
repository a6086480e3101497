#pragma once

#include "controls/CECtrl.h"
#include "platform/PlatformTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

/** A picture in memory, 32 bits per pixel, black at first. */
class Canvas
{
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC& Dc() { return m_dc; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    /** Colour of a pixel as 0xRRGGBB. */
    std::uint32_t At(int x, int y) const;
    void Fill(COLORREF colour);
    /** The smallest rectangle around the pixels of this colour (COLORREF); empty without one. */
    CRect Bounds(COLORREF colour) const;
    bool SameAs(const Canvas& other) const;
    /** Copies this picture to a place of another. */
    void CopyTo(Canvas& to, int x, int y);
    void Save(const std::wstring& path);

private:
    int m_width;
    int m_height;
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

/** The least that a control can be: one colour. */
class PlainCtrl : public CECtrl
{
public:
    void Draw(CDC* dc) override
    {
        ++draws;
        dc->FillSolidRect(ClientRc(), colour);
    }
    using CECtrl::GetTip;

    COLORREF colour = RGB(10, 200, 30);
    int draws = 0;
};

/** Counts what a control reports. */
class Listener : public CObject
{
public:
    void OnNone() { ++calls; }
    int calls = 0;

    static CEVal::CbNone Member() { return static_cast<CEVal::CbNone>(&Listener::OnNone); }
};

/** A platform that has been started, and a hidden parent window of 400 x 300 pixels at 96 DPI. The mouse,
 * the screen and the focus belong to the test. */
class ControlsTest : public testing::Test
{
protected:
    ControlsTest();
    ~ControlsTest() override;

    /** Shows the parent at (50, 50) of the screen, without the focus. */
    void ShowParent();
    /** Makes a window for the control where `rc` says. */
    void Open(CECtrl& ctrl, int dpi = 96);
    /** The client area as the control draws it. */
    static void DrawTo(CECtrl& ctrl, Canvas& canvas);
    static std::vector<Logged> Alarms() { return Messages(vant::detail::LogTarget::alarm); }

    static void Send(CWnd& wnd, UINT message, WPARAM w = 0, int x = 0, int y = 0)
    {
        wnd.SendMessage(message, w, MAKELPARAM(x, y));
    }
    static void Press(CWnd& wnd, int x, int y) { Send(wnd, WM_LBUTTONDOWN, MK_LBUTTON, x, y); }
    static void Release(CWnd& wnd, int x, int y) { Send(wnd, WM_LBUTTONUP, 0, x, y); }
    static void KeyDown(CWnd& wnd, UINT key, bool repeated = false);
    static void KeyUp(CWnd& wnd, UINT key);

    CWnd parent;

private:
    const ScreenLock m_screen;
    const vant::test::RecordLogs m_logs;
    const vant::detail::SystemCalls m_calls = vant::detail::Calls();
};
