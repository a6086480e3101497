// CVantWnd: where categories and flexible children are, and the scale.
#include "controls/CVantWnd.h"

#include "controls/detail/LayoutPass.h"

#include <algorithm>

int CVantWnd::OwnHeight() const
{
    return hdrH + std::max({mgrExtra, maxY, 0});
}

int CVantWnd::GetMgrY() const
{
    int nextY = org.y + OwnHeight() - m_scrollY;
    for (const CVantPtr* pos = m_cats.GetHeadPos(); pos; pos = pos->next) {
        const CCtrlCat& cat = *m_cats.GetAt(pos);
        if (cat.kind == kindStacked)
            nextY += cat.GetCtrlHeight();
    }
    return nextY;
}

/** Gives the sections their positions. */
void CVantWnd::StackCats()
{
    int nextY = org.y + OwnHeight() - m_scrollY;
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;) {
        CCtrlCat& cat = *m_cats.GetNext(pos);
        if (cat.kind != kindStacked)
            continue;
        cat.x = org.x;
        cat.y = nextY;
        nextY += cat.GetCtrlHeight();
    }
}

/** Moves everything that the categories hold to its place. */
void CVantWnd::PlaceCats()
{
    vant::detail::LayoutPass pass(m_hWnd, m_pass);
    const CRect before = ClientRc();
    UpdateScrollBar();
    const CRect client = ClientRc();
    StackCats();
    LayoutCtrls(client);
    // The scroll bar takes its room from the flexible children too.
    if (client != before)
        UpdateFlex();
}

void CVantWnd::LayoutCtrls(const CRect& client)
{
    if (!m_hWnd)
        return;
    vant::detail::LayoutPass pass(m_hWnd, m_pass);
    CCtrlCat::LayoutCtrls(client);
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
        m_cats.GetNext(pos)->LayoutCtrls(client);
}

void CVantWnd::LayoutWnd(int quiet)
{
    if (!m_hWnd)
        return;
    PlaceCats();
    if (!quiet && (GetStyle() & WS_CHILD))
        ::PostMessageW(::GetParent(m_hWnd), layoutMsg, 0, 0);
}

LRESULT CVantWnd::OnLayoutMsg(WPARAM, LPARAM)
{
    LayoutWnd(0);
    return 0;
}

void CVantWnd::OnSection()
{
    LayoutWnd(0);
}

void CVantWnd::SetWndOrg(CPoint origin)
{
    org = origin;
    x = origin.x;
    y = origin.y;
    LayoutWnd(1);
}

void CVantWnd::SetWndX(int toX)
{
    SetWndOrg(CPoint(toX, org.y));
}

void CVantWnd::SetWndY(int toY)
{
    SetWndOrg(CPoint(org.x, toY));
}

void CVantWnd::SetWndXY(int toX, int toY)
{
    SetWndOrg(CPoint(toX, toY));
}

void CVantWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    // A layout that is going on makes the scroll bar come and go, and takes that into account itself.
    if (type == SIZE_MINIMIZED || m_pass)
        return;
    LayoutWnd(1);
    UpdateFlex();
}

CSize CVantWnd::Growth() const
{
    const CRect client = ClientRc();
    return CSize(minW < 0 ? 0 : std::max(0, client.Width() - minW),
                 minH < 0 ? 0 : std::max(0, client.Height() - minH));
}

void CVantWnd::SetupFlex(CWnd* child, CEFlex flex)
{
    if (!child)
        return;
    const auto* const ctrl = dynamic_cast<CECtrl*>(child);
    if (ctrl && ctrl->pWnd == this) {
        AddFlex({child, ctrl->rc, flex, true});
        return;
    }
    if (!child->m_hWnd || !m_hWnd)
        return;
    CRect place;
    child->GetWindowRect(&place);
    ScreenToClient(&place);
    AddFlex({child, Dpi().ToUnits(place), flex, false});
}

void CVantWnd::AddFlex(const FlexRec& rec)
{
    const auto [at, isNew] = m_flexAt.try_emplace(rec.child, m_flex.size());
    if (isNew)
        m_flex.push_back(rec);
    else
        m_flex[at->second] = rec;
}

void CVantWnd::DropFlex(const CLstPtr<CECtrl*>& gone)
{
    if (m_flex.empty())
        return;
    for (const CVantPtr* pos = gone.GetHeadPos(); pos; pos = pos->next) {
        if (FlexRec* const rec = GetFlex(gone.GetAt(pos)))
            rec->child = nullptr;
    }
    std::erase_if(m_flex, [](const FlexRec& rec) { return !rec.child; });
    m_flexAt.clear();
    for (std::size_t i = 0; i < m_flex.size(); ++i)
        m_flexAt[m_flex[i].child] = i;
}

CVantWnd::FlexRec* CVantWnd::GetFlex(CWnd* child)
{
    const auto found = m_flexAt.find(child);
    return found != m_flexAt.end() ? &m_flex[found->second] : nullptr;
}

void CVantWnd::UpdateFlex()
{
    if (!m_hWnd || !IsFlexing())
        return;
    vant::detail::LayoutPass pass(m_hWnd, m_pass);
    const CSize growth = Growth();
    bool hasCtrls = false;
    for (const FlexRec& rec : m_flex) {
        hasCtrls |= rec.isCtrl;
        if (!rec.isCtrl)
            pass.Place(rec.child->m_hWnd, rec.flex.Apply(rec.rc, growth.cx, growth.cy), false);
    }
    if (hasCtrls)
        LayoutCtrls(ClientRc());
}

LRESULT CVantWnd::OnDpiChanged(WPARAM dpi, LPARAM suggested)
{
    const CDpi from = Dpi();
    const CDpi to(HIWORD(dpi));
    to.Set(m_hWnd);
    ScaleOtherChildren(from, to);
    if (suggested) {
        const CRect place(*reinterpret_cast<const RECT*>(suggested));
        SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    OnNewScale(0, 0);
    SendMessageToDescendants(WM_DPICHANGED_AFTERPARENT, 0, 0, TRUE, TRUE);
    Invalidate();
    return 0;
}

LRESULT CVantWnd::OnNewScale(WPARAM, LPARAM)
{
    LayoutWnd(1);
    UpdateFlex();
    return 0;
}

/** Moves the children that are no controls of a category, so that they keep their places in units. */
void CVantWnd::ScaleOtherChildren(const CDpi& from, const CDpi& to)
{
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CRect place;
        ::GetWindowRect(child, &place);
        ScreenToClient(&place);
        if (!IsOwnCtrl(child)) {
            place = to.ToPx(from.ToUnits(place));
            ::SetWindowPos(child, nullptr, place.left, place.top, place.Width(), place.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE);
        }
        if (auto* const wnd = dynamic_cast<CVantWnd*>(FromHandlePermanent(child)))
            wnd->ScaleOtherChildren(from, to);
    }
}

bool CVantWnd::IsOwnCtrl(HWND child) const
{
    const auto* const ctrl = dynamic_cast<CECtrl*>(FromHandlePermanent(child));
    return ctrl && ctrl->pWnd == this;
}
