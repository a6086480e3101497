#include "controls/detail/GridEdit.h"

#include "controls/CEGrid.h"
#include "controls/detail/KeyState.h"
#include "values/detail/ValueType.h"

namespace vant::detail
{

GridEdit::GridEdit(CEGrid& grid, const CEVal& value)
    : m_grid(grid)
{
    static_cast<CEVal&>(*this) = value;
    pMutex = nullptr;
    aux1.Empty();
    tip.Empty();
    const bool isText = TypeOf(type) == ValueType::Text;
    InitVal(isText ? static_cast<void*>(&m_ownText) : &m_ownNumber);
}

void GridEdit::Begin(const CString& shown)
{
    m_begun = shown;
    SetWindowText(shown);
    SetFocus();
    SendMessage(EM_SETSEL, 0, -1);
}

CString GridEdit::Typed() const
{
    CString typed;
    GetWindowText(typed);
    return typed;
}

void GridEdit::Execute()
{
    m_grid.Commit(Typed());
}

bool GridEdit::TakeKey(UINT key)
{
    const bool shift = IsKeyDown(VK_SHIFT);
    if (key == VK_TAB && IsKeyDown(VK_CONTROL))
        return false;
    if (key != VK_TAB && key != VK_UP && key != VK_DOWN && key != VK_RETURN && key != VK_ESCAPE)
        return false;
    m_grid.FinishEdit(key, shift);
    return true;
}

LRESULT GridEdit::LoseFocus(WPARAM wParam, LPARAM lParam)
{
    if (Typed() == m_begun) {
        escaped = 1;
        m_grid.m_taken = true;
    }
    const HWND self = m_hWnd;
    const HWND grid = m_grid.m_hWnd;
    const LRESULT result = CEEdit::WindowProc(WM_KILLFOCUS, wParam, lParam);
    // A callback may have destroyed the grid, and this with it.
    if (::IsWindow(grid) && ::IsWindow(self))
        m_grid.EditLost();
    return result;
}

LRESULT GridEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    constexpr WPARAM tabChr = 9;
    constexpr WPARAM enterChr = 13;
    constexpr WPARAM escapeChr = 27;
    switch (message) {
    case WM_KEYDOWN:
        if (TakeKey(static_cast<UINT>(wParam)))
            return 0;
        break;
    case WM_CHAR:
        // Their keys have done what is to be done.
        if (wParam == tabChr || wParam == enterChr || wParam == escapeChr)
            return 0;
        break;
    case WM_GETDLGCODE:
        return CEEdit::WindowProc(message, wParam, lParam) | DLGC_WANTALLKEYS;
    case WM_KILLFOCUS:
        return LoseFocus(wParam, lParam);
    default:
        break;
    }
    return CEEdit::WindowProc(message, wParam, lParam);
}

} // namespace vant::detail
