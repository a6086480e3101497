#pragma once

#include "display/CDspCam.h"
#include "display/CDspLight.h"
#include "display/CGLWnd.h"

#include <memory>
#include <optional>

class CDspGrp;
class CDspMInf;
class CEMenu;
class CMdl;
class CMdlPos;

namespace vant::detail
{
class TakenPlaces;
class ViewGeometry;
struct SelectHit;
struct TextPlace;
struct ViewBox;
struct ViewState;
} // namespace vant::detail

/** A view of the drawables of the display group: a chart from above, or a scene around which the user turns.
 *
 *  It is drawn anew at a poll when something has changed (NeedDraw()), and at once when the user moves it. A
 * derived view replaces DrawScene() to draw something else, DrawOverlay() to put instruments over it, and
 * OnPick() to hear what the user points at.
 *
 *  **Coordinates.** The display is in metres: x east, y north, z up. A drawable's operations draw in these
 * directly, but OpenGL has seven digits: millions of metres from zero it puts points half a metre off. What
 * has to be exact there draws between PushOrg() and PopOrg(), which lets coordinates count from a point
 * nearby. Positions in the view are pixels of the client area from its upper left corner, as mouse messages
 * have them.
 *
 *  **Mouse.** The left button does what #mouseMode says; in any mode the middle button pans, the right one
 * turns, the wheel zooms about the mouse (with Ctrl in fine steps), and a double click moves the place to the
 * middle (in pick mode it picks). While panning, what was taken hold of stays under the mouse. A right click
 * without moving picks, and opens the menu of what is there. Esc during a drag puts everything back.
 *
 *  **Keys.** P, Z, R, S: pan, zoom, rotate, select (pick). Arrows pan by a tenth of the view (Shift: a
 * hundredth); in rotate mode, or with Ctrl, they turn by 5 degrees (Shift: half); in zoom mode up and down
 * zoom. + and - zoom, Home shows everything, N is north up, C course up, V changes between chart and scene, G
 * switches the graticule. In pick mode Enter or Space picks what is in the middle; the menu key and Shift+F10
 * do so for a menu in every mode.
 *
 *  **Positions.** A view follows one CMdlPos (Follow()): its axes that it controls move the view, and what
 * the user changes here is passed on to it where it allows that, or is not done. An axis that it does not
 * control is the user's. */
class VANT_API CDsp : public CGLWnd
{
    DECLARE_DYNCREATE(CDsp)

public:
    /** What the left button does. */
    enum MouseMode {
        mousePan,    ///< drag moves what is seen
        mouseZoom,   ///< drag up to see more detail, down for less, about where the drag began
        mouseRotate, ///< the chart turns around its middle; the orbit camera turns and tilts
        mousePick    ///< a click picks; dragging pans
    };
    /** What is up in the view. */
    enum Up {
        upNorth,  ///< north; a followed alignment does not turn the view
        upCourse, ///< the course: the followed alignment, or what SetCourse() gave
        upFree    ///< what the user turned it to; a followed alignment does not turn the view
    };
    /** What asked for a pick. */
    enum PickHow {
        pickClick,    ///< left click in pick mode, Enter or Space
        pickDblClick, ///< left double click in pick mode, after its click
        pickMenu      ///< right click, menu key
    };
    static constexpr int lightCount = 8; ///< as many as every driver has

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

    /** Joins the display group, if there is one. North up, with one light from the upper left. */
    CDsp();
    /** Leaves the group, and every CMdlPos that it follows. */
    ~CDsp() override;

    /** @name Operations that a derived view may replace, in this order */
    ///@{
    /** Draws the view now; what was asked for with NeedDraw() is done then. */
    void Draw(CDC* dc) override;
    /** Draws background, lights, DrawScene(), graticule and DrawOverlay(). A view of nothing (0 pixels) is
     * not drawn. */
    void Render() override;
    /** A drawable has changed: here the view asks to be drawn.
     *  @param mdl  while it is added or removed (CDspGrp::Change) no operation of it may be called
     *  @param what  the drawable's number of the change, or a CDspGrp::Change */
    virtual void OnMdlUpdated(CMdl* mdl, int what);
    /** A CMdlPos that this view follows has a message: CMdlPos::moved, with the source of the change. Here
     * the view takes over what that position controls, and asks to be drawn. */
    virtual void OnMdlPos(int msg, void* data);
    /** Whether the view shows a drawable, and picks it. Here: CMdl::visible. */
    virtual int Shows(const CMdl& mdl);
    /** Sends #lights to OpenGL. The current coordinates are those of the eye (x right, y up, z towards the
     * eye), or the display's with #lightsInScene. */
    virtual void SetupLights();
    /** Draws the scene in display coordinates, with depth and lights. Here: the drawables of the group that
     * the view Shows(), in their order, each with OpenGL's settings as at the beginning, with its own
     * material, and lit if it wants that. Also called while picking: see IsPicking(). */
    virtual void DrawScene();
    /** Draws over the scene. The coordinates are units of 1/96 inch from the lower left corner, to
     * OverlaySize(). Here: the labels of Label() and of the graticule, north arrow and scale bar. */
    virtual void DrawOverlay();
    /** The user has picked; `inf` is valid during the call. Nothing here. @param how  PickHow */
    virtual void OnPick(CDspMInf& inf, int how);
    /** Fills the menu that opens after a pick for one (pickMenu), once OnPick() has heard of it; an empty one
     * does not open. Here: what each drawable that was hit adds (CMdl::OnMenu), nearest first, with lines
     * between. The menu closes without a choice when a drawable of the group goes. */
    virtual void OnMenu(CDspMInf& inf, CEMenu& menu);
    /** The camera has changed, by whatever it was. Nothing here. */
    virtual void OnCam();
    /** The window's, then the camera, "Follow", "Up", "MouseMode" and the switches. */
    void Settings(CESetObj& obj) override;
    /** @} */

    /** @name Camera */
    ///@{
    /** The camera as it is now. */
    const CDspCam& Cam() const noexcept { return m_cam; }
    /** Sets what is valid in it (CDspCam::Take). For the application: a followed position is not told.
     * Another alignment makes it up free. */
    void SetCam(const CDspCam& cam);
    /** Moves the camera to a place: CDspCam::org. */
    void SetViewOrg(const CV3& at);
    void SetZoom(double metres); ///< sets CDspCam::zoom
    /** Shows a place and its surroundings: the origin of one drawable, where it has one (CMdl::GetMdlOrg), or
     * its extents; with null everything that the view shows.
     *  @return 0, and the camera stays, if nothing is known of it */
    int ShowMdl(CMdl* mdl);

    /** What is up, Up. */
    int GetUp() const noexcept { return m_up; }
    /** North up turns to north, course up to the course. @param up  Up */
    void SetUp(int up);
    /** The course that is up in course up, unless a followed position controls the alignment. @param course
     * radians */
    void SetCourse(double course);

    /** Metres of the display that a pixel is, at the origin; 0 for a view of nothing. */
    double PxSize() const;
    /** The point of the display under a position: of the horizontal plane through the origin. The orbit
     * camera finds none above the horizon. @return non-zero, or 0 and `pt` stays */
    int Xy2Pt(double x, double y, CV3& pt) const;
    /** The position of a point in the view, which may be outside of it. @return non-zero, or 0 for a point
     * that is behind the eye, and then x and y stay */
    int Pt2Xy(const CV3& pt, double& x, double& y) const;
    /** @} */

    /** @name Following a position
     *  @{ */
    /** Follows the position of this name from now on, in place of the one before, and takes over what it
     * controls; an empty name ends that. A position that is not there yet is looked for at every poll.
     * @return non-zero if it was found */
    int Follow(const CString& posName);
    /** Follows a position that is there; null ends that. It may be destroyed at any time. */
    void Follow(CMdlPos* pos);
    /** The position that is followed, or null. */
    CMdlPos* Followed() const noexcept { return m_pos; }
    /** @} */

    /** @name Picking */
    ///@{
    /** Finds everything that is drawn within a few pixels of a position, also what is hidden behind something
     * else: one hit for each part of a selectable drawable, the nearest first. The part is the number that
     * the drawable gave to glLoadName() before it drew it, 0 at first. The hit's text is the drawable's name,
     * or what CMdl::OnHit() makes of it.
     *  @return the number of hits; 0 before the window is created */
    int Pick(double x, double y, CDspMInf& inf);
    /** Non-zero while a drawable draws for a pick: colours do not matter then, and what is not to be picked
     * is not to be drawn. */
    int IsPicking() const noexcept;
    /** @} */

    /** @name Drawing aids, while the scene is drawn */
    ///@{
    /** Lets the coordinates of what is drawn count from a point, exactly however far away that is. Calls may
     * be nested; each counts from zero of the display. In place of the current matrix until PopOrg(). */
    void PushOrg(const CV3& at);
    /** Ends the last PushOrg(), and restores the matrix. */
    void PopOrg();
    /** Writes a text at a point when the scene is complete, so that nothing covers it. Not while picking.
     *  @param dx,dy  from the point, units of 1/96 inch, right and up  @param align  sum of TextAlign */
    void Label(const CV3& pt, const CString& text, COLORREF colour, double dx = 0, double dy = 0,
               int align = alignLeft | alignMiddle);
    /** @} */

    /** @name Drawing aids, in DrawOverlay() */
    ///@{
    /** Width and height of the view, units of 1/96 inch. */
    CV3 OverlaySize() const;
    /** Writes a text, sharp at every scale, with the characters up to U+00FF; others are question marks.
     *  @param size  height of the font's cell, units  @param align  sum of TextAlign */
    void OverlayTxt(double x, double y, const CString& text, COLORREF colour, double size = 14,
                    int align = alignLeft | alignBaseline);
    /** Width of a text in units. */
    double OverlayTxtWidth(const CString& text, double size = 14) const;
    /** @} */

    /** @name Fields; after a change call NeedDraw() */
    ///@{
    CDspLight lights[lightCount]; ///< GL_LIGHT0 to 7; the first one is on
    int lightsInScene = 0;    ///< non-zero: lights stand still in the display; else they move with the eye
    int graticule = 1;        ///< lines at round coordinates, Vant::NextMkr() apart
    int northArrow = 1;       ///< non-zero: an arrow to the north
    int scaleBar = 1;         ///< non-zero: a bar of a round length
    int mouseMode = mousePan; ///< MouseMode
    COLORREF backCol;         ///< of the background; black with a trace of Vant::back
    /** @} */

    /** Asks for the view to be drawn: at the next poll, once, however often this is called until then. A view
     * without a group is drawn as soon as its window has no other messages. */
    void NeedDraw();
    /** Non-zero: the view was asked to be drawn and has not been since. */
    int IsDrawNeeded() const noexcept { return m_needsDraw; }
    /** Draws at once if it was asked for and the window is visible. A hidden window is drawn when it is
     * shown. */
    void DrawIfNeeded();

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnContextMenu(CWnd* wnd, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnCancelMode();
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    friend class CDspGrp;
    friend class CMdlPos;

    vant::detail::ViewGeometry Geometry() const;
    vant::detail::ViewGeometry SceneGeometry(double width, double height);
    void Apply(const CDspCam& cam);
    void ApplyByUser(const CDspCam& cam);
    void TakeFrom(const CMdlPos& pos);
    void PosGone(const CMdlPos& pos) noexcept;
    void AskDraw();
    void AskDrawSoon();
    void FindPos();
    double Course() const;
    const CLstPtr<CMdl*>* Mdls() const;
    std::optional<vant::detail::ViewBox> ShownBox(bool& isWhole);
    int PlaceOf(CMdl* mdl, CV3& at, double& size);
    bool FitTo(CMdl* mdl, CDspCam& cam);
    void DrawMdl(CMdl& mdl);
    double OverlayScale() const;
    double GridSpacing() const;
    int TextPx(double size) const;
    void BeginOverlay();
    void DrawGraticule();
    void DrawPlanGrid();
    void DrawGroundGrid();
    void DrawLabels();
    void DrawGridTexts(vant::detail::TakenPlaces& taken);
    void DrawNorthArrow(vant::detail::TakenPlaces& taken);
    void DrawScaleBar(vant::detail::TakenPlaces& taken);
    void DrawPlate(const vant::detail::TextPlace& place);
    static CString ScaleText(double metres);
    void BeginDrag(int mode, UINT button, CPoint point);
    bool EndDrag(UINT button);
    void DragTo(CPoint point);
    void TurnAround(CPoint from, CPoint to);
    void TurnBy(double turn, double rise);
    void ZoomBy(double factor, double x, double y);
    void PanBy(double right, double up);
    void PickFor(int how, double x, double y);
    void PickMiddle(int how);
    void OpenMenu(CDspMInf& inf, CPoint screenPt);
    void CancelMenu();
    void TakeHit(const vant::detail::ViewGeometry& geometry, double x, double y,
                 const vant::detail::SelectHit& found, CDspMInf& inf);
    bool OnModeKey(UINT key);
    bool OnMoveKey(UINT key);

    CDspGrp* m_grp = nullptr;
    bool m_needsDraw = false;
    int m_up = upNorth;
    double m_course = 0;
    CDspCam m_cam;
    CMdlPos* m_pos = nullptr; // tells when it goes
    CString m_posName;
    bool m_seeksPos = false;                          // by its name, should it not be there
    std::unique_ptr<vant::detail::ViewState> m_state; // never null
};
