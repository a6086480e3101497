#pragma once

#include "core/CLstMgd.h"
#include "core/CV3.h"
#include "core/VantApi.h"
#include "geo/CArProcTgt.h"

#include <afx.h>

/** An area of the chart: a name, vertices in their order and the numbers that its shape needs.
 *
 *  The library keeps, copies and draws areas; it does not interpret them. The operations that ask about the
 * shape are deliberately placeholders, in every kind (CArKinds.h): nothing lies inside any area, and every
 * range is 0. An application fills them in in classes of its own:
 *
 *      class CMyCircle : public CArCircle
 *      {
 *      public:
 *          using CArea::Inside; // also the one that takes a vector
 *          int Inside(double x, double y) override { return ML::Hypot(x - par[0], y - par[1]) <= par[2]; }
 *      };
 *
 *  Copies are deep: vertices, name and all numbers, bit for bit. UI thread only. */
class VANT_API CArea : public CLstMgd<CV3>
{
public:
    /** No vertices, no name, all numbers 0. */
    CArea();
    CArea(const CArea& other);
    CArea& operator=(const CArea& other);

    CString name; ///< for the application

    /** @name Numbers of the shape. No operation of the library reads them */
    ///@{
    double lower = 0; ///< the height from which the area applies, metres; the same as #upper: at every height
    double upper = 0; ///< the height up to which it applies, metres
    /** What they mean for each kind is a convention that stands with the kind. */
    double par[8] = {};
    /** @} */

    /** @name What an application fills in, in this order */
    ///@{
    /** Nothing to clean up here. */
    ~CArea() override;
    /** Works a target off against the area. Nothing here.
     *  @param tgt  who asks  @param x,y  the target's place
     *  @param callback  member function of tgt.receiver that takes what came of it */
    virtual void ProcTgt(const CArProcTgt& tgt, double x, double y, void (CObject::*callback)(double));
    /** Whether a point lies in the area. @return non-zero if so; here 0 for every point */
    virtual int Inside(double x, double y);
    /** @} */

    /** The same for a vector, as seen from above: asks the other one. */
    int Inside(const CV3& pt) { return Inside(pt.x, pt.y); }

    /** How far it is from a point, in the direction of another one, to the area's edge. Here 0; deliberately
     * not virtual. */
    double RngToBound(const CV3& from, const CV3& to);
    /** The same to the area's next vertex. */
    double RngToNode(const CV3& from, const CV3& to);
};
