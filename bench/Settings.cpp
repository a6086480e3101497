// The settings file of a large application (200 collections of 50 objects of 20 items, 7 MB) loaded and
// saved, file included, against RapidXML doing the same.
//
// What the peers do:
// - loading, owned: read the file at once, parse it in place (parse_default), build collections, objects and
// items
//   in vectors, with names and values as std::wstring, as CESet holds them as CString. Widening is a plain
//   copy, which ASCII allows.
// - loading, wide in place: read the file at once, widen it at once, parse the wide text in place. The texts
// are
//   stretches of that one buffer: nothing is built beyond the parser's nodes, nothing can be changed.
// - loading, narrow in place: the parser alone on narrow text; nobody gets a wide text.
// - saving, wide: print a ready document of wide text (print_no_indenting is not set: tabs and line ends are
//   written) into a ready buffer, narrow it, and write it as CESet::Save does, to a file beside, flushed and
//   renamed.
// - the plain file: the same bytes, ready in memory, to a file beside, flushed and renamed; once more without
// flush.

#include "Compare.h"
#include "TempFile.h"

#include "settings/CESet.h"

#include <catch2/catch.hpp>
#include <rapidxml/rapidxml.hpp>

namespace rapidxml::internal
{
// The printer calls these before it declares them, which no present compiler accepts.
template <class Out, class Ch>
Out print_children(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_attributes(Out out, const xml_node<Ch>* node, int flags);
template <class Out, class Ch>
Out print_data_node(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_cdata_node(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_element_node(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_declaration_node(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_comment_node(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_doctype_node(Out out, const xml_node<Ch>* node, int flags, int indent);
template <class Out, class Ch>
Out print_pi_node(Out out, const xml_node<Ch>* node, int flags, int indent);
} // namespace rapidxml::internal

#include <rapidxml/rapidxml_print.hpp>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace
{

constexpr int collections = 200;
constexpr int objects = 50;
constexpr std::size_t allItems = std::size_t{collections} * objects * 20;

/** The file that all rounds read and write. */
const std::wstring& FileName()
{
    static const TempFile file(L"settings.xml");
    static const std::wstring name = file.Path();
    return name;
}

/** What a control of an instrument display keeps. */
void FillObject(CESetObj& obj, int seed)
{
    int level = seed % 7;
    int left = seed * 13 % 1920;
    int top = seed * 7 % 1080;
    unsigned long colour = static_cast<unsigned long>(seed) * 2654435761U % 0x1000000;
    double scale = 0.001 * seed + 1.0 / (1 + seed % 13);
    double minimum = -0.37 * seed;
    double maximum = 1234.5 + 0.73 * seed;
    unsigned char visible = seed % 3 != 0;
    CString title;
    title.Format(L"Depth below keel %d", seed);
    CString comment = L"as calibrated in harbour";
    CString nothing = L"NULL";
    obj.Item(L"Level", level);
    obj.Item(L"Left", left);
    obj.Item(L"Top", top);
    obj.Item(L"Width", left);
    obj.Item(L"Height", top);
    obj.Item(L"Visible", visible);
    obj.Item(L"Colour", colour);
    obj.Item(L"BackColour", colour);
    obj.Item(L"TextColour", colour);
    obj.Item(L"Scale", scale);
    obj.Item(L"Offset", minimum);
    obj.Item(L"Minimum", minimum);
    obj.Item(L"Maximum", maximum);
    obj.Item(L"Alarm", visible);
    obj.Item(L"Decimals", level);
    obj.Item(L"Title", title);
    obj.Item(L"Comment", comment);
    obj.Item(L"Source", nothing);
    obj.Item(L"Palette", nothing);
    obj.Item(L"Smoothing", scale);
}

const CESet& Tree()
{
    static const CESet tree = [] {
        CESet set(1);
        CString name;
        for (int c = 0; c < collections; ++c) {
            name.Format(L"Collection %d", c);
            CESetCol& col = *set.AddCol(name);
            for (int o = 0; o < objects; ++o) {
                name.Format(L"Object %d", o);
                FillObject(*col.AddObj(name, L"CInstrument"), c * objects + o);
            }
        }
        return set;
    }();
    return tree;
}

struct File {
    explicit File(const std::wstring& name, bool writing)
        : handle(CreateFileW(name.c_str(), writing ? GENERIC_WRITE : GENERIC_READ, FILE_SHARE_READ, nullptr,
                             writing ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        REQUIRE(handle != INVALID_HANDLE_VALUE);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { CloseHandle(handle); }
    HANDLE handle;
};

/** The file's bytes and a final 0. */
std::vector<char> ReadWhole()
{
    const File file(FileName(), false);
    const DWORD size = GetFileSize(file.handle, nullptr);
    std::vector<char> bytes(std::size_t{size} + 1);
    DWORD count = 0;
    REQUIRE(ReadFile(file.handle, bytes.data(), size, &count, nullptr));
    return bytes;
}

void WriteWhole(std::string_view bytes, bool flush)
{
    const std::wstring beside = FileName() + L".beside";
    {
        const File file(beside, true);
        DWORD count = 0;
        REQUIRE(WriteFile(file.handle, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr));
        if (flush)
            REQUIRE(FlushFileBuffers(file.handle));
    }
    REQUIRE(
        MoveFileExW(beside.c_str(), FileName().c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

struct PeerItem {
    std::wstring name;
    std::wstring value;
};
struct PeerObject {
    std::wstring name;
    std::wstring type;
    std::vector<PeerItem> items;
};
struct PeerCollection {
    std::wstring name;
    std::vector<PeerObject> objects;
};

template <class Ch>
std::wstring Wide(const rapidxml::xml_base<Ch>* base)
{
    return {base->value(), base->value() + base->value_size()};
}

std::vector<PeerCollection> OwnedTree(const rapidxml::xml_document<char>& document)
{
    std::vector<PeerCollection> tree;
    for (auto* col = document.first_node()->first_node(); col; col = col->next_sibling()) {
        PeerCollection& peerCol = tree.emplace_back();
        peerCol.name = Wide(col->first_attribute());
        for (auto* obj = col->first_node(); obj; obj = obj->next_sibling()) {
            PeerObject& peerObj = peerCol.objects.emplace_back();
            peerObj.name = Wide(obj->first_attribute());
            peerObj.type = Wide(obj->last_attribute());
            for (auto* item = obj->first_node(); item; item = item->next_sibling())
                peerObj.items.push_back(
                    {{item->name(), item->name() + item->name_size()}, Wide(item->first_attribute())});
        }
    }
    return tree;
}

void LoadOurs(Stopwatch& watch)
{
    CESet set(0);
    watch.Measure([&] { REQUIRE(set.Load(FileName().c_str())); });
    REQUIRE(set.GetCount() == collections);
    REQUIRE(set.GetTail()->GetTail()->GetCount() == 20);
}

void LoadOwned(Stopwatch& watch)
{
    std::vector<PeerCollection> tree;
    watch.Measure([&] {
        std::vector<char> bytes = ReadWhole();
        rapidxml::xml_document<char> document;
        document.parse<rapidxml::parse_default>(bytes.data());
        tree = OwnedTree(document);
    });
    REQUIRE(tree.size() == collections);
    REQUIRE(tree.back().objects.back().items.size() == 20);
}

void LoadWideInPlace(Stopwatch& watch)
{
    std::vector<wchar_t> text;
    rapidxml::xml_document<wchar_t> document;
    watch.Measure([&] {
        const std::vector<char> bytes = ReadWhole();
        text.resize(bytes.size());
        MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), text.data(),
                            static_cast<int>(text.size()));
        document.parse<rapidxml::parse_default>(text.data());
    });
    REQUIRE(document.first_node()->last_node() != nullptr);
}

void LoadNarrowInPlace(Stopwatch& watch)
{
    std::vector<char> bytes;
    rapidxml::xml_document<char> document;
    watch.Measure([&] {
        bytes = ReadWhole();
        document.parse<rapidxml::parse_default>(bytes.data());
    });
    REQUIRE(document.first_node()->last_node() != nullptr);
}

void SaveOurs(Stopwatch& watch)
{
    watch.Measure([&] { REQUIRE(Tree().Save(FileName().c_str())); });
}

void SavePeer(Stopwatch& watch)
{
    static std::vector<wchar_t> text;
    static rapidxml::xml_document<wchar_t> document;
    static std::vector<wchar_t> printed;
    static std::vector<char> bytes;
    if (text.empty()) {
        const std::vector<char> source = ReadWhole();
        text.assign(source.begin(), source.end());
        document.parse<rapidxml::parse_default>(text.data());
        printed.resize(2 * text.size());
        bytes.resize(2 * text.size());
    }
    watch.Measure([&] {
        const wchar_t* const end = rapidxml::print(printed.data(), document);
        const int size =
            WideCharToMultiByte(CP_ACP, 0, printed.data(), static_cast<int>(end - printed.data()),
                                bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
        WriteWhole({bytes.data(), static_cast<std::size_t>(size)}, true);
    });
}

Round SavePlain(bool flush)
{
    return [flush](Stopwatch& watch) {
        static const std::vector<char> bytes = ReadWhole();
        watch.Measure([&] { WriteWhole({bytes.data(), bytes.size() - 1}, flush); });
    };
}

/** Every item read in the order of writing, and in the reverse. */
Round Lookup(bool reverse)
{
    return [reverse](Stopwatch& watch) {
        CESetObj obj;
        constexpr int count = 2'000;
        std::vector<CString> names(count);
        for (int i = 0; i < count; ++i) {
            names[static_cast<std::size_t>(i)].Format(L"Item%d", i);
            obj.Add(names[static_cast<std::size_t>(i)], L"%d", i);
        }
        if (reverse)
            std::reverse(names.begin(), names.end());
        CString value;
        watch.Measure([&] {
            for (const CString& name : names)
                REQUIRE(obj.GetItm(name, value));
        });
    };
}

} // namespace

TEST_CASE("Settings against RapidXML", "[settings]")
{
    REQUIRE(Tree().Save(FileName().c_str()));
    REQUIRE(OwnedTree([] {
                static std::vector<char> bytes = ReadWhole();
                static rapidxml::xml_document<char> document;
                document.parse<rapidxml::parse_default>(bytes.data());
                return std::ref(document);
            }())
                .size() == collections);

    constexpr int rounds = 41;
    Compare("settings: load, owned wide texts", LoadOurs, LoadOwned, {.target = 1.0, .rounds = rounds});
    Compare("settings: load / peer wide, in place", LoadOurs, LoadWideInPlace,
            {.target = {}, .rounds = rounds});
    Compare("settings: load / peer narrow, in place", LoadOurs, LoadNarrowInPlace,
            {.target = {}, .rounds = rounds});
    Compare("settings: save", SaveOurs, SavePeer, {.target = 1.0, .rounds = rounds});
    Compare("settings: save / the bytes alone", SaveOurs, SavePlain(true), {.target = 1.2, .rounds = rounds});
    Compare("settings: save / the bytes unflushed", SaveOurs, SavePlain(false),
            {.target = {}, .rounds = rounds});
    Compare("settings: 2,000 items in order / in reverse", Lookup(false), Lookup(true),
            {.target = {}, .rounds = rounds});
}
