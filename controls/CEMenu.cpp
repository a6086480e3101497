#include "controls/CEMenu.h"

#include "controls/detail/Accel.h"
#include "controls/detail/KeyState.h"
#include "controls/detail/MenuTracker.h"
#include "platform/Vant.h"
#include "platform/detail/Skins.h"

#include <string_view>
#include <utility>

using vant::detail::Accel;
using vant::detail::IsKeyDown;

IMPLEMENT_DYNAMIC(CEMenu, CECtrl)

BEGIN_MESSAGE_MAP(CEMenu, CECtrl)
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

CDC& CEMenu::s_skin = vant::detail::MenuSkin();

CEMenu::CEMenu() = default;

CEMenu::~CEMenu()
{
    Cancel();
}

void CEMenu::Retreive() {}

int CEMenu::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

CEMEnt* CEMenu::Append(std::unique_ptr<CEMEnt> ent)
{
    m_ents.AddTail(ent.get());
    return ent.release();
}

CEMEnt* CEMenu::Add(const CString& entryText, int info, void* data)
{
    auto ent = std::make_unique<CEMEnt>();
    ent->text = entryText;
    ent->info = info;
    ent->data = data;
    return Append(std::move(ent));
}

CEMEnt* CEMenu::Add(const CString& entryText, CObject* target, CEVal::CbNone fn)
{
    CEMEnt* const ent = Add(entryText);
    ent->pCbObj = target;
    ent->pCbNone = fn;
    return ent;
}

CEMEnt* CEMenu::Add(const CString& entryText, CObject* target, CEVal::CbPtr fn, void* data)
{
    CEMEnt* const ent = Add(entryText, 0, data);
    ent->pCbObj = target;
    ent->pCbPtr = fn;
    return ent;
}

void CEMenu::AddSep()
{
    if (const CEMEnt* const last = m_ents.GetTail(); last && !last->IsSeparator())
        Add(CString());
}

CEMenu* CEMenu::AddSub(const CString& entryText)
{
    CEMEnt* const ent = Add(entryText);
    ent->sub = std::make_unique<CEMenu>();
    ent->sub->style = style;
    return ent->sub.get();
}

void CEMenu::Clear()
{
    Cancel();
    m_ents.RemoveAll();
}

CEMEnt* CEMenu::Find(int info) const
{
    for (CVantPtr* pos = m_ents.GetHeadPos(); pos;) {
        CEMEnt* const ent = m_ents.GetNext(pos);
        if (ent->info == info)
            return ent;
        if (CEMEnt* const inside = ent->sub ? ent->sub->Find(info) : nullptr)
            return inside;
    }
    return nullptr;
}

bool CEMenu::Holds(const CEMEnt* ent) const
{
    for (CVantPtr* pos = m_ents.GetHeadPos(); pos;) {
        const CEMEnt* const own = m_ents.GetNext(pos);
        if (own == ent || (own->sub && own->sub->Holds(ent)))
            return true;
    }
    return false;
}

CEMEnt* CEMenu::FindAccel(const MSG& msg) const
{
    const Accel pressed{static_cast<unsigned>(msg.wParam), IsKeyDown(VK_CONTROL), IsKeyDown(VK_SHIFT),
                        IsKeyDown(VK_MENU)};
    for (CVantPtr* pos = m_ents.GetHeadPos(); pos;) {
        CEMEnt* const ent = m_ents.GetNext(pos);
        if (CEMEnt* const inside = ent->sub && ent->enabled ? ent->sub->FindAccel(msg) : nullptr)
            return inside;
        const CString key = ent->Key();
        const std::wstring_view name(key, static_cast<std::size_t>(key.GetLength()));
        if (ent->IsChoosable() && !name.empty() && vant::detail::ParseAccel(name) == pressed)
            return ent;
    }
    return nullptr;
}

int CEMenu::TakeAccel(const MSG* msg)
{
    if (msg->message != WM_KEYDOWN && msg->message != WM_SYSKEYDOWN)
        return 0;
    CEMEnt* const ent = FindAccel(*msg);
    if (!ent)
        return 0;
    ent->Run();
    return 1;
}

CEMEnt* CEMenu::TrackPopup(CPoint screenPt, CWnd* owner)
{
    return Track(CRect(screenPt, CSize(0, 0)), true, owner);
}

CEMEnt* CEMenu::TrackBelow(const CRect& screenRc, CWnd* owner)
{
    return Track(screenRc, false, owner);
}

CEMEnt* CEMenu::Track(const CRect& beside, bool isPoint, CWnd* owner)
{
    constexpr int clickSound = 0;
    const HWND over = owner ? owner->m_hWnd : ::GetActiveWindow();
    CEMEnt* const chosen = vant::detail::MenuTracker::Track(*this, beside, isPoint, over);
    if (!chosen)
        return nullptr;
    Vant::Snd(clickSound);
    chosen->Run();
    return Holds(chosen) ? chosen : nullptr;
}

void CEMenu::Cancel()
{
    vant::detail::MenuTracker::Cancel(*this);
}
