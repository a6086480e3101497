#pragma once

#include "controls/CVantWnd.h"
#include "platform/Vant.h"
#include "support/MessagePump.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

// How the framework's types are shown where an expectation fails.
inline void PrintTo(const CRect& r, std::ostream* out)
{
    *out << "(" << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << ")";
}

inline void PrintTo(const CPoint& pt, std::ostream* out)
{
    *out << "(" << pt.x << ", " << pt.y << ")";
}

inline void PrintTo(const CSize& size, std::ostream* out)
{
    *out << size.cx << " x " << size.cy;
}

/** A window that writes down what reaches it. */
class RecordingWnd : public CVantWnd
{
public:
    explicit RecordingWnd(const CString& wndName = L"Default") { name = wndName; }

    /** A window without a frame: its client area is the whole of it. Not shown. */
    void CreatePopup(int width = 400, int height = 300, DWORD style = 0)
    {
        ASSERT_TRUE(CreateWnd(name, WS_POPUP | style, CRect(0, 0, width, height)));
    }
    void CreateChild(CWnd& parent, const CRect& place, DWORD style = 0)
    {
        ASSERT_TRUE(CreateWnd(name, WS_CHILD | WS_VISIBLE | style, place, &parent, 1));
    }

    void OnTrigger(double a, double b) override { Note(L"trigger", a, b); }
    void OnPoll(double t) override { Note(L"poll", t, 0); }
    void OnInfoMsg(int msg, void* data) override
    {
        Note(L"info", msg, 0);
        lastData = data;
    }
    void OnSnsrMsg(int msg, void* data) override
    {
        Note(L"snsr", msg, 0);
        lastData = data;
    }
    void OnDataMsg(int msg, void* data) override
    {
        Note(L"data", msg, 0);
        lastData = data;
    }
    void OnNfyWnd(CVantWnd* sender, int msg, void* data) override
    {
        Note(L"notify", msg, 0);
        lastData = data;
        lastSender = sender;
    }
    void LayoutWnd(int quiet) override
    {
        ++layouts;
        CVantWnd::LayoutWnd(quiet);
    }
    using CVantWnd::LayoutWnd;

    struct Event {
        std::wstring what;
        double a;
        double b;
        bool operator==(const Event&) const = default;
    };
    std::vector<Event> events;
    void* lastData = nullptr;
    CVantWnd* lastSender = nullptr;
    int layouts = 0;

private:
    void Note(const wchar_t* what, double a, double b) { events.push_back({what, a, b}); }
};

inline void PrintTo(const RecordingWnd::Event& event, std::ostream* out)
{
    *out << testing::PrintToString(event.what) << "(" << event.a << ", " << event.b << ")";
}

/** Where a child is in its parent's client area, pixels. */
inline CRect PlaceOf(const CWnd& child)
{
    CRect place;
    child.GetWindowRect(&place);
    ::MapWindowPoints(nullptr, ::GetParent(child.m_hWnd), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

inline bool IsShown(const CWnd& wnd)
{
    return (wnd.GetStyle() & WS_VISIBLE) != 0;
}

/** The platform started, and stopped in the end; no list keeps a window of the test. */
class WndTest : public testing::Test
{
protected:
    WndTest() { Vant::Init(); }
    ~WndTest() override
    {
        CVantWnd::s_inhibitFocus = 0;
        Vant::Exit();
    }

    static void Click(CWnd& wnd)
    {
        const LPARAM at = MAKELPARAM(5, 5);
        wnd.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        wnd.SendMessage(WM_LBUTTONUP, 0, at);
    }
    /** Presses and releases a key in the window that has the focus, through the thread's message loop. */
    static void Type(UINT key)
    {
        const HWND focus = ::GetFocus();
        ::PostMessageW(focus, WM_KEYDOWN, key, 1);
        ::PostMessageW(focus, WM_KEYUP, key, 1 | (3u << 30));
        vant::test::PumpPending();
    }
};
