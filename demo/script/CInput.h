#pragma once

#include <afxwin.h>

#include <deque>
#include <string_view>
#include <variant>

namespace demo
{

/** A user's hands: posts the messages of mouse and keyboard to the windows of this program, one at a time, so
 * that they take the way of real ones. A click goes to whatever window is at the place, a key to whatever has
 * the keyboard when its turn comes. */
class CInput
{
public:
    /** What a drag holds down. */
    enum class Button { Left, Right };

    /** Clicks a point of a window, in pixels of its client area. While another window covers it, the hands
     * wait. */
    void Click(CWnd& wnd, CPoint point) { Drag(wnd, point, point); }
    /** Clicks the middle of a window. */
    void Click(CWnd& wnd);
    /** Presses the button at one point, moves and releases it at another; waits as Click() does. */
    void Drag(CWnd& wnd, CPoint from, CPoint to, Button button = Button::Left)
    {
        m_queue.push_back(Press{&wnd, from, to, button});
    }
    /** Turns the wheel over the middle of a window. @param notches  away from the user, or towards him if
     * negative */
    void Wheel(CWnd& wnd, int notches) { m_queue.push_back(Turn{&wnd, notches}); }
    /** Lets the mouse rest over the middle of a window: the one thing for which the real mouse moves, because
     * the system itself looks where it is. */
    void Hover(CWnd& wnd) { m_queue.push_back(Rest{&wnd}); }
    /** Presses and releases a key that is no character. */
    void Key(UINT key, int times = 1);
    /** Clicks a field and takes out what is in it. */
    void Empty(CWnd& field);
    /** Types characters. */
    void Type(std::wstring_view text);

    /** Does the next thing. @return false when there is nothing left to do */
    bool Move();
    /** Forgets what is left to do. */
    void Drop() { m_queue.clear(); }

    /** The visible, enabled window at a point of the screen, inside a window that has no parent. */
    static HWND WindowAt(HWND top, POINT screen);

    /** @name Give what has the keyboard a key, or a character. @return false while nothing has it @{ */
    static bool Stroke(UINT key);
    static bool Letter(wchar_t character);
    /** @} */

private:
    struct Press {
        CWnd* wnd;
        CPoint from;
        CPoint to;
        Button button;
    };
    struct Turn {
        CWnd* wnd;
        int notches;
    };
    struct Rest {
        CWnd* wnd;
    };
    struct Pushed {
        UINT key;
    };
    using Action = std::variant<Press, Turn, Rest, Pushed, wchar_t>;

    static bool Do(const Press& press);
    static bool Do(const Turn& turn);
    static bool Do(const Rest& rest);
    static bool Do(const Pushed& pushed) { return Stroke(pushed.key); }
    static bool Do(wchar_t character) { return Letter(character); }

    std::deque<Action> m_queue;
};

} // namespace demo
