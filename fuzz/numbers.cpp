// Feeds texts to the number scanners and checks what must hold whatever they say: every kind of character
// gives the same, what was used is a number with nothing to spare, the C library agrees wherever it means the
// same by a number, and what is written comes back.

#include "core/detail/NumberText.h"
#include "fuzz/Checks.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace
{

using namespace vant::detail;

template <class Float>
bool Same(Float a, Float b)
{
    return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
}

template <class Number>
bool Same(const Scanned<Number>& a, const Scanned<Number>& b)
{
    if constexpr (std::is_floating_point_v<Number>)
        return a.used == b.used && Same(a.value, b.value);
    else
        return a.used == b.used && a.value == b.value;
}

/** The text and its wide twins; a byte that is no ASCII becomes a character that only looks like a digit when
 *  its upper bits get lost. */
struct Texts {
    explicit Texts(std::string_view bytes)
        : narrow(bytes)
    {
        for (const char c : bytes) {
            const auto byte = static_cast<unsigned char>(c);
            const auto wide = static_cast<char16_t>(byte < 0x80 ? byte : 0xFF00 | (byte & 0x7F));
            wide16 += wide;
            wide32 += static_cast<wchar_t>(wide);
        }
    }
    std::string narrow;
    std::u16string wide16;
    std::wstring wide32;
};

/** Scans all three texts with one function. A number's end is told by what follows it, so that less text than
 *  was used gives something else, or nothing. */
template <class Scan>
auto ScanAll(const Texts& texts, Scan scan)
{
    const auto found = scan(std::string_view(texts.narrow));
    Require(found.used <= texts.narrow.size() && (found || found.value == 0));
    Require(Same(found, scan(std::u16string_view(texts.wide16))));
    Require(Same(found, scan(std::wstring_view(texts.wide32))));
    Require(Same(found, scan(std::string_view(texts.narrow).substr(0, found.used))) || !found);
    return found;
}

/** The prefix that two readings of one number may agree on. */
std::size_t UsedBy(const char* text, const char* end)
{
    return static_cast<std::size_t>(end - text);
}

/** The C library takes a text up to its first 0, and so do the scanners: no number goes on behind one. */
template <class Number>
void CompareInteger(const Texts& texts, const Scanned<Number>& found, int base)
{
    const char* const text = texts.narrow.c_str();
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(text, &end, base);
    Require(UsedBy(text, end) == found.used);
    if (errno == 0)
        Require(static_cast<Number>(static_cast<unsigned long long>(value)) == found.value);
}

/** Hexadecimal fractions, "inf" and "nan" are numbers for the C library alone; it reads "2e" as 2. */
template <class Float>
void CompareFloat(const Texts& texts, const Scanned<Float>& found, Float (*convert)(const char*, char**))
{
    const char* const text = texts.narrow.c_str();
    char* end = nullptr;
    const Float value = convert(text, &end);
    const std::size_t used = UsedBy(text, end);
    if (found) {
        const std::string_view number(text, used);
        if (number.find_first_of("xX") == number.npos)
            Require(used == found.used && Same(value, found.value));
        else
            Require(found.value == 0 && text[found.used - 1] == '0' && std::tolower(text[found.used]) == 'x');
    } else if (used != 0) {
        const bool word = !std::isfinite(value) && std::isalpha(static_cast<unsigned char>(end[-1])) != 0;
        const bool bracket = std::isnan(value) && end[-1] == ')';
        Require(word || bracket || *end == 'e' || *end == 'E');
    }
}

template <class Number, class Scan, class Write>
void CheckRoundTrip(Number value, Scan scan, Write write)
{
    std::array<char, integerTextMax> text;
    const char* const end = write(text.data(), value);
    const std::string_view written(text.data(), static_cast<std::size_t>(end - text.data()));
    Require(Same(scan(written), {value, written.size()}));
}

std::string Printed(const char* format, double value)
{
    std::array<char, fixedTextMax + 1> text;
    const int size =
        std::snprintf(text.data(), text.size(), format, std::isnan(value) ? std::fabs(value) : value);
    return {text.data(), static_cast<std::size_t>(size)};
}

/** The texts of a double are those of printf, and lead back to the double as printf's do. */
void CheckWriting(double value)
{
    std::array<char, fixedTextMax> room;
    const auto text = [&room](const char* end) {
        return std::string_view(room.data(), static_cast<std::size_t>(end - room.data()));
    };
    const std::string general(text(WriteGeneral(room.data(), value)));
    Require(general.size() <= generalTextMax && general == Printed("%g", value));
    Require(text(WriteFixed(room.data(), value, 3)) == Printed("%.3f", value));
    if (!std::isfinite(value))
        return;
    const auto again = ScanDouble(std::string_view(general));
    Require(again.used == general.size() && Same(again.value, std::strtod(general.c_str(), nullptr)));
    if (std::isfinite(again.value)) // rounding to six digits may leave the range
        Require(text(WriteGeneral(room.data(), again.value)) == general);
    const std::string exact = Printed("%.17g", value);
    Require(Same(ScanDouble(std::string_view(exact)), {value, exact.size()}));
}

void CheckFormat(const Texts& texts, double value)
{
    std::string narrow;
    AppendFormatted(narrow, std::string_view(texts.narrow), value);
    std::u16string wide;
    AppendFormatted(wide, std::u16string_view(texts.wide16), value);
    // A directive is cut to decimalsMax, for width and precision, and becomes one number.
    constexpr std::size_t longestNumber = fixedTextMax + 8;
    Require(narrow.size() == wide.size() && narrow.size() <= texts.narrow.size() + longestNumber);
}

void CheckList(const Texts& texts)
{
    constexpr double untouched = -4711.25;
    std::array<double, 4> values;
    values.fill(untouched);
    const std::size_t count = ScanDoubles(std::string_view(texts.narrow), values);
    std::array<double, 4> wide;
    wide.fill(untouched);
    Require(ScanDoubles(std::u16string_view(texts.wide16), wide) == count && wide == values);
    Require(count <= values.size());
    Require(std::all_of(values.begin(), values.begin() + count, [](double v) { return std::isfinite(v); }));
    Require(std::all_of(values.begin() + count, values.end(), [](double v) { return v == untouched; }));

    std::array<char, DoublesTextMax(values.size())> room;
    const char* const end = WriteDoubles(room.data(), std::span<const double>(values));
    const std::string_view written(room.data(), static_cast<std::size_t>(end - room.data()));
    const bool largest =
        std::any_of(values.begin(), values.end(), [](double v) { return std::fabs(v) > 1.79769e308; });
    if (!largest) // six digits of it are too large
        Require(ScanDoubles(written, wide) == values.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Texts texts(std::string_view(reinterpret_cast<const char*>(data), size));

    const auto scanInt = [](auto text) { return ScanInt(text); };
    const auto number = ScanAll(texts, scanInt);
    CompareInteger(texts, number, 10);
    CheckRoundTrip(number.value, scanInt, [](char* out, std::int32_t v) { return WriteInt(out, v); });

    const auto scanUnsigned = [](auto text) { return ScanUnsigned(text); };
    const auto natural = ScanAll(texts, scanUnsigned);
    CompareInteger(texts, natural, 10);
    CheckRoundTrip(natural.value, scanUnsigned,
                   [](char* out, std::uint32_t v) { return WriteUnsigned(out, v); });

    const auto scanHex = [](auto text) { return ScanHex(text); };
    const auto hex = ScanAll(texts, scanHex);
    CompareInteger(texts, hex, 16);
    CheckRoundTrip(hex.value, scanHex, [](char* out, std::uint32_t v) { return WriteHex(out, v); });

    const auto real = ScanAll(texts, [](auto text) { return ScanDouble(text); });
    CompareFloat(texts, real, &std::strtod);
    CompareFloat(texts, ScanAll(texts, [](auto text) { return ScanFloat(text); }), &std::strtof);
    CheckWriting(real.value);

    // The bits of any double, which no text leads to.
    std::uint64_t bits = 0;
    std::memcpy(&bits, data, std::min(size, sizeof bits));
    CheckWriting(std::bit_cast<double>(bits));
    CheckFormat(texts, std::bit_cast<double>(bits));
    CheckList(texts);
    return 0;
}
