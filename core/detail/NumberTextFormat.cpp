#include "core/detail/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/detail/Digits.h"

namespace vant::detail
{

namespace
{

/** A printf directive for one double: %[flags][width][.precision][l]kind. */
struct Directive {
    static constexpr int unset = -1;
    bool left = false, plus = false, blank = false, zeros = false, alternative = false;
    int width = 0;
    int precision = unset;
    char kind = 0; ///< lower case, one of e f g a
    bool upper = false;
    std::size_t used = 0; ///< characters behind the percent sign; 0 when this is no such directive
};

template <class Char>
int ReadCount(const Char*& at, const Char* end) noexcept
{
    int count = 0;
    for (; at != end && IsDigit(*at); ++at) {
        count = std::min(count * 10 + static_cast<int>(DigitValue(*at)), decimalsMax);
    }
    return count;
}

template <class Char>
Directive ReadDirective(std::basic_string_view<Char> text) noexcept
{
    const Char* at = text.data();
    const Char* const end = at + text.size();
    Directive directive;
    for (bool flag = true; flag && at != end; at += flag ? 1 : 0) {
        switch (*at) {
        case '-':
            directive.left = true;
            break;
        case '+':
            directive.plus = true;
            break;
        case ' ':
            directive.blank = true;
            break;
        case '0':
            directive.zeros = true;
            break;
        case '#':
            directive.alternative = true;
            break;
        default:
            flag = false;
            break;
        }
    }
    directive.width = ReadCount(at, end);
    if (at != end && *at == '.') {
        ++at;
        directive.precision = ReadCount(at, end);
    }
    if (at != end && (*at == 'l' || *at == 'L')) {
        ++at;
    }
    if (at == end) {
        return {};
    }
    switch (*at) {
    case 'e':
    case 'f':
    case 'g':
    case 'a':
        directive.kind = static_cast<char>(*at);
        break;
    case 'E':
    case 'F':
    case 'G':
    case 'A':
        directive.kind = static_cast<char>(*at - 'A' + 'a');
        directive.upper = true;
        break;
    default:
        return {};
    }
    directive.used = static_cast<std::size_t>(at + 1 - text.data());
    return directive;
}

/** A buffer for the digits of any double in any form that a directive can ask for. */
using DigitBuffer = std::array<char, fixedTextMax + 16>;

/** "%#g" keeps the zeros at the end: the number of digits is fixed, and the exponent after rounding decides
 * the form. */
char* WriteGeneralWithZeros(DigitBuffer& text, double magnitude, int precision) noexcept
{
    char* const last = text.data() + text.size();
    const int digits = std::max(precision, 1);
    char* const end =
        std::to_chars(text.data(), last, magnitude, std::chars_format::scientific, digits - 1).ptr;
    const char* const mark = std::find(text.data(), end, 'e');
    int exponent = 0;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, exponent);
    if (exponent < -4 || exponent >= digits) {
        return end;
    }
    return std::to_chars(text.data(), last, magnitude, std::chars_format::fixed, digits - 1 - exponent).ptr;
}

/** The magnitude's text, without sign, padding and case. */
char* WriteMagnitude(DigitBuffer& text, double magnitude, const Directive& directive) noexcept
{
    constexpr int usual = 6;
    char* const first = text.data();
    char* const last = first + text.size();
    const int precision = directive.precision == Directive::unset ? usual : directive.precision;
    if (!std::isfinite(magnitude)) {
        return std::to_chars(first, last, magnitude).ptr;
    }
    char* end = nullptr;
    switch (directive.kind) {
    case 'e':
        end = std::to_chars(first, last, magnitude, std::chars_format::scientific, precision).ptr;
        break;
    case 'f':
        end = std::to_chars(first, last, magnitude, std::chars_format::fixed, precision).ptr;
        break;
    case 'a':
        first[0] = '0';
        first[1] = 'x';
        end = directive.precision == Directive::unset
                  ? std::to_chars(first + 2, last, magnitude, std::chars_format::hex).ptr
                  : std::to_chars(first + 2, last, magnitude, std::chars_format::hex, precision).ptr;
        break;
    default:
        end = directive.alternative
                  ? WriteGeneralWithZeros(text, magnitude, precision)
                  : std::to_chars(first, last, magnitude, std::chars_format::general, precision).ptr;
        break;
    }
    if (directive.alternative && std::find(first, end, '.') == end) {
        char* const mark = std::find(first, end, directive.kind == 'a' ? 'p' : 'e');
        std::move_backward(mark, end, end + 1);
        *mark = '.';
        ++end;
    }
    return end;
}

template <class Char>
void AppendDirective(std::basic_string<Char>& out, const Directive& directive, double value)
{
    DigitBuffer text;
    char* const end = WriteMagnitude(text, std::fabs(value), directive);
    if (directive.upper) {
        std::transform(text.data(), end, text.data(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    }
    const char sign = std::signbit(value) && !std::isnan(value) ? '-'
                      : directive.plus                          ? '+'
                      : directive.blank                         ? ' '
                                                                : '\0';
    const auto length = static_cast<int>(end - text.data()) + (sign != '\0' ? 1 : 0);
    const auto padding = static_cast<std::size_t>(std::max(directive.width - length, 0));
    const bool zeros = directive.zeros && !directive.left && std::isfinite(value);

    if (!zeros && !directive.left) {
        out.append(padding, ' ');
    }
    if (sign != '\0') {
        out.push_back(static_cast<Char>(sign));
    }
    const char* digits = text.data();
    if (zeros) {
        const std::ptrdiff_t prefix = directive.kind == 'a' ? 2 : 0; // zeros follow the 0x
        out.append(digits, digits + prefix);
        out.append(padding, '0');
        digits += prefix;
    }
    out.append(digits, static_cast<const char*>(end));
    if (directive.left) {
        out.append(padding, ' ');
    }
}

} // namespace

template <class Char>
void AppendFormatted(std::basic_string<Char>& out, std::basic_string_view<Char> format, double value)
{
    bool shown = false;
    for (std::size_t at = 0; at < format.size(); ++at) {
        const Char c = format[at];
        if (c != '%') {
            out.push_back(c);
            continue;
        }
        if (at + 1 < format.size() && format[at + 1] == '%') {
            out.push_back(c);
            ++at;
            continue;
        }
        const Directive directive = shown ? Directive{} : ReadDirective(format.substr(at + 1));
        if (directive.used == 0) {
            out.push_back(c);
            continue;
        }
        AppendDirective(out, directive, value);
        at += directive.used;
        shown = true;
    }
}

// For the three kinds of text that the library meets.
#define VANT_NUMBER_TEXT(Char)                                                                               \
    template void AppendFormatted(std::basic_string<Char>&, std::basic_string_view<Char>, double)

VANT_NUMBER_TEXT(char);
VANT_NUMBER_TEXT(char16_t);
VANT_NUMBER_TEXT(wchar_t);

#undef VANT_NUMBER_TEXT

} // namespace vant::detail
