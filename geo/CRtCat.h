#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "geo/CRoute.h"

#include <afx.h>

class CDsp;

/** A category of routes: a name, and the routes that it owns.
 *
 *  What its routes look like is the application's: it derives its categories from this class and replaces
 * DrawModel(), where each route is a matter of a few calls:
 *
 *      void CMyLines::DrawModel(CDsp& dsp)
 *      {
 *          glColor3f(1, 0.8F, 0.3F);
 *          glLineWidth(2);
 *          for (CVantPtr* pos = GetHeadPos(); pos;) {
 *              CRoute* const route = GetNext(pos);
 *              route->DwLineRt(dsp);
 *              route->DwMrkrs(dsp);
 *          }
 *      }
 *
 *  A copy has routes of its own. A copy of a database has plain categories, as every list has plain elements:
 * only the application could copy its own. */
class VANT_API CRtCat : public CLstMgd<CRoute>
{
public:
    CRtCat();
    CRtCat(const CRtCat& other);
    CRtCat& operator=(const CRtCat& other);
    ~CRtCat() override;

    /** @name What an application fills in, in this order */
    ///@{
    /** Draws the category's routes when the database draws itself (CRtDb::Draw). Nothing here. */
    virtual void DrawModel(CDsp& dsp);
    /** The mouse has done something in a view, and the application has told the database of it
     * (CRtDb::MouseEvent).
     *  @param msg  WM_MOUSEMOVE, WM_LBUTTONDOWN ...  @param flags  MK_LBUTTON ...
     *  @param pt  pixels of the view's client area: CDsp::Xy2Pt() has the place
     *  @return non-zero if that was all to be done about it; here 0 */
    virtual int MouseEvent(CDsp& dsp, UINT msg, UINT flags, CPoint pt);
    /** @} */

    /** Orders by name, as CRoute does. */
    int operator<(const CRtCat& other) const;

    CString name; ///< key of the category in its database, and what it is ordered by
};
