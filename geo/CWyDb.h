#pragma once

#include "core/CLstMgd.h"
#include "display/CMdl.h"
#include "geo/CWyCat.h"

/** The waypoints of an application, by category: a drawable of the 3D display.
 *
 *  It draws each waypoint as a diamond, of the same size however far the view zooms, in the diffuse colour of
 * its material. After a change call ModelChanged(). A copy is a drawable of its own with waypoints of its
 * own.
 */
class VANT_API CWyDb : public CMdl, public CLstMgd<CWyCat>
{
public:
    CWyDb();
    CWyDb(const CWyDb& other);
    CWyDb& operator=(const CWyDb& other);
    ~CWyDb() override;

    /** A pick gets the waypoint's number as its part: from 0 through all categories, in their order. */
    void Draw(CDsp& dsp) override;
    /** "Waypoints", with the extents of all of them. */
    void GetInf(CMdlInf& inf) override;
    /** The text becomes the name of the category, if it has one. */
    void OnHit(CDsp& dsp, CDspMHit& hit) override;
};
