#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

/** @file
 *  Reads a settings file as bytes: cuts it into lines, and tells what each line means.
 *
 *  The text stays in the system's 8-bit code page here. That is exact, because no Windows code page uses the
 *  bytes of the structure (white space, '"', '<', '/', '=') within a character of several bytes. Whoever
 *  reads decodes the fields that it is handed, and cuts them to fieldSize - 1 characters. */

namespace vant::detail
{

/** The size of a field's buffer, in characters, its end included. */
inline constexpr std::size_t fieldSize = 4'096;

/** Cuts a stream of bytes into lines in a buffer of fixed size.
 *
 *  A line ends at a line feed or at the end of the stream; its text ends at a NUL, if there is one. Of a line
 *  longer than the buffer the beginning is kept and the rest dropped. */
class LineCutter
{
public:
    static constexpr std::size_t usualSize = std::size_t{1} << 18;

    explicit LineCutter(std::size_t bufferSize = usualSize)
        : m_buffer(bufferSize)
    {
    }

    /** Where the next bytes of the stream go; never empty between the calls that the protocol asks for. */
    char* Room() noexcept { return m_buffer.data() + m_end; }
    std::size_t RoomSize() const noexcept { return m_buffer.size() - m_end; }

    /** Tells that `count` bytes were put into the room, and calls `line` with every line that is complete.
     *  A count of 0 is the end of the stream: what is left is a line too. */
    template <class OnLine>
    void Put(std::size_t count, OnLine&& line)
    {
        const char* pos = m_buffer.data();
        const char* searched = pos + m_end;
        m_end += count;
        const char* const end = m_buffer.data() + m_end;
        while (const char* feed = FindFeed(searched, end)) {
            Hand(pos, feed, line);
            pos = searched = feed + 1;
        }
        const auto rest = static_cast<std::size_t>(end - pos);
        if (rest == m_buffer.size() || (count == 0 && rest != 0)) {
            Hand(pos, end, line);
            m_dropping = count != 0;
            m_end = 0;
            return;
        }
        std::memmove(m_buffer.data(), pos, rest);
        m_end = rest;
    }

private:
    template <class OnLine>
    void Hand(const char* begin, const char* end, OnLine& line)
    {
        if (!m_dropping)
            line(std::string_view(begin, static_cast<std::size_t>(end - begin)));
        m_dropping = false;
    }

    /** memchr for a line feed, eight bytes at a time: the run-time library's takes them one by one. */
    static const char* FindFeed(const char* pos, const char* end) noexcept
    {
        constexpr std::uint64_t ones = 0x0101010101010101U;
        constexpr std::uint64_t highs = ones << 7;
        for (; end - pos >= 8; pos += 8) {
            std::uint64_t word = 0;
            std::memcpy(&word, pos, sizeof word);
            const std::uint64_t zeroWhereFeed = word ^ (ones * '\n');
            if (((zeroWhereFeed - ones) & ~zeroWhereFeed & highs) != 0)
                break;
        }
        while (pos != end && *pos != '\n')
            ++pos;
        return pos == end ? nullptr : pos;
    }

    std::vector<char> m_buffer;
    std::size_t m_end = 0;
    bool m_dropping = false; // the beginning of the present line has been handed on already
};

/** What a line of the file does to the tree. */
enum class LineKind : std::uint8_t { Nothing, Collection, Object, Item, Data };

struct LineMeaning {
    LineKind kind = LineKind::Nothing;
    std::string_view name; ///< collection, object or item
    std::string_view text; ///< object's type, item's value or data line
};

/** The state machine over the lines. The patterns are scanf's, with what that implies:
 *  - a blank in a pattern matches any run of white space, an empty one included;
 *  - a line counts when its fields convert, so nothing behind the last field is looked at: an unclosed
 *    quotation mark does no harm, and neither does text after it;
 *  - a field must hold a character: name="" and val="" do not match;
 *  - a field takes fieldSize - 1 characters at most. The last of a line is cut there; after an earlier one
 *    the pattern then finds no quotation mark, and the line does not match. */
class LineReader
{
public:
    LineMeaning Read(std::string_view line) noexcept
    {
        const char* const nul = static_cast<const char*>(std::memchr(line.data(), 0, line.size()));
        if (nul != nullptr)
            line = line.substr(0, static_cast<std::size_t>(nul - line.data()));
        line = Trimmed(line);
        switch (m_state) {
        case State::Outside:
            return Outside(line);
        case State::InCollection:
            return InCollection(line);
        case State::InObject:
            break;
        }
        return InObject(line);
    }

private:
    enum class State : std::uint8_t { Outside, InCollection, InObject };

    static bool IsSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

    static std::string_view Trimmed(std::string_view line) noexcept
    {
        while (!line.empty() && IsSpace(line.front()))
            line.remove_prefix(1);
        while (!line.empty() && IsSpace(line.back()))
            line.remove_suffix(1);
        return line;
    }

    /** Walks a line along a pattern. */
    class Match
    {
    public:
        explicit Match(std::string_view line) noexcept
            : m_rest(line)
        {
        }

        bool Literal(std::string_view text) noexcept
        {
            if (m_rest.substr(0, text.size()) != text)
                return false;
            m_rest.remove_prefix(text.size());
            return true;
        }

        void Space() noexcept
        {
            while (!m_rest.empty() && IsSpace(m_rest.front()))
                m_rest.remove_prefix(1);
        }

        /** "%s" */
        bool Word(std::string_view& field) noexcept
        {
            Space();
            std::size_t size = 0;
            while (size < m_rest.size() && !IsSpace(m_rest[size]))
                ++size;
            return Take(size, field);
        }

        /** "%[^x]" */
        bool Until(char end, std::string_view& field) noexcept
        {
            std::size_t size = 0;
            while (size < m_rest.size() && m_rest[size] != end)
                ++size;
            return Take(size, field);
        }

    private:
        bool Take(std::size_t size, std::string_view& field) noexcept
        {
            field = m_rest.substr(0, size);
            m_rest.remove_prefix(size);
            return size != 0;
        }

        std::string_view m_rest;
    };

    static bool IsWhole(std::string_view field) noexcept { return field.size() < fieldSize; }

    LineMeaning Outside(std::string_view line) noexcept
    {
        LineMeaning meaning;
        Match match(line);
        if (!match.Literal("<Collection"))
            return {};
        match.Space();
        if (!match.Literal("name=\"") || !match.Until('"', meaning.name))
            return {};
        m_state = State::InCollection;
        meaning.kind = LineKind::Collection;
        return meaning;
    }

    LineMeaning InCollection(std::string_view line) noexcept
    {
        if (line == "</Collection>") {
            m_state = State::Outside;
            return {};
        }
        LineMeaning meaning;
        Match match(line);
        if (!match.Literal("<Object"))
            return {};
        match.Space();
        if (!match.Literal("name=\"") || !match.Until('"', meaning.name) || !IsWhole(meaning.name) ||
            !match.Literal("\""))
            return {};
        match.Space();
        if (!match.Literal("type=\"") || !match.Until('"', meaning.text))
            return {};
        m_state = State::InObject;
        meaning.kind = LineKind::Object;
        return meaning;
    }

    LineMeaning InObject(std::string_view line) noexcept
    {
        if (line == "</Object>") {
            m_state = State::InCollection;
            return {};
        }
        LineMeaning meaning;
        Match item(line);
        if (item.Literal("<") && item.Word(meaning.name) && IsWhole(meaning.name)) {
            item.Space();
            if (item.Literal("val=\"") && item.Until('"', meaning.text)) {
                meaning.kind = LineKind::Item;
                return meaning;
            }
        }
        Match data(line);
        if (!data.Literal("<Data>") || !data.Until('<', meaning.text))
            return {};
        meaning.name = {};
        meaning.kind = LineKind::Data;
        return meaning;
    }

    State m_state = State::Outside;
};

} // namespace vant::detail
