#pragma once

#include "demo/detail/Glide.h"

#include <afxwin.h>

#include <deque>
#include <functional>
#include <string_view>
#include <variant>

namespace demo
{

/** The hand that a viewer of the tour sees: a mouse that glides to what it clicks, and a keyboard. It posts
 *  the messages of both to the windows of this program; the system's own mouse stays where it is.
 *
 *  What it is told to do is done one thing after the other, at a viewer's pace. */
class CTourHand
{
public:
    /** Where in a window, pixels of its client area. It is asked again while the hand is on its way, so that
     *  it meets what moves. */
    using Where = std::function<CPoint()>;

    /** Goes to a place. */
    void Reach(const CWnd& wnd, Where where) { m_queue.emplace_back(Way{&wnd, std::move(where)}); }
    /** Goes to the middle of a window. */
    void Reach(const CWnd& wnd);
    /** Presses the left button there, in the window reached last; waits while another one covers it. */
    void Press() { m_queue.emplace_back(Down{}); }
    /** Moves on by so many pixels within so many seconds. */
    void Pull(CSize by, double seconds) { m_queue.emplace_back(Move{by, seconds}); }
    void Release() { m_queue.emplace_back(Up{}); }
    void Click(const CWnd& wnd);
    void Click(const CWnd& wnd, Where where);
    /** Turns the wheel by a notch where the hand is. @param notches  away from the user, or towards him */
    void Turn(int notches);
    void Key(UINT key, int times = 1);
    void Type(std::wstring_view text);

    /** Goes on. @param t  seconds */
    void Step(double t);
    /** Whether there is something left to do. */
    bool IsBusy() const noexcept { return !m_queue.empty(); }

    /** Puts it somewhere on the screen at once. */
    void Put(Point screen) noexcept { m_at = screen; }
    /** Where it is on the screen. */
    Point At() const noexcept { return m_at; }
    /** How long ago the button went down, seconds; negative if it never did. */
    double SincePress(double t) const noexcept { return m_pressedAt < 0.0 ? -1.0 : t - m_pressedAt; }

private:
    struct Way {
        const CWnd* wnd;
        Where where;
    };
    struct Down {
    };
    struct Move {
        CSize by;
        double seconds;
    };
    struct Up {
    };
    struct Notch {
        int direction;
    };
    struct Stroke {
        UINT key;
    };
    using Deed = std::variant<Way, Down, Move, Up, Notch, Stroke, wchar_t>;

    /** Each goes on with a deed. @return whether it is done */
    bool Do(const Way& way, double t);
    bool Do(const Down& down, double t);
    bool Do(const Move& move, double t);
    bool Do(const Up& up, double t);
    bool Do(const Notch& notch, double t);
    bool Do(const Stroke& stroke, double t);
    bool Do(wchar_t character, double t);
    void Post(UINT message, WPARAM held) const;

    std::deque<Deed> m_queue;
    Point m_at;
    Glide m_glide;
    bool m_moving = false;        // m_glide is that of the first deed
    const CWnd* m_over = nullptr; // reached last
    HWND m_held = nullptr;        // has the button
    double m_pressedAt = -1.0;
    double m_ready = 0.0; // when the next deed may begin
};

} // namespace demo
