#pragma once

#include "core/CLstMgd.h"
#include "display/CMdl.h"
#include "geo/CRtCat.h"

/** The routes of an application, by category: a drawable of the 3D display, which lets its categories draw
 * themselves and hands the mouse on to them. After a change call ModelChanged(). A copy is a drawable of its
 * own with routes of its own. */
class VANT_API CRtDb : public CMdl, public CLstMgd<CRtCat>
{
public:
    CRtDb();
    CRtDb(const CRtDb& other);
    CRtDb& operator=(const CRtDb& other);
    ~CRtDb() override;

    /** CRtCat::DrawModel() of each category, in their order, each with the colour of the material and
     * OpenGL's settings as they were. A pick gets the category's number, from 0, as its part, unless the
     * category gives numbers of its own (glLoadName()). */
    void Draw(CDsp& dsp) override;
    /** "Routes", with the extents of all nodes. */
    void GetInf(CMdlInf& inf) override;

    /** Hands what the mouse has done in a view to the categories, in their order, until one has done all to
     * be done about it. Views do not call this: an application does, in its view's handlers, before it calls
     * those of CDsp.
     *  @return what the category gave; 0 if none did */
    int MouseEvent(CDsp& dsp, UINT msg, UINT flags, CPoint pt);
};
