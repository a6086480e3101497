#pragma once

#include "controls/CECtrl.h"

namespace vant::skins
{
enum class Look;
struct Region;
} // namespace vant::skins

namespace vant::detail
{

/** A control that is clicked: with the left button pressed and released inside, with the Space key when it is
 * released, or with Enter. While it is held down it has CECtrl::lookPressed; moving out of it, Escape, and
 * losing mouse, focus or the window cancel a click. Sound 0 goes with every click.
 *
 *  What a click calls may destroy the control's window, but not delete the control: its callbacks are called
 * one by one. */
class VANT_API ClickCtrl : public CECtrl
{
public:
    /** The window's text is never a value of such a control: does nothing. */
    void Retreive() override;
    /** Redraws only if what is shown has changed: value, caption, or the enable condition. */
    void AutoUpdate(double t) override;
    /** Clicks. */
    int Press() override;
    /** Does nothing: its value is changed by clicks alone. */
    int Jog(int notches, double step, int fine) override;

protected:
    /** What a click does. */
    virtual void OnClick() = 0;
    /** Whether it can be clicked at all. */
    virtual bool IsClickable() const { return true; }
    /** A number for the part of the drawing that follows from the bound value. */
    virtual int ShownState() const { return 0; }
    /** The text that is drawn. */
    virtual CString Caption() const { return text; }

    /** The look that is to be drawn. */
    vant::skins::Look DrawnLook() const;
    bool HasFocus() const;
    /** Notes what has been drawn, for AutoUpdate(). */
    void NoteShown();
    /** Whether a click may end at this point of the client area, pixels. */
    virtual bool IsInside(CPoint px) const;
    /** Clicks, with its sound. */
    void Click();
    /** For Jog() of what is switched on and off by a click: on by more, off by less.
     *  @return 1 if it has been clicked */
    int JogSwitch(bool isOn, int notches);

    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* to);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    enum class Held { No, Mouse, Key };

    void Hold(Held by);
    void ShowPressed(bool pressed);

    Held m_held = Held::No;
    int m_shownState = 0;
    CString m_shownCaption;
};

} // namespace vant::detail
