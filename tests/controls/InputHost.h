#pragma once

#include "controls/CDpi.h"
#include "controls/WndTest.h"
#include "platform/PlatformTest.h"
#include "support/LogRecorder.h"

#include <afxwin.h>

#include <string>
#include <vector>

namespace vant::test
{

/** A top-level window for controls to stand in, that is none of the library's. It records the key presses
 * that come by on their way to the controls. */
class InputHost : public CWnd
{
public:
    /** @param width, height  of the client area, units of the scale */
    explicit InputHost(int width = 400, int height = 200, CDpi scale = CDpi());
    ~InputHost() override;

    BOOL PreTranslateMessage(MSG* msg) override;

    std::vector<WPARAM> keysSeen;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()
};

/** Posts the characters to the window and handles them. */
void Type(HWND window, const std::wstring& characters);

/** Presses and releases keys by messages, as the keyboard does, with others held down meanwhile, and handles
 *  what comes of it. */
void Press(HWND window, UINT virtualKey, const std::vector<UINT>& held = {});

/** Holds keys down for this thread as long as it lives. */
class HeldKeys
{
public:
    explicit HeldKeys(const std::vector<UINT>& keys, BYTE state = 0x80);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE m_before[256];
};

/** What a window shows on the screen at a point of its client area. */
COLORREF PixelOf(HWND window, int x, int y);

/** The same at a point of the whole window, whose frame may be its own. */
COLORREF FramePixelOf(HWND window, int x, int y);

/** The text in a window. */
std::wstring TextOf(const CWnd& window);

/** The platform started, the screen for oneself, and no keys down. */
class ControlInputTest : public testing::Test
{
protected:
    ControlInputTest();
    ~ControlInputTest() override;

    static inline std::vector<Logged> alarms; ///< every one that was broadcast, repeated ones too

private:
    const ScreenLock m_screen;
    const HeldKeys m_noKeys{{}};
    const RecordLogs m_logs;
    const vant::detail::WindowHooks m_windows = vant::detail::Windows();
};

} // namespace vant::test
