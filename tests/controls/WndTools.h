// What tests do to windows in a user's place, and what they see of them.
#pragma once

#include <afxwin.h>

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

/** Sends a message of the mouse; the place is in pixels of the client area. */
void Send(CWnd& wnd, UINT message, WPARAM flags = 0, int x = 0, int y = 0);

/** Sends the left button's going down, its coming up, or both. */
void Press(CWnd& wnd, int x, int y);
void Release(CWnd& wnd, int x, int y);
void Click(CWnd& wnd, int x = 5, int y = 5);

/** Sends a key's going down or coming up to the window itself, past what its thread does with messages. */
void KeyDown(CWnd& wnd, UINT key, bool repeated = false);
void KeyUp(CWnd& wnd, UINT key);

/** Holds keys down for this thread as long as it lives, and no others. */
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

/** Presses and releases a key by messages, as the keyboard does, with others held down meanwhile, and handles
 *  what comes of it. */
void PressKey(HWND window, UINT virtualKey, const std::vector<UINT>& held = {});

/** The same in the window that has the focus. */
void PressKey(UINT virtualKey);

/** Posts the characters to the window and handles them. */
void Type(HWND window, const std::wstring& characters);

/** What a window shows on the screen at a point of its client area. */
COLORREF PixelOf(HWND window, int x, int y);

/** The same at a point of the whole window, whose frame may be its own. */
COLORREF FramePixelOf(HWND window, int x, int y);

/** The text in a window. */
std::wstring TextOf(const CWnd& window);

/** Where a window is on the screen, pixels. */
CRect ScreenPlaceOf(const CWnd& wnd);

/** Where a child is in its parent's client area, pixels. */
CRect PlaceOf(const CWnd& child);

/** Whether it would be seen if its parents were. */
bool IsShown(const CWnd& wnd);
