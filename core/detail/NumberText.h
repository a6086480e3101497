#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

/** @file
 *  Numbers as text and back, as ISO printf and scanf write and read them in the C locale, but bounded,
 *  without any locale and fast. Everything here exists for `char`, `char16_t` and `wchar_t`. Values that a
 *  user edits and values that a file keeps go the same way.
 *
 *  Reading takes decimal numbers only: hexadecimal floating numbers, "inf" and "nan" are no numbers here, so
 *  that neither a user nor a file can bring in a value that is none. Integers beyond 32 bits keep their low
 *  bits. White space is blank, \\t, \\n, \\v, \\f and \\r.
 *
 *  Writing shows what is not finite as "inf", "-inf" and "nan"; a NaN's sign, which means nothing, is not
 *  shown. */

namespace vant::detail
{

/** What a scan found. */
template <class Number>
struct Scanned {
    Number value = 0; ///< 0 when the text does not begin with a number
    /** Characters up to the number's end, leading white space included; 0 for no number. */
    std::size_t used = 0;

    /** Whether there was a number. */
    explicit operator bool() const noexcept { return used != 0; }
};

/** "%d": the low 32 bits of the number written. */
template <class Char>
Scanned<std::int32_t> ScanInt(std::basic_string_view<Char> text) noexcept;

/** "%u": the low 32 bits of the number written; a sign is taken, so that -1 gives 4294967295. */
template <class Char>
Scanned<std::uint32_t> ScanUnsigned(std::basic_string_view<Char> text) noexcept;

/** "%x": the low 32 bits of the number written, with or without 0x in front; a sign is taken. */
template <class Char>
Scanned<std::uint32_t> ScanHex(std::basic_string_view<Char> text) noexcept;

/** "%lf" or "%lg": the nearest double; infinite beyond the largest, which the caller judges, and 0 below the
 *  smallest one. A number whose exponent has no digits ("1e", "2ed") is none. */
template <class Char>
Scanned<double> ScanDouble(std::basic_string_view<Char> text) noexcept;

/** "%f": the same for the nearest float. */
template <class Char>
Scanned<float> ScanFloat(std::basic_string_view<Char> text) noexcept;

/** "%lg, %lg, ...": numbers parted by a comma that follows the number at once, white space before a number
 *  allowed. A number too large for a double ends the list: lists come from files, which bring in no infinity.
 *  @return how many were found, at most as many as `values` has room for; the others keep what they held */
template <class Char>
std::size_t ScanDoubles(std::basic_string_view<Char> text, std::span<double> values) noexcept;

/** Characters that every integer's text fits into. */
inline constexpr std::size_t integerTextMax = 24;

/** "%d". Each of these writes at `out`, with no terminator, and returns the end. */
template <class Char>
Char* WriteInt(Char* out, std::int64_t value) noexcept;

/** "%u". */
template <class Char>
Char* WriteUnsigned(Char* out, std::uint64_t value) noexcept;

/** "%x". */
template <class Char>
Char* WriteHex(Char* out, std::uint64_t value) noexcept;

/** Characters that every text of WriteGeneral() fits into. */
inline constexpr std::size_t generalTextMax = 16;

/** "%lg": six significant digits, no zeros at the end; an exponent has at least two digits ("1e+06"). */
template <class Char>
Char* WriteGeneral(Char* out, double value) noexcept;

/** Characters that `count` numbers written by WriteDoubles() fit into. */
constexpr std::size_t DoublesTextMax(std::size_t count) noexcept
{
    return count * (generalTextMax + 2);
}

/** "%lg, %lg, ...": the numbers as WriteGeneral() writes them, parted as ScanDoubles() reads them. */
template <class Char>
Char* WriteDoubles(Char* out, std::span<const double> values) noexcept;

/** More decimals than this only add zeros to any double; longer requests are cut to it. */
inline constexpr int decimalsMax = 1074;

/** Characters that every text of WriteFixed() fits into: sign, digits, point, decimals. */
inline constexpr std::size_t fixedTextMax =
    1 + std::numeric_limits<double>::max_exponent10 + 1 + 1 + decimalsMax;

/** "%0.Nlf" with N decimals, 0 to decimalsMax. */
template <class Char>
Char* WriteFixed(Char* out, double value, int decimals) noexcept;

/** Appends one value as a printf format for one double says: text, %%, and a first directive of the kinds e,
 * f, g and a with its flags, width and precision (each cut to decimalsMax). Whatever else looks like a
 * directive has no argument to show and stays as it stands. */
template <class Char>
void AppendFormatted(std::basic_string<Char>& out, std::basic_string_view<Char> format, double value);

} // namespace vant::detail
