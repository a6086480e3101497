#pragma once

#include "controls/CECtrl.h"

#include <array>

/** The non-modal message box: shows a message over the application and hides itself after a time.
 *
 *  Vant::msgBox is the one that Vant::MsgBox() uses. It is a window of its own, in front of all others, in
 * the middle of the application's main window or else of the screen; it comes without taking the focus. Its
 * window is made by the first message, is hidden in between, and goes with the main window or with
 * Vant::Exit(); a later message makes a new one. While a CEMsgBoxModal is open it keeps beside that.
 *
 *  It is closed by its button, and by Escape, Enter or Space while it has the focus. Alt+F6 gives it the
 * focus, and back to where it was; so does closing it. A text that has no room, even in the small font, ends
 * with an ellipsis, and the tool tip shows all of it.
 *
 *  Belongs to the UI thread; Vant::MsgBox() may be called from any. */
class VANT_API CEMsgBox : public CECtrl
{
    DECLARE_DYNAMIC(CEMsgBox)

public:
    static constexpr unsigned tickPeriod = 1000; ///< milliseconds from one tick to the next

    CEMsgBox();
    ~CEMsgBox() override;

    /** @name Fields */
    ///@{
    std::array<CString, 4> lines; ///< the message, cut at its line feeds; the last has what is left
    int msgType = 0;              ///< type bits of the message, see Vant::MsgBox()
    int tickLimit = 0;            ///< the box hides itself at this tick; the first one if it is below
    int ticks = 0;                ///< ticks since it came up
    unsigned char active = 0;     ///< non-zero: a message is shown
    unsigned char stay = 0;       ///< non-zero: it never hides on its own
    /** @} */

    /** Shows a message, at once. While another one is shown it takes its place, and the ticks go on counting
     * from that one. With Vant::msgStay among the bits #stay is set, and deliberately stays set for every
     * later message of this box.
     *  @param bits  see Vant::MsgBox()  @param limit  ticks of #tickPeriod until it hides  @return 1, or 0 if
     * there can be no window */
    int DisplayMsg(int bits, const CString& message, int limit);

    /** Hides the box; it may be used again. */
    void Close();

    /** Moves the window to its place again, at the scale of the main window. */
    void MoveToPlace();

    void Draw(CDC* dc) override;

protected:
    /** One tick: counts, and hides the box when its time is over. No timer runs while it is hidden. */
    afx_msg void OnTimer(UINT_PTR event);
    /** Hides the box if the point is on its button: 235 to 335 and 200 to 235, both inclusive, units. */
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeats, UINT flags);
    afx_msg void OnSetFocus(CWnd* from);
    afx_msg void OnKillFocus(CWnd* to);
    afx_msg void OnShowWindow(BOOL shown, UINT status);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnDpiChanged(WPARAM dpi, LPARAM suggested);
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK SeeMessage(int code, WPARAM wParam, LPARAM lParam);

    bool Open();
    void NoteHidden();
    void RunTimer(bool run);
    void WatchKeys(bool watch);
    void SwitchFocus();
    void ShowPressed(bool pressed);
    bool IsOnButton(CPoint px) const;

    bool m_ticking = false;
    bool m_overButton = false;
    HHOOK m_keys = nullptr;     // sees Alt+F6 while the box is shown
    HWND m_focusFrom = nullptr; // where the focus came from
};
