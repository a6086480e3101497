#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace demo
{

/** One line of an NMEA 0183 log, split at its commas: "$HEHDT,65.7,T*1B" has the talker "HE", the type "HDT"
 * and the fields "65.7" and "T". The views point into the line that was split. */
struct NmeaSentence {
    /** The standard allows 82 characters, many instruments send more; nothing sensible is longer than this.
     */
    static constexpr std::size_t maxLength = 160;
    static constexpr std::size_t maxFields = 32;

    std::string_view talker; ///< two characters; empty for proprietary sentences ("$P...")
    std::string_view type;   ///< three characters, or the maker's whole code of a proprietary sentence
    std::array<std::string_view, maxFields> fields{};
    std::size_t fieldCount = 0;

    /** The field at `index`, counted from 0 after the type; empty when the sentence has no such field. */
    std::string_view Field(std::size_t index) const noexcept
    {
        return index < fieldCount ? fields[index] : std::string_view();
    }

    /** Splits a line without its line end. Answers false, and leaves the sentence empty, for whatever a cable
     * or a full disk can make of a line: no '$' or '!' at the front, no checksum, a wrong one, text after it,
     * a character outside 0x20..0x7E, too long, too many fields, or no type. */
    bool Split(std::string_view line) noexcept;
};

/** Removes the next line from the front of `rest` and answers it without its line end, LF or CR LF. The last
 * line may lack one. Empty lines are answered too; the end is reached when `rest` is empty. */
std::string_view TakeLine(std::string_view& rest) noexcept;

} // namespace demo
