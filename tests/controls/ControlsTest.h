#pragma once

#include "controls/CECtrl.h"
#include "controls/Canvas.h"
#include "controls/Listener.h"
#include "controls/WndTest.h"

/** The least that a control can be: one colour. */
class PlainCtrl : public CECtrl
{
public:
    void Draw(CDC* dc) override
    {
        ++draws;
        dc->FillSolidRect(ClientRc(), colour);
    }
    using CECtrl::GetTip;

    COLORREF colour = RGB(10, 200, 30);
    int draws = 0;
};

/** A hidden parent window of 400 x 300 pixels at 96 DPI for controls. */
class ControlsTest : public WndTest
{
protected:
    ControlsTest();
    ~ControlsTest() override;

    /** Shows the parent at (50, 50) of the screen, without the focus. */
    void ShowParent();
    /** Makes a window for the control where `rc` says. */
    void Open(CECtrl& ctrl, int dpi = 96);
    /** The client area as the control draws it. */
    static void DrawTo(CECtrl& ctrl, Canvas& canvas);

    CWnd parent;
};
