// The reader of models against damaged files: what each of them gives, exactly.

#include "display/detail/Read3ds.h"

#include "tests/display/ChunkBytes.h"
#include "tests/display/Dump.h"
#include "tests/display/ModelCheck.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

namespace
{

using namespace support;

const float noNumber = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();

std::string Words(std::initializer_list<unsigned> words)
{
    std::string bytes;
    for (const unsigned word : words)
        bytes += U16(word);
    return bytes;
}

std::string Vertices(std::initializer_list<float> parts)
{
    std::string bytes = U16(static_cast<unsigned>(parts.size() / 3));
    for (const float part : parts)
        bytes += Bytes(part);
    return Chunk(0x4110, bytes);
}

std::string File(const std::string& content)
{
    return Chunk(0x4D4D, Chunk(0x3D3D, content));
}

std::string Mesh(const std::string& content)
{
    return Chunk(0x4000, Text("o") + Chunk(0x4100, content));
}

std::string Material(const std::string& content)
{
    return File(Chunk(0xAFFF, content));
}

const std::string corners = Vertices({0, 0, 0, 1, 0, 0, 0, 1, 0});
const std::string face = Chunk(0x4120, Words({1, 0, 1, 2, 0}));
const std::string named = Chunk(0xA000, Text("n"));
const std::string nothing = "{o:}";
const std::string placed = "{o: v(0 0 0)(1 0 0)(0 1 0)}";
const std::string whole = "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 1 2/0)}";

struct Row {
    const char* damage;
    std::string file;
    std::string model;
};

void Check(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        const vant::detail::ModelData model = Read(row.file);
        EXPECT_EQ(Dump(model), row.model) << row.damage;
        EXPECT_EQ(FaultOf(model), "") << row.damage;
    }
}

/** Chunks within chunks, all of the same kind, of 6 bytes more each. */
std::string Nested(unsigned id, int depth)
{
    constexpr std::uint32_t header = 6;
    std::string bytes;
    for (int left = depth; left > 0; --left)
        bytes += U16(id) + Bytes(header * static_cast<std::uint32_t>(left));
    return bytes;
}

} // namespace

TEST(Damage3ds, OfLengths)
{
    const std::string end = Chunk(0x4D4D, {});
    Check({
        {"none", File(Mesh(corners + face)), whole},
        {"file of length 0", ChunkOfLength(0x4D4D, 0, Chunk(0x3D3D, Mesh(corners + face))), whole},
        {"file of the greatest length", ChunkOfLength(0x4D4D, ~0U, Chunk(0x3D3D, Mesh(corners + face))),
         whole},
        {"editor behind the file's end", end + Chunk(0x3D3D, Mesh(corners + face)), whole},
        {"second editor", File(Mesh(corners)) + Chunk(0x3D3D, Mesh(corners + face)), placed + whole},
        {"editor of length 0", Chunk(0x4D4D, ChunkOfLength(0x3D3D, 0, Mesh(corners))), ""},
        {"editor of the greatest length",
         Chunk(0x4D4D, ChunkOfLength(0x3D3D, ~0U, Mesh(corners) + Mesh(face))), placed + nothing},
        {"unknown chunk of length 0", File(ChunkOfLength(0x1234, 0, {}) + Mesh(corners)), ""},
        {"unknown chunk of length 5", File(ChunkOfLength(0x1234, 5, {}) + Mesh(corners)), ""},
        {"unknown chunk of length 6", File(ChunkOfLength(0x1234, 6, {}) + Mesh(corners)), placed},
        {"unknown chunk of the greatest length", File(ChunkOfLength(0x1234, ~0U, {}) + Mesh(corners)), ""},
        {"length with the highest bit", File(ChunkOfLength(0x1234, 0x80000006, {}) + Mesh(corners)), ""},
        {"object of length 0", File(ChunkOfLength(0x4000, 0, Text("a")) + Mesh(corners)), ""},
        {"object beyond the editor swallows the next",
         File(ChunkOfLength(0x4000, 999, Text("a") + Chunk(0x4100, corners)) + Mesh(corners)),
         "{a: v(0 0 0)(1 0 0)(0 1 0)}"},
        {"mesh of length 3", File(Chunk(0x4000, Text("o") + ChunkOfLength(0x4100, 3, corners))), ""},
        {"mesh beyond its object",
         File(Chunk(0x4000, Text("o") + ChunkOfLength(0x4100, 999, corners)) + Mesh(face)), placed + nothing},
        {"mesh beyond its object, before what a mesh could have",
         File(Chunk(0x4000, Text("o") + ChunkOfLength(0x4100, 999, corners)) + face), placed},
        {"vertex list of length 1 hides the faces", File(Mesh(ChunkOfLength(0x4110, 1, {}) + face)), nothing},
        {"vertex list that ends within a vertex",
         File(Mesh(ChunkOfLength(0x4110, 6 + 2 + 12 + 5, corners.substr(6, 2 + 12 + 5)) + face)),
         "{o: v(0 0 0)}"},
        {"vertex list into the next chunk",
         File(Mesh(ChunkOfLength(0x4110, 44 + 6, corners.substr(6)) + face)), placed},
        {"face list beyond its mesh", File(Mesh(corners + ChunkOfLength(0x4120, 999, face.substr(6)))),
         whole},
        {"header cut after the number", File(Mesh(corners + face + U16(0x4110))), whole},
        {"header cut in the length", File(Mesh(corners + face + U16(0x4110) + "\x06")), whole},
        {"object without a name", File(Chunk(0x4000, {})), ""},
        {"object of the longest name", File(Chunk(0x4000, Text(std::string(300, 'n')) + Chunk(0x4100, {}))),
         std::string("{").append(255, 'n').append(":}")},
        {"object whose name has no end", File(Chunk(0x4000, "name\x11\x41\x06\x01")), ""},
        {"chunks in the wrong place",
         File(corners + face + Chunk(0x4100, corners) + named + Mesh(Mesh(face))), nothing},
    });
}

TEST(Damage3ds, OfNesting)
{
    constexpr int depth = 100'000;
    Check({
        {"files", Nested(0x4D4D, depth), ""},
        {"editors", Chunk(0x4D4D, Nested(0x3D3D, depth)), ""},
        {"objects", File(Nested(0x4000, depth)), ""},
        {"meshes", File(Chunk(0x4000, Text("o") + Nested(0x4100, depth))), nothing},
        {"face lists", File(Mesh(corners + Nested(0x4120, depth))), placed},
        {"materials", File(Nested(0xAFFF, depth)), "<Default>"},
        {"textures", File(Chunk(0xAFFF, Nested(0xA200, depth))), "<Default>"},
    });
}

TEST(Damage3ds, OfCounts)
{
    const std::string lists = Chunk(0x4130, Text("m") + Words({1, 0})) + Chunk(0x4150, Bytes(5U));
    Check({
        {"no count of vertices", File(Mesh(Chunk(0x4110, {}))), nothing},
        {"half a count of vertices", File(Mesh(corners + Chunk(0x4110, "\x01"))), placed},
        {"more vertices than there are", File(Mesh(Chunk(0x4110, U16(65'535) + corners.substr(8)) + face)),
         whole},
        {"fewer vertices than there are", File(Mesh(Chunk(0x4110, U16(2) + corners.substr(8)))),
         "{o: v(0 0 0)(1 0 0)}"},
        {"no vertices", File(Mesh(corners + Chunk(0x4110, U16(0)))), nothing},
        {"more faces than there are", File(Mesh(corners + Chunk(0x4120, Words({9, 0, 1, 2, 0, 1, 2})))),
         whole},
        {"count of faces takes the lists behind them", // whose bytes are no faces of these vertices
         File(Mesh(corners + Chunk(0x4120, Words({999, 0, 1, 2, 0}) + lists))), whole},
        {"fewer faces than there are", // what follows is no chunk, and ends with the list of faces
         File(Mesh(Chunk(0x4120, Words({1, 0, 1, 2, 0, 0, 0, 0, 0})) + corners)), whole},
        {"more mapping coordinates than there are",
         File(Mesh(corners + Chunk(0x4140, U16(9) + Bytes(1.0F, 2.0F, 3.0F)))),
         "{o: v(0 0 0)(1 0 0)(0 1 0) u(1 2)(0 0)(0 0)}"},
        {"more mapping coordinates than vertices",
         File(Mesh(Chunk(0x4140, U16(2) + Bytes(1.0F, 2.0F, 3.0F, 4.0F)) + Vertices({7, 8, 9}))),
         "{o: v(7 8 9) u(1 2)}"},
        {"mapping coordinates without vertices", File(Mesh(Chunk(0x4140, U16(1) + Bytes(1.0F, 2.0F)))),
         nothing},
        {"more smoothing sets than faces", File(Mesh(Chunk(0x4150, Bytes(1U, 2U, 3U)) + corners + face)),
         "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 1 2/0) s(1)}"},
        {"fewer smoothing sets than faces",
         File(Mesh(corners +
                   Chunk(0x4120, Words({2, 0, 1, 2, 0, 2, 1, 0, 0}) + Chunk(0x4150, Bytes(9U) + "\x01")))),
         "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 1 2/0)(2 1 0/0) s(9)(0)}"},
        {"material for more faces than named",
         File(Mesh(corners + face + Chunk(0x4130, Text("m") + Words({9, 0}) + "\x01"))),
         "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 1 2/0) m[0]}"},
        {"material without a count", File(Mesh(corners + face + Chunk(0x4130, Text("m")))), whole},
        {"material for no face", File(Mesh(corners + face + Chunk(0x4130, Text("m") + U16(0)))), whole},
        {"material whose name has no end", File(Mesh(corners + face + Chunk(0x4130, "mmmmm"))), whole},
        {"lists twice",
         File(Mesh(face + lists + corners + Vertices({1, 2, 3, 4, 5, 6, 7, 8, 9}) + face + lists)),
         "{o: v(1 2 3)(4 5 6)(7 8 9) f(0 1 2/0) s(5) m[0] m[0]}"},
        {"axis of eleven numbers", File(Mesh(Chunk(0x4160, std::string(44, '\0')))), nothing},
    });
}

TEST(Damage3ds, OfNumbers)
{
    const std::string faces = Words({4, 0, 1, 3, 0, 0, 1, 2, 0, 9, 9, 9, 0, 2, 1, 0, 0});
    const std::string groups = Chunk(0x4150, Bytes(1U, 2U, 3U, 4U));
    const std::string lists = Chunk(0x4130, Text("m") + Words({5, 0, 1, 2, 3, 4})) +
                              Chunk(0x4130, Text("n") + Words({2, 0, 2})) +
                              Chunk(0x4130, Text("p") + Words({2, 3, 65'535}));
    std::string turned; // twelve numbers, the last one none
    for (int i = 0; i < 11; ++i)
        turned += Bytes(static_cast<float>(i));
    Check({
        {"faces beyond the vertices", File(Mesh(corners + Chunk(0x4120, faces + groups + lists))),
         "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 1 2/0)(2 1 0/0) s(2)(4) m[0 1] p[1]}"},
        {"faces without vertices", File(Mesh(face)), nothing},
        {"faces of vertices that were replaced", File(Mesh(corners + face + Vertices({1, 2, 3}))),
         "{o: v(1 2 3)}"},
        {"materials for faces beyond the last", File(Mesh(corners + lists + face)),
         "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 1 2/0) m[0] n[0]}"},
        {"vertex that is no number",
         File(Mesh(Vertices({noNumber, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}) +
                   Chunk(0x4120, Words({2, 1, 2, 3, 0, 0, 1, 2, 0}) + groups))),
         "{o: v(1 2 3)(1 2 3)(4 5 6)(7 8 9) f(1 2 3/0) s(1)}"},
        {"vertices beyond all places",
         File(Mesh(Vertices({1, 2, 3, 0, infinity, 0, 0, 0, -infinity}) + face)),
         "{o: v(1 2 3)(1 2 3)(1 2 3)}"},
        {"vertices that all are no numbers",
         File(Mesh(Vertices({noNumber, noNumber, noNumber, noNumber, 1, 1}) + face)), "{o: v(0 0 0)(0 0 0)}"},
        {"mapping coordinate that is no number",
         File(Mesh(Vertices({1, 2, 3}) + Chunk(0x4140, U16(1) + Bytes(noNumber, 0.5F)))),
         "{o: v(1 2 3) u(0 0.5)}"},
        {"axis that holds one", File(Mesh(Chunk(0x4160, turned + Bytes(noNumber)))), nothing},
        {"axis that holds none", File(Mesh(Chunk(0x4160, turned + Bytes(11.0F)))),
         "{o: @0,1,2,3,4,5,6,7,8,9,10,11}"},
    });
}

TEST(Damage3ds, OfMaterials)
{
    const std::string grey = Chunk(0x0011, "\x33\x33\x33");
    Check({
        {"empty", Material({}), "<Default>"},
        {"length 0", File(ChunkOfLength(0xAFFF, 0, named)), ""},
        {"cut in its first chunk", Material(named.substr(0, 5)), "<Default>"},
        {"beyond the editor", File(ChunkOfLength(0xAFFF, 999, named)), "<n>"},
        {"name without a byte", Material(Chunk(0xA000, {})), "<>"},
        {"two names", Material(named + Chunk(0xA000, Text("o"))), "<o>"},
        {"colour without a colour", Material(named + Chunk(0xA010, {})), "<n>"},
        {"colour of two floats", Material(Chunk(0xA010, grey + Chunk(0x0010, Bytes(0.5F, 0.5F)))),
         "<Default a=0.2 0.2 0.2>"},
        {"colour of two bytes", Material(Chunk(0xA020, grey + Chunk(0x0011, "\x01\x02"))),
         "<Default d=0.2 0.2 0.2>"},
        {"colour that is no number",
         Material(Chunk(0xA030, grey + Chunk(0x0010, Bytes(0.5F, noNumber, 0.5F)))),
         "<Default s=0.2 0.2 0.2>"},
        {"colour out of its range", Material(Chunk(0xA030, Chunk(0x0010, Bytes(-5.0F, 1e30F, 0.5F)))),
         "<Default s=0 1 0.5>"},
        {"transparency without a percentage", Material(Chunk(0xA050, {}) + named), "<n>"},
        {"transparency of one byte", Material(Chunk(0xA050, Chunk(0x0030, "\x32")) + named), "<n>"},
        {"transparency of length 1", Material(Chunk(0xA050, ChunkOfLength(0x0030, 1, U16(50))) + named),
         "<n>"},
        {"two-sided of any length", Material(Chunk(0xA081, "any") + named), "<n 2>"},
        {"texture without a name", Material(Chunk(0xA200, {}) + named), "<n>"},
        {"texture whose name has no end", Material(Chunk(0xA200, Chunk(0xA300, "A.BMP")) + named),
         "<n x=A.BMP>"},
        {"texture of the longest name", Material(Chunk(0xA200, Chunk(0xA300, Text(std::string(999, 'x'))))),
         std::string("<Default x=").append(260, 'x').append(">")},
    });
}

TEST(Damage3ds, OfMoreThanAnyModelHas)
{
    constexpr std::size_t most = 65'536;
    std::string materials;
    std::string meshes = Text("o");
    for (std::size_t i = 0; i < most + 3; ++i) {
        materials += Chunk(0xAFFF, {});
        meshes += Chunk(0x4100, {});
    }
    const std::string file = File(materials + Chunk(0x4000, meshes) + Mesh(corners));
    const vant::detail::ModelData model = Read(file);
    EXPECT_EQ(model.materials.size(), most);
    EXPECT_EQ(model.meshes.size(), most);
    EXPECT_LE(MemoryOf(model), MostMemory(file.size()));
}
