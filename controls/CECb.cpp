#include "controls/CECb.h"

#include "controls/detail/CtrlLook.h"
#include "controls/detail/DropList.h"
#include "controls/detail/DropRect.h"
#include "controls/detail/FieldFrame.h"
#include "controls/detail/ParentCommand.h"
#include "controls/detail/SkinPiece.h"
#include "controls/detail/WorkArea.h"
#include "platform/Vant.h"
#include "resources/Skins.h"

#include <algorithm>

using vant::detail::DropList;
using vant::detail::DropSize;
using vant::detail::FieldCell;
using vant::detail::Side;
using vant::skins::Look;

IMPLEMENT_DYNAMIC(CECb, CECtrl)

namespace
{

Side SideOf(int layout)
{
    switch (layout) {
    case CECb::layoutAbove:
        return Side::Above;
    case CECb::layoutRight:
        return Side::Right;
    case CECb::layoutLeft:
        return Side::Left;
    default:
        return Side::Below;
    }
}

} // namespace

CECb::CECb()
    : m_list(std::make_unique<DropList>(*this))
{
    ctrlType = typeCb;
}

CECb::~CECb()
{
    // The list refers to this object.
    m_list->Close();
}

CEList& CECb::List() noexcept
{
    return *m_list;
}

const CEList& CECb::List() const noexcept
{
    return *m_list;
}

bool CECb::IsOpen() const noexcept
{
    return m_list->m_hWnd != nullptr;
}

unsigned long CECb::WndStyle() const
{
    return CECtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

int CECb::Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId)
{
    // A window that is destroyed under the mouse need not be told that it has lost it.
    m_held = m_altAlone = false;
    look &= ~lookPressed;
    if (!CECtrl::Create(wndStyle, r, parent, childId))
        return 0;
    Fill();
    return 1;
}

void CECb::Fill()
{
    m_list->FillFor(*this);
    if (m_hWnd)
        Invalidate(FALSE);
}

void CECb::Sel(CELEnt* ent)
{
    m_list->Sel(ent);
    if (m_hWnd)
        Invalidate(FALSE);
}

void CECb::Update(int arg)
{
    m_list->SelVal(*this);
    CECtrl::Update(arg);
}

void CECb::Retreive()
{
    CEList::StoreIn(*this, GetSel());
}

int CECb::Open()
{
    if (!m_hWnd || IsOpen() || !IsWindowEnabled() || !IsWindowVisible())
        return 0;
    const HWND self = m_hWnd;
    if (::GetFocus() != self) {
        SetFocus();
        // A field that loses the focus calls its callbacks.
        if (!::IsWindow(self))
            return 0;
    }
    Fill();
    if (!::IsWindow(self) || IsOpen())
        return 0;
    m_list->Follow();
    const bool isOpen = m_list->Open(DropRc());
    Invalidate(FALSE);
    return isOpen ? 1 : 0;
}

/** Where the list opens, pixels of the screen: with whole entries only. */
CRect CECb::DropRc() const
{
    CRect at;
    GetWindowRect(&at);
    const CDpi dpi = Dpi();
    const CRect area = vant::detail::WorkArea(at.CenterPoint());
    const int across = IsVertical() ? at.Height() : std::max<int>(at.Width(), dpi.ToPx(dropW));
    const auto place = [&](int count) {
        const DropSize size{dpi.ToPx(m_list->LengthOf(count)), across, dpi.ToPx(m_list->LengthOf(1))};
        return vant::detail::PlaceDrop(at, area, SideOf(layout), size);
    };
    const int count = std::clamp(m_list->GetCount(), 1, std::max(maxRows, 1));
    const CRect r = place(count);
    const int length = dpi.ToUnits(IsVertical() ? r.Width() : r.Height());
    const int fitting = (length - m_list->LengthOf(0)) / std::max(m_list->entryH, 1);
    return fitting >= count ? r : place(std::max(fitting, 1));
}

void CECb::Close()
{
    if (!IsOpen())
        return;
    m_list->Close();
    if (m_held && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    // The variable may have changed meanwhile.
    m_list->SelVal(*this);
    if (m_hWnd)
        Invalidate(FALSE);
}

void CECb::Choose(CELEnt* ent)
{
    constexpr int clickSound = 0;
    const HWND self = m_hWnd;
    const int notified = id;
    if (IsOpen())
        Vant::Snd(clickSound);
    // First, as closing takes over the variable again.
    CEList::StoreIn(*this, ent);
    m_list->Sel(ent);
    Close();
    if (m_hWnd)
        Invalidate(FALSE);
    Execute();
    // A callback may have destroyed the window, or its parent.
    vant::detail::SendCommand(self, notified, CBN_SELCHANGE);
}

CRect CECb::ButtonRc() const
{
    CRect r = ClientRc();
    if (IsVertical())
        r.top = std::max<int>(r.top, r.bottom - r.Width());
    else
        r.left = std::max<int>(r.left, r.right - r.Height());
    return r;
}

void CECb::DrawButton(CDC* dc) const
{
    Look drawn = (look & lookHover) ? Look::Hover : Look::Normal;
    if (!IsEnabled())
        drawn = Look::Disabled;
    else if (IsOpen() || (look & lookPressed))
        drawn = Look::Pressed;
    const CRect r = ButtonRc();
    const COLORREF back = BackCol();
    bool isDrawn = false;
    if (layout == layoutRight)
        isDrawn = vant::detail::DrawPiece(*dc, r, Vant::right, vant::skins::right::button, drawn, back);
    else if (layout == layoutLeft)
        isDrawn = vant::detail::DrawPiece(*dc, r, Vant::left, vant::skins::left::button, drawn, back);
    else
        isDrawn = vant::detail::DrawPiece(*dc, r, Vant::dwnAr, vant::skins::dwnAr::button, drawn, back);
    if (!isDrawn)
        CEStyle::Brdr2(dc, r);
}

void CECb::Draw(CDC* dc)
{
    CRect r = ClientRc();
    const FieldCell cell = vant::detail::FieldCellOf(*this, vant::detail::HasFocus(*this));
    DrawBack(dc);
    style.Set(dc);
    vant::detail::DrawFieldFrame(*dc, r, style, cell, BackCol());

    const CRect button = ButtonRc();
    r.DeflateRect(vant::detail::fieldFrame, vant::detail::fieldFrame);
    if (IsVertical())
        r.bottom = button.top;
    else
        r.right = button.left;
    const bool isLit = cell == FieldCell::Focused || cell == FieldCell::Hover;
    // An open list looks as it did when it opened.
    if (!IsOpen())
        m_list->Follow();
    if (r.right > r.left && r.bottom > r.top) {
        if (CELEnt* const ent = GetSel())
            m_list->DrawEnt(dc, r, ent, isLit);
        else if (!pVal || type != 0)
            m_list->DrawLabel(dc, r, GetText(1), isLit);
    }
    DrawButton(dc);
}
