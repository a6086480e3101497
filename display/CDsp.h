#pragma once

#include "display/CGLWnd.h"

class CDspGrp;
class CMdl;

/** A view of the drawables: drawn anew at a poll, when something has asked for it. A derived class draws the
 * scene in Render(). */
class VANT_API CDsp : public CGLWnd
{
    DECLARE_DYNCREATE(CDsp)

public:
    /** The context that all 3D windows share their lists and textures with, so that these outlive each single
     * window; null until the first one is created. Owned by the class. */
    static HGLRC s_sharedRC;

    /** Makes the shared context, unless it is there: called by every 3D window that is created.
     *  @param hdc  of a window, which thereby gets the pixel format of 3D windows. It may go before the
     * context. */
    static void InitLists(HDC hdc);

    /** Deletes the shared context, and with it every list and texture that was made in any 3D window: for the
     * end of an application, after its last 3D window. Vant::Exit() does it. A window that is created
     * afterwards begins anew. */
    static void ReleaseLists();

    /** The display group of the process, which drawables and views register with when they are constructed;
     * null without one. The first CDspGrp sets it, and takes itself away. Not owned. */
    static CDspGrp* s_pDspGrp;

    /** Joins the display group, if there is one. */
    CDsp();
    /** Leaves the group, and every CMdlPos that it follows. */
    ~CDsp() override;

    /** @name Operations that a derived view may replace, in this order @{ */
    /** Draws the view now; what was asked for with NeedDraw() is done then. */
    void Draw(CDC* dc) override;
    /** A drawable has changed: here the view asks to be drawn.
     *  @param mdl  while it is added or removed (CDspGrp::Change) no operation of it may be called
     *  @param what  the drawable's number of the change, or a CDspGrp::Change */
    virtual void OnMdlUpdated(CMdl* mdl, int what);
    /** A CMdlPos that this view follows has a message: CMdlPos::moved, with the source of the change. Here
     * the view asks to be drawn. */
    virtual void OnMdlPos(int msg, void* data);
    /** @} */

    /** Asks for the view to be drawn: at the next poll, once, however often this is called until then. A view
     * without a group is drawn as soon as its window has no other messages. */
    void NeedDraw();
    /** Non-zero: the view was asked to be drawn and has not been since. */
    int IsDrawNeeded() const noexcept { return m_needsDraw; }
    /** Draws at once if it was asked for and the window is visible. A hidden window is drawn when it is
     * shown. */
    void DrawIfNeeded();

private:
    friend class CDspGrp;

    CDspGrp* m_grp = nullptr;
    bool m_needsDraw = false;
};
