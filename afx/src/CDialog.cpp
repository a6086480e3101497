#include "vafx/CDialog.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"
#include "vafx/CWinApp.h"
#include "vafx/resources.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
END_MESSAGE_MAP()

namespace
{

// Every message goes through the object's map; the system's dialog procedure does the rest.
INT_PTR CALLBACK NothingHandled(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/** The window to own and be disabled by a modal dialog: never a child. */
HWND TopLevelOwner(CWnd* parent)
{
    HWND owner = vafx::detail::HandleOf(parent);
    if (owner == nullptr)
        owner = vafx::detail::HandleOf(::AfxGetMainWnd());
    if (owner == nullptr)
        return nullptr;
    owner = ::GetAncestor(owner, GA_ROOT);
    return parent != nullptr ? owner : ::GetLastActivePopup(owner);
}

/** A resource's template; null when there is none. */
LPCDLGTEMPLATE LoadTemplate(HINSTANCE module, LPCTSTR name)
{
    const HRSRC found = ::FindResourceW(module, name, RT_DIALOG);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    return loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}

/** The owner takes no input while this exists. */
class DisabledOwner
{
public:
    explicit DisabledOwner(HWND owner) noexcept
        : m_owner(owner != nullptr && ::IsWindowEnabled(owner) ? owner : nullptr)
    {
        if (m_owner != nullptr)
            ::EnableWindow(m_owner, FALSE);
    }
    ~DisabledOwner() { Enable(); }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    void Enable() noexcept
    {
        if (m_owner != nullptr)
            ::EnableWindow(m_owner, TRUE);
        m_owner = nullptr;
    }

private:
    HWND m_owner;
};

} // namespace

CDialog::CDialog() noexcept
    : m_templateName(nullptr)
    , m_template(nullptr)
    , m_parent(nullptr)
{
}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_templateName(lpszTemplateName)
    , m_template(nullptr)
    , m_parent(pParentWnd)
{
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd)
{
}

CDialog::~CDialog() = default;

BOOL CDialog::CreateFrom(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE module)
{
    if (m_hWnd != nullptr)
        return FALSE;
    if (dialogTemplate == nullptr) {
        PostNcDestroy();
        return FALSE;
    }
    vafx::detail::CreationHook hook(*this, nullptr);
    return hook.Finish(::CreateDialogIndirectParamW(module, dialogTemplate, owner, NothingHandled, 0));
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    const HINSTANCE module = ::AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    CWnd* parent = pParentWnd != nullptr ? pParentWnd : ::AfxGetMainWnd();
    return CreateFrom(LoadTemplate(module, lpszTemplateName), vafx::detail::HandleOf(parent), module);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*)
{
    CWnd* parent = pParentWnd != nullptr ? pParentWnd : ::AfxGetMainWnd();
    return CreateFrom(lpDialogTemplate, vafx::detail::HandleOf(parent), ::AfxGetResourceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    const auto dialogTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate));
    const BOOL created = CreateIndirect(dialogTemplate, pParentWnd);
    ::GlobalUnlock(hDialogTemplate);
    return created;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*)
{
    m_template = lpDialogTemplate;
    if (pParentWnd != nullptr)
        m_parent = pParentWnd;
    return m_template != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    // A fixed block, as templates in memory are, is where its handle says; a movable one stays locked,
    // because DoModal may come at any time.
    return InitModalIndirect(static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate)), pParentWnd);
}

INT_PTR CDialog::DoModal()
{
    HINSTANCE module = ::AfxGetResourceHandle();
    LPCDLGTEMPLATE dialogTemplate = m_template;
    if (dialogTemplate == nullptr && m_templateName != nullptr) {
        module = ::AfxFindResourceHandle(m_templateName, RT_DIALOG);
        dialogTemplate = LoadTemplate(module, m_templateName);
    }
    if (dialogTemplate == nullptr || m_hWnd != nullptr)
        return -1;

    const HWND owner = TopLevelOwner(m_parent);
    // A captured mouse would go on to a window that takes no input.
    ::ReleaseCapture();
    DisabledOwner disabled(owner);
    INT_PTR result = -1;
    if (CreateFrom(dialogTemplate, owner, module)) {
        const HWND window = m_hWnd;
        result = RunModalLoop(MLF_SHOWONIDLE);
        if (::IsWindow(window))
            ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                           SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        // The owner must take input again before the dialog goes, or another program's window comes up.
        disabled.Enable();
        if (owner != nullptr && ::GetActiveWindow() == window)
            ::SetActiveWindow(owner);
        if (::IsWindow(window))
            ::DestroyWindow(window);
    }
    return result;
}

void CDialog::EndDialog(int nResult)
{
    EndModalLoop(nResult);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    return OnInitDialog();
}

BOOL CDialog::OnInitDialog()
{
    return TRUE;
}

void CDialog::OnOK()
{
    EndModalOrHide(IDOK);
}

void CDialog::OnCancel()
{
    EndModalOrHide(IDCANCEL);
}

void CDialog::EndModalOrHide(int result)
{
    if (ContinueModal())
        EndDialog(result);
    else
        ShowWindow(SW_HIDE);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    const bool isMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    return (isKey || isMouse) && ::IsDialogMessageW(m_hWnd, pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Notifications of the dialog's own controls mean nothing to others.
    if (nCode != CN_COMMAND)
        return FALSE;
    CWnd* owner = GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = ::AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CDialog::MapDialogRect(LPRECT lpRect) const
{
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::NextDlgCtrl() const
{
    ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const
{
    ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(vafx::detail::HandleOf(pWndCtrl)), TRUE);
}

void CDialog::SetDefID(UINT nID)
{
    ::SendMessageW(m_hWnd, DM_SETDEFID, nID, 0);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(::SendMessageW(m_hWnd, DM_GETDEFID, 0, 0));
}
