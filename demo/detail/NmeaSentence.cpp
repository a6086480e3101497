#include "demo/detail/NmeaSentence.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr std::size_t checksumLength = 3; // '*' and two hexadecimal digits

int HexDigit(char c) noexcept
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

bool IsPrintable(char c) noexcept
{
    return c >= 0x20 && c <= 0x7E;
}

/** The text between '$' and '*' when the checksum behind it is right, else an empty view. */
std::string_view CheckedBody(std::string_view line) noexcept
{
    if (line.size() < 1 + checksumLength || line.size() > NmeaSentence::maxLength)
        return {};
    if ((line.front() != '$' && line.front() != '!') || !std::ranges::all_of(line, IsPrintable))
        return {};

    const std::size_t star = line.size() - checksumLength;
    const int high = HexDigit(line[star + 1]);
    const int low = HexDigit(line[star + 2]);
    if (line[star] != '*' || high < 0 || low < 0)
        return {};

    const std::string_view body = line.substr(1, star - 1);
    int sum = 0;
    for (const char c : body)
        sum ^= static_cast<unsigned char>(c);
    return sum == high * 16 + low ? body : std::string_view();
}

} // namespace

bool NmeaSentence::Split(std::string_view line) noexcept
{
    *this = {};
    const std::string_view body = CheckedBody(line);
    const std::string_view address = body.substr(0, body.find(','));
    const bool proprietary = address.starts_with('P');
    if (address.size() < (proprietary ? 2U : 5U))
        return false;

    NmeaSentence result;
    result.talker = proprietary ? std::string_view() : address.substr(0, 2);
    result.type = address.substr(proprietary ? 1 : 2);

    std::size_t comma = body.find(',');
    while (comma != std::string_view::npos) {
        if (result.fieldCount == maxFields)
            return false;
        const std::size_t next = body.find(',', comma + 1);
        const std::size_t length = next == std::string_view::npos ? next : next - comma - 1;
        result.fields[result.fieldCount++] = body.substr(comma + 1, length);
        comma = next;
    }
    *this = result;
    return true;
}

std::string_view TakeLine(std::string_view& rest) noexcept
{
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace demo
