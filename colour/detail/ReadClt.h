#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/** @file
 *  Reads a colour table file (.clt) as bytes. Any bytes can be read: what is no number gives black or is
 *  passed over, and work and memory are in proportion to the bytes.
 *
 *  A file is lines of text, in the system's 8-bit code page or, after a byte-order mark, in UTF-8 or UTF-16.
 *  A line ends at a line feed, before which a carriage return is left out, or where the file ends; its text
 *  ends at a NUL, and the file at a Ctrl-Z. The first line decides which of three layouts it has:
 *
 *  | first line            | entries                  | other lines                     | without numbers |
 *  |-----------------------|--------------------------|---------------------------------|-----------------|
 *  | COLOURTABLE 12 "Name" | as many as it says       | red green blue, 0 to 255        | black           |
 *  | LookUpTable Name      | 256                      | ignored red green blue, 0 - 255 | passed over     |
 *  | anything else         | 64; this line is the 1st | red green blue, 0 to 63         | black           |
 *
 *  Everything is read as scanf reads it: a blank in a pattern stands for any white space or none, letter case
 *  counts, nothing behind the last number of a line is looked at, and the quotation mark at the end of a name
 *  may be missing. A header without count or name is none: the file then has the third layout.
 *
 *  Numbers out of their range keep their low 8 bits, on the scale to 63 after they were brought to 255. */

namespace vant::detail
{

/** The most entries that a table may have; with a count beyond this, or below 0, a file is refused. */
inline constexpr std::size_t cltMostEntries = 65'536;

struct CltColour {
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;

    bool operator==(const CltColour&) const = default;
};

/** What a file says. */
struct CltTable {
    std::size_t size = 0;           ///< entries that the table is to have
    std::vector<CltColour> colours; ///< of the entries from 0 on, as far as the file goes; `size` at most
    std::string name;               ///< the header's, in the file's encoding; empty: there is none
    bool isUtf8 = false;            ///< `name` is UTF-8 and not in the code page; so it is from UTF-16 too

    bool operator==(const CltTable&) const = default;
};

/** @return whether the file has a count that a table can have. Otherwise `table` is empty. */
bool ReadClt(std::span<const std::byte> bytes, CltTable& table);

} // namespace vant::detail
