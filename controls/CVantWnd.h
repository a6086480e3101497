#pragma once

#include "controls/CCtrlCat.h"
#include "controls/CEFlex.h"
#include "core/CLstMgd.h"
#include "core/CLstPtr.h"

#include <afxmt.h>
#include <afxwin.h>

#include <memory>
#include <unordered_map>
#include <vector>

class CESet;
class CEWnd;
class CMdl;

namespace vant::detail
{
class LayoutPass;
class ScrollStrip;
} // namespace vant::detail

/** The base of every window of an application, and the library's message bus.
 *
 *  A window is a control category at the same time and owns more categories. It lays them out, fills its
 *  background, keeps flexible controls in step with its size, scrolls what is taller than it is, and takes
 * part in the five broadcasts that it registers for.
 *
 *  The object comes first, then its window (CreateWnd(), or CWnd::CreateEx() with Vant::wndClass). Controls
 * are inserted in between, or by SetupCtrls() while the window is created. The window may be destroyed and
 * created anew; the controls live as long as the object, or until DestroyCtrls(). Deleting an object whose
 * window is still there does not write to the variables any more: they may be gone already.
 *
 *  Broadcasts are synchronous: they run the handlers of all registered windows, in the order of registration,
 * on the caller's thread, and return when the last has returned. A handler may take its own window off the
 * list; taking another one off, or adding one, during a broadcast is not supported. A window registers itself
 * by appending itself to a receiver list, and must remove itself (RemoveAt(Find(this))) before it is
 * destroyed.
 *
 *  Keys: Tab and Shift+Tab go through the controls of the outermost platform window and of all platform
 * windows in it, and around: per window its own controls, those of its categories (the box of a section's
 * header first), then the windows in it, in the order of their construction. A window that is taller than its
 * content shows is scrolled by Page Up, Page Down, Home, End and the arrow keys while it has the focus
 * itself, by the wheel and by its scroll bar; Tab brings the next control into view. A window that is
 * activated again gives the focus back to the control that had it.
 *
 *  At another scale than 96 DPI all that is laid out in units follows (see CDpi). When the system reports a
 * new scale for a window, children that the layout does not place keep their place in units, and every window
 * inside gets WM_DPICHANGED_AFTERPARENT once, so that it may renew its fonts.
 *
 *  Windows belong to the UI thread; the lists are not locked. */
class VANT_API CVantWnd : public CWnd, public CCtrlCat
{
    DECLARE_DYNAMIC(CVantWnd)

public:
    /** Information message of a changed highlight; its data is the window. */
    static constexpr int hltInfo = 216;
    /** Private window message: a child's layout has changed. */
    static constexpr UINT layoutMsg = 5225;

    /** @name Lists, in order of registration. Not owned. */
    ///@{
    static CLstPtr<CVantWnd*> s_wnds;    ///< every window; each adds and removes itself
    static CLstPtr<CVantWnd*> s_trigRx;  ///< receivers of Trigger()
    static CLstPtr<CVantWnd*> s_pollRx;  ///< receivers of Poll()
    static CLstPtr<CVantWnd*> s_infoRx;  ///< receivers of InfoMsg()
    static CLstPtr<CVantWnd*> s_snsrRx;  ///< receivers of SnsrMsg()
    static CLstPtr<CVantWnd*> s_dataRx;  ///< receivers of DataMsg()
    static CLstPtr<CVantWnd*> s_hltWnds; ///< highlighted windows
    /** @} */
    /** Non-zero: no window takes the focus when the mouse moves over it. Otherwise the one under the mouse
     * does, unless the window that has it is a pop-up or has the style bit CECtrl::keepFocus. */
    static int s_inhibitFocus;

    CVantWnd();
    /** Deletes controls, categories and flexible records and leaves #s_wnds. Leaving the receiver lists is
     * the derived class's duty; one that forgot is taken off them here rather than called when it is gone. */
    ~CVantWnd() override;

    /** Creates the window, of the class Vant::wndClass. @param style  window style bits, WS_CHILD for a
     * child; WS_CLIPCHILDREN is added, and WS_VSCROLL taken away: the window scrolls with a bar of its own
     *  @param place  whole window with its frame, in the parent's client area or on the screen, units
     *  @param parent  parent of a child, owner of any other; may be null for these
     *  @param id  identifier of a child  @return TRUE, or FALSE if the system refuses */
    BOOL CreateWnd(const CString& title, DWORD style, const CRect& place, CWnd* parent = nullptr,
                   UINT id = 0);

    /** @name Fields */
    ///@{
    CString name;     ///< "Default"; the key of GetWnd() and of the settings
    CString topic;    ///< help topic
    int fixed = 300;  ///< size that the window's manager gives it, units
    int isFixed = 0;  ///< non-zero: an option gave #fixed
    int level = 1;    ///< user level at which the window shows its controls; persistent
    int mgrW = 300;   ///< width that the window's manager gives it, units
    int mgrH = 300;   ///< height that the window's manager gives it, units
    int mgrExtra = 0; ///< room to keep above the first section, units; at least what its own controls take
    CPoint org;       ///< origin of the categories, units; see SetWndOrg()
    int minW = 0;     ///< client width from which flexible controls grow, units; below 1: not at all
    int minH = 0;     ///< client height from which flexible controls grow, units
    int erasePending = 1;        ///< the next erasing of the background paints; later ones do nothing
    CMutex* pWndMutex = nullptr; ///< guards the values of the controls; null: no locking. Not owned.
    /** @} */

    /** @name Operations that a derived window may replace, in this order */
    ///@{
    /** Applies one option. Here: "Name", "Topic", "Level" and "Fixed" (integers); others are ignored, and so
     * is a number that does not scan. */
    virtual void SetOption(const CString& option, const CString& value);
    /** Called once, when the window is created for the first time: the place to set fields. Empty here. */
    virtual void SetDefaults();
    /** Called once after SetDefaults(): the place to insert controls. Empty here. */
    virtual void SetupCtrls();
    /** A trigger of the application; what the numbers mean is its own matter. Nothing here. */
    virtual void OnTrigger(double a, double b);
    /** A poll: time to show what is new. @param t  time of the poll, seconds since 1980 where the platform's
     * time base is used */
    virtual void OnPoll(double t);
    /** A message of information. @param data  belongs to the sender; valid during the call */
    virtual void OnInfoMsg(int msg, void* data);
    /** A message of a sensor, likewise. */
    virtual void OnSnsrMsg(int msg, void* data);
    /** A message about data, likewise. */
    virtual void OnDataMsg(int msg, void* data);
    /** A message of a drawable, likewise. */
    virtual void OnMdlMsg(CMdl* mdl, int msg, void* data);
    /** A window that this one is attached to (AttachWnd) has something to say. */
    virtual void OnNfyWnd(CVantWnd* sender, int msg, void* data);
    /** Draws a CEWnd whose target is this window. `r` is its client rectangle, units. */
    virtual void DrawEWnd(CEWnd* ctrl, CDC* dc, CRect& r);
    /** Draws the background: teal while highlighted. `dc` takes units. */
    virtual void Draw(CDC* dc);
    /** Updates the labels and texts, headers included, and no other control. */
    virtual void UpdateLabels();
    /** Puts the categories in their places: sections one under the other, below the window's own controls
     * and less the scroll offset. Unless `quiet`, posts #layoutMsg to the parent window of a child, which
     * answers by laying out again. Resizing lays out quietly. */
    virtual void LayoutWnd(int quiet);
    /** Moves the origin from which own controls and sections are laid out, and lays out. */
    virtual void SetWndOrg(CPoint origin);
    /** The help topic. */
    virtual CString GetTopic();
    /** @} */

    /** @name The category's operations, for the window's own controls and then for every owned category */
    ///@{
    void Settings(CESetObj& obj) override;
    void UpdCtrls() override;
    void ClearCtrls() override;
    void ShowLevel(int levelBits, int show) override;
    void LayoutCtrls(const CRect& client) override;
    void CreateCtrls() override;
    void DestroyCtrls() override;
    /** @} */

    /** @name Broadcasts */
    ///@{
    /** Calls OnTrigger() of every window that receives triggers. */
    static void Trigger(double a, double b);
    /** Calls OnPoll() of every window that receives polls. @param t  seconds since 1980, as a rule */
    static void Poll(double t);
    /** Calls OnInfoMsg() of every window that receives messages of information. */
    static void InfoMsg(int msg, void* data);
    /** Calls OnSnsrMsg() of every window that receives messages of sensors. */
    static void SnsrMsg(int msg, void* data);
    /** Calls OnDataMsg() of every window that receives messages about data. */
    static void DataMsg(int msg, void* data);
    /** @} */

    /** @name All windows */
    ///@{
    /** Updates the controls of every window and redraws it. */
    static void UpdateAllWnds();
    /** The first window with exactly this name; null if there is none. */
    static CVantWnd* GetWnd(const CString& name);
    /** Highlights a window and broadcasts #hltInfo if it is visible; nothing if it is highlighted already. */
    static void AddHlt(CVantWnd* wnd);
    /** Ends the highlight. A visible window is redrawn and #hltInfo broadcast even if it had none. */
    static void DelHlt(CVantWnd* wnd);
    /** The position in #s_hltWnds, or null. */
    static CVantPtr* IsHlt(CVantWnd* wnd);
    /** Stores every window's settings in the collection "VantWnds", each in an object named like the window
     * whose type is the name of the window's run-time class. */
    static void SaveSet(CESet& set);
    /** Gives every object of that collection, in the order of the file, to the first window of its name. Of
     * two windows with the same name the second is deliberately never restored. */
    static void LoadSet(CESet& set);
    /** @} */

    /** @name Categories */
    ///@{
    /** The category of that name, created if there is none; an existing one ignores the other arguments.
     *  Owned by the window. A stacked one has a header with its name and begins at GetMgrY(), indented.
     *  @param kindOf  CCtrlCat::Kind
     *  @param a  CCtrlCat::hasHdr: non-zero gives a category that is not stacked its name as header
     *  @param b  CCtrlCat::lvlMask; 0: the window's #level */
    CCtrlCat* GetCat(const CString& category, int kindOf, int a, int b);
    /** The categories, in the order of their creation. */
    const CLstMgd<CCtrlCat>& Cats() const noexcept { return m_cats; }
    /** @} */

    /** @name Listeners of this window */
    ///@{
    /** Adds a listener; one that listens already stays as it is. A window that is destroyed stops listening.
     */
    void AttachWnd(CVantWnd* wnd);
    /** Takes a listener off; nothing for one that does not listen. */
    void DetachWnd(CVantWnd* wnd);
    /** Calls OnNfyWnd(this, msg, data) of every attached window, in the order of attaching. */
    void NotifyWnd(int msg, void* data);
    /** @} */

    /** Applies the pairs of "name=value, name=value". White space around names and values is dropped. A pair
     * with an empty side or a name of more than 2,048 characters is skipped, a longer value is cut.
     * @param direct  non-zero: a derived class's SetOption() is passed by */
    void ParseOptions(const CString& options, int direct);

    /** @name Placement, units */
    ///@{
    /** Lays out and tells the parent, as LayoutWnd(0) does. */
    void LayoutWnd() { LayoutWnd(0); }
    /** Moves the origin (SetWndOrg()) sideways. */
    void SetWndX(int toX);
    /** Moves the origin up or down. */
    void SetWndY(int toY);
    /** Moves the origin. */
    void SetWndXY(int toX, int toY);
    /** Where the next section would begin: below the window's own height and all sections so far, less the
     * scroll offset. */
    int GetMgrY() const;
    /** @} */

    /** @name Scrolling, units
     *  While the content is taller than the client area the window has a vertical scroll bar, which is
     * drawn in the library's colours and narrows the client area like the system's own. Anchored categories
     * stay where they are. WM_VSCROLL scrolls like the bar, within the 16 bits that it has for a position.
     * @{ */
    /** How far the content is scrolled down. */
    int ScrollPos() const noexcept { return m_scrollY; }
    /** Scrolls as far as the content allows. */
    void ScrollTo(int toY);
    /** Scrolls as little as is needed to see a child, or a child of it, from top to bottom. */
    void ScrollIntoView(CWnd* child);
    /** The same in every platform window around the child, as Tab does. */
    static void ScrollAllIntoView(CWnd* child);
    /** @} */

    /** @name Keyboard */
    ///@{
    /** The control that Tab (with `back` Shift+Tab) goes to from `from`, a control or one of its children:
     * the next visible and enabled one with WS_TABSTOP in this window and the platform windows inside it,
     * going around. With `from` null or elsewhere the first (last) one; null if there is none. */
    CWnd* NextCtrl(CWnd* from, bool back);
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /** @} */

    /** @name Flexible children */
    ///@{
    /** One child that follows the window's size. */
    struct FlexRec {
        CWnd* child; ///< not owned
        CRect rc;    ///< its place when it was registered, units; of a control, in its category
        CEFlex flex; ///< shares of the window's growth
        bool isCtrl; ///< a control of one of the window's categories, which places it
    };
    /** Lets a child follow the growth of the window beyond #minW and #minH from its present place; again for
     * the same child: from its new place. The child must live as long as the window, or until
     * DestroyCtrls() deletes it. */
    void SetupFlex(CWnd* child, CEFlex flex);
    /** The record of a child, or null; valid until the next SetupFlex(). */
    FlexRec* GetFlex(CWnd* child);
    /** Moves every flexible child; nothing while #minW and #minH are both below 1. Resizing does it. */
    void UpdateFlex();
    /** @} */

    /** @name Drawing helpers; `dc` and `r` in units
     *  In the style of the window's own category, on one line in the middle of `r`, which then moves down by
     * its height: calls in a row write a list. @{ */
    /** Text at the left, with an ellipsis where it is too long. */
    void StdTxt(CDC* dc, CRect& r, const CString& text);
    /** A name at the left and a value at the right. @param split  width of the name's column */
    void DualTxt(CDC* dc, CRect& r, int split, const CString& left, const CString& right);
    /** @} */

    /** Redraws window, controls and windows inside at once. */
    void RedrawWnd();

    /** Guards the values of the controls, those that exist and those to come. Null ends that. Not owned. */
    void SetMutex(CMutex* mutex);

    /** The scale of the window. */
    CDpi Dpi() const { return CDpi::Of(m_hWnd); }
    /** The client rectangle in units. */
    CRect ClientRc() const;

    /** Takes the change of a section's box: lays out. */
    void OnSection();

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnActivate(UINT activation, CWnd* other, BOOL isMinimized);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg LRESULT OnLayoutMsg(WPARAM, LPARAM);
    afx_msg LRESULT OnDpiChanged(WPARAM dpi, LPARAM suggested);
    afx_msg LRESULT OnNewScale(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    friend class CCtrlCat;

    template <class Visit>
    void ForEachCat(Visit visit)
    {
        visit(static_cast<CCtrlCat&>(*this));
        for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
            visit(*m_cats.GetNext(pos));
    }
    int OwnHeight() const;
    int ContentHeight() const;
    void StackCats();
    void PlaceCats();
    void UpdateScrollBar();
    CSize Growth() const;
    bool IsFlexing() const noexcept { return minW >= 1 || minH >= 1; }
    void AddFlex(const FlexRec& rec);
    void DropFlex(const CLstPtr<CECtrl*>& gone);
    void ScaleOtherChildren(const CDpi& from, const CDpi& to);
    void AppendStops(std::vector<HWND>& stops);
    bool IsOwnCtrl(HWND child) const;
    CVantWnd* OutermostWnd();
    void Unbind();

    CLstMgd<CCtrlCat> m_cats;
    CLstPtr<CVantWnd*> m_attached;
    std::vector<FlexRec> m_flex;
    std::unordered_map<const CWnd*, std::size_t> m_flexAt; // index in m_flex
    vant::detail::LayoutPass* m_pass = nullptr;            // the layout that is going on
    std::unique_ptr<vant::detail::ScrollStrip> m_strip;    // never null
    HWND m_lastFocus = nullptr; // the child that had the focus when the window was last left
    int m_scrollY = 0;
    int m_wheel = 0; // of a notch, not yet scrolled
    bool m_scrolls = false;
    bool m_isSetUp = false;
    int m_listensTo = 0; // windows that this one is attached to
};
