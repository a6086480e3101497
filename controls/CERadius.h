#pragma once

#include "controls/CECtrl.h"
#include "core/CV3.h"

/** A dial on which a direction in space is picked: dragging the handle around turns the bearing, and moving
 * it from the rim to the middle raises the slope from level to straight up.
 *
 *  The keys Left and Right turn the bearing, Up and Down the slope, by 5 degrees or, with Shift, by 1. Every
 * change calls the callbacks, and the end of a drag calls them once more.
 *
 *  A float or double that is bound to the control holds the bearing in radians: the creation of the window
 * and Update() read it, every change of the user's writes it. Nothing need be bound: bearing and slope are
 * fields. */
class VANT_API CERadius : public CECtrl
{
    DECLARE_DYNAMIC(CERadius)

public:
    /** Loads the dial as the skin, which makes the control 100 units high. A category that it is inserted
     * into gives it the height of its own controls, though (CCtrlCat::ctrlH). */
    CERadius();

    /** @name Fields */
    ///@{
    double brg = 0.0;   ///< bearing, radians clockwise from the top of the dial
    double slope = 0.0; ///< angle above the horizon, radians; below it is drawn as above
    int dragging = 0;   ///< non-zero while the user drags the handle
    CV3 dir{0, 0, 1};   ///< the direction as a unit vector; Draw() makes it from #brg and #slope
    /** @} */

    /** Takes the bearing from the bound variable, unless that is missing data or not finite, and goes on as
     * every control does. */
    void Update(int arg) override;
    /** Writes the bearing into the bound variable. */
    void Retreive() override;
    /** Takes the focus. */
    int Press() override;
    /** Turns the bearing, clockwise for more: by the step, radians, or as the keys do. Not during a drag. */
    int Jog(int notches, double step, int fine) override;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

    /** Whether a point of the client area, in units, is on the handle: less than 5 from its middle, across
     * and down. The handle is where #dir has it, so after a change of #brg or #slope where it was until
     * drawn. */
    int OnHandle(CPoint pt);

protected:
    /** Takes the bearing from the bound variable, as Update() does. */
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSize(UINT how, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void Turn(double byBrg, double bySlope);
    bool HoldsAngle() const;
    void TakeBrg();
    void StoreBrg();
};
