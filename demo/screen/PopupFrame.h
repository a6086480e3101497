#pragma once

#include "demo/session/Session.h"

namespace demo
{

/** What the bridge's further windows have in common: each lies over the bridge, goes to the taskbar with it,
 *  comes back where it was, and is hidden when the user closes it. */
class PopupFrame
{
public:
    /** All of them outlive it. @param place  what is remembered of the window */
    PopupFrame(CWnd& wnd, Session& session, PopupPlace& place)
        : m_wnd(wnd)
        , m_session(session)
        , m_place(place)
    {
    }

    /** Makes the window, hidden, where it was left. @param first  where it goes if it was never open, pixels
     */
    bool Open(const wchar_t* title, CWnd& owner, const Box& first);

    /** Shows or hides it, as the user last had it. */
    void ShowAsSet();

    /** What WM_DPICHANGED tells it on another monitor, its first parameter: there it takes as many dots per
     * inch as the bridge would, see DpiThatFits(). */
    WPARAM FittingDpi(WPARAM asked) const;

    /** Keeps in mind where it is. */
    void NotePlace();

    /** The user closes it. */
    void Close();

private:
    CWnd& m_wnd;
    Session& m_session;
    PopupPlace& m_place;
};

} // namespace demo
