#include "controls/CERadio.h"

#include "controls/detail/BoundNumber.h"
#include "resources/Skins.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace skin = vant::skins::check;
using vant::detail::TypeOf;
using vant::skins::Look;

IMPLEMENT_DYNAMIC(CERadio, CECtrl)

BEGIN_MESSAGE_MAP(CERadio, vant::detail::MarkCtrl)
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

namespace
{

/** Every radio button, in the order of construction. */
std::vector<CERadio*>& All()
{
    static std::vector<CERadio*> all;
    return all;
}

} // namespace

CERadio::CERadio()
{
    ctrlType = typeRadio;
    s_auCtrls.AddTail(this);
    All().push_back(this);
}

CERadio::~CERadio()
{
    std::erase(All(), this);
}

bool CERadio::IsChosen() const
{
    return vant::detail::IsInteger(*this) &&
           vant::detail::IntegerOf(*this) == vant::detail::AsHeld(*this, aux0);
}

int CERadio::ShownState() const
{
    return IsChosen() ? 1 : 0;
}

std::vector<CERadio*> CERadio::Group() const
{
    std::vector<CERadio*> group;
    const HWND parent = ::GetAncestor(m_hWnd, GA_PARENT);
    std::copy_if(All().begin(), All().end(), std::back_inserter(group), [&](const CERadio* other) {
        return other->m_hWnd && other->pVal == pVal && TypeOf(other->type) == TypeOf(type) &&
               ::GetAncestor(other->m_hWnd, GA_PARENT) == parent && (pVal || other == this);
    });
    return group;
}

/** How much of a claim to the group's tab stop it has; 0 for none. */
int CERadio::StopRank() const
{
    if (!(GetStyle() & WS_VISIBLE) || (GetStyle() & WS_DISABLED))
        return 0;
    return HasFocus() ? 3 : IsChosen() ? 2 : 1;
}

bool CERadio::IsTabStop() const
{
    const std::vector<CERadio*> group = Group();
    const auto stop = std::max_element(group.begin(), group.end(), [](const CERadio* a, const CERadio* b) {
        return a->StopRank() < b->StopRank();
    });
    return stop != group.end() && *stop == this;
}

void CERadio::OnClick()
{
    if (IsChosen())
        return;
    vant::detail::PutInteger(*this, aux0);
    for (CERadio* const button : Group())
        button->Invalidate(FALSE);
    Execute();
}

/** Goes on to the next button that can be used, and chooses it. */
void CERadio::Move(int by)
{
    const std::vector<CERadio*> group = Group();
    const auto count = static_cast<std::ptrdiff_t>(group.size());
    std::ptrdiff_t at = std::find(group.begin(), group.end(), this) - group.begin();
    for (std::ptrdiff_t i = 1; i < count; ++i) {
        at = (at + by + count) % count;
        CERadio* const next = group[static_cast<std::size_t>(at)];
        if (next->StopRank() == 0)
            continue;
        next->SetFocus();
        return next->Click();
    }
}

void CERadio::DrawMark(CDC* dc, const CRect& box, Look drawn)
{
    const bool chosen = IsChosen();
    if (DrawCheckPiece(dc, box, chosen ? skin::radioOn : skin::radioOff, drawn))
        return;
    constexpr int gap = 4;
    CRect ring = box;
    ring.DeflateRect(gap, gap);
    const HGDIOBJ hollow = ::SelectObject(dc->m_hDC, ::GetStockObject(NULL_BRUSH));
    dc->Ellipse(ring);
    ::SelectObject(dc->m_hDC, hollow);
    ring.DeflateRect(gap / 2 + 1, gap / 2 + 1);
    if (chosen && !ring.IsRectEmpty())
        dc->FillSolidRect(ring, style.txtCol);
}

void CERadio::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    switch (key) {
    case VK_LEFT:
    case VK_UP:
        return Move(-1);
    case VK_RIGHT:
    case VK_DOWN:
        return Move(1);
    default:
        MarkCtrl::OnKeyDown(key, repeat, flags);
    }
}

UINT CERadio::OnGetDlgCode()
{
    return MarkCtrl::OnGetDlgCode() | DLGC_RADIOBUTTON | DLGC_WANTARROWS;
}
