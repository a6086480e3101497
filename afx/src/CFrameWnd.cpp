#include "vafx/CFrameWnd.h"

#include "detail/Handles.h"
#include "vafx/CWinApp.h"
#include "vafx/resources.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() noexcept = default;

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext)
{
    if (m_hWnd != nullptr)
        return FALSE;
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenuW(::AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    const bool placed = rect.left != CW_USEDEFAULT;
    const int width = placed ? rect.right - rect.left : CW_USEDEFAULT;
    const int height = placed ? rect.bottom - rect.top : CW_USEDEFAULT;
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                 vafx::detail::HandleOf(pParentWnd), menu, pContext))
        return TRUE;
    if (menu != nullptr)
        ::DestroyMenu(menu);
    return FALSE;
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    if (nCmdShow == -1)
        nCmdShow = IsIconic() ? SW_RESTORE : (IsWindowVisible() ? SW_SHOW : SW_SHOWNORMAL);
    ShowWindow(nCmdShow);
    BringWindowToTop();
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = ::AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = ::AfxRegisterWndClass(
            CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW),
            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), ::LoadIcon(nullptr, IDI_APPLICATION));
    return TRUE;
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}
