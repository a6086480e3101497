// Feeds bytes to the reader of colour tables as the library does, and checks what must hold whatever the
// bytes are: the bounds of the table and of memory, and that the same text in another encoding is the same
// table.

#include "colour/detail/ReadClt.h"
#include "fuzz/Checks.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace vant::detail;

namespace
{

Slowest slowest(50);

struct Reading {
    bool isRead = false;
    CltTable table;
};

Reading Read(const std::string& bytes)
{
    Reading reading;
    reading.isRead = ReadClt(std::as_bytes(std::span(bytes)), reading.table);
    return reading;
}

void Check(const Reading& reading, std::size_t bytes)
{
    const CltTable& table = reading.table;
    if (!reading.isRead)
        Require(table.size == 0 && table.colours.empty() && table.name.empty(), "nothing of a refused file");
    Require(table.size <= cltMostEntries, "a table of at most 65,536 entries");
    Require(table.colours.size() <= table.size, "no more colours than entries");
    // A line with a number in it has two bytes; half a pair of UTF-16 takes three in the name.
    Require(table.colours.size() <= bytes + 1, "no more colours than lines");
    Require(table.name.size() <= bytes * 2, "a name from the file");
}

std::string As16(const std::string& text, bool bigEndian)
{
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
        if (bigEndian)
            bytes += '\0';
        bytes += c;
        if (!bigEndian)
            bytes += '\0';
    }
    return bytes;
}

/** The same table, whatever encoding it came in. */
void RequireSame(const Reading& a, const Reading& b)
{
    Require(a.isRead == b.isRead && a.table.size == b.table.size && a.table.colours == b.table.colours &&
                a.table.name == b.table.name,
            "the same table in another encoding");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::clock_t begin = std::clock();
    const Reading reading = Read(bytes);
    slowest.Note(begin);
    Check(reading, size);
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= 0; })) {
        RequireSame(reading, Read("\xEF\xBB\xBF" + bytes));
        RequireSame(reading, Read(As16(bytes, false)));
        RequireSame(reading, Read(As16(bytes, true)));
    }
    return 0;
}
