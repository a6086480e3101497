#include "core/detail/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>

#include "core/detail/Digits.h"

namespace vant::detail
{

namespace
{

// Every power of ten that a double holds exactly.
constexpr std::array<double, 23> exactPowers = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22,
};

template <class Char>
constexpr bool IsBlank(Char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

template <class Char>
int HexValue(Char c) noexcept
{
    if (IsDigit(c)) {
        return static_cast<int>(c - '0');
    }
    if (c >= 'a' && c <= 'f') {
        return static_cast<int>(c - 'a') + 10;
    }
    return c >= 'A' && c <= 'F' ? static_cast<int>(c - 'A') + 10 : -1;
}

template <class Char>
const Char* SkipBlanks(const Char* at, const Char* end) noexcept
{
    while (at != end && IsBlank(*at)) {
        ++at;
    }
    return at;
}

/** Steps over a sign; true for a minus. */
template <class Char>
bool TakeSign(const Char*& at, const Char* end) noexcept
{
    if (at == end || (*at != '-' && *at != '+')) {
        return false;
    }
    return *at++ == '-';
}

template <class Char>
Scanned<std::uint32_t> ScanDigits(std::basic_string_view<Char> text) noexcept
{
    const Char* const end = text.data() + text.size();
    const Char* at = SkipBlanks(text.data(), end);
    const bool negative = TakeSign(at, end);
    const Char* const digits = at;
    std::uint32_t value = 0;
    for (; at != end && IsDigit(*at); ++at) {
        value = value * 10 + DigitValue(*at);
    }
    if (at == digits) {
        return {};
    }
    return {negative ? 0 - value : value, static_cast<std::size_t>(at - text.data())};
}

/** A decimal number before its conversion: mantissa * 10^(shift + exponent). */
template <class Char>
struct Decimal {
    std::uint64_t mantissa = 0; ///< the first digits, as many as fit
    std::int64_t shift = 0;     ///< where the point stands against the mantissa
    std::int64_t exponent = 0;  ///< as written behind the e
    bool negative = false;
    bool complete = true; ///< every digit went into the mantissa
    const Char* digits = nullptr;
    const Char* digitsEnd = nullptr;
    const Char* end = nullptr; ///< null for no number
};

template <class Char>
Decimal<Char> ScanDecimal(std::basic_string_view<Char> text) noexcept
{
    constexpr std::uint64_t roomForDigit = (std::numeric_limits<std::uint64_t>::max() - 9) / 10;
    const Char* const end = text.data() + text.size();
    Decimal<Char> number;
    const Char* at = SkipBlanks(text.data(), end);
    number.negative = TakeSign(at, end);
    number.digits = at;
    for (; at != end && IsDigit(*at); ++at) {
        if (number.mantissa <= roomForDigit) {
            number.mantissa = number.mantissa * 10 + DigitValue(*at);
        } else {
            number.complete = false;
            ++number.shift;
        }
    }
    std::ptrdiff_t count = at - number.digits;
    if (at != end && *at == '.') {
        const Char* const decimals = ++at;
        for (; at != end && IsDigit(*at); ++at) {
            if (number.mantissa <= roomForDigit) {
                number.mantissa = number.mantissa * 10 + DigitValue(*at);
                --number.shift;
            } else {
                number.complete = false;
            }
        }
        count += at - decimals;
    }
    if (count == 0) {
        return {};
    }
    number.digitsEnd = at;

    if (at != end && (*at == 'e' || *at == 'E')) {
        const bool down = TakeSign(++at, end);
        if (at == end || !IsDigit(*at)) {
            return {};
        }
        constexpr std::int64_t beyondAnyText = std::int64_t{1} << 48;
        for (; at != end && IsDigit(*at); ++at) {
            number.exponent = std::min<std::int64_t>(number.exponent * 10 + DigitValue(*at), beyondAnyText);
        }
        number.exponent = down ? -number.exponent : number.exponent;
    }
    number.end = at;
    return number;
}

/** The magnitude by way of std::from_chars, from the significant digits and one exponent; infinite when it is
 * too large. No double or float needs more than `deciding` digits to be told from its neighbours; whatever
 * follows them only says "a little more". */
template <class Number, class Char>
Number ConvertDigits(const Decimal<Char>& number) noexcept
{
    constexpr std::size_t deciding = 780;
    constexpr std::int64_t exponentMax = 9999; // far beyond every double, with any digits in front
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): most numbers fill a few characters of many
    std::array<char, deciding + 1 + 8> text;
    std::size_t count = 0;
    std::int64_t shift = 0;
    bool more = false;
    bool behindPoint = false;
    for (const Char* at = number.digits; at != number.digitsEnd; ++at) {
        if (*at == '.') {
            behindPoint = true;
            continue;
        }
        if (count < deciding) {
            if (count != 0 || *at != '0') {
                text[count++] = static_cast<char>(*at);
            }
            shift -= behindPoint ? 1 : 0;
        } else {
            more = more || *at != '0';
            shift += behindPoint ? 0 : 1;
        }
    }
    if (count == 0) {
        return 0;
    }
    if (more) {
        text[count++] = '1';
        --shift;
    }
    const std::int64_t exponent = std::clamp(number.exponent + shift, -exponentMax, exponentMax);
    char* end = text.data() + count;
    *end++ = 'e';
    end = std::to_chars(end, text.data() + text.size(), exponent).ptr;

    Number value = 0;
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec == std::errc::result_out_of_range) {
        const bool large = static_cast<std::int64_t>(count) + exponent > 0;
        return large ? std::numeric_limits<Number>::infinity() : Number{0};
    }
    return value;
}

double ConvertExactly(std::uint64_t mantissa, std::int64_t exponent) noexcept
{
    const auto value = static_cast<double>(mantissa);
    return exponent < 0 ? value / exactPowers[static_cast<std::size_t>(-exponent)]
                        : value * exactPowers[static_cast<std::size_t>(exponent)];
}

template <class Number, class Char>
Scanned<Number> ScanNumber(std::basic_string_view<Char> text) noexcept
{
    const Decimal<Char> number = ScanDecimal(text);
    if (!number.end) {
        return {};
    }
    constexpr std::uint64_t exactMantissa = std::uint64_t{1} << std::numeric_limits<double>::digits;
    constexpr std::int64_t exactShift = exactPowers.size() - 1;
    const std::int64_t exponent = number.shift + number.exponent;
    Number value = 0;
    // Two exact operands make one correctly rounded result; a float would be rounded a second time.
    if (std::is_same_v<Number, double> && number.complete && number.mantissa <= exactMantissa &&
        exponent >= -exactShift && exponent <= exactShift) {
        value = static_cast<Number>(ConvertExactly(number.mantissa, exponent));
    } else {
        value = ConvertDigits<Number>(number);
    }
    return {number.negative ? -value : value, static_cast<std::size_t>(number.end - text.data())};
}

} // namespace

template <class Char>
Scanned<std::int32_t> ScanInt(std::basic_string_view<Char> text) noexcept
{
    const auto found = ScanDigits(text);
    return {static_cast<std::int32_t>(found.value), found.used};
}

template <class Char>
Scanned<std::uint32_t> ScanUnsigned(std::basic_string_view<Char> text) noexcept
{
    return ScanDigits(text);
}

template <class Char>
Scanned<std::uint32_t> ScanHex(std::basic_string_view<Char> text) noexcept
{
    const Char* const end = text.data() + text.size();
    const Char* at = SkipBlanks(text.data(), end);
    const bool negative = TakeSign(at, end);
    if (end - at > 2 && at[0] == '0' && (at[1] == 'x' || at[1] == 'X') && HexValue(at[2]) >= 0) {
        at += 2;
    }
    const Char* const digits = at;
    std::uint32_t value = 0;
    for (; at != end && HexValue(*at) >= 0; ++at) {
        value = value * 16 + static_cast<std::uint32_t>(HexValue(*at));
    }
    if (at == digits) {
        return {};
    }
    return {negative ? 0 - value : value, static_cast<std::size_t>(at - text.data())};
}

template <class Char>
Scanned<double> ScanDouble(std::basic_string_view<Char> text) noexcept
{
    return ScanNumber<double>(text);
}

template <class Char>
Scanned<float> ScanFloat(std::basic_string_view<Char> text) noexcept
{
    return ScanNumber<float>(text);
}

template <class Char>
std::size_t ScanDoubles(std::basic_string_view<Char> text, std::span<double> values) noexcept
{
    std::size_t count = 0;
    for (double& value : values) {
        if (count != 0) {
            if (text.empty() || text.front() != ',') {
                break;
            }
            text.remove_prefix(1);
        }
        const auto found = ScanNumber<double>(text);
        if (!found || std::isinf(found.value)) {
            break;
        }
        value = found.value;
        text.remove_prefix(found.used);
        ++count;
    }
    return count;
}

// For the three kinds of text that the library meets.
#define VANT_NUMBER_TEXT(Char)                                                                               \
    template Scanned<std::int32_t> ScanInt(std::basic_string_view<Char>) noexcept;                           \
    template Scanned<std::uint32_t> ScanUnsigned(std::basic_string_view<Char>) noexcept;                     \
    template Scanned<std::uint32_t> ScanHex(std::basic_string_view<Char>) noexcept;                          \
    template Scanned<double> ScanDouble(std::basic_string_view<Char>) noexcept;                              \
    template Scanned<float> ScanFloat(std::basic_string_view<Char>) noexcept;                                \
    template std::size_t ScanDoubles(std::basic_string_view<Char>, std::span<double>) noexcept

VANT_NUMBER_TEXT(char);
VANT_NUMBER_TEXT(char16_t);
VANT_NUMBER_TEXT(wchar_t);

#undef VANT_NUMBER_TEXT

} // namespace vant::detail
