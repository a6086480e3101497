#include "controls/CEAddr.h"

#include "controls/detail/AddressLayout.h"
#include "controls/detail/CtrlText.h"
#include "platform/Vant.h"
#include "values/detail/ValueType.h"

#include <cstring>

using vant::detail::AddressLayout;
using vant::detail::TypeOf;
using vant::detail::ValueType;

IMPLEMENT_DYNAMIC(CEAddr, CECtrl)

BEGIN_MESSAGE_MAP(CEAddr, CECtrl)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

static_assert(AddressLayout::fields == CEAddr::fields);
static_assert(sizeof(unsigned long) == CEAddr::fields);

constexpr int CEAddr::fields;

namespace
{

constexpr COLORREF greyedText = RGB(0x80, 0x80, 0x80);
constexpr int gapInset = 2; // units at each end of a gap

} // namespace

CEAddr::CEAddr()
    : CEAddr(0)
{
}

CEAddr::CEAddr(int isGreyed)
    : greyed(isGreyed)
    , m_editable(!isGreyed)
{
    if (greyed)
        style.txtCol = greyedText;
    for (int i = 0; i < fields; ++i) {
        CEEdit& edit = edits[static_cast<std::size_t>(i)];
        edit.Init(addr[static_cast<std::size_t>(i)]);
        edit.SetLinks(i > 0 ? &edit - 1 : nullptr, i < fields - 1 ? &edit + 1 : nullptr);
        edit.SetLinkChrs(0, '.');
        edit.SetCallback(this, static_cast<CbNone>(&CEAddr::CtrlUpd));
        edit.enIf = 1;
        edit.pEnVar = &m_editable;
        edit.enVal = 1;
    }
    CopyTips();
}

CEAddr::~CEAddr()
{
    // Fields that lose the focus to the end of their window do not store: the variable may be gone.
    for (CEEdit& edit : edits)
        edit.escaped = 1;
    DestroyWindow();
}

void CEAddr::CopyTips()
{
    for (CEEdit& edit : edits) {
        edit.tip = tip;
        edit.aux3 = aux3;
    }
}

bool CEAddr::IsBound() const
{
    return pVal && (TypeOf(type) == ValueType::UChar || TypeOf(type) == ValueType::ULong);
}

void CEAddr::TakeValue()
{
    if (!IsBound())
        return;
    const unsigned long bytes = *this;
    std::memcpy(addr.data(), &bytes, addr.size());
}

void CEAddr::Update(int arg)
{
    TakeValue();
    m_editable = !greyed && IsEnabled();
    CopyTips();
    for (CEEdit& edit : edits)
        edit.Update(arg);
    CECtrl::Update(arg);
}

void CEAddr::Retreive()
{
    for (CEEdit& edit : edits)
        edit.Retreive();
    if (!IsBound())
        return;
    unsigned long bytes = 0;
    std::memcpy(&bytes, addr.data(), addr.size());
    CEVal::operator=(bytes);
}

int CEAddr::Press()
{
    return edits[0].Press();
}

int CEAddr::Jog(int, double, int)
{
    return 0;
}

void CEAddr::SetGlow(int strength)
{
    CECtrl::SetGlow(strength);
    for (CEEdit& edit : edits)
        edit.SetGlow(strength);
}

void CEAddr::CtrlUpd()
{
    if (greyed)
        return;
    Retreive();
    Execute();
}

void CEAddr::Draw(CDC* dc)
{
    const CRect client = ClientRc();
    dc->FillRect(client, &Vant::backB);
    const AddressLayout layout(client.Width());
    for (int i = 0; i < AddressLayout::gaps; ++i) {
        const auto [left, right] = layout.Gap(i);
        if (style.pBrush && right - left > 2 * gapInset)
            dc->FillRect(CRect(left + gapInset, client.top, right - gapInset, client.bottom), style.pBrush);
    }
    style.Set(dc);
    for (int i = 0; i < AddressLayout::gaps; ++i) {
        const auto [left, right] = layout.Gap(i);
        vant::detail::DrawLine(*dc, L".", CRect(left, client.top, right, client.bottom), DT_CENTER);
    }
}

CRect CEAddr::FieldRc(int i) const
{
    const CRect client = ClientRc();
    const auto [left, right] = AddressLayout(client.Width()).Field(i);
    return Dpi().ToPx(CRect(left, client.top, right, client.bottom));
}

BOOL CEAddr::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= static_cast<LONG>(WS_CLIPCHILDREN);
    cs.dwExStyle |= WS_EX_CONTROLPARENT;
    return CECtrl::PreCreateWindow(cs);
}

int CEAddr::OnCreate(LPCREATESTRUCT create)
{
    if (CECtrl::OnCreate(create) == -1)
        return -1;
    TakeValue();
    CopyTips();
    m_editable = !greyed && IsEnabled();
    const DWORD access = (greyed ? 0 : WS_TABSTOP) | (m_editable ? 0 : WS_DISABLED);
    for (int i = 0; i < fields; ++i) {
        CEEdit& edit = edits[static_cast<std::size_t>(i)];
        edit.style = style;
        edit.style.align |= 1; // centred, whatever the control's own
        edit.Create(WS_CHILD | WS_VISIBLE | access, FieldRc(i), this, static_cast<UINT>(id + i));
    }
    return 0;
}

void CEAddr::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    for (int i = 0; i < fields; ++i) {
        CEEdit& edit = edits[static_cast<std::size_t>(i)];
        if (edit.m_hWnd)
            edit.MoveWindow(FieldRc(i));
    }
    Invalidate();
}

void CEAddr::OnSetFocus(CWnd* old)
{
    CECtrl::OnSetFocus(old);
    // A field that gives the focus up by Enter or Escape must not get it back.
    const bool fromField = old && old->m_hWnd && IsChild(old);
    if (fromField || !m_editable)
        return;
    edits[0].SetFocus();
    edits[0].SendMessage(EM_SETSEL, 0, -1);
}
