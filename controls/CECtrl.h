#pragma once

#include "controls/CDpi.h"
#include "controls/CEStyle.h"
#include "core/CLstPtr.h"
#include "core/VantApi.h"
#include "values/CEVal.h"

#include <afxwin.h>

#include <memory>

class CESetObj;
class CVantWnd;

/** The base of every control: a child window and a typed value at once.
 *
 *  A control is made in two steps like every window: the object, bound to a variable with CEVal::Init(), then
 * its window (Create()), which a control category does for the controls that are inserted into it. It is
 * drawn by Draw(), into a bitmap first so that it does not flicker. Whether it is enabled and shown follows
 * from #state and the value's enable condition at every Update(), and is kept nowhere else.
 *
 *  The value's `tip` is the control's tool tip and its `aux3` the topic of its context help
 * (Vant::SpawnHelp()). A name in its `aux1` keeps the value in the settings of the window (Settings()).
 *
 *  A derived control that the keyboard can operate is created with WS_TABSTOP and #keepFocus. Everything here
 *  belongs to the UI thread. */
class VANT_API CECtrl : public CWnd, public CEVal
{
    DECLARE_DYNAMIC(CECtrl)

public:
    /** Bits of #state. */
    enum StateBits {
        stEnabled = 1,    ///< the user may operate it
        stShown = 2,      ///< it is to be seen
        stKeepHidden = 4, ///< Update() does not show it, whatever stShown says
    };

    /** Bits of #look, for drawing. */
    enum LookBits {
        lookHover = 1,   ///< the mouse is over it
        lookPressed = 2, ///< it is held down
    };

    /** Codes of the classes, by which a category creates controls; one bit each. */
    enum TypeCode {
        typeText = 16,         ///< CEText
        typeLabel = 32,        ///< CELabel
        typeEdit = 64,         ///< CEEdit
        typeBtn = 128,         ///< CEBtn
        typeCheck = 256,       ///< CECheck
        typeCb = 512,          ///< CECb
        typeSlider = 1024,     ///< CESlider
        typeLed = 2048,        ///< CELed
        typeList = 4096,       ///< CEList
        typeWnd = 8192,        ///< CEWnd
        typeRadio = 16384,     ///< CERadio
        typeGrid = 32768,      ///< CEGrid
        typeChart = 65536,     ///< CEChart
        typeRadius = 131072,   ///< CERadius
        typeBtnList = 2097152, ///< CEBtnList
        typeAttempt = 4194304, ///< CEAttempt
    };

    /** Window style bit of a control that keeps the keyboard focus when the mouse moves over a platform
     * window; edit windows have it as ES_AUTOHSCROLL. */
    static constexpr DWORD keepFocus = 0x80;

    CECtrl();
    CECtrl(const CECtrl&) = delete;
    CECtrl& operator=(const CECtrl&) = delete;
    ~CECtrl() override;
    using CEVal::operator=; ///< writes the bound variable: `*ctrl = 12.5`

    /** @name Fields */
    ///@{
    int ctrlType = 0; ///< code of the class, see TypeCode; 0 for a class without one
    CRect rc;         ///< place in the parent (in its category while it is in one), units
    int id = 0;       ///< identifier of the child window; composite controls number their children from it
    int state = 3;    ///< StateBits
    int level = 0;    ///< user levels at which it is shown, set by its category
    int dblBuf = 1;   ///< non-zero: draw into a bitmap, then copy that to the screen
    CDC dcNorm;       ///< the skin, once LoadBitmapW() has loaded one
    CDC dcGrey;       ///< its greyed twin
    int ownDC = 0;    ///< non-zero: dcNorm and dcGrey are this control's; 0: what is attached is not deleted
    int bmW = 0;      ///< width of the skin, pixels
    int bmH = 0;      ///< height of the skin, pixels
    int look = 0;     ///< LookBits
    int glow = 0;     ///< strength of the glow over it, 0 to 255; set by SetGlow()
    CEStyle style;    ///< how it is drawn, at first a copy of CEStyle::s_default
    CVantWnd* pWnd = nullptr; ///< the platform window whose category it is in; null outside one. Not owned.
    /** @} */

    /** The glow image, 40 x 40 with alpha; loaded by Vant::Init(). */
    static CDC& s_glow;
    /** Every live control, in the order of construction. Not owned. */
    static CLstPtr<CECtrl*> s_eCtrls;
    /** Controls that want AutoUpdate(); they add and remove themselves. Not owned. */
    static CLstPtr<CECtrl*> s_auCtrls;

    /** @name Look-up
     *  By a point of the screen, in pixels; null if no control is there. Hidden and disabled windows are not
     * found, as the system has it. @{ */
    /** The first control that owns the window under the point. */
    static CECtrl* GetCtrl(CPoint screenPt);
    /** The first control of the window under the point that has a tip; `tip` is left alone if there is none.
     */
    static CECtrl* GetTip(CPoint screenPt, CString& tip);
    /** @} */

    /** Calls AutoUpdate() of every control in #s_auCtrls, in order. A control may take itself, or any other
     * but the next one, off the list meanwhile, and may be deleted. @param t  application time, seconds */
    static void UpdateAuCtrls(double t);

    /** @name Operations of every control, in this order */
    ///@{
    /** Enables or disables, shows or hides, and redraws; nothing before the window exists. The argument
     * matters to derived controls only. Hidden and shown go by the control's own window, whether its parent
     * is to be seen or not. A focus that it can no longer have goes to the parent. */
    virtual void Update(int arg);
    /** Reads the window's text into the bound variable if it is valid. Otherwise the variable stays and alarm
     * 30 is raised at level 1: "Unable to get value err=<reason>". Nothing before the window exists. */
    virtual void Retreive();
    /** Copies the value's tip to `tip`. */
    virtual void GetTip(CString& tip);
    /** Draws the whole control, in units, into a context that need not be the screen's. */
    virtual void Draw(CDC* dc) = 0;
    /** Called regularly for the controls in #s_auCtrls; does nothing here. @param t  seconds */
    virtual void AutoUpdate(double t);
    /** Creates the control's window. @param wndStyle  window style bits, such as WndStyle(); WS_CHILD is
     * added @param r  place in the parent, pixels  @param childId  becomes #id  @return 1, or 0 if the system
     * refuses, as it does before Vant::Init() */
    virtual int Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId);
    /** The style bits with which a category creates the window: here WS_VISIBLE and WS_DISABLED, which follow
     * from #state and the enable condition. Controls for the keyboard add WS_TABSTOP and #keepFocus. */
    virtual unsigned long WndStyle() const;
    /** Whether Tab stops at it, its window having WS_TABSTOP; here always. */
    virtual bool IsTabStop() const;
    /** Exchanges the bound number or text with the item named `aux1`, every blank of it as an underscore;
     * nothing while `aux1` is empty or neither is bound. A number that the variable cannot hold, or outside a
     * range that was set, is not loaded. Windows do it for their controls (CVantWnd::SaveSet()), whose names
     * must differ within a window; of controls that share a variable one needs a name. */
    virtual void Settings(CESetObj& obj);
    /** @} */

    /** @name Operation by an external controller (CRcMgr)
     *  What they call may destroy the window, but not delete the control. @{ */
    /** Does what a click does. Here a click in the middle of the window is sent to it; fields for text and
     * numbers take the focus. @return 1; 0 if there is nothing to press, or it is disabled */
    virtual int Press();
    /** Changes the value by some notches of a dial, clamped to the value's range and to what the variable
     * holds, and calls the callbacks if it has changed. A value beyond its range stays when it is asked to go
     * farther. Here the number is changed by the step (CEVal::AdjustVal()), as of a read-out; controls that
     * choose among few values go on by one for each notch.
     *  @param notches  negative: less  @param step  change per notch, in the variable's unit; 0: the
     * control's own, which a plain control has not got  @param fine  non-zero: the smaller of its own steps
     *  @return 1 if the value has changed */
    virtual int Jog(int notches, double step, int fine);
    /** Lets the control glow: it draws the glow itself, over all else. @param strength  0 to 255 */
    virtual void SetGlow(int strength);
    /** A reference that is empty as soon as the destruction of the control begins. */
    std::weak_ptr<CECtrl*> Watch();
    /** @} */

    /** Blends the glow image, stretched, over `r` (units); nothing before it is loaded. @param alpha  0 to
     * 255, lower byte */
    void Glow(CDC* dc, CRect& r, int alpha);

    /** Loads a bitmap of the library, or else of the program, as the skin and makes its greyed twin: only a
     * bitmap of 32 bits is greyed, and pixels near the key colour 0, 22, 47 stay as they are, so that a
     * background does. The height of #rc becomes the bitmap's. Without such a bitmap nothing changes. */
    void LoadBitmapW(int resourceId);

    /** Whether #state and the enable condition let the user operate it. */
    bool IsEnabled() const;

    /** The scale of the control's window. */
    CDpi Dpi() const { return CDpi::Of(m_hWnd); }
    /** The client rectangle in units; before the window exists, one of the size of #rc. */
    CRect ClientRc() const;
    /** Colour of what the control stands on: teal in a highlighted window. */
    COLORREF BackCol() const;

protected:
    /** Fills the client rectangle with the colour of what the control stands on. */
    void DrawBack(CDC* dc) const;
    /** Draws the glow of #glow around `r`, units: a ring as wide on all sides, however long that is. */
    void DrawGlow(CDC& dc, const CRect& r);
    /** The number for Jog(): changes it by an amount, then updates the control and calls the callbacks.
     *  @param grid  a floating number that is a whole multiple of it stays one  @return 1 if it has changed
     */
    int JogNumber(double by, double grid);

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    void DrawAll(CDC& dc);
    void ReleaseSkin();
    void ShowHover(bool over);
    void PassFocusOn();

    CBitmap m_bmNorm;
    CBitmap m_bmGrey;
    std::shared_ptr<CECtrl*> m_self; // made by the first Watch()
};
