#pragma once

#include "controls/detail/RcWalk.h"
#include "core/VantApi.h"

#include <afxwin.h>

#include <memory>
#include <vector>

class CCtrlCat;
class CECtrl;
class CRcGrp;
class CVantWnd;

/** A set of controls that an external controller steps through, in the order in which they were added; part
 * of a CRcGrp.
 *
 *  The controls stay the application's. One that is deleted drops out by itself; one whose window does not
 * exist, is hidden (by its window, its section or its level) or is disabled is passed over, and comes back
 * with its window. Belongs to the UI thread. */
class VANT_API CRcSet
{
public:
    CRcSet(const CRcSet&) = delete;
    CRcSet& operator=(const CRcSet&) = delete;

    /** The name that CRcGrp::GetSet() was asked for. */
    const CString& Name() const noexcept { return m_name; }

    /** Appends a control; one that is in the set already only gets other steps.
     *  @param step  change of its value per notch, in the variable's unit; 0: the control's own step (see
     * CECtrl::Jog()); a read-out is not changed without a step  @param fine  the same for fine adjustment; 0:
     * a tenth of `step`, for integers at least 1 */
    void Add(CECtrl* ctrl, double step = 0, double fine = 0);
    /** Appends the controls of a category that the keyboard can operate. */
    void AddCat(const CCtrlCat& cat);
    /** The same for those of a window: its own, then those of its categories. */
    void AddWnd(const CVantWnd& wnd);
    /** Takes a control out; nothing for one that is not in the set. */
    void Remove(CECtrl* ctrl);
    /** Takes all controls out. */
    void Clear();

    /** The number of controls that there are, usable or not. */
    int GetCount();
    /** The control at a place; null outside 0 to GetCount() - 1. */
    CECtrl* GetAt(int index);
    /** The control that the set was left at, usable or not; null if there is none, or it was deleted. */
    CECtrl* Cur();

    /** Whether the user could operate the control now: its window and all around it are shown, not minimised,
     * and enabled. */
    static bool IsUsable(const CECtrl* ctrl);

private:
    friend class CRcGrp;
    friend class CRcMgr;

    struct Member {
        std::weak_ptr<CECtrl*> ctrl;
        double step;
        double fine;
    };

    CRcSet(const CString& name, CRcGrp& grp);
    void Prune();
    void Changed();
    std::vector<bool> Usable();
    bool HasUsable();
    int Find(const CECtrl* ctrl);

    CString m_name;
    CRcGrp& m_grp;
    std::vector<Member> m_members;
    vant::detail::RcPlace m_place;
};
