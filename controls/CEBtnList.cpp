#include "controls/CEBtnList.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/BtnFace.h"

#include <algorithm>
#include <cstddef>

using vant::skins::Look;

IMPLEMENT_DYNAMIC(CEBtnList, CECtrl)

BEGIN_MESSAGE_MAP(CEBtnList, vant::detail::ClickCtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

CEBtnList::CEBtnList()
{
    ctrlType = typeBtnList;
}

unsigned long CEBtnList::WndStyle() const
{
    return ClickCtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

int CEBtnList::AddBtn(const CString& caption, int value)
{
    m_btns.push_back({caption, value, true});
    if (m_hWnd)
        Invalidate(FALSE);
    return Count() - 1;
}

void CEBtnList::AddBtns(const CString& captions)
{
    for (int from = 0; from <= captions.GetLength();) {
        const int found = captions.Find(L'|', from);
        const int end = found < 0 ? captions.GetLength() : found;
        AddBtn(captions.Mid(from, end - from), Count());
        from = end + 1;
    }
}

void CEBtnList::RemoveAll()
{
    m_btns.clear();
    m_hot = m_held = -1;
    if (m_hWnd)
        Invalidate(FALSE);
}

int CEBtnList::Count() const noexcept
{
    return static_cast<int>(m_btns.size());
}

bool CEBtnList::IsBtnEnabled(int btn) const
{
    return btn >= 0 && btn < Count() && m_btns[static_cast<std::size_t>(btn)].enabled;
}

void CEBtnList::EnableBtn(int btn, bool enable)
{
    if (btn < 0 || btn >= Count())
        return;
    m_btns[static_cast<std::size_t>(btn)].enabled = enable;
    if (m_hWnd)
        Invalidate(FALSE);
}

int CEBtnList::Chosen() const
{
    if (!vant::detail::IsInteger(*this))
        return -1;
    const std::int64_t bound = vant::detail::IntegerOf(*this);
    const auto found = std::find_if(m_btns.begin(), m_btns.end(), [&](const Btn& btn) {
        return vant::detail::AsHeld(*this, btn.value) == bound;
    });
    return found != m_btns.end() ? static_cast<int>(found - m_btns.begin()) : -1;
}

/** The button that the keyboard is at. */
int CEBtnList::Current() const
{
    return std::max(Chosen(), 0);
}

int CEBtnList::ShownState() const
{
    return Chosen();
}

CRect CEBtnList::BtnRc(int btn) const
{
    const CRect r = ClientRc();
    // Shares of a unit go round, so that the last one ends where the control does.
    const auto edge = [&](int n) {
        return r.left + static_cast<int>(static_cast<__int64>(r.Width()) * n / Count());
    };
    return {edge(btn), r.top, edge(btn + 1), r.bottom};
}

int CEBtnList::BtnAt(CPoint at) const
{
    for (int btn = 0; btn < Count(); ++btn)
        if (BtnRc(btn).PtInRect(at))
            return btn;
    return -1;
}

void CEBtnList::Choose(int btn)
{
    if (!IsBtnEnabled(btn) || btn == Chosen())
        return;
    vant::detail::PutInteger(*this, m_btns[static_cast<std::size_t>(btn)].value);
    Invalidate(FALSE);
    Execute();
}

void CEBtnList::OnClick()
{
    // A click of the keyboard has no button under it.
    const int btn = m_held >= 0 ? m_held : Current();
    m_held = -1;
    Choose(btn);
}

/** Chooses the first button that can be used on the way from one on. */
void CEBtnList::Move(int from, int by)
{
    int btn = from;
    while (btn >= 0 && btn < Count() && !IsBtnEnabled(btn))
        btn += by;
    if (!IsBtnEnabled(btn) || btn == Chosen())
        return;
    m_held = btn;
    Click();
}

int CEBtnList::Press()
{
    if (!m_hWnd || !IsWindowEnabled())
        return 0;
    const int chosen = Chosen();
    for (int i = 1; i <= Count(); ++i) {
        const int btn = (chosen + i) % Count();
        if (!IsBtnEnabled(btn) || btn == chosen)
            continue;
        m_held = btn;
        Click();
        return 1;
    }
    return 0;
}

int CEBtnList::Jog(int notches, double, int)
{
    const int chosen = Chosen();
    const int by = notches < 0 ? -1 : 1;
    int to = chosen;
    for (int btn = chosen + by; notches != 0 && btn >= 0 && btn < Count(); btn += by) {
        if (!IsBtnEnabled(btn))
            continue;
        to = btn;
        notches -= by;
    }
    if (to == chosen)
        return 0;
    m_held = to;
    Click();
    return 1;
}

bool CEBtnList::IsInside(CPoint px) const
{
    return ClickCtrl::IsInside(px) && BtnAt(Dpi().ToUnits(px)) == m_held;
}

void CEBtnList::OnLButtonDown(UINT flags, CPoint point)
{
    const int btn = BtnAt(Dpi().ToUnits(point));
    m_held = IsBtnEnabled(btn) ? btn : -1;
    if (m_held >= 0)
        ClickCtrl::OnLButtonDown(flags, point);
}

void CEBtnList::OnMouseMove(UINT flags, CPoint point)
{
    const int btn = BtnAt(Dpi().ToUnits(point));
    if (btn != m_hot) {
        m_hot = btn;
        Invalidate(FALSE);
    }
    ClickCtrl::OnMouseMove(flags, point);
}

void CEBtnList::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    switch (key) {
    case VK_LEFT:
    case VK_UP:
        // With none chosen both directions begin at the left.
        return Chosen() < 0 ? Move(0, 1) : Move(Chosen() - 1, -1);
    case VK_RIGHT:
    case VK_DOWN:
        return Move(Chosen() + 1, 1);
    case VK_HOME:
        return Move(0, 1);
    case VK_END:
        return Move(Count() - 1, -1);
    default:
        if (key == VK_SPACE || key == VK_RETURN)
            m_held = -1;
        ClickCtrl::OnKeyDown(key, repeat, flags);
    }
}

UINT CEBtnList::OnGetDlgCode()
{
    return ClickCtrl::OnGetDlgCode() | DLGC_WANTARROWS;
}

Look CEBtnList::BtnLook(int btn) const
{
    if (!IsEnabled() || !IsBtnEnabled(btn))
        return Look::Disabled;
    const bool atKeyboard = btn == Current();
    if ((look & lookPressed) && (m_held >= 0 ? btn == m_held : atKeyboard))
        return Look::Pressed;
    if (HasFocus() && atKeyboard)
        return Look::Focused;
    return (look & lookHover) && btn == m_hot ? Look::Hover : Look::Normal;
}

void CEBtnList::Draw(CDC* dc)
{
    DrawBack(dc);
    style.Set(dc);
    const int chosen = Chosen();
    for (int btn = 0; btn < Count(); ++btn) {
        const CRect r = BtnRc(btn);
        const bool isHover = (look & lookHover) && btn == m_hot;
        const vant::detail::BtnFace face{BtnLook(btn), btn == chosen, isHover};
        vant::detail::DrawBtnFace(*dc, r, face, BackCol());
        vant::detail::DrawBtnCaption(*dc, m_btns[static_cast<std::size_t>(btn)].caption, r, face,
                                     style.txtCol);
    }
    NoteShown();
}
