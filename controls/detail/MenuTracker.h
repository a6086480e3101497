#pragma once

#include "controls/CDpi.h"
#include "controls/detail/DropPlace.h"
#include "controls/detail/WheelTurn.h"

#include <afxwin.h>

#include <vector>

class CEMEnt;
class CEMenu;

namespace vant::detail
{

/** Has one menu and its sub-menus open, and gives them keys and mouse, wherever those were meant for: the
 * menus' windows have no focus. */
class MenuTracker
{
public:
    /** Opens a menu, and handles messages until it is closed.
     *  @param beside  pixels of the screen  @param isPoint  it is a point, of a context menu
     *  @param owner  may be null  @return what was chosen; null for nothing, and if a menu is open already */
    static CEMEnt* Track(CEMenu& menu, const CRect& beside, bool isPoint, HWND owner);
    /** Closes the menu that is open, if this is it or one of its sub-menus that are open. */
    static void Cancel(const CEMenu& menu);

    MenuTracker(const MenuTracker&) = delete;
    MenuTracker& operator=(const MenuTracker&) = delete;

private:
    /** Timers of the first menu's window. */
    enum Timer : UINT_PTR {
        watchTimer = 1, ///< looks whether the owner is still in use
        settleTimer,    ///< the mouse has rested on an entry
        scrollTimer,    ///< scrolls on while the mouse is on an arrow
    };

    MenuTracker(CEMenu& menu, HWND owner);
    ~MenuTracker();

    CSize PrepareSize(CEMenu& menu) const;
    bool OpenRoot(const CRect& beside, bool isPoint);
    void OpenSub(std::size_t level, bool select);
    bool OpenBeside(std::size_t level, CEMenu& sub);
    void CloseTo(std::size_t levels);
    void CloseAll();
    void Loop();

    bool Takes(const MSG& msg);
    void OnTimer(UINT_PTR timer);
    bool IsThere() const;

    void OnMove(CPoint at);
    bool OnPress(CPoint at);
    void OnRelease(CPoint at);
    void OnWheel(int delta);
    void Settle(std::size_t level);
    void MarkWayTo(std::size_t level);
    void ScrollAt(CPoint at);

    void OnKey(UINT key);
    void OnLetter(wchar_t letter);
    void Step(int from, int by);
    void Activate();

    /** The menu at a point of the screen, its place in #m_open; as many as are open for none. */
    std::size_t LevelAt(CPoint at) const;
    int RowAt(std::size_t level, CPoint at) const;
    CPoint Units(std::size_t level, CPoint at) const;
    CEMenu& Innermost() const { return *m_open.back(); }

    const HWND m_owner;
    const HWND m_active; // active window at the beginning
    const CDpi m_dpi;
    std::vector<CEMenu*> m_open; // the menu itself, then the sub-menus one inside the other
    Side m_side = Side::Right;   // on which sub-menus open
    CRect m_beside;              // a click there only closes the menu
    CPoint m_start;              // where the mouse was
    bool m_armed = false;        // releasing the button chooses
    WheelTurn m_wheel;
    CEMEnt* m_chosen = nullptr;
};

} // namespace vant::detail
