#pragma once

#include "core/CLstPtr.h"
#include "core/VantApi.h"
#include "display/CDspMtrl.h"
#include "display/detail/PresetMtrls.h"

class CDsp;
class CEMenu;
class CESetObj;
class CMat;
class CV3;
class CVantWnd;
struct CDspMHit;
struct CLegInf;
struct CMdlInf;

/** The base of everything that a display draws.
 *
 *  A drawable is known to the display group (CDsp::s_pDspGrp), if there is one, from its construction to its
 *  destruction, and so to every view. Whoever changes it says so with ModelChanged(); the views then draw
 * anew at the next poll. Windows that want to hear about it register here and must deregister before they go.
 *
 *  Drawables belong to the UI thread. */
class VANT_API CMdl
{
public:
    /** The twenty preset materials, in the order of their table: "Brass" to the second "Black Rubber". An
     * application may change them. */
    static vant::detail::PresetTable& s_defaultMtrl;

    /** A drawable with the default material, visible, selectable and lit. */
    CMdl();
    /** Copy material and flags. A copy is a drawable of its own: it is known to the group, and no window is
     * registered; assignment leaves the windows as they are. */
    CMdl(const CMdl& other);
    CMdl& operator=(const CMdl& other);

    /** @name Operations of a drawable, in this order */
    ///@{
    /** Leaves the group, and every CMdlPos that it follows. */
    virtual ~CMdl();
    /** Exchanges the material's items and "Visible", "Selectable" and "Lit". */
    virtual void Settings(CESetObj& obj);
    /** Draws itself into a display, whose context is current and whose coordinates are set up. */
    virtual void Draw(CDsp& dsp) = 0;
    /** Tells about itself; the fields have their default values before. */
    virtual void GetInf(CMdlInf& inf) = 0;
    /** Adds entries to the menu that a display opens on the drawable. @return how many; none here */
    virtual int OnMenu(CDsp& dsp, CEMenu& menu);
    /** Draws the section view of the drawable as a model. Nothing here. */
    virtual void DrawSectionAsModel(CDsp& dsp);
    /** A CMdlPos that this drawable follows has a message: CMdlPos::moved, with the source of the change.
     * Nothing here. */
    virtual void OnMdlPos(int msg, void* data);
    /** Offers the drawable's own place: transform, origin and size, display coordinates.
     *  @return non-zero if there is one; here 0, and the arguments stay as they are */
    virtual int GetMdlOrg(CMat& mat, CV3& org, double& size);
    /** Adds what the drawable has to say about a point, display coordinates. The entries stay the drawable's,
     * valid until it is asked again or changes. None here. */
    virtual void LegInf(CDsp* dsp, const CV3& pt, CLstPtr<CLegInf*>& infs);
    /** A pick in a view has hit this drawable; `hit` is complete, with the name of GetInf() as its text, and
     * may be made to tell of the part. Nothing here. */
    virtual void OnHit(CDsp& dsp, CDspMHit& hit);
    /** @} */

    /** Registers a window for SendWndMsg(), unless it is registered already. */
    void RegWnd(CVantWnd* wnd);
    /** Ends that; nothing for a window that is not registered. */
    void DeRegWnd(CVantWnd* wnd);
    /** Calls CVantWnd::OnMdlMsg() of every registered window, in the order of registration. A handler may
     * deregister its own window. @param data  belongs to the caller; valid during the call */
    void SendWndMsg(int msg, void* data);

    /** Tells the display group, if there is one, that the drawable has changed.
     *  @param what  the drawable's own number of the change, 0 or more; views get it */
    void ModelChanged(int what);

    /** Turns the current OpenGL matrix so that what pointed along `from` points along `to`, by the shortest
     * way. Lengths do not matter. Opposite vectors are half a turn about some axis across them; parallel ones
     * (within ML::threshold, radians), and one of no length, change nothing. */
    static void RotateVectorToVector(const CV3& from, const CV3& to);

    CDspMtrl mtrl; ///< for drawables that bring no material of their own

private:
    CLstPtr<CVantWnd*> m_wnds; // not owned

public:
    /** @name Persistent flags, for whoever draws and picks; after a change call ModelChanged() */
    ///@{
    int visible = 1;    ///< non-zero: to be drawn
    int selectable = 1; ///< non-zero: a pick may hit it
    int lit = 1;        ///< non-zero: to be drawn with lighting
    /** @} */
};
