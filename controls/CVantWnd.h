#pragma once

#include "controls/CCtrlCat.h"
#include "controls/CEFlex.h"
#include "core/CLstMgd.h"
#include "core/CLstPtr.h"

#include <afxmt.h>
#include <afxwin.h>

#include <vector>

class CESet;
class CEWnd;
class CMdl;

/** The base of every window of an application, and the library's message bus.
 *
 *  A window is a control category at the same time and owns more categories. It lays them out, fills its
 *  background, keeps flexible controls in step with its size, scrolls what is taller than it is, and takes
 * part in the five broadcasts that it registers for.
 *
 *  Broadcasts are synchronous: they run the handlers of all registered windows, in the order of registration,
 * on the caller's thread, and return when the last has returned. A handler may take its own window off the
 * list; taking another one off, or adding one, during a broadcast is not supported. A window registers itself
 * by appending itself to a receiver list, and must remove itself (RemoveAt(Find(this))) before it is
 * destroyed.
 *
 *  Windows belong to the UI thread; the lists are not locked. */
class VANT_API CVantWnd : public CWnd, public CCtrlCat
{
    DECLARE_DYNAMIC(CVantWnd)

public:
    static constexpr int hltInfo =
        216; ///< information message of a changed highlight; its data is the window
    static constexpr UINT layoutMsg = 5225; ///< private window message: a child's layout has changed

    /** @name Lists, in order of registration. Not owned. @{ */
    static CLstPtr<CVantWnd*> s_wnds;    ///< every window; each adds and removes itself
    static CLstPtr<CVantWnd*> s_trigRx;  ///< receivers of Trigger()
    static CLstPtr<CVantWnd*> s_pollRx;  ///< receivers of Poll()
    static CLstPtr<CVantWnd*> s_infoRx;  ///< receivers of InfoMsg()
    static CLstPtr<CVantWnd*> s_snsrRx;  ///< receivers of SnsrMsg()
    static CLstPtr<CVantWnd*> s_dataRx;  ///< receivers of DataMsg()
    static CLstPtr<CVantWnd*> s_hltWnds; ///< highlighted windows
    /** @} */
    static int s_inhibitFocus; ///< non-zero: no window takes the focus when the mouse moves over it

    CVantWnd();
    ~CVantWnd() override;

    /** @name Fields @{ */
    CString name;         ///< "Default"; the key of GetWnd() and of the settings
    CString topic;        ///< help topic
    int fixed = 300;      ///< size that the window's manager gives it, units
    int isFixed = 0;      ///< non-zero: an option gave #fixed
    int level = 1;        ///< user level at which the window shows its controls; persistent
    int mgrW = 300;       ///< width that the window's manager gives it, units
    int mgrH = 300;       ///< height that the window's manager gives it, units
    int mgrExtra = 0;     ///< more room above the first category, units
    CPoint org;           ///< origin of the categories, units
    int minW = 0;         ///< client width from which flexible controls grow, units; below 1: not at all
    int minH = 0;         ///< client height from which flexible controls grow, units
    int erasePending = 1; ///< the next erasing of the background paints; later ones do nothing
    CMutex* pWndMutex = nullptr; ///< guards the values of the controls; null: no locking. Not owned.
    /** @} */

    /** @name Operations that a derived window may replace, in this order @{ */
    /** Applies one option. Here: "Name", "Topic", "Level" and "Fixed" (integers); others are ignored, and so
     * is a number that does not scan. */
    virtual void SetOption(const CString& option, const CString& value);
    virtual void SetDefaults();
    /** Called when the window has been created: the place to insert controls. */
    virtual void SetupCtrls();
    virtual void OnTrigger(double a, double b);
    /** @param t  time of the poll, seconds since 1980 where the platform's time base is used */
    virtual void OnPoll(double t);
    /** @param data  belongs to the sender; valid during the call */
    virtual void OnInfoMsg(int msg, void* data);
    virtual void OnSnsrMsg(int msg, void* data);
    virtual void OnDataMsg(int msg, void* data);
    virtual void OnMdlMsg(CMdl* mdl, int msg, void* data);
    /** A window that this one is attached to (AttachWnd) has something to say. */
    virtual void OnNfyWnd(CVantWnd* sender, int msg, void* data);
    /** Draws a CEWnd whose target is this window. `r` is its client rectangle, units. */
    virtual void DrawEWnd(CEWnd* ctrl, CDC* dc, CRect& r);
    /** Draws the background: teal while highlighted. `dc` takes units. */
    virtual void Draw(CDC* dc);
    virtual void UpdateLabels();
    /** Puts the categories in their places; unless `quiet`, tells the parent window with #layoutMsg. */
    virtual void LayoutWnd(int quiet);
    virtual void SetWndOrg(CPoint origin);
    /** The help topic. */
    virtual CString GetTopic();
    /** @} */

    /** @name The category's operations, for the window's own controls and then for every owned category @{ */
    void Settings(CESetObj& obj) override;
    void UpdCtrls() override;
    void ClearCtrls() override;
    void ShowLevel(int levelBits, int show) override;
    void LayoutCtrls(const CRect& client) override;
    void CreateCtrls() override;
    void DestroyCtrls() override;
    /** @} */

    /** @name Broadcasts @{ */
    static void Trigger(double a, double b);
    static void Poll(double t);
    static void InfoMsg(int msg, void* data);
    static void SnsrMsg(int msg, void* data);
    static void DataMsg(int msg, void* data);
    /** @} */

    /** @name All windows @{ */
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
    /** Stores every window's settings in the collection "VantWnds", each in an object named like the window.
     */
    static void SaveSet(CESet& set);
    /** Gives every object of that collection to the first window of its name. Of two windows with the same
     * name the second is deliberately never restored. */
    static void LoadSet(CESet& set);
    /** @} */

    /** @name Categories @{ */
    /** The category of that name, created if there is none; an existing one ignores the other arguments.
     *  Owned by the window. @param kindOf  CCtrlCat::Kind  @param a  non-zero: it has a header
     *  @param b  level mask; 0: the window's level */
    CCtrlCat* GetCat(const CString& catName, int kindOf, int a, int b);
    const CLstMgd<CCtrlCat>& Cats() const noexcept { return m_cats; }
    /** @} */

    /** @name Listeners of this window @{ */
    void AttachWnd(CVantWnd* wnd);
    void DetachWnd(CVantWnd* wnd);
    /** Calls OnNfyWnd(this, msg, data) of every attached window, in the order of attaching. */
    void NotifyWnd(int msg, void* data);
    /** @} */

    /** Applies the pairs of "name=value, name=value". White space around names and values is dropped, and a
     * pair with an empty side is skipped. With `direct` a derived class's SetOption() is passed by. */
    void ParseOptions(const CString& options, int direct);

    /** @name Placement @{ */
    void LayoutWnd() { LayoutWnd(0); }
    void SetWndX(int toX);
    void SetWndY(int toY);
    void SetWndXY(int toX, int toY);
    int GetMgrY() const;
    /** @} */

    /** @name Flexible children @{ */
    /** One child that follows the window's size. */
    struct FlexRec {
        CWnd* child; ///< not owned
        CRect rc;    ///< its place when it was registered, units
        CEFlex flex;
    };
    void SetupFlex(CWnd* child, CEFlex flex);
    /** The record of a child, or null; valid until the next SetupFlex(). */
    FlexRec* GetFlex(CWnd* child);
    void UpdateFlex();
    /** @} */

    /** @name Drawing helpers; `dc` and `r` in units @{ */
    void StdTxt(CDC* dc, CRect& r, const CString& text);
    void DualTxt(CDC* dc, CRect& r, int split, const CString& left, const CString& right);
    void RedrawWnd();
    /** @} */

    /** Guards the values of the controls, those that exist and those to come. Null ends that. Not owned. */
    void SetMutex(CMutex* mutex);

    CDpi Dpi() const { return CDpi::Of(m_hWnd); }
    /** The client rectangle in units. */
    CRect ClientRc() const;

private:
    CLstMgd<CCtrlCat> m_cats;
    CLstPtr<CVantWnd*> m_attached;
    std::vector<FlexRec> m_flex;
};
