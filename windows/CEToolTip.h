#pragma once

#include "controls/CVantWnd.h"

class CECtrl;

/** The tool-tip window: a text on a small panel in front of all other windows.
 *
 *  Vant::toolTip follows the mouse by itself from Vant::Init() to Vant::Exit(): when the mouse has rested for
 *  Vant::hoverTime over a control that has a tip (CECtrl::GetTip()), the tip shows beside it. It goes when
 *  the mouse leaves the control, when a button, the wheel or a key is used, and when the control is no longer
 * there to be seen; after a button or key it does not come again before the mouse has been elsewhere.
 *
 *  The window never takes activation, focus or the mouse: what is under it is as if it were not there. It is
 *  the platform window "ToolTip". Belongs to the UI thread. */
class VANT_API CEToolTip : public CVantWnd
{
    DECLARE_DYNAMIC(CEToolTip)

public:
    static constexpr int maxWidth = 320; ///< of the text, units; longer lines are wrapped

    CEToolTip();
    ~CEToolTip() override;

    CString text; ///< what it shows; "test" at first

    using CVantWnd::Create;
    /** Creates the hidden window, in the place of one that is there. @return 1, or 0 if the system refuses,
     * as it does before Vant::Init() */
    int Create();

    /** Sets the text and fits the window to it. Line feeds begin new lines. */
    void SetText(const CString& newText);
    /** Shows the window where it is. */
    void Show();
    /** Shows it below a point, or above where there is no room, inside the work area of the point's monitor.
     * @param screenPt  the mouse's place, pixels */
    void ShowAt(CPoint screenPt);
    /** Hides it. */
    void Hide();
    /** Gives the window the size of its text, inside the work area of its monitor. */
    void UpdateSize();
    void Draw(CDC* dc) override;

    /** @name The mouse, for Vant::toolTip */
    ///@{
    /** It has moved over a control. */
    void Follow(CECtrl& ctrl);
    /** It has left the control, which may be no more than an address. */
    void Leave(const CECtrl& ctrl);
    /** @} */

protected:
    afx_msg void OnTimer(UINT_PTR event);
    afx_msg void OnDestroy();
    afx_msg void OnWindowPosChanging(WINDOWPOS* pos);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg int OnMouseActivate(CWnd* top, UINT hit, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK SeeMessage(int code, WPARAM wParam, LPARAM lParam);

    bool FindTip(CString& tip, CPoint& at) const;
    void WatchInput(bool watch);
    void OnRest();
    void OnWatch();

    CECtrl* m_over = nullptr; // the mouse is over it; an address to compare
    HWND m_overWnd = nullptr; // its window
    CPoint m_mouse;           // where the mouse was then, pixels of the screen
    bool m_muted = false;     // no tip for this control until the mouse has been elsewhere
    HHOOK m_input = nullptr;  // sees buttons and keys while a tip is shown or about to be
};
