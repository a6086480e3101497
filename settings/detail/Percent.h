#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

/** @file
 *  Expands a printf format that comes without arguments. */

namespace vant::detail
{

/** The longest text an expansion gives, in characters: what a field of the settings file can hold. */
inline constexpr std::size_t longestExpansion = 4'095;

/** Widths and precisions in a format are cut to this, so that a short text cannot ask for a huge one. */
inline constexpr std::size_t widestDirective = 512;

namespace percent
{

/** One directive: %[flags][width][.precision][size]type. */
template <class Char>
struct Directive {
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool zeros = false;
    bool alternate = false;
    bool hasPrecision = false;
    std::size_t width = 0;
    std::size_t precision = 0;
    Char type = 0;
};

template <class Char>
class Parser
{
public:
    Parser(std::basic_string_view<Char> text, std::size_t pos) noexcept
        : m_text(text)
        , m_pos(pos)
    {
    }

    /** False when the text ends before the directive does. */
    bool Parse(Directive<Char>& result) noexcept
    {
        while (Flag(result))
            ++m_pos;
        result.width = Count();
        if (Is('.')) {
            ++m_pos;
            result.hasPrecision = true;
            result.precision = Count();
        }
        SkipSize();
        if (m_pos == m_text.size())
            return false;
        result.type = m_text[m_pos++];
        return true;
    }

    std::size_t Pos() const noexcept { return m_pos; }

private:
    bool Is(char c) const noexcept { return m_pos < m_text.size() && m_text[m_pos] == static_cast<Char>(c); }

    bool IsAnyOf(std::string_view set) const noexcept
    {
        return std::any_of(set.begin(), set.end(), [this](char c) { return Is(c); });
    }

    bool Flag(Directive<Char>& result) const noexcept
    {
        result.left = result.left || Is('-');
        result.plus = result.plus || Is('+');
        result.blank = result.blank || Is(' ');
        result.zeros = result.zeros || Is('0');
        result.alternate = result.alternate || Is('#');
        return IsAnyOf("-+ 0#");
    }

    /** Digits, or a star, whose argument counts as zero. */
    std::size_t Count() noexcept
    {
        if (Is('*')) {
            ++m_pos;
            return 0;
        }
        std::size_t count = 0;
        for (; IsAnyOf("0123456789"); ++m_pos)
            count =
                std::min(widestDirective, count * 10 + static_cast<std::size_t>(m_text[m_pos] - Char('0')));
        return count;
    }

    /** hh, h, ll, l, w, L, j, z, t, I64, I32, I */
    void SkipSize() noexcept
    {
        if (Is('I')) {
            ++m_pos;
            if (Follows('6', '4') || Follows('3', '2'))
                m_pos += 2;
        } else if (IsAnyOf("hl")) {
            m_pos += Follows(m_text[m_pos]) ? 2 : 1;
        } else if (IsAnyOf("wLjzt")) {
            ++m_pos;
        }
    }

    /** The present character stands there twice. */
    bool Follows(Char c) const noexcept { return m_pos + 1 < m_text.size() && m_text[m_pos + 1] == c; }

    bool Follows(char first, char second) const noexcept
    {
        return m_text.size() - m_pos >= 2 && m_text[m_pos] == static_cast<Char>(first) &&
               m_text[m_pos + 1] == static_cast<Char>(second);
    }

    std::basic_string_view<Char> m_text;
    std::size_t m_pos;
};

/** The digits that printf gives for zero, without sign and padding. */
template <class Char>
std::string ZeroText(const Directive<Char>& directive)
{
    constexpr std::size_t hexDigits = 13; // all of a double's fraction
    const std::size_t precision = directive.hasPrecision ? directive.precision : 6;
    const auto fixed = [&](std::size_t decimals) {
        std::string text = "0";
        if (decimals != 0 || directive.alternate)
            text += '.';
        return text.append(decimals, '0');
    };
    switch (directive.type) {
    case Char('d'):
    case Char('i'):
    case Char('u'):
    case Char('x'):
    case Char('X'):
        return std::string(directive.hasPrecision ? directive.precision : 1, '0');
    case Char('o'):
        return std::string(
            std::max<std::size_t>(directive.hasPrecision ? directive.precision : 1, directive.alternate),
            '0');
    case Char('f'):
    case Char('F'):
        return fixed(precision);
    case Char('e'):
        return fixed(precision) + "e+00";
    case Char('E'):
        return fixed(precision) + "E+00";
    case Char('g'):
    case Char('G'):
        return directive.alternate ? fixed(std::max<std::size_t>(precision, 1) - 1) : "0";
    case Char('a'):
        return "0x" + fixed(directive.hasPrecision ? precision : hexDigits) + "p+0";
    case Char('A'):
        return "0X" + fixed(directive.hasPrecision ? precision : hexDigits) + "P+0";
    case Char('p'):
        return std::string(2 * sizeof(void*), '0');
    default:
        return {};
    }
}

template <class Char>
bool IsAnyOf(Char c, std::string_view set) noexcept
{
    return std::any_of(set.begin(), set.end(), [c](char s) { return c == static_cast<Char>(s); });
}

/** Appends what a directive gives for an argument of zero or, for text, of nothing. */
template <class Char>
void Append(std::basic_string<Char>& out, const Directive<Char>& directive)
{
    if (!IsAnyOf(directive.type, "diuxXofFeEgGaApcCsSn")) {
        out += directive.type; // "%%", and any character that has no meaning as a type, stand for themselves
        return;
    }
    if (directive.type == Char('n'))
        return;

    const bool isSigned = IsAnyOf(directive.type, "difFeEgGaA");
    const bool isInteger = IsAnyOf(directive.type, "diuxXo");
    std::string sign;
    if (isSigned && directive.plus)
        sign = "+";
    else if (isSigned && directive.blank)
        sign = " ";
    std::string body = ZeroText(directive);
    const std::size_t size = sign.size() + body.size();
    const std::size_t fill = directive.width > size ? directive.width - size : 0;
    if (directive.left) {
        body.append(fill, ' ');
    } else if (directive.zeros && !(isInteger && directive.hasPrecision)) {
        const bool prefixed = directive.type == Char('a') || directive.type == Char('A');
        body.insert(prefixed ? 2 : 0, fill, '0');
    } else {
        sign.insert(0, fill, ' ');
    }
    out.append(sign.begin(), sign.end());
    out.append(body.begin(), body.end());
}

} // namespace percent

/** The text that printf would give for this format if every argument it asks for were zero or empty text:
 *  "%%" becomes "%", "%d" becomes "0", "%s" and "%c" nothing, a star in place of a width or a precision
 *  counts as zero, "%n" writes nowhere. A directive that the end of the text
 *  cuts off gives nothing. Never reads an argument; gives at most longestExpansion characters. */
template <class Char>
std::basic_string<Char> ExpandWithoutArguments(std::basic_string_view<Char> format)
{
    std::basic_string<Char> out;
    out.reserve(format.size());
    std::size_t pos = 0;
    while (pos < format.size() && out.size() < longestExpansion) {
        const std::size_t sign = std::min(format.find(Char('%'), pos), format.size());
        out.append(format.substr(pos, sign - pos));
        if (sign == format.size())
            break;
        percent::Parser<Char> parser(format, sign + 1);
        percent::Directive<Char> directive;
        if (!parser.Parse(directive))
            break;
        percent::Append(out, directive);
        pos = parser.Pos();
    }
    if (out.size() > longestExpansion)
        out.resize(longestExpansion);
    return out;
}

} // namespace vant::detail
