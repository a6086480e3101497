#include "values/detail/RangeText.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "core/detail/NumberText.h"

namespace vant::detail
{

namespace
{

constexpr std::wstring_view numerical = L"Not in numerical range ";
constexpr std::wstring_view user = L"Not in user specified range ";
constexpr std::wstring_view to = L" to ";
static_assert(user.size() + to.size() + 2 * generalTextMax <= rangeTextMax);

wchar_t* Put(wchar_t* out, std::wstring_view text) noexcept
{
    return std::copy(text.begin(), text.end(), out);
}

std::int32_t LowHalf(double value) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(value)));
}

std::int32_t HighHalf(double value) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(value) >> 32));
}

} // namespace

wchar_t* WriteSignedRange(wchar_t* out, int bits) noexcept
{
    const double lower = -std::ldexp(1.0, bits - 1);
    out = WriteInt(Put(out, numerical), LowHalf(lower));
    return WriteInt(Put(out, to), HighHalf(lower));
}

wchar_t* WriteUnsignedRange(wchar_t* out, int bits) noexcept
{
    *(out = Put(out, numerical))++ = L'0';
    return WriteInt(Put(out, to), LowHalf(std::ldexp(1.0, bits)));
}

wchar_t* WriteUserRange(wchar_t* out, double min, double max) noexcept
{
    out = WriteGeneral(Put(out, user), min);
    return WriteGeneral(Put(out, to), max);
}

} // namespace vant::detail
