// CCtrlCat: the windows of its controls, where they are and whether they are shown.
#include "controls/CCtrlCat.h"

#include "controls/CECheck.h"
#include "controls/CELabel.h"
#include "controls/CVantWnd.h"
#include "controls/detail/LayoutPass.h"

#include <algorithm>
#include <utility>

namespace
{

constexpr int edge = 5;         // between the client area's edge and an anchored category
constexpr int stackedDrop = 18; // from a section's top to its block of controls
constexpr int firstLine = 10;   // from the block's top

// The bits of an anchor code.
constexpr int vertical = 0x7000;
constexpr int middle = 0x2000;
constexpr int bottom = 0x4000;
constexpr int horizontal = 0x0700;
constexpr int centre = 0x0200;
constexpr int right = 0x0400;

// The header's box and title, from the category's top left.
constexpr RECT checkPlace = {5, 0, 21, 18};
constexpr RECT labelPlace = {25, 0, 315, 18};
constexpr RECT anchoredLabelPlace = {0, 0, 200, 20};

void SetKeepHidden(CECtrl& ctrl, bool keepHidden) noexcept
{
    ctrl.state = keepHidden ? ctrl.state | CECtrl::stKeepHidden : ctrl.state & ~CECtrl::stKeepHidden;
}

/** The box that opens and closes a section: the arrow of a branch. Any value but 0 counts as open. */
class SectionBox final : public CECheck
{
public:
    explicit SectionBox(int& expanded)
        : m_expanded(expanded)
    {
        constexpr int anyBit = -1;
        aux0 = anyBit;
        mark = markBranch;
        Init(expanded);
    }

    void Toggle()
    {
        m_expanded = m_expanded ? 0 : 1;
        if (m_hWnd)
            Invalidate(FALSE);
        Execute();
    }

protected:
    void OnClick() override { Toggle(); }

private:
    int& m_expanded;
};

/** The title of a section, which opens and closes it as well. Tab passes it by: it stops at the box. */
class SectionTitle final : public CELabel
{
public:
    explicit SectionTitle(SectionBox& box)
        : m_box(box)
    {
        bar = barCategory;
    }
    unsigned long WndStyle() const override { return CECtrl::WndStyle() | keepFocus; }

protected:
    bool IsClickable() const override { return true; }
    void OnClick() override { m_box.Toggle(); }

private:
    SectionBox& m_box;
};

/** Creates the window of a control if it has none. */
void CreateWindowOf(CECtrl& ctrl, CPoint origin, CVantWnd& parent)
{
    if (ctrl.m_hWnd)
        return;
    const CRect place = parent.Dpi().ToPx(ctrl.rc + origin);
    ctrl.Create(ctrl.WndStyle(), place, &parent, static_cast<unsigned>(ctrl.id));
}

} // namespace

void CCtrlCat::SetHeader(const CString& title)
{
    hasHdr = 1;
    m_hdrLabel.reset();
    if (kind == kindStacked) {
        auto box = std::make_unique<SectionBox>(expanded);
        box->pWnd = pParent;
        box->style = catStyle;
        box->rc = checkPlace;
        box->SetCallback(pParent, static_cast<CEVal::CbNone>(&CVantWnd::OnSection));
        m_hdrLabel = std::make_unique<SectionTitle>(*box);
        m_hdrCheck = std::move(box);
    } else {
        m_hdrLabel = std::make_unique<CELabel>();
        m_hdrLabel->bar = CELabel::barCaption;
    }
    m_hdrLabel->pWnd = pParent;
    m_hdrLabel->style = catStyle;
    m_hdrLabel->rc = kind == kindStacked ? labelPlace : anchoredLabelPlace;
    m_hdrLabel->Init(static_cast<LPCWSTR>(title));
}

void CCtrlCat::ClearCtrls()
{
    ctrls.RemoveAll();
    curX = leftM;
    curY = firstLine;
    maxX = maxY = -1;
}

void CCtrlCat::DestroyCtrls()
{
    if (pParent)
        pParent->DropFlex(ctrls);
    // The list is emptied first: a window that goes may make others look at it.
    CLstPtr<CECtrl*> gone = ctrls;
    // Not the virtual operation: a window's clears its other categories, whose controls are still to be
    // deleted.
    CCtrlCat::ClearCtrls();
    while (CECtrl* const ctrl = gone.RemoveHead()) {
        if (ctrl->m_hWnd)
            ctrl->DestroyWindow();
        delete ctrl;
    }
}

void CCtrlCat::CreateCtrls()
{
    if (!pParent || !pParent->m_hWnd)
        return;
    const CRect client = pParent->ClientRc();
    const CPoint origin = Origin(client);
    const CPoint header = HeaderPlace(client);
    if (m_hdrCheck)
        CreateWindowOf(*m_hdrCheck, header, *pParent);
    if (m_hdrLabel)
        CreateWindowOf(*m_hdrLabel, header, *pParent);
    for (CVantPtr* pos = ctrls.GetHeadPos(); pos;) {
        CECtrl& ctrl = *ctrls.GetNext(pos);
        SetKeepHidden(ctrl, KeepsHidden(ctrl));
        CreateWindowOf(ctrl, origin, *pParent);
    }
}

bool CCtrlCat::IsAnchored() const noexcept
{
    switch (kind) {
    case anchorTopLeft:
    case anchorTopCentre:
    case anchorTopRight:
    case anchorMiddleLeft:
    case anchorCentre:
    case anchorMiddleRight:
    case anchorBottomLeft:
    case anchorBottomCentre:
    case anchorBottomRight:
        return true;
    default:
        return false;
    }
}

/** Where the block of controls starts; an anchored category's position follows the client area. */
CPoint CCtrlCat::Origin(const CRect& client)
{
    if (kind == kindStacked)
        return CPoint(x, y + stackedDrop);
    if (!IsAnchored())
        return CPoint(x, y - pParent->ScrollPos() + (hasHdr ? hdrH : 0));

    const int header = hasHdr ? hdrH + edge : edge;
    // Each half is cut on its own.
    x = (kind & horizontal) == centre  ? client.right / 2 - maxX / 2
        : (kind & horizontal) == right ? client.right - maxX - edge
                                       : client.left + edge;
    y = (kind & vertical) == middle   ? client.bottom / 2 - maxY / 2
        : (kind & vertical) == bottom ? client.bottom - header - maxY
                                      : client.top + header;
    return CPoint(x, y);
}

/** Where the header's rectangles count from: of an anchored category, the edges that it is anchored to. */
CPoint CCtrlCat::HeaderPlace(const CRect& client) const
{
    if (kind == kindStacked)
        return CPoint(x, y);
    if (!IsAnchored())
        return CPoint(x, y - pParent->ScrollPos());
    const int width = m_hdrLabel ? m_hdrLabel->rc.Width() : 0;
    const int atX = (kind & horizontal) == centre  ? client.right / 2 - width / 2
                    : (kind & horizontal) == right ? client.right - width - edge
                                                   : client.left + edge;
    const int atY = (kind & vertical) == middle   ? y - hdrH
                    : (kind & vertical) == bottom ? client.bottom - hdrH - edge
                                                  : client.top + edge;
    return CPoint(atX, atY);
}

void CCtrlCat::LayoutCtrls(const CRect& client)
{
    if (!pParent || !pParent->m_hWnd)
        return;
    vant::detail::LayoutPass pass(pParent->m_hWnd, pParent->m_pass);
    const CPoint origin = Origin(client);
    const CPoint header = HeaderPlace(client);
    if (m_hdrCheck)
        pass.Place(m_hdrCheck->m_hWnd, m_hdrCheck->rc + header, true);
    if (m_hdrLabel)
        pass.Place(m_hdrLabel->m_hWnd, m_hdrLabel->rc + header, true);

    const HWND focusTo = m_hdrCheck && m_hdrCheck->m_hWnd ? m_hdrCheck->m_hWnd : pParent->m_hWnd;
    const bool flexing = pParent->IsFlexing();
    const CSize growth = pParent->Growth();
    for (CVantPtr* pos = ctrls.GetHeadPos(); pos;) {
        CECtrl& ctrl = *ctrls.GetNext(pos);
        const bool hidden = KeepsHidden(ctrl);
        SetKeepHidden(ctrl, hidden);
        const bool show = !hidden && (ctrl.state & CECtrl::stShown);
        const CVantWnd::FlexRec* const flex = flexing ? pParent->GetFlex(&ctrl) : nullptr;
        if (expanded)
            pass.Place(ctrl.m_hWnd,
                       (flex ? flex->flex.Apply(ctrl.rc, growth.cx, growth.cy) : ctrl.rc) + origin, show);
        if (!show)
            pass.Hide(ctrl.m_hWnd, focusTo);
    }
}

bool CCtrlCat::KeepsHidden(const CECtrl& ctrl) const noexcept
{
    return !expanded ||
           std::find(m_hiddenLevels.begin(), m_hiddenLevels.end(), ctrl.level) != m_hiddenLevels.end();
}

void CCtrlCat::ShowLevel(int levelBits, int show)
{
    lvlMask = show ? lvlMask | levelBits : lvlMask & ~levelBits;
    std::erase(m_hiddenLevels, levelBits);
    if (!show)
        m_hiddenLevels.push_back(levelBits);
    if (!pParent || !pParent->m_hWnd)
        return;
    vant::detail::LayoutPass pass(pParent->m_hWnd, pParent->m_pass);
    for (CVantPtr* pos = ctrls.GetHeadPos(); pos;) {
        CECtrl& ctrl = *ctrls.GetNext(pos);
        if (ctrl.level != levelBits)
            continue;
        SetKeepHidden(ctrl, KeepsHidden(ctrl));
        if (KeepsHidden(ctrl))
            pass.Hide(ctrl.m_hWnd, pParent->m_hWnd);
        else if (ctrl.state & CECtrl::stShown)
            pass.Show(ctrl.m_hWnd);
    }
}

/** How far down the block reaches, lines that were not ended included; at most 0 for an empty one. */
int CCtrlCat::Bottom() const noexcept
{
    int reached = maxY;
    for (const CVantPtr* pos = ctrls.GetHeadPos(); pos; pos = pos->next)
        reached = std::max<int>(reached, ctrls.GetAt(pos)->rc.bottom);
    return reached;
}
