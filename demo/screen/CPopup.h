#pragma once

#include "controls/CVantWnd.h"
#include "demo/screen/PopupFrame.h"

namespace demo
{

/** Base of the bridge's further windows, on top of the platform window that each of them is: gives its frame
 *  (PopupFrame) what the window hears, and shows or hides it when the session says so.
 *  @tparam Base  CVantWnd, or a class derived from it */
template <class Base>
class CPopup : public Base
{
public:
    /** @param title  of the window; not copied  @param place  see PopupFrame */
    CPopup(const wchar_t* title, Session& session, PopupPlace& place)
        : m_frame(*this, session, place)
        , m_title(title)
    {
        this->CVantWnd::name = title;
    }

    /** Makes the window, hidden. @param first  see PopupFrame::Open() */
    bool Open(CWnd& owner, const Box& first) { return m_frame.Open(m_title, owner, first); }
    /** Shows or hides it, as the user last had it. */
    void ShowAsSet() { m_frame.ShowAsSet(); }

    void OnInfoMsg(int msg, void* data) override
    {
        Base::OnInfoMsg(msg, data);
        if (msg == sessionInfo)
            m_frame.ShowAsSet();
    }

protected:
    /** The frame's part in the window's messages. */
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CLOSE) {
            m_frame.Close();
            return 0;
        }
        if (message == WM_DESTROY)
            Leave();
        if (message == WM_DPICHANGED)
            wParam = m_frame.FittingDpi(wParam);
        const LRESULT result = Base::WindowProc(message, wParam, lParam);
        if (message == WM_CREATE && result != -1)
            this->s_infoRx.AddTail(this);
        if (message == WM_MOVE || message == WM_SIZE)
            m_frame.NotePlace();
        return result;
    }

private:
    void Leave()
    {
        m_frame.NotePlace();
        if (CVantPtr* const pos = this->s_infoRx.Find(this)) // else it was not made
            this->s_infoRx.RemoveAt(pos);
    }

    PopupFrame m_frame;
    const wchar_t* m_title;
};

} // namespace demo
