#include "controls/CELed.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "core/detail/ToInteger.h"
#include "platform/Vant.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <cmath>

namespace skin = vant::skins::leds;
using vant::detail::TypeOf;
using vant::detail::ValueType;
using vant::skins::Look;

IMPLEMENT_DYNAMIC(CELed, CECtrl)

namespace
{

/** The phase of all blinking lamps, so that one that is painted in between does not fall out of step. */
bool blinkersLit = true;

/** Colours where there is no skin. */
constexpr COLORREF plainColours[] = {RGB(0, 200, 0), RGB(255, 174, 16), RGB(240, 42, 32), RGB(63, 140, 255),
                                     RGB(228, 236, 245)};

} // namespace

CELed::CELed()
{
    ctrlType = typeLed;
    s_auCtrls.AddTail(this);
    SetState(0, green, dark);
    SetState(1, green);
    SetState(2, amber);
    SetState(3, red);
    SetState(4, red, blink);
}

void CELed::SetState(int value, int colour, int mode, const CString& label)
{
    const int known = colour >= green && colour <= white ? colour : int{white};
    m_states.Set({value, known, mode, static_cast<LPCWSTR>(label)});
    if (m_hWnd)
        Invalidate(FALSE);
}

void CELed::ClearStates()
{
    m_states.Clear();
    if (m_hWnd)
        Invalidate(FALSE);
}

const CELed::State* CELed::Current() const
{
    std::int64_t number = 0;
    if (vant::detail::IsInteger(*this)) {
        number = vant::detail::IntegerOf(*this);
        // A value beyond 32 bits is none that the table could have, except by the bits of a mask.
        if (mask != -1 || TypeOf(type) != ValueType::Int64)
            number = vant::detail::LowBits<std::int32_t>(number & mask);
    } else {
        const double nearest = vant::detail::NumberOf(*this);
        if (!std::isfinite(nearest))
            return nullptr;
        number = vant::detail::RoundToInt64(nearest) & mask;
    }
    return m_states.Find(number);
}

bool CELed::IsKnown() const
{
    return Current() != nullptr;
}

bool CELed::IsClickable() const
{
    return pCbObj && (pCbNone || pCbInt || pCbDouble || pCbPtr);
}

void CELed::OnClick()
{
    Execute();
}

void CELed::AutoUpdate(double t)
{
    blinkersLit = vant::detail::IsLitAt(t);
    MarkCtrl::AutoUpdate(t);
}

int CELed::ShownState() const
{
    const State* const shown = Current();
    if (!shown)
        return -1;
    const bool shines = shown->mode == lit || (shown->mode == blink && blinkersLit);
    return 2 * shown->colour + (shines ? 1 : 0);
}

CString CELed::Caption() const
{
    const State* const shown = Current();
    return shown && !shown->text.empty() ? CString(shown->text.c_str()) : text;
}

void CELed::DrawMark(CDC* dc, const CRect& place, Look drawn)
{
    CRect box = place;
    if (IsClickable() && drawn == Look::Pressed)
        box.OffsetRect(0, 1);
    const int shown = ShownState();
    const bool known = shown >= 0;
    const int colour = known ? shown / 2 : 0;
    const bool shines = known && shown % 2 != 0;
    const bool inUse = known && drawn != Look::Disabled;
    const auto& lamp = !inUse ? skin::none : shines ? skin::lit : skin::dark;
    if (!vant::detail::DrawPiece(*dc, box, Vant::leds, lamp, inUse ? colour : 0, BackCol())) {
        constexpr int gap = 4;
        CRect block = box;
        block.DeflateRect(gap, gap);
        CEStyle::Brdr2(dc, block);
        block.DeflateRect(2, 2);
        if (inUse && shines && !block.IsRectEmpty())
            dc->FillSolidRect(block, plainColours[colour]);
        dc->SetBkMode(TRANSPARENT);
    }
    if (!known) {
        const COLORREF before =
            dc->SetTextColor(drawn == Look::Disabled ? vant::detail::disabledText : vant::detail::litText);
        vant::detail::DrawLine(*dc, L"?", box, DT_CENTER);
        dc->SetTextColor(before);
    }
    if (IsClickable() && HasFocus())
        vant::detail::DrawFocus(*dc, ClientRc());
}
