#include "controls/CEEdit.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/JogStep.h"
#include "platform/Vant.h"
#include "values/detail/ValueType.h"

#include <algorithm>

using vant::detail::TypeOf;
using vant::detail::ValueType;

IMPLEMENT_DYNAMIC(CEEdit, CECtrl)

BEGIN_MESSAGE_MAP(CEEdit, CECtrl)
    ON_WM_CREATE()
    ON_WM_CHAR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ENABLE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_CTLCOLOR_REFLECT()
    ON_MESSAGE(WM_DPICHANGED_AFTERPARENT, &CEEdit::OnScaleChanged)
END_MESSAGE_MAP()

CString CEEdit::s_signedChars = L"0123456789+-";
CString CEEdit::s_unsignedChars = L"0123456789";
CString CEEdit::s_fpChars = L"0123456789+-.Ee";

namespace
{

constexpr wchar_t escapeChr = 27;
constexpr wchar_t enterChr = 13;
constexpr wchar_t firstPrintable = 32;
constexpr wchar_t ctrlBackspace = 127;

constexpr int alarmIncorrect = 40;

/** Whether a key goes to the edit window before anybody else. */
bool TakesKey(WPARAM key)
{
    if (key == VK_RETURN || key == VK_DELETE || key == VK_ESCAPE)
        return true;
    // Deliberately not only while Control is down: every other press of it leaves a non-zero state behind.
    // Tab alone must then go on to the next control all the same.
    const SHORT control = ::GetKeyState(VK_CONTROL);
    return key == VK_TAB ? control < 0 : control != 0;
}

} // namespace

CEEdit::CEEdit()
{
    ctrlType = typeEdit;
}

CEEdit::~CEEdit()
{
    // The variable may be gone already: only a window that is destroyed before its object stores.
    escaped = 1;
    DestroyWindow();
}

int CEEdit::Create(unsigned long windowStyle, const RECT& r, CWnd* parent, unsigned int windowId)
{
    id = static_cast<int>(windowId);
    DWORD alignment = ES_LEFT;
    if (!IsText())
        alignment = (style.align & 1) != 0 ? ES_CENTER : ES_RIGHT;
    CWnd::Create(L"EDIT", nullptr, windowStyle | WS_CHILD | ES_AUTOHSCROLL | alignment, r, parent, windowId);
    return 1;
}

unsigned long CEEdit::WndStyle() const
{
    const unsigned long shown = CECtrl::WndStyle() & ~static_cast<unsigned long>(WS_DISABLED);
    return shown | WS_TABSTOP | (MayType() ? 0 : static_cast<unsigned long>(WS_DISABLED));
}

void CEEdit::SetLinks(CEEdit* prev, CEEdit* next)
{
    prevEdit = prev;
    nextEdit = next;
}

void CEEdit::SetLinkChrs(char prevKey, char nextKey)
{
    prevChr = prevKey;
    nextChr = nextKey;
}

void CEEdit::Update(int withText)
{
    if (!m_hWnd)
        return;
    ApplyFont();
    const HWND self = m_hWnd;
    const bool enable = MayType();
    if (!enable && ::GetFocus() == self) {
        FocusParent();
        // A callback of the text that was stored may have deleted this field.
        if (!::IsWindow(self))
            return;
    }
    EnableWindow(enable);
    if (!IsInUse())
        return;
    ApplyLimit();
    if (withText) {
        const CString value = GetText(0);
        // Setting the same text again would only send the caret back to its start.
        if (value != TypedText())
            SetWindowText(value);
    }
    if (!(m_shown == ColoursFor(validNow != 0)))
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

int CEEdit::Press()
{
    if (!m_hWnd || !IsWindowEnabled())
        return 0;
    const HWND self = m_hWnd;
    ::SetFocus(self);
    // A field that loses the focus calls its callbacks.
    if (::IsWindow(self))
        ::SendMessageW(self, EM_SETSEL, 0, -1);
    return 1;
}

int CEEdit::Jog(int notches, double step, int fine)
{
    if (!IsInUse())
        return 0;
    if (!(step > 0)) {
        const auto [low, high] = std::minmax(rangeMin, rangeMax);
        const auto own = vant::detail::OwnJogSteps(vant::detail::IsInteger(*this), rangeSet != 0, low, high);
        step = fine ? own.fine : own.coarse;
    }
    return JogNumber(notches * step, step);
}

void CEEdit::GetTip(CString& tipText)
{
    if (!tip.IsEmpty())
        tipText = tip;
}

HBRUSH CEEdit::CtlColor(CDC* dc, UINT)
{
    CString reason;
    const int valid = IsValidText(TypedText(), reason);
    m_shown = ColoursFor(valid != 0);
    dc->SetTextColor(m_shown.text);
    dc->SetBkColor(m_shown.back);
    if (valid != validNow) {
        validNow = valid;
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    }
    return m_shown.brush;
}

BOOL CEEdit::PreTranslateMessage(MSG* msg)
{
    if (msg->message != WM_KEYDOWN || !TakesKey(msg->wParam))
        return CECtrl::PreTranslateMessage(msg);
    ::TranslateMessage(msg);
    ::DispatchMessageW(msg);
    return TRUE;
}

int CEEdit::OnCreate(LPCREATESTRUCT create)
{
    if (CECtrl::OnCreate(create) == -1)
        return -1;
    ApplyFont();
    ApplyLimit();
    SetWindowText(GetText(0));
    return 0;
}

void CEEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (character == escapeChr) {
        escaped = 1;
        FocusParent();
        return;
    }
    if (character == enterChr) {
        if (nextEdit)
            FocusLinked(nextEdit);
        else
            FocusParent();
        return;
    }
    if (prevChr && character == static_cast<unsigned char>(prevChr)) {
        FocusLinked(prevEdit);
        return;
    }
    if (nextChr && character == static_cast<unsigned char>(nextChr)) {
        FocusLinked(nextEdit);
        return;
    }
    if (character == ctrlBackspace)
        return; // the system's edit window would put it into the text
    if (character >= firstPrintable && !IsText() && !Accepts(static_cast<wchar_t>(character)))
        return;
    CECtrl::OnChar(character, repeat, flags);
}

void CEEdit::OnSetFocus(CWnd* old)
{
    CECtrl::OnSetFocus(old);
    DrawFrame();
}

void CEEdit::OnKillFocus(CWnd* next)
{
    CECtrl::OnKillFocus(next);
    DrawFrame();
    const bool stores = escaped == 0;
    escaped = 0;
    if (stores)
        Store();
}

void CEEdit::Store()
{
    const CString typed = TypedText();
    CString reason;
    if (!IsValidText(typed, reason)) {
        Vant::Alarm(alarmIncorrect, 1, L"Incorrect Text: %s", static_cast<LPCWSTR>(reason));
        SetWindowText(GetText(0));
        return;
    }
    SetText(typed);
    // The last thing: a callback may destroy this field.
    Execute();
}

void CEEdit::FocusLinked(CEEdit* linked)
{
    if (!linked || !linked->m_hWnd)
        return;
    // A callback of this field, which loses the focus, may destroy the other one.
    const HWND target = linked->m_hWnd;
    ::SetFocus(target);
    ::SendMessageW(target, EM_SETSEL, 0, -1);
    ::SendMessageW(target, EM_SCROLLCARET, 0, 0);
}

void CEEdit::FocusParent()
{
    if (const HWND parent = ::GetParent(m_hWnd))
        ::SetFocus(parent);
}

bool CEEdit::IsText() const
{
    return TypeOf(type) == ValueType::Text;
}

bool CEEdit::Accepts(wchar_t character) const
{
    switch (TypeOf(type)) {
    case ValueType::Char:
    case ValueType::Short:
    case ValueType::Int:
        return s_signedChars.Find(character) >= 0;
    case ValueType::UChar:
    case ValueType::UShort:
    case ValueType::UInt:
    case ValueType::ULong:
        return s_unsignedChars.Find(character) >= 0;
    case ValueType::Float:
    case ValueType::Double:
        return s_fpChars.Find(character) >= 0;
    default:
        return false;
    }
}

bool CEEdit::IsInUse() const
{
    // Deliberately without a look at stEnabled: only a state of 0 disables a field.
    return pVal && state != 0;
}

bool CEEdit::MayType() const
{
    return IsInUse() && (!enIf || !pEnVar || *pEnVar == enVal);
}

CString CEEdit::TypedText() const
{
    CString typed;
    GetWindowText(typed);
    return typed;
}

void CEEdit::ApplyLimit()
{
    SendMessage(EM_SETLIMITTEXT, static_cast<WPARAM>(std::max(maxChars, 0)));
}
