#include "colour/detail/ReadClt.h"

#include "core/detail/NumberText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vant::detail
{

namespace
{

constexpr std::size_t lookUpSize = 256;
constexpr std::size_t headerlessSize = 64;
constexpr double headerlessMost = 63.0; // of a component without header; 255 otherwise
constexpr double componentMost = 255.0;
constexpr char fileEnd = '\x1A';

bool IsSpace(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

void SkipSpace(std::string_view& text) noexcept
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
}

bool TakeLiteral(std::string_view& text, std::string_view literal) noexcept
{
    if (!text.starts_with(literal))
        return false;
    text.remove_prefix(literal.size());
    return true;
}

void AppendUtf8(std::string& out, std::uint32_t c)
{
    const auto tail = [&](int shift) { out += static_cast<char>(0x80 | (c >> shift & 0x3F)); };
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | c >> 6);
        tail(0);
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | c >> 12);
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0 | c >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

/** UTF-16 as UTF-8. Half a surrogate pair becomes the replacement character; an odd byte at the end is left
 * out. @param high  0 where a unit's first byte is the high one, else 1 */
std::string Utf8From16(std::string_view bytes, std::size_t high)
{
    const auto unit = [&](std::size_t at) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + high]) << 8 |
                                          static_cast<unsigned char>(bytes[at + 1 - high]));
    };
    const auto isHalf = [](std::uint32_t c, std::uint32_t first) { return (c & 0xFC00) == first; };
    constexpr std::uint32_t highHalf = 0xD800;
    constexpr std::uint32_t lowHalf = 0xDC00;
    constexpr std::uint32_t replacement = 0xFFFD;

    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 2 <= bytes.size(); at += 2) {
        std::uint32_t c = unit(at);
        if (isHalf(c, highHalf) && at + 4 <= bytes.size() && isHalf(unit(at + 2), lowHalf)) {
            at += 2;
            c = 0x10000 + ((c & 0x3FF) << 10 | (unit(at) & 0x3FF));
        } else if (isHalf(c, highHalf) || isHalf(c, lowHalf)) {
            c = replacement;
        }
        AppendUtf8(text, c);
    }
    return text;
}

/** The lines of a text, one after the other. */
class Lines
{
public:
    explicit Lines(std::string_view text)
        : m_rest(text.substr(0, text.find(fileEnd)))
    {
    }

    bool Next(std::string_view& line)
    {
        if (m_rest.empty())
            return false;
        const std::size_t feed = m_rest.find('\n');
        line = m_rest.substr(0, feed);
        m_rest.remove_prefix(feed == std::string_view::npos ? m_rest.size() : feed + 1);
        if (feed != std::string_view::npos && line.ends_with('\r'))
            line.remove_suffix(1);
        line = line.substr(0, line.find('\0'));
        return true;
    }

private:
    std::string_view m_rest;
};

/** "%d %d ...": all of the numbers, or false. */
template <std::size_t count>
bool ScanNumbers(std::string_view line, std::array<std::int32_t, count>& numbers) noexcept
{
    for (std::int32_t& number : numbers) {
        const auto scanned = ScanInt(line);
        if (!scanned)
            return false;
        number = scanned.value;
        line.remove_prefix(scanned.used);
    }
    return true;
}

unsigned char LowByte(std::int64_t number) noexcept
{
    return static_cast<unsigned char>(number & 0xFF);
}

/** Brings a component of a file without header from 63 to 255, cut off at the point. */
unsigned char Widened(std::int32_t component) noexcept
{
    return LowByte(static_cast<std::int64_t>(component / headerlessMost * componentMost));
}

CltColour ReadEntry(std::string_view line) noexcept
{
    std::array<std::int32_t, 3> rgb{};
    if (!ScanNumbers(line, rgb))
        return {};
    return {LowByte(rgb[0]), LowByte(rgb[1]), LowByte(rgb[2])};
}

CltColour ReadHeaderlessEntry(std::string_view line) noexcept
{
    std::array<std::int32_t, 3> rgb{};
    if (!ScanNumbers(line, rgb))
        return {};
    return {Widened(rgb[0]), Widened(rgb[1]), Widened(rgb[2])};
}

struct ColourTableHeader {
    double count; ///< as it is written, which a 32-bit integer need not hold
    std::string_view name;
};

/** `COLOURTABLE %d "%[^"]"` */
std::optional<ColourTableHeader> ScanColourTable(std::string_view line)
{
    if (!TakeLiteral(line, "COLOURTABLE"))
        return std::nullopt;
    const auto scanned = ScanInt(line);
    if (!scanned)
        return std::nullopt;
    const double count = ScanDouble(line.substr(0, scanned.used)).value;
    line.remove_prefix(scanned.used);
    SkipSpace(line);
    if (!TakeLiteral(line, "\""))
        return std::nullopt;
    const std::string_view name = line.substr(0, line.find('"'));
    if (name.empty())
        return std::nullopt;
    return ColourTableHeader{count, name};
}

/** `LookUpTable %s`; an empty name if the line is something else. */
std::string_view ScanLookUpTable(std::string_view line) noexcept
{
    if (!TakeLiteral(line, "LookUpTable"))
        return {};
    SkipSpace(line);
    return line.substr(
        0, static_cast<std::size_t>(std::find_if(line.begin(), line.end(), IsSpace) - line.begin()));
}

void ReadRest(Lines& lines, CltTable& table, CltColour (*read)(std::string_view) noexcept)
{
    std::string_view line;
    while (table.colours.size() < table.size && lines.Next(line))
        table.colours.push_back(read(line));
}

void ReadLookUp(Lines& lines, CltTable& table)
{
    std::string_view line;
    while (table.colours.size() < table.size && lines.Next(line)) {
        std::array<std::int32_t, 4> numbers{};
        // The first number deliberately does not place the entry.
        if (ScanNumbers(line, numbers))
            table.colours.push_back({LowByte(numbers[1]), LowByte(numbers[2]), LowByte(numbers[3])});
    }
}

bool ReadText(std::string_view text, CltTable& table)
{
    Lines lines(text);
    std::string_view first;
    const bool hasFirst = lines.Next(first);
    if (const auto header = ScanColourTable(first)) {
        if (!(header->count >= 0 && header->count <= static_cast<double>(cltMostEntries)))
            return false;
        table.size = static_cast<std::size_t>(header->count);
        table.name = header->name;
        ReadRest(lines, table, ReadEntry);
        return true;
    }
    if (const std::string_view name = ScanLookUpTable(first); !name.empty()) {
        table.size = lookUpSize;
        table.name = name;
        ReadLookUp(lines, table);
        return true;
    }
    table.size = headerlessSize;
    if (hasFirst)
        table.colours.push_back(ReadHeaderlessEntry(first));
    ReadRest(lines, table, ReadHeaderlessEntry);
    return true;
}

} // namespace

bool ReadClt(std::span<const std::byte> bytes, CltTable& table)
{
    table = {};
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (TakeLiteral(text, "\xFF\xFE") || TakeLiteral(text, "\xFE\xFF")) {
        table.isUtf8 = true;
        const std::size_t high = bytes[0] == std::byte{0xFF} ? 1 : 0;
        return ReadText(Utf8From16(text, high), table);
    }
    table.isUtf8 = TakeLiteral(text, "\xEF\xBB\xBF");
    return ReadText(text, table);
}

} // namespace vant::detail
