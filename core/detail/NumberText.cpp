#include "core/detail/NumberText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <optional>

namespace vant::detail
{

namespace
{

constexpr std::array<std::uint64_t, 10> powersOfTen = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000,
};

template <class Char>
Char* Widen(Char* out, const char* first, const char* last) noexcept
{
    return std::transform(first, last, out, [](char c) { return static_cast<Char>(c); });
}

template <class Char>
Char* WriteInteger(Char* out, auto value, int base = 10) noexcept
{
    std::array<char, integerTextMax> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, base).ptr;
    return Widen(out, text.data(), end);
}

/** The value for std::to_chars, which shows the sign of a NaN. */
double WithoutNanSign(double value) noexcept
{
    return std::isnan(value) ? std::fabs(value) : value;
}

/** round(magnitude * 10^power), ties to even, on exact integers; nothing when the fixed-point range of 2^-10
 * up to 10^9 is left, which is where a display's numbers lie. Powers 0 to 9. */
std::optional<std::uint64_t> ScaleExactly(double magnitude, int power) noexcept
{
    constexpr int mantissaBits = std::numeric_limits<double>::digits - 1;
    constexpr std::uint64_t implicitBit = std::uint64_t{1} << mantissaBits;
    constexpr int exponentBias = std::numeric_limits<double>::max_exponent - 1;
    constexpr double smallest = 1.0 / 1024.0;
    constexpr double limit = 1e9;
    if (magnitude == 0.0) {
        return 0;
    }
    if (!(magnitude >= smallest && magnitude < limit)) {
        return std::nullopt;
    }
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    const std::uint64_t mantissa = (bits & (implicitBit - 1)) | implicitBit;
    const int shift = mantissaBits + exponentBias - static_cast<int>(bits >> mantissaBits); // 23 to 62

    // mantissa * 10^power as two words: 53 and 30 bits make up to 83.
    const std::uint64_t factor = powersOfTen[static_cast<std::size_t>(power)];
    const std::uint64_t upper = (mantissa >> 32) * factor;
    const std::uint64_t lower = (mantissa & 0xFFFFFFFFu) * factor;
    const std::uint64_t low = (upper << 32) + lower;
    const std::uint64_t high = (upper >> 32) + (low < lower ? 1 : 0);

    const std::uint64_t whole = (high << (64 - shift)) | (low >> shift);
    const std::uint64_t rest = low & ((std::uint64_t{1} << shift) - 1);
    const std::uint64_t half = std::uint64_t{1} << (shift - 1);
    const bool up = rest > half || (rest == half && (whole & 1) != 0);
    return whole + (up ? 1 : 0);
}

/** Writes scaled / 10^decimals, decimals 0 to 9. */
template <class Char>
Char* PutScaled(Char* out, bool negative, std::uint64_t scaled, int decimals) noexcept
{
    std::array<Char, integerTextMax> text; // from its end backwards
    Char* const end = text.data() + text.size();
    Char* at = end;
    const auto putDigit = [&at, &scaled] {
        *--at = static_cast<Char>('0' + scaled % 10);
        scaled /= 10;
    };
    if (decimals > 0) {
        for (int i = 0; i < decimals; ++i) {
            putDigit();
        }
        *--at = '.';
    }
    do {
        putDigit();
    } while (scaled != 0);
    if (negative) {
        *--at = '-';
    }
    return std::copy(at, end, out);
}

} // namespace

template <class Char>
Char* WriteInt(Char* out, std::int64_t value) noexcept
{
    return WriteInteger(out, value);
}

template <class Char>
Char* WriteUnsigned(Char* out, std::uint64_t value) noexcept
{
    return WriteInteger(out, value);
}

template <class Char>
Char* WriteHex(Char* out, std::uint64_t value) noexcept
{
    return WriteInteger(out, value, 16);
}

template <class Char>
Char* WriteGeneral(Char* out, double value) noexcept
{
    constexpr int digits = 6;
    constexpr std::uint64_t overflow = 1000000; // seven digits after rounding up
    constexpr std::array<double, 9> decades = {1e-3, 1e-2, 1e-1, 1e0, 1e1, 1e2, 1e3, 1e4, 1e5};
    constexpr double limit = 1e6;

    const double magnitude = std::fabs(value);
    if (magnitude < limit) {
        int decimals = digits + 3;
        for (const double decade : decades) {
            decimals -= magnitude >= decade ? 1 : 0;
        }
        auto scaled = ScaleExactly(magnitude, decimals);
        if (scaled == overflow) {
            scaled = overflow / 10;
            --decimals;
        }
        if (scaled && decimals >= 0) {
            std::uint64_t kept = *scaled;
            for (; decimals > 0 && kept % 10 == 0; kept /= 10) {
                --decimals;
            }
            return PutScaled(out, std::signbit(value), kept, decimals);
        }
    }
    std::array<char, generalTextMax> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), WithoutNanSign(value),
                                   std::chars_format::general, digits)
                         .ptr;
    return Widen(out, text.data(), end);
}

template <class Char>
Char* WriteDoubles(Char* out, std::span<const double> values) noexcept
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i != 0) {
            *out++ = ',';
            *out++ = ' ';
        }
        out = WriteGeneral(out, values[i]);
    }
    return out;
}

template <class Char>
Char* WriteFixed(Char* out, double value, int decimals) noexcept
{
    decimals = std::clamp(decimals, 0, decimalsMax);
    if (decimals < static_cast<int>(powersOfTen.size())) {
        if (const auto scaled = ScaleExactly(std::fabs(value), decimals)) {
            return PutScaled(out, std::signbit(value), *scaled, decimals);
        }
    }
    std::array<char, fixedTextMax> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), WithoutNanSign(value),
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return Widen(out, text.data(), end);
}

// For the three kinds of text that the library meets.
#define VANT_NUMBER_TEXT(Char)                                                                               \
    template Char* WriteInt(Char*, std::int64_t) noexcept;                                                   \
    template Char* WriteUnsigned(Char*, std::uint64_t) noexcept;                                             \
    template Char* WriteHex(Char*, std::uint64_t) noexcept;                                                  \
    template Char* WriteGeneral(Char*, double) noexcept;                                                     \
    template Char* WriteDoubles(Char*, std::span<const double>) noexcept;                                    \
    template Char* WriteFixed(Char*, double, int) noexcept

VANT_NUMBER_TEXT(char);
VANT_NUMBER_TEXT(char16_t);
VANT_NUMBER_TEXT(wchar_t);

#undef VANT_NUMBER_TEXT

} // namespace vant::detail
