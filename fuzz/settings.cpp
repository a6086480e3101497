// Feeds bytes to the settings reader as the library does, and checks what must hold whatever the bytes are:
// every expansion ends and stays within its bounds, and a tree that was read comes back unchanged when it is
// written and read again.

#include "fuzz/Checks.h"
#include "settings/detail/Percent.h"
#include "settings/detail/SetReader.h"
#include "settings/detail/SetWriter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace vant::detail;

struct Line {
    LineKind kind;
    std::u16string name;
    std::u16string text;
    bool operator==(const Line&) const = default;
};

using Tree = std::vector<Line>;

// Small, so that long lines and full buffers happen; a line that was written always fits the first.
constexpr std::size_t lineBuffer = 3 * fieldSize;
constexpr std::size_t writeBuffer = 300;

/** Latin-1, so that every byte has a character. */
std::u16string Decode(std::string_view field)
{
    std::u16string text;
    for (const char c : field.substr(0, fieldSize - 1))
        text += static_cast<char16_t>(static_cast<unsigned char>(c));
    return text;
}

std::string Encode(std::u16string_view text)
{
    std::string bytes;
    for (const char16_t c : text)
        bytes += static_cast<char>(c);
    return bytes;
}

Tree Read(std::string_view bytes, std::size_t piece)
{
    Tree tree;
    LineCutter cutter(lineBuffer);
    LineReader reader;
    const auto onLine = [&](std::string_view line) {
        const LineMeaning meaning = reader.Read(line);
        if (meaning.kind != LineKind::Nothing)
            tree.push_back({meaning.kind, Decode(meaning.name), Decode(meaning.text)});
    };
    while (!bytes.empty()) {
        const std::size_t count = std::min({piece, bytes.size(), cutter.RoomSize()});
        std::memcpy(cutter.Room(), bytes.data(), count);
        bytes.remove_prefix(count);
        cutter.Put(count, onLine);
    }
    cutter.Put(0, onLine);
    return tree;
}

std::string Write(const Tree& tree)
{
    std::string bytes;
    const auto drain = [&](const char* part, std::size_t size) { bytes.append(part, size); };
    SetWriter<char16_t, decltype(&Encode), decltype(drain)> writer(&Encode, drain, writeBuffer);
    bool inCollection = false;
    bool inObject = false;
    const auto endObject = [&] {
        if (inObject)
            writer.EndObject();
        inObject = false;
    };
    const auto endCollection = [&] {
        endObject();
        if (inCollection)
            writer.EndCollection();
        inCollection = false;
    };
    writer.Begin(u"today");
    for (const Line& line : tree) {
        switch (line.kind) {
        case LineKind::Collection:
            endCollection();
            writer.BeginCollection(line.name);
            inCollection = true;
            break;
        case LineKind::Object:
            endObject();
            writer.BeginObject(line.name, line.text);
            inObject = true;
            break;
        case LineKind::Item:
            writer.Item(line.name, line.text);
            break;
        case LineKind::Data:
            writer.Data(line.text);
            break;
        case LineKind::Nothing:
            break;
        }
    }
    endCollection();
    writer.End();
    return bytes;
}

/** Quotation marks in data lines and per cent signs in values mean something else on the second reading. */
bool MustSurvive(const Line& line)
{
    const char16_t spoiler = line.kind == LineKind::Data ? u'"' : u'%';
    return line.text.find(spoiler) == std::u16string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Tree tree = Read(bytes, bytes.size() + 1);
    constexpr std::size_t pieces = 509; // how the stream is cut must not matter
    const std::size_t piece = size % pieces + 1;
    Require(Read(bytes, piece) == tree);

    for (const Line& line : tree) {
        Require(line.name.size() < fieldSize && line.text.size() < fieldSize);
        const std::u16string expanded = ExpandWithoutArguments(std::u16string_view(line.text));
        Require(expanded.size() <= longestExpansion);
    }
    const Tree again = Read(Write(tree), piece);
    if (std::all_of(tree.begin(), tree.end(), MustSurvive))
        Require(again == tree);
    return 0;
}
