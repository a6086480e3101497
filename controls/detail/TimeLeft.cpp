#include "controls/detail/TimeLeft.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{
namespace
{

constexpr double leastTime = 1;      // seconds to go by at least
constexpr double leastShare = 0.005; // gained at least
constexpr double shortestMemory = 5; // seconds

/** A number of at least two digits. */
std::wstring TwoDigits(int n)
{
    return (n < 10 ? L"0" : L"") + std::to_wstring(n);
}

} // namespace

void TimeLeft::Look(double t, double share, bool runs) noexcept
{
    if (!std::isfinite(t))
        return;
    const double now = std::isnan(share) ? m_share : std::clamp(share, 0.0, 1.0);
    if (!m_begun || now < m_share) {
        Restart();
        m_begun = true;
        m_first = m_share = now;
        m_last = t;
        return;
    }
    const double since = runs ? std::max(t - m_last, 0.0) : 0.0;
    m_last = t;
    if (!runs)
        return;
    m_passed += since;
    const double fade = std::exp(-since / std::max(shortestMemory, m_passed / 2));
    m_recent = m_recent * fade + since;
    m_gained = m_gained * fade + (now - m_share);
    m_share = now;
}

std::optional<double> TimeLeft::Seconds() const noexcept
{
    if (m_passed < leastTime || m_share - m_first < leastShare || m_gained <= 0)
        return std::nullopt;
    return (1 - m_share) * m_recent / m_gained;
}

std::wstring TimeLeftText(double seconds)
{
    constexpr double longest = 100.0 * 3600;
    const double whole = std::ceil(seconds);
    if (!(whole >= 0 && whole < longest))
        return {};
    const int total = static_cast<int>(whole);
    const int minutes = total / 60 % 60;
    const std::wstring hours = total >= 3600 ? std::to_wstring(total / 3600) + L":" : std::wstring();
    return hours + (hours.empty() ? std::to_wstring(minutes) : TwoDigits(minutes)) + L":" +
           TwoDigits(total % 60);
}

} // namespace vant::detail
