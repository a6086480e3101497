#pragma once

#include "controls/CECtrl.h"

class CVantWnd;

/** A control that somebody else draws: a member of any object, normally CVantWnd::DrawEWnd of the window that
 * the control is in. */
class VANT_API CEWnd : public CECtrl
{
    DECLARE_DYNAMIC(CEWnd)

public:
    /** A drawing member, cast to a member of CObject: the control, a device context that takes units, and the
     * client rectangle in units. */
    using DrawFn = void (CObject::*)(CEWnd*, CDC*, CRect&);

    CEWnd();

    CObject* pTarget = nullptr; ///< the object that draws; null: nobody. Not owned.
    DrawFn pfnDraw = nullptr;   ///< its member; null: nobody
    CString key;                ///< for the application: tells the controls of one window apart

    /** Lets `w` draw, through its DrawEWnd(). Null ends that. */
    void SetTarget(CVantWnd* w);
    using CEVal::SetCallback; ///< the callbacks of the value, beside the one that draws
    /** Lets a member of `target` draw. */
    void SetCallback(CObject* target, DrawFn fn);

    void Draw(CDC* dc) override;
};
