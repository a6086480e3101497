#pragma once

#include "core/CLstMgd.h"
#include "display/CMdl.h"
#include "geo/CArCat.h"

/** The areas of an application, by category: a drawable of the 3D display.
 *
 *  It draws each area's vertices in the diffuse colour of its material, joined in their order, and the last
 * one to the first unless they are a corridor's; what has no vertices is not seen. After a change call
 * ModelChanged(). An application that knows its areas' shapes derives a database of its own and replaces
 * Draw(). A copy is a drawable of its own with areas of its own. */
class VANT_API CArDb : public CMdl, public CLstMgd<CArCat>
{
public:
    CArDb();
    CArDb(const CArDb& other);
    CArDb& operator=(const CArDb& other);
    ~CArDb() override;

    /** A pick gets the area's number as its part: from 0 through all categories, in their order. */
    void Draw(CDsp& dsp) override;
    /** "Areas", with the extents of all vertices. */
    void GetInf(CMdlInf& inf) override;
    /** The text becomes the area's name, if it has one. */
    void OnHit(CDsp& dsp, CDspMHit& hit) override;
};
