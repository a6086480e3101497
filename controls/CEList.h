#pragma once

#include "controls/CECtrl.h"
#include "controls/CELEnt.h"
#include "controls/detail/RowScroll.h"
#include "controls/detail/TypeAhead.h"
#include "controls/detail/WheelTurn.h"
#include "core/VantApi.h"

#include <memory>
#include <vector>

namespace vant::detail
{
class EntryKey;
}

/** A list of entries of which one is selected, with a scroll bar; also what drops down from a combo box.
 *
 *  The list owns its entries. They are added one by one, at the cost of each alone, or by the fill callback,
 * which finds the list empty. Only entries in view are drawn, so a list of 100,000 opens and scrolls like one
 * of ten.
 *
 *  The selected entry is the value of the bound variable:
 *
 *  | variable | the selected entry gives |
 *  |----------|--------------------------|
 *  | pointer | its item; null for an entry without one |
 *  | text | its text |
 *  | integer of any size | its number, rounded; its place in the list, from 0, if it has none |
 *  | float, double | its number; its place in the list, from 0, if it has none |
 *
 *  Update() selects the entry that the variable names, or none. What the user selects is stored at once and
 * the callbacks are called (CEVal::Execute()); then the parent is told as by a list box of the system:
 * WM_COMMAND with LBN_SELCHANGE, and LBN_DBLCLK after a double click or Enter.
 *
 *  The user selects with the mouse, the arrow keys, Home, End, Page Up and Page Down, or types the beginning
 * of an entry: what is typed within a second of the key before counts together, and the same letter again and
 * again, if no entry begins like that, goes through all that begin with the letter. Upper and lower case are
 * the same. The wheel scrolls.
 *
 *  All lengths are units (see CDpi). Belongs to the UI thread. */
class VANT_API CEList : public CECtrl
{
    DECLARE_DYNAMIC(CEList)

public:
    /** A filling member, cast to a member of CObject: adds entries to the list, which is empty, and returns
     * the one to select; null lets the bound variable decide.
     *  `static_cast<CEList::FillFn>(&CPortCb::FillCombo)` */
    using FillFn = CELEnt* (CObject::*)(CEList& list, void* data);
    /** A drawing member, cast to a member of CObject: draws an entry into `rc`, in units; the background is
     * there already and the list's style is selected. `selected` is not 0 for the entry that is selected. The
     * context is restored afterwards. */
    using DrawFn = void (CObject::*)(CDC* dc, const CRect& rc, CELEnt* ent, int selected);

    CEList();
    ~CEList() override;

    /** @name Fields */
    ///@{
    int entryH = 20;   ///< room of an entry along the list: its height, or in a row its width
    int inRow = 0;     ///< non-zero: the entries stand side by side, each as high as the list, and their
                       ///< texts run upwards
    CString emptyText; ///< shown in a list without entries
    /** @} */

    /** @name Entries
     *  Pointers to entries stay valid until the entry is removed or the list cleared or filled. @{ */
    /** Appends an entry: a text alone, with an item of the application, or with a number. @return the entry
     */
    CELEnt* Add(const CString& entryText);
    CELEnt* Add(const CString& entryText, void* item);
    CELEnt* Add(const CString& entryText, double num);
    CELEnt* Add(const CString& entryText, int num) { return Add(entryText, static_cast<double>(num)); }
    CELEnt* Add(const CStrVal& pair);
    /** Makes room for so many entries in all; no need, but saves time. */
    void Reserve(int count);
    /** Removes an entry of this list; its neighbours keep their pointers. */
    void Remove(CELEnt* ent);
    /** Removes all entries, and with them the selection. The bound variable stays. */
    void Clear();
    /** How many entries there are. */
    int GetCount() const noexcept;
    /** The entry at a place; null outside 0 to GetCount() - 1. */
    CELEnt* GetAt(int index) const noexcept;
    /** @} */

    /** @name Search
     *  The first entry that fits; null if none does. @{ */
    /** By the whole text, upper and lower case being different. */
    CELEnt* Find(const CString& entryText) const;
    /** By the beginning of the text, upper and lower case being the same; from a place on, and after the end
     * from the beginning. */
    CELEnt* FindPrefix(const CString& prefix, int from = 0) const;
    /** By the item; entries without an item are passed over. */
    CELEnt* FindItem(const void* item) const;
    /** By the number; entries without a number are passed over. */
    CELEnt* FindNum(double num) const;
    /** The entry that a bound variable names, by the table above; null for a value that nothing is bound to.
     */
    CELEnt* FindVal(const CEVal& val) const;
    /** @} */

    /** @name Selection */
    ///@{
    /** The selected entry; null for none. */
    CELEnt* GetSel() const noexcept { return m_sel; }
    /** Selects an entry of this list, or none, and brings it into view. The bound variable stays, and no
     * callback is called. */
    void Sel(CELEnt* ent);
    void Sel(int index) { Sel(GetAt(index)); }
    /** Selects the entry that a bound variable names, or none; leaves the selection alone when nothing is
     * bound. The list is searched only if the variable or the list has changed. */
    void SelVal(const CEVal& val);
    /** Stores what an entry stands for in a bound variable, by the table above. Nothing without an entry. */
    static void StoreIn(CEVal& val, const CELEnt* ent);
    /** @} */

    /** @name Callbacks
     *  The targets must outlive the list or be replaced by null. @{ */
    /** Lets a member of `target` fill the list: whenever it opens, which for a list in a window is when the
     * window is created. @param data  passed on */
    void SetFill(CObject* target, FillFn fn, void* data = nullptr);
    /** Lets a member of `target` draw the entries. */
    void SetDraw(CObject* target, DrawFn fn);
    /** Clears the list and has it filled, then selects the entry that the callback returned, or else the one
     * that `val` names. Without a callback only the latter. */
    void FillFor(const CEVal& val);
    /** The same for the variable that the list is bound to. */
    void Fill() { FillFor(*this); }
    /** Draws an entry on a background that is there already: by the callback, or its text.
     *  @param place  units  @param selected  passed on; a text is brighter */
    void DrawEnt(CDC* dc, const CRect& place, CELEnt* ent, bool selected);
    /** @} */

    /** @name Scrolling */
    ///@{
    /** The first entry in view. */
    int First() const noexcept { return m_scroll.First(); }
    /** How many entries are in view completely. */
    int Page() const noexcept { return m_scroll.Page(); }
    /** Scrolls as far as the content allows. */
    void ScrollTo(int first);
    /** Scrolls as little as is needed to have an entry in view. */
    void Show(const CELEnt* ent);
    /** The entry at a point of the client area, units; null where there is none. */
    CELEnt* EntAt(CPoint at) const;
    /** Where an entry is, units, as far as it is in view; empty for one that is not. */
    CRect EntRc(const CELEnt* ent) const;
    /** How large a list of so many entries is along them, with its frame, units. */
    int LengthOf(int count) const noexcept;
    /** @} */

    /** Chooses the selected entry, as Enter does. */
    int Press() override;
    /** Selects a later or earlier entry. */
    int Jog(int notches, double step, int fine) override;
    /** Has the list filled, or else selects what the bound variable names. */
    int Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId) override;
    /** Selects the entry that the bound variable names. */
    void Update(int arg) override;
    /** Stores the selected entry in the bound variable, without a callback. */
    void Retreive() override;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

protected:
    /** How the user came to an entry. */
    enum class Pick {
        Move,    ///< a key moved to it
        Press,   ///< the mouse button went down on it, or was moved there while down
        Release, ///< the mouse button was released over it
        Choose,  ///< it is meant: double click, or Enter
    };

    /** What the user's coming to an entry does: here it selects, stores and tells. May destroy the window. */
    virtual void OnPick(CELEnt* ent, Pick how);
    /** The entry that is marked, and that keys start from: here the selected one. */
    virtual CELEnt* Current() const { return m_sel; }
    /** An entry is about to go, or with null all of them. */
    virtual void OnRemove(const CELEnt* ent);
    /** The mouse has moved over another entry, or over none. */
    virtual void OnHot(CELEnt* ent);
    /** Draws what is around and behind the entries. */
    virtual void DrawFrame(CDC* dc, const CRect& r);
    /** Draws a text as an entry's. */
    void DrawLabel(CDC* dc, CRect r, const CString& label, bool selected);
    /** Lets go of the mouse. */
    void ReleaseMouse();

    /** Does what a key does in the list. @return whether the key is one of the list's */
    bool TakeKey(UINT key);
    /** The same for a character that is typed. */
    bool TakeChar(wchar_t character);
    /** The same for the wheel. @return whether there is anything to scroll */
    bool TakeWheel(short delta);
    /** Whether a text is being typed, which a blank may go on with. */
    bool IsTyping() const;
    /** Has one entry drawn again. */
    void InvalidateEnt(const CELEnt* ent);

    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSize(UINT how, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    CELEnt* Append(std::unique_ptr<CELEnt> ent);
    bool IsOwn(const CELEnt* ent) const noexcept;
    void Changed();
    CRect InnerRc() const;
    CRect BarRc() const;
    int Along(CPoint at) const noexcept;
    int BarLength() const;
    void SyncPage();
    void DrawBar(CDC* dc) const;
    void PressBar(int at);
    void SetHot(CELEnt* ent);
    void Tell(int code);

    std::vector<std::unique_ptr<CELEnt>> m_ents;
    CELEnt* m_sel = nullptr;
    CELEnt* m_hot = nullptr;     // under the mouse
    CELEnt* m_pressed = nullptr; // where the button went down last, for double clicks
    LONG m_pressTime = 0;        // of that, milliseconds
    CObject* m_fillTarget = nullptr;
    FillFn m_fill = nullptr;
    void* m_fillData = nullptr;
    CObject* m_drawTarget = nullptr;
    DrawFn m_draw = nullptr;
    bool m_filling = false;
    bool m_stale = false;                                // is to be drawn again already
    std::unique_ptr<vant::detail::EntryKey> m_lookedFor; // what no entry stood for
    vant::detail::RowScroll m_scroll;                    // a row is an entry
    vant::detail::TypeAhead m_typed;
    vant::detail::WheelTurn m_wheel;
    int m_grip = -1;     // where the thumb is held, from its beginning; -1: it is not
    bool m_held = false; // the button is down on the entries
};
