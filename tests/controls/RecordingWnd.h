#pragma once

#include "controls/CVantWnd.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

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
