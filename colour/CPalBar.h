#pragma once

#include "colour/CColTbl.h"
#include "controls/CECtrl.h"

/** Shows a colour table as a bar, with the values that its colours stand for.
 *
 *  It lies with the first entry at the left and the values below it; a control that is higher than wide is
 * upright, with the first entry at the bottom and the values at the right. Every pixel of the bar has the
 * colour that CPal::GetCol() would give to the value there; CColTbl::reversed turns bar and values round.
 *
 *  Values are written as "%lg" at round numbers (Vant::NearestMkr()), as many as fit without touching each
 * other; with CEVal::units they are shown in the units of the system, without their label. A control that is
 * too small for the bar and its values shows the bar alone.
 *
 *  Table and variables are read whenever it is drawn: call Update() after a change. */
class VANT_API CPalBar : public CECtrl
{
    DECLARE_DYNAMIC(CPalBar)

public:
    CPalBar();

    using CECtrl::Init;
    /** Binds the bar to a table and to the values of its first and last entry, which must outlive it, and
     * copies the values. */
    void Init(CColTbl& colTbl, double& startVal, double& endVal);

    /** @name Fields */
    ///@{
    CColTbl* pTbl = nullptr;  ///< the table; null: an empty frame. Not owned.
    double* pStart = nullptr; ///< value of the first entry; null: #start is. Not owned.
    double* pEnd = nullptr;   ///< value of the last entry; null: #end is. Not owned.
    double start = 0.0;       ///< the bound value as it was at Init() or the last Update() or Draw()
    double end = 1.0;         ///< likewise
    int wrap = 0;             ///< as CPal::wrap
    /** @} */

    /** Takes the bound values and goes on as every control does. */
    void Update(int arg) override;
    /** Does nothing: there is nothing to read back. */
    void Retreive() override;
    void Draw(CDC* dc) override;

protected:
    afx_msg void OnSize(UINT how, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void TakeValues();
};
