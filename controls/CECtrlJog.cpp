// CECtrl: operation by an external controller.
#include "controls/CECtrl.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/JogStep.h"
#include "core/detail/ToInteger.h"
#include "values/detail/ValueLock.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <cmath>

using vant::detail::TypeOf;
using vant::detail::ValueType;

namespace
{

bool JogInteger(CEVal& value, double by, double low, double high)
{
    const std::int64_t before = vant::detail::IntegerOf(value);
    // A step that is a fraction goes on by one all the same.
    const double whole = std::copysign(std::max(std::floor(std::fabs(by) + 0.5), 1.0), by);
    const std::int64_t after = vant::detail::JoggedWhole(before, whole, std::ceil(low), std::floor(high));
    if (TypeOf(value.type) == ValueType::Int64)
        vant::detail::PutInteger(value, after); // deliberately no number to AdjustVal()
    else
        value.AdjustVal(static_cast<double>(after - before));
    return vant::detail::IntegerOf(value) != before;
}

bool JogFloating(CEVal& value, double by, double grid, double low, double high)
{
    const double before = vant::detail::NumberOf(value);
    if (std::isnan(before)) {
        if (!value.rangeSet || !std::isfinite(low))
            return false;
        value.SetVal(low);
        return true;
    }
    if (!std::isfinite(before))
        return false;
    return value.AdjustVal(vant::detail::Jogged(before, by, grid, low, high) - before) != 0;
}

} // namespace

int CECtrl::JogNumber(double by, double grid)
{
    {
        const vant::detail::ValueLock lock(pMutex);
        if (!lock || !vant::detail::IsNumber(*this) || !(std::fabs(by) > 0))
            return 0;
        auto [low, high] = vant::detail::LimitsOf(*this);
        if (rangeSet) {
            const auto [first, last] = std::minmax(rangeMin, rangeMax);
            low = std::max(low, first);
            high = std::min(high, last);
        }
        const bool changed = vant::detail::IsInteger(*this) ? JogInteger(*this, by, low, high)
                                                            : JogFloating(*this, by, grid, low, high);
        if (!changed)
            return 0;
    }
    Update(1);
    // The last thing: a callback may destroy the window.
    Execute();
    return 1;
}

int CECtrl::Jog(int notches, double step, int)
{
    return step > 0 ? JogNumber(notches * step, step) : 0;
}

int CECtrl::Press()
{
    if (!m_hWnd || !IsWindowEnabled())
        return 0;
    const HWND self = m_hWnd;
    CRect client;
    GetClientRect(&client);
    const CPoint middle = client.CenterPoint();
    const LPARAM at = MAKELPARAM(middle.x, middle.y);
    ::SendMessageW(self, WM_LBUTTONDOWN, MK_LBUTTON, at);
    if (::IsWindow(self))
        ::SendMessageW(self, WM_LBUTTONUP, 0, at);
    return 1;
}

void CECtrl::SetGlow(int strength)
{
    constexpr int most = 255;
    const int wanted = std::clamp(strength, 0, most);
    if (wanted == glow)
        return;
    glow = wanted;
    if (m_hWnd)
        Invalidate(FALSE);
}

std::weak_ptr<CECtrl*> CECtrl::Watch()
{
    if (!m_self)
        m_self = std::make_shared<CECtrl*>(this);
    return m_self;
}
