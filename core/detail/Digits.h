#pragma once

namespace vant::detail
{

/** Decimal digits in any kind of text; no locale has a say. */
template <class Char>
constexpr bool IsDigit(Char c) noexcept
{
    return c >= '0' && c <= '9';
}

template <class Char>
constexpr unsigned DigitValue(Char c) noexcept
{
    return static_cast<unsigned>(c - '0');
}

} // namespace vant::detail
