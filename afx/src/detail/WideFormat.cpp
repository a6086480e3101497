#include "detail/WideFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <new>

namespace vafx::detail
{

void FormatSink::Grow(std::size_t more)
{
    constexpr std::size_t most = static_cast<std::size_t>(INT32_MAX) - 1;
    if (more > most - m_size)
        throw std::bad_alloc();
    const std::size_t capacity = std::min(most, std::max(m_capacity * 2, m_size + more));
    std::unique_ptr<wchar_t[]> bigger(new wchar_t[capacity]);
    std::copy_n(m_data, m_size, bigger.get());
    m_heap = std::move(bigger);
    m_data = m_heap.get();
    m_capacity = capacity;
}

void FormatSink::Add(const wchar_t* units, std::size_t count)
{
    if (count > m_capacity - m_size)
        Grow(count);
    std::copy_n(units, count, m_data + m_size);
    m_size += count;
}

void FormatSink::Add(const char* ascii, std::size_t count)
{
    if (count > m_capacity - m_size)
        Grow(count);
    std::transform(ascii, ascii + count, m_data + m_size,
                   [](char c) { return static_cast<wchar_t>(static_cast<unsigned char>(c)); });
    m_size += count;
}

void FormatSink::Fill(wchar_t unit, std::size_t count)
{
    if (count > m_capacity - m_size)
        Grow(count);
    std::fill_n(m_data + m_size, count, unit);
    m_size += count;
}

namespace
{

enum class Size { plain, byte, narrow, wide, bits32, bits64, pointer, longDouble };

struct Directive {
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool alternate = false;
    bool zero = false;
    int width = 0;
    int precision = -1;
    Size size = Size::plain;
};

// More digits than this cannot come out of a double: the rest are zeros.
constexpr int exactDigits = 1100;
constexpr std::size_t floatText = 1536; // 309 digits before the point, exactDigits after it, sign, exponent

constexpr bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

int ParseNumber(const wchar_t*& p)
{
    int value = 0;
    for (; IsDigit(*p); ++p)
        value = std::min(maxField, value * 10 + static_cast<int>(*p - L'0'));
    return value;
}

void ParseFlags(const wchar_t*& p, Directive& d)
{
    for (;; ++p) {
        switch (*p) {
        case L'-':
            d.left = true;
            break;
        case L'+':
            d.plus = true;
            break;
        case L' ':
            d.blank = true;
            break;
        case L'#':
            d.alternate = true;
            break;
        case L'0':
            d.zero = true;
            break;
        default:
            return;
        }
    }
}

void ParseSize(const wchar_t*& p, Directive& d)
{
    const auto take = [&](std::size_t count, Size size) {
        p += count;
        d.size = size;
    };
    switch (*p) {
    case L'h':
        p[1] == L'h' ? take(2, Size::byte) : take(1, Size::narrow);
        return;
    case L'l':
        p[1] == L'l' ? take(2, Size::bits64) : take(1, Size::wide);
        return;
    case L'w':
        return take(1, Size::wide);
    case L'L':
        return take(1, Size::longDouble);
    case L'j':
        return take(1, Size::bits64);
    case L'z':
    case L't':
        return take(1, Size::pointer);
    case L'I':
        if (p[1] == L'6' && p[2] == L'4')
            return take(3, Size::bits64);
        if (p[1] == L'3' && p[2] == L'2')
            return take(3, Size::bits32);
        return take(1, Size::pointer);
    default:
        return;
    }
}

/** Writes prefix and body into the directive's width. Zeros of the 0 flag stand between the two. */
void Pad(FormatSink& out, const Directive& d, const char* prefix, std::size_t prefixLength,
         std::size_t bodyLength, bool zeros, auto&& writeBody)
{
    const std::size_t length = prefixLength + bodyLength;
    const std::size_t width = static_cast<std::size_t>(d.width);
    const std::size_t padding = width > length ? width - length : 0;
    const bool zeroPadding = zeros && !d.left;
    if (!d.left && !zeroPadding)
        out.Fill(L' ', padding);
    out.Add(prefix, prefixLength);
    if (zeroPadding)
        out.Fill(L'0', padding);
    writeBody();
    if (d.left)
        out.Fill(L' ', padding);
}

std::size_t SignPrefix(const Directive& d, bool negative, char* prefix)
{
    if (negative)
        *prefix = '-';
    else if (d.plus)
        *prefix = '+';
    else if (d.blank)
        *prefix = ' ';
    else
        return 0;
    return 1;
}

void Upper(char* first, char* last)
{
    std::transform(first, last, first,
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
}

void WriteDigits(FormatSink& out, const Directive& d, std::uint64_t value, int base, bool upper,
                 const char* prefix, std::size_t prefixLength)
{
    char digits[64]; // 2^64 has 22 octal digits
    char* end = digits;
    if (value != 0 || d.precision != 0)
        end = std::to_chars(digits, digits + sizeof digits, value, base).ptr;
    if (upper)
        Upper(digits, end);
    const std::size_t count = static_cast<std::size_t>(end - digits);
    std::size_t zeros = d.precision > 0 && static_cast<std::size_t>(d.precision) > count
                            ? static_cast<std::size_t>(d.precision) - count
                            : 0;
    if (base == 8 && d.alternate && zeros == 0 && (count == 0 || digits[0] != '0'))
        zeros = 1;
    Pad(out, d, prefix, prefixLength, zeros + count, d.zero && d.precision < 0, [&] {
        out.Fill(L'0', zeros);
        out.Add(digits, count);
    });
}

/** %g with the # flag: the trailing zeros stay. */
char* GeneralWithZeros(char* first, char* last, double magnitude, int precision)
{
    char* const end = std::to_chars(first, last, magnitude, std::chars_format::scientific, precision - 1).ptr;
    const char* const mark = std::find(first, end, 'e');
    int exponent = 0;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, exponent);
    if (exponent < -4 || exponent >= precision)
        return end;
    return std::to_chars(first, last, magnitude, std::chars_format::fixed, precision - 1 - exponent).ptr;
}

void WriteFloat(FormatSink& out, const Directive& d, double value, wchar_t conversion)
{
    const bool upper = conversion < L'a';
    const char kind = static_cast<char>(upper ? conversion + (L'a' - L'A') : conversion);
    const bool negative = std::signbit(value);
    char prefix[4];
    std::size_t prefixLength = SignPrefix(d, negative, prefix);

    if (!std::isfinite(value)) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        constexpr std::uint64_t indefinite = 0xFFF8'0000'0000'0000; // what an invalid operation yields
        char text[16];
        std::strcpy(text, std::isinf(value) ? "inf" : bits == indefinite ? "nan(ind)" : "nan");
        if (upper)
            Upper(text, text + std::strlen(text));
        const std::size_t length = std::strlen(text);
        Pad(out, d, prefix, prefixLength, length, false, [&] { out.Add(text, length); });
        return;
    }

    constexpr int hexDigits = 13; // all of a double's fraction
    int precision = d.precision >= 0 ? d.precision : kind == 'a' ? hexDigits : 6;
    if (kind == 'g')
        precision = std::max(precision, 1);
    int extraZeros = std::max(0, precision - exactDigits);
    precision -= extraZeros;
    if (kind == 'g' && !d.alternate)
        extraZeros = 0;

    char text[floatText];
    char* const limit = text + sizeof text;
    const double magnitude = std::fabs(value);
    char* end = text;
    switch (kind) {
    case 'f':
        end = std::to_chars(text, limit, magnitude, std::chars_format::fixed, precision).ptr;
        break;
    case 'e':
        end = std::to_chars(text, limit, magnitude, std::chars_format::scientific, precision).ptr;
        break;
    case 'g':
        end = d.alternate ? GeneralWithZeros(text, limit, magnitude, precision)
                          : std::to_chars(text, limit, magnitude, std::chars_format::general, precision).ptr;
        break;
    default:
        prefix[prefixLength++] = '0';
        prefix[prefixLength++] = upper ? 'X' : 'x';
        end = std::to_chars(text, limit, magnitude, std::chars_format::hex, precision).ptr;
        break;
    }
    char* const mantissaEnd = std::find(text, end, kind == 'a' ? 'p' : 'e');
    const bool addPoint = d.alternate && std::find(text, mantissaEnd, '.') == mantissaEnd;
    if (upper)
        Upper(text, end);
    const std::size_t mantissa = static_cast<std::size_t>(mantissaEnd - text);
    const std::size_t exponent = static_cast<std::size_t>(end - mantissaEnd);
    const std::size_t zeros = static_cast<std::size_t>(extraZeros);
    Pad(out, d, prefix, prefixLength, mantissa + (addPoint ? 1 : 0) + zeros + exponent, d.zero, [&] {
        out.Add(text, mantissa);
        if (addPoint)
            out.Add(L'.');
        out.Fill(L'0', zeros);
        out.Add(mantissaEnd, exponent);
    });
}

void WriteWideText(FormatSink& out, const Directive& d, const wchar_t* text)
{
    if (text == nullptr)
        text = L"(null)";
    std::size_t length = 0;
    if (d.precision < 0)
        length = std::wcslen(text);
    else // the text need not end within the precision
        while (length < static_cast<std::size_t>(d.precision) && text[length] != L'\0')
            ++length;
    Pad(out, d, nullptr, 0, length, d.zero, [&] { out.Add(text, length); });
}

void WriteNarrowText(FormatSink& out, const Directive& d, const char* text, NarrowDecoder decode)
{
    if (text == nullptr)
        text = "(null)";
    std::size_t length = 0;
    if (d.precision < 0)
        length = std::strlen(text);
    else
        while (length < static_cast<std::size_t>(d.precision) && text[length] != '\0')
            ++length;
    FormatSink wide;
    decode(text, length, wide);
    Pad(out, d, nullptr, 0, wide.Size(), d.zero, [&] { out.Add(wide.Data(), wide.Size()); });
}

} // namespace

void FormatWide(FormatSink& out, const wchar_t* format, std::va_list callersArgs, NarrowDecoder decode)
{
    // A copy, because taking arguments out of a va_list is only certain in the function that names it.
    std::va_list args;
    va_copy(args, callersArgs);
    struct End {
        std::va_list& list;
        ~End() { va_end(list); }
    } const endOfArgs{args};

    const auto nextSigned = [&args](Size size) -> std::int64_t {
        switch (size) {
        case Size::byte:
            return static_cast<signed char>(va_arg(args, int));
        case Size::narrow:
            return static_cast<short>(va_arg(args, int));
        case Size::wide:
            return va_arg(args, long);
        case Size::bits64:
            return va_arg(args, long long);
        case Size::pointer:
            return va_arg(args, std::ptrdiff_t);
        default:
            return va_arg(args, int);
        }
    };
    const auto nextUnsigned = [&args](Size size) -> std::uint64_t {
        switch (size) {
        case Size::byte:
            return static_cast<unsigned char>(va_arg(args, unsigned));
        case Size::narrow:
            return static_cast<unsigned short>(va_arg(args, unsigned));
        case Size::wide:
            return va_arg(args, unsigned long);
        case Size::bits64:
            return va_arg(args, unsigned long long);
        case Size::pointer:
            return va_arg(args, std::size_t);
        default:
            return va_arg(args, unsigned);
        }
    };

    for (const wchar_t* p = format; *p != L'\0';) {
        const wchar_t* const literal = p;
        while (*p != L'\0' && *p != L'%')
            ++p;
        out.Add(literal, static_cast<std::size_t>(p - literal));
        if (*p == L'\0')
            break;
        ++p;

        Directive d;
        ParseFlags(p, d);
        if (*p == L'*') {
            ++p;
            const int width = va_arg(args, int);
            d.left = d.left || width < 0;
            d.width = width < -maxField ? maxField : std::min(std::abs(width), maxField);
        } else {
            d.width = ParseNumber(p);
        }
        if (*p == L'.') {
            ++p;
            if (*p == L'*') {
                ++p;
                d.precision = std::clamp(va_arg(args, int), -1, maxField);
            } else {
                d.precision = ParseNumber(p);
            }
        }
        ParseSize(p, d);

        const wchar_t conversion = *p;
        if (conversion == L'\0')
            break;
        ++p;
        switch (conversion) {
        case L'd':
        case L'i': {
            const std::int64_t value = nextSigned(d.size);
            char sign[1];
            const std::size_t signLength = SignPrefix(d, value < 0, sign);
            const auto bits = static_cast<std::uint64_t>(value);
            WriteDigits(out, d, value < 0 ? 0 - bits : bits, 10, false, sign, signLength);
            break;
        }
        case L'u':
            WriteDigits(out, d, nextUnsigned(d.size), 10, false, nullptr, 0);
            break;
        case L'o':
            WriteDigits(out, d, nextUnsigned(d.size), 8, false, nullptr, 0);
            break;
        case L'x':
        case L'X': {
            const std::uint64_t value = nextUnsigned(d.size);
            const bool upper = conversion == L'X';
            WriteDigits(out, d, value, 16, upper, upper ? "0X" : "0x", d.alternate && value != 0 ? 2 : 0);
            break;
        }
        case L'p':
            d.precision = static_cast<int>(2 * sizeof(void*));
            WriteDigits(out, d, reinterpret_cast<std::uintptr_t>(va_arg(args, void*)), 16, true, nullptr, 0);
            break;
        case L'e':
        case L'E':
        case L'f':
        case L'F':
        case L'g':
        case L'G':
        case L'a':
        case L'A':
            WriteFloat(out, d,
                       d.size == Size::longDouble ? static_cast<double>(va_arg(args, long double))
                                                  : va_arg(args, double),
                       conversion);
            break;
        case L'c':
        case L'C': {
            const bool narrow = d.size == Size::narrow || (conversion == L'C' && d.size == Size::plain);
            const int unit = va_arg(args, int);
            if (narrow) {
                const char c = static_cast<char>(unit);
                FormatSink wide;
                decode(&c, 1, wide);
                Pad(out, d, nullptr, 0, wide.Size(), d.zero, [&] { out.Add(wide.Data(), wide.Size()); });
            } else {
                Pad(out, d, nullptr, 0, 1, d.zero, [&] { out.Add(static_cast<wchar_t>(unit)); });
            }
            break;
        }
        case L's':
        case L'S':
            if (d.size == Size::narrow || (conversion == L'S' && d.size == Size::plain))
                WriteNarrowText(out, d, va_arg(args, const char*), decode);
            else
                WriteWideText(out, d, va_arg(args, const wchar_t*));
            break;
        case L'n': // writing through an argument is what attackers of formats want
            static_cast<void>(va_arg(args, void*));
            break;
        default:
            out.Add(conversion);
            break;
        }
    }
}

} // namespace vafx::detail
