#include "demo/script/Find.h"

#include "controls/CEMenu.h"
#include "controls/CVantWnd.h"

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
