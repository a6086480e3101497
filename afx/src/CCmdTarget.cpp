#include "vafx/CCmdTarget.h"

#include "detail/MapSearch.h"
#include "detail/WaitCursor.h"
#include "vafx/CWinApp.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace
{

constexpr UINT firstRegisteredMessage = 0xC000;
constexpr WORD waitCursorId = 32514; // IDC_WAIT, whose macro follows the character set

bool Matches(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code, UINT id) noexcept
{
    if (entry.nMessage == vafx::registeredMessage)
        return message >= firstRegisteredMessage && entry.pRegistered != nullptr &&
               *entry.pRegistered == message;
    return entry.nMessage == message && LOWORD(entry.nCode) == LOWORD(code) && entry.nID <= id &&
           id <= entry.nLastID;
}

} // namespace

const AFX_MSGMAP_ENTRY* vafx::detail::FindEntry(const AFX_MSGMAP* map, UINT message, UINT code,
                                                UINT id) noexcept
{
    while (map != nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn != nullptr; ++entry) {
            if (Matches(*entry, message, code, id))
                return entry;
        }
        map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr;
    }
    return nullptr;
}

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const UINT code = static_cast<UINT>(nCode);
    const UINT message = HIWORD(code) == WM_NOTIFY ? WM_NOTIFY : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* entry = vafx::detail::FindEntry(GetMessageMap(), message, code, nID);
    if (entry == nullptr)
        return FALSE;
    if (pHandlerInfo != nullptr) {
        pHandlerInfo->pTarget = this;
        return TRUE;
    }

    vafx::Dispatch d;
    d.ident = nID;
    if (message == WM_NOTIFY) {
        const auto* notify = static_cast<const AFX_NOTIFY*>(pExtra);
        d.notify = notify->pNMHDR;
        d.reply = notify->pResult;
    }
    entry->pfn(this, d);
    return d.handled ? TRUE : FALSE;
}

namespace
{

void WaitCursor(int code)
{
    if (CWinApp* app = ::AfxGetApp())
        app->DoWaitCursor(code);
    else
        vafx::detail::DoWaitCursor(code);
}

} // namespace

void vafx::detail::DoWaitCursor(int code) noexcept
{
    struct Wait {
        int depth = 0;
        HCURSOR before = nullptr;
    };
    thread_local Wait wait;

    const int depth = wait.depth > -code ? wait.depth + code : 0;
    if (depth > 0) {
        const HCURSOR old = ::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(waitCursorId)));
        if (wait.depth == 0)
            wait.before = old;
    } else if (wait.depth > 0) {
        ::SetCursor(wait.before);
    }
    wait.depth = depth;
}

void CCmdTarget::BeginWaitCursor()
{
    WaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    WaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    WaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    WaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    WaitCursor(-1);
}

void CWaitCursor::Restore()
{
    WaitCursor(0);
}
