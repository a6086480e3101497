#include "demo/script/Find.h"

#include "colour/CColTblCb.h"
#include "controls/CEMenu.h"
#include "controls/CVantWnd.h"
#include "demo/script/CScript.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace demo
{
namespace
{

template <class Test>
CECtrl& First(Test test)
{
    for (CVantPtr* pos = CECtrl::s_eCtrls.GetHeadPos(); pos;) {
        CECtrl* const ctrl = CECtrl::s_eCtrls.GetNext(pos);
        if (test(*ctrl))
            return *ctrl;
    }
    std::abort(); // the script and the windows are built together
}

/** Where the rows of the alarm console are, as a user sees them. */
struct AlarmRows : CCslAlm {
    /** The check box of an alarm, in pixels of the console; outside it while there is no such row. */
    static CPoint BoxOf(unsigned long id)
    {
        constexpr int toMiddle = 10; // of the box, from the left end of its row, units
        constexpr auto lines = &AlarmRows::Lines;
        constexpr auto rowRc = &AlarmRows::RowRc;
        const std::vector<CECEntry>& shown = (Vant::alarm.*lines)();
        const auto at = std::ranges::find_if(shown, [id](const CECEntry& entry) { return entry.id == id; });
        if (at == shown.end())
            return {-1, -1};
        const CRect row = (Vant::alarm.*rowRc)(static_cast<int>(at - shown.begin()));
        return Vant::alarm.Dpi().ToPx(CPoint(row.left + toMiddle, row.CenterPoint().y));
    }
};

} // namespace

CECtrl& BoundTo(const void* variable)
{
    return First([variable](const CECtrl& ctrl) { return ctrl.pVal == variable; });
}

CECtrl& OfType(int typeCode)
{
    return First([typeCode](const CECtrl& ctrl) { return ctrl.ctrlType == typeCode; });
}

const CCtrlCat& CategoryOf(const CVantWnd& wnd, const wchar_t* name)
{
    for (CVantPtr* pos = wnd.Cats().GetHeadPos(); pos;) {
        const CCtrlCat* const category = wnd.Cats().GetNext(pos);
        if (category->catName == name)
            return *category;
    }
    std::abort();
}

CColTblCb& TablesOf(const Stage& stage)
{
    const CColTbl* const table = &stage.colours.Pal().master;
    return static_cast<CColTblCb&>(First([table](const CECtrl& ctrl) {
        const auto* const list = dynamic_cast<const CColTblCb*>(&ctrl);
        return list && list->pTbl == table;
    }));
}

CPoint Middle(const CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    return client.CenterPoint();
}

CPoint BoatIn(const Stage& stage, const CSceneWnd& view)
{
    double x = 0;
    double y = 0;
    view.Pt2Xy(stage.scene.Boat().Now().place, x, y);
    return {static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))};
}

CPoint AlarmBox(unsigned long id)
{
    return AlarmRows::BoxOf(id);
}

bool IsRaised(unsigned long id, unsigned int kind)
{
    CECEntry alarm;
    return Vant::alarm.GetEntry(id, alarm) != 0 && (alarm.kind & kind) == kind;
}

double FromBoat(const Stage& stage, const CSceneWnd& view)
{
    return (view.Cam().org - stage.scene.Boat().Now().place).Length();
}

bool IsBoatPicked(const CSceneWnd& view)
{
    return view.Picked().Find(CBoatMdl::boatName) == 0;
}

std::wstring WindowText(const CWnd& wnd)
{
    CString text;
    wnd.GetWindowText(text);
    return static_cast<LPCWSTR>(text);
}

bool HasFocus(const CWnd& wnd)
{
    return ::GetFocus() == wnd.m_hWnd;
}

bool IsSeen(const CWnd& wnd)
{
    return ::IsWindowVisible(wnd.m_hWnd) != FALSE;
}

bool IsMenuOpen()
{
    for (CVantPtr* pos = CECtrl::s_eCtrls.GetHeadPos(); pos;) {
        const auto* const menu = dynamic_cast<const CEMenu*>(CECtrl::s_eCtrls.GetNext(pos));
        if (menu && menu->IsOpen())
            return true;
    }
    return false;
}

} // namespace demo
