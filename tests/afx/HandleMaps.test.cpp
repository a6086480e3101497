#include "support/MessagePump.h"

#include <afxwin.h>
#include <gtest/gtest.h>

#include <thread>

namespace
{

class Popup : public CWnd
{
public:
    BOOL Open()
    {
        return CreateEx(0, ::AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0);
    }
};

/** A window without an object. */
class RawWindow
{
public:
    RawWindow()
        : m_window(::CreateWindowExW(0, L"STATIC", L"raw", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                                     nullptr))
    {
    }
    ~RawWindow() { ::DestroyWindow(m_window); }
    RawWindow(const RawWindow&) = delete;
    RawWindow& operator=(const RawWindow&) = delete;
    operator HWND() const { return m_window; }

private:
    HWND m_window;
};

} // namespace

TEST(HandleMaps, TheOwnerIsFoundAsLongAsItHasTheHandle)
{
    HWND window = nullptr;
    {
        Popup popup;
        ASSERT_TRUE(popup.Open());
        window = popup.m_hWnd;
        EXPECT_EQ(CWnd::FromHandle(window), &popup);
        EXPECT_EQ(CWnd::FromHandlePermanent(window), &popup);
    }
    EXPECT_FALSE(::IsWindow(window)) << "the destructor destroys the window";
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

TEST(HandleMaps, AStrangersWindowGetsATemporaryObject)
{
    const RawWindow raw;
    CWnd* first = CWnd::FromHandle(raw);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->m_hWnd, raw);
    EXPECT_EQ(CWnd::FromHandle(raw), first) << "the same one until it is freed";
    EXPECT_EQ(CWnd::FromHandlePermanent(raw), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(raw)) << "a temporary object owns nothing";

    CWnd owner;
    owner.Attach(raw);
    EXPECT_EQ(CWnd::FromHandle(raw), &owner);
    EXPECT_EQ(owner.Detach(), raw);
    EXPECT_NE(CWnd::FromHandle(raw), &owner);
}

TEST(HandleMaps, ADestroyedAttachedWindowLeavesItsObject)
{
    CWnd owner;
    owner.Attach(
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(owner.DestroyWindow());
    EXPECT_EQ(owner.m_hWnd, nullptr);
}

TEST(HandleMaps, OtherThreadsFindTheOwnerAndHaveTheirOwnTemporaries)
{
    Popup popup;
    ASSERT_TRUE(popup.Open());
    const RawWindow raw;
    CWnd* here = CWnd::FromHandle(raw);
    CWnd* found = nullptr;
    CWnd* there = nullptr;
    std::thread([&] {
        found = CWnd::FromHandlePermanent(popup.m_hWnd);
        there = CWnd::FromHandle(raw);
    }).join();
    EXPECT_EQ(found, &popup);
    EXPECT_NE(there, here);
    EXPECT_EQ(here->m_hWnd, raw);
}

TEST(HandleMaps, AnotherModuleSharesThem)
{
    const HMODULE module = ::LoadLibraryW(L"test_afx_windows.dll");
    ASSERT_NE(module, nullptr);
    const auto objectOf =
        reinterpret_cast<CWnd* (*)(HWND)>(reinterpret_cast<void*>(::GetProcAddress(module, "ObjectOf")));
    const auto openWindow =
        reinterpret_cast<CWnd* (*)()>(reinterpret_cast<void*>(::GetProcAddress(module, "OpenWindow")));
    Popup popup;
    ASSERT_TRUE(popup.Open());
    EXPECT_EQ(objectOf(popup.m_hWnd), &popup);

    CWnd* theirs = openWindow();
    ASSERT_NE(theirs, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(theirs->m_hWnd), theirs);
    EXPECT_EQ(theirs->SendMessage(WM_APP, 4), 8) << "its handlers run";
    delete theirs;
    ::FreeLibrary(module);
}

TEST(HandleMaps, GdiHandlesKnowTheirOwnerAndTheirKind)
{
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    EXPECT_EQ(CGdiObject::FromHandle(pen), &pen);

    CBrush* stock = CBrush::FromHandle(static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    EXPECT_TRUE(stock->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_EQ(CGdiObject::FromHandle(::GetStockObject(BLACK_BRUSH)), stock);
    EXPECT_TRUE(CGdiObject::FromHandle(::GetStockObject(SYSTEM_FONT))->IsKindOf(RUNTIME_CLASS(CFont)));

    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    EXPECT_EQ(CDC::FromHandle(memory.m_hDC), &memory);
}

TEST(HandleMaps, AnObjectThatTakesAnotherHandleLetsGoOfTheFirst)
{
    // Whoever asks for the first handle later must not be given an object that may be gone by then.
    const HPEN pens[] = {::CreatePen(PS_SOLID, 1, 0), ::CreatePen(PS_SOLID, 2, 0)};
    const HDC contexts[] = {::CreateCompatibleDC(nullptr), ::CreateCompatibleDC(nullptr)};
    const RawWindow windows[2];
    CPen pen;
    CDC dc;
    CWnd wnd;
    for (const int which : {0, 1}) {
        pen.Attach(pens[which]);
        dc.Attach(contexts[which]);
        wnd.Attach(windows[which]);
    }
    EXPECT_EQ(CPen::FromHandle(pens[1]), &pen);
    EXPECT_NE(CPen::FromHandle(pens[0]), &pen);
    EXPECT_EQ(CDC::FromHandle(contexts[1]), &dc);
    EXPECT_NE(CDC::FromHandle(contexts[0]), &dc);
    EXPECT_EQ(CWnd::FromHandlePermanent(windows[1]), &wnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(windows[0]), nullptr);
    EXPECT_TRUE(::DeleteObject(pens[0])) << "the handle is given up, not freed";
    EXPECT_TRUE(::DeleteDC(contexts[0]));
    wnd.Detach();
}
