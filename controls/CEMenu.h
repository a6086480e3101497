#pragma once

#include "controls/CECtrl.h"
#include "controls/CEMEnt.h"
#include "controls/detail/MenuRows.h"
#include "core/CLstMgd.h"
#include "core/VantApi.h"

#include <memory>
#include <vector>

namespace vant::detail
{
class MenuTracker;
}

/** A menu that comes up at a point (a context menu) or below a control (a drop-down menu), with sub-menus.
 *
 *  @code
 *  CEMenu menu;
 *  menu.Add(L"&Centre here", this, static_cast<CEVal::CbNone>(&CChart::OnCentre));
 *  menu.Add(L"&Grid\tCtrl+G", infoGrid)->Check(m_grid);
 *  menu.AddSep();
 *  CEMenu* range = menu.AddSub(L"&Range");
 *  for (const int metres : {50, 100, 200})
 *      range->Add(TextOf(metres))->Choice(m_range, metres);
 *  menu.TrackPopup(at, this);
 *  @endcode
 *
 *  It is open until the user has chosen or given up; messages are handled meanwhile, so that data goes on
 *  being shown, except that keys and the mouse belong to the menu. It never takes the focus.
 *
 *  Keys: the arrows, Home and End go through the entries, to the right opens a sub-menu, to the left and
 * Escape close one; Enter chooses, and so does an underlined letter, or the first letter of an entry without
 * one, if it stands for one entry only. Alt or F10, a click elsewhere, which gets its click all the same, and
 * another window that becomes active close the menu. A menu that is higher than the screen scrolls at its
 * ends, with the wheel, and with the keys.
 *
 *  All lengths are units (see CDpi). Belongs to the UI thread. */
class VANT_API CEMenu : public CECtrl
{
    DECLARE_DYNAMIC(CEMenu)

public:
    CEMenu();
    ~CEMenu() override;

    /** The skin of menus; loaded by Vant::Init(). */
    static CDC& s_skin;

    /** @name Entries
     *  Not to be changed while the menu is open; Clear() closes it. @{ */
    /** Appends an entry that sends a message to the platform windows; with 0 it sends none. @return the
     * entry, which stays until Clear() */
    CEMEnt* Add(const CString& entryText, int info = 0, void* data = nullptr);
    /** Appends an entry that calls a member of `target`. */
    CEMEnt* Add(const CString& entryText, CObject* target, CEVal::CbNone fn);
    /** The same with a pointer. */
    CEMEnt* Add(const CString& entryText, CObject* target, CEVal::CbPtr fn, void* data);
    /** Appends a line, unless the menu is empty or ends with one: what adds entries need not know who else
     * did. A line at the end is not shown. */
    void AddSep();
    /** Appends an entry that opens a menu. @return that menu, which is empty and belongs to this one */
    CEMenu* AddSub(const CString& entryText);
    /** Removes all entries, and the menus that they open. */
    void Clear();
    /** Whether there is no entry. */
    bool IsEmpty() const noexcept { return m_ents.IsEmpty(); }
    /** How many entries there are, lines included. */
    int GetCount() const noexcept { return m_ents.GetCount(); }
    /** The entry at a place, lines included; null outside 0 to GetCount() - 1. */
    CEMEnt* GetAt(int index) const noexcept { return m_ents.GetAt(m_ents.FindIndex(index)); }
    /** The first entry with a message, in sub-menus too; null if there is none. */
    CEMEnt* Find(int info) const;
    /** @} */

    /** @name Opening
     *  Runs what is chosen (CEMEnt::Run()) once the menu is closed. Only one menu is open at a time; an empty
     * one does not open.
     *  @param owner  the menu stays above its window, and has its scale; null: the active one
     *  @return the entry that was chosen, unless what it ran has removed it; null for none @{ */
    /** Opens at a point of the screen, below and to the right of it if there is room. */
    CEMEnt* TrackPopup(CPoint screenPt, CWnd* owner);
    /** Opens below a rectangle of the screen, such as a button's, or above it. A click on the rectangle then
     * only closes the menu. */
    CEMEnt* TrackBelow(const CRect& screenRc, CWnd* owner);
    /** Closes the menu without a choice. */
    void Cancel();
    /** Whether the menu is to be seen. */
    bool IsOpen() const noexcept { return m_hWnd != nullptr; }
    /** @} */

    /** Runs the entry whose key was pressed, in sub-menus too: for the PreTranslateMessage() of a window that
     * keeps its menu. @return whether there was one; what it ran may have destroyed anything */
    int TakeAccel(const MSG* msg);

    void Draw(CDC* dc) override;
    /** The window's text is never a value: does nothing. */
    void Retreive() override;

protected:
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    friend class vant::detail::MenuTracker;

    static constexpr int frameW = 2; // units

    CEMEnt* Append(std::unique_ptr<CEMEnt> ent);
    bool Holds(const CEMEnt* ent) const;
    CEMEnt* FindAccel(const MSG& msg) const;
    CEMEnt* Track(const CRect& beside, bool isPoint, CWnd* owner);
    void Prepare();
    CSize Size(CDpi dpi);
    bool OpenAt(const CRect& place, HWND owner, CDpi dpi);
    CEMEnt* EntOf(int row) const;
    CRect RowRc(int row) const;
    void SetCurrent(int row);
    void DrawRow(CDC* dc, int row);
    void DrawArrow(CDC* dc, const CRect& r, bool isUp) const;

    CLstMgd<CEMEnt> m_ents;
    std::vector<CEMEnt*> m_shown; // rows of the open menu
    vant::detail::MenuRows m_rows;
    int m_current = -1; // row
    int m_keyW = 0;     // width of the widest key
};
