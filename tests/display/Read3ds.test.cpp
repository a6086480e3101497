// The reader of models against files that are as they should be.

#include "display/detail/Read3ds.h"

#include "tests/display/ChunkBytes.h"
#include "tests/display/Dump.h"
#include "tests/display/ModelCheck.h"
#include "tests/display/Models.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <windows.h>

namespace
{

using namespace support;
using namespace vant::detail;

std::string Material(const std::string& content)
{
    return Chunk(0x4D4D, Chunk(0x3D3D, Chunk(0xAFFF, content)));
}

ByteFile Open(std::string_view bytes)
{
    return ByteFile(std::as_bytes(std::span(bytes)));
}

float Transparency(int percentage)
{
    const std::string bytes = Chunk(0x0030, U16(static_cast<unsigned>(percentage) & 0xFFFF));
    ByteFile file = Open(bytes);
    float transparency = 0.25F;
    ReadTransparencyChunk(file, bytes.size(), transparency);
    return transparency;
}

std::string FileBytes(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> FilesIn(const std::string& folder)
{
    std::vector<std::string> names;
    WIN32_FIND_DATAA found = {};
    const HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            names.push_back(folder + found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return names;
}

template <class Item>
bool IsBeginningOf(const std::vector<Item>& part, const std::vector<Item>& whole)
{
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

} // namespace

TEST(Read3ds, GivesBackWhatWasWritten)
{
    for (const ModelData& model : {Cube(), Sphere(8, 12), Boat(), Sea(3, 20), ModelData{}}) {
        const std::string bytes = Write3ds(model);
        EXPECT_TRUE(Read(bytes) == model) << Dump(Read(bytes)).substr(0, 400);
        EXPECT_EQ(FaultOf(model), "");
    }
}

TEST(Read3ds, SkipsWhatItDoesNotKnow)
{
    const std::string expected = "<Default d=0.0156863 0.0196078 0.0235294 t=1 x=A.BMP>"
                                 "{o: v(0 0 0)(1 0 0)(0 1 0) f(0 2 1/7)}";
    const std::vector<ModelFile> files = SeedFiles();
    const auto surrounded = std::find_if(files.begin(), files.end(),
                                         [](const ModelFile& file) { return file.name == "surrounded.3ds"; });
    ASSERT_NE(surrounded, files.end());
    EXPECT_EQ(Dump(Read(surrounded->bytes)), expected);
}

TEST(Read3ds, RefusesWhatDoesNotBeginAsAModel)
{
    const std::string inside = Chunk(0x3D3D, Chunk(0xAFFF, {}));
    for (const std::string& bytes :
         {std::string(), std::string("M"), std::string("MM"), std::string("MM\0\0\0", 5), inside,
          Chunk(0x4D4E, inside), Chunk(0x4D00, inside), std::string("BM6\0\0\0\0\0\0", 9)}) {
        ModelData model = Cube();
        EXPECT_EQ(Read3ds(std::as_bytes(std::span(bytes)), model), ModelResult::NotAThreeDs) << bytes;
        EXPECT_TRUE(model == ModelData{}) << "what was there before is gone";
    }
    ModelData model = Cube();
    const std::string empty = Chunk(0x4D4D, {});
    EXPECT_EQ(Read3ds(std::as_bytes(std::span(empty)), model), ModelResult::Read);
    EXPECT_TRUE(model == ModelData{});
}

TEST(Read3ds, TurnsFacesWhoseFlagsAreSeven)
{
    const std::string bytes = U16(3) + U16(1) + U16(2) + U16(3) + U16(7) + U16(1) + U16(2) + U16(3) + U16(6) +
                              U16(1) + U16(2) + U16(3) + U16(0x0107);
    ByteFile file = Open(bytes);
    MeshData mesh;
    EXPECT_EQ(ReadFaceList(file, bytes.size(), mesh), 3U);
    EXPECT_TRUE((mesh.faces == std::vector<MeshFace>{{1, 3, 2, 7}, {1, 2, 3, 6}, {1, 2, 3, 0x0107}}));
    EXPECT_EQ(file.Position(), bytes.size());
}

TEST(Read3ds, TakesNoTransparencyForAll)
{
    EXPECT_EQ(Transparency(0), 1.0F); // deliberate
    EXPECT_EQ(Transparency(-1), 1.0F);
    EXPECT_EQ(Transparency(-32768), 1.0F);
    EXPECT_EQ(Transparency(1), 0.01F);
    EXPECT_EQ(Transparency(50), 0.5F);
    EXPECT_EQ(Transparency(100), 1.0F);
    EXPECT_EQ(Transparency(32767), 327.67F);
}

TEST(Read3ds, CutsNamesOfMaterialsAlike)
{
    const std::string longest = "12345678901234567";
    EXPECT_EQ(Read(Material(Chunk(0xA000, Text("plain")))).materials[0].name, "plain");
    EXPECT_EQ(Read(Material(Chunk(0xA000, Text("")))).materials[0].name, "");
    EXPECT_EQ(Read(Material(Chunk(0xA000, longest + "8"))).materials[0].name, longest);
    EXPECT_EQ(Read(Material(Chunk(0xA000, "open"))).materials[0].name, "open");
    EXPECT_EQ(Read(Material(Chunk(0xA000, Text("a") + Text("b")))).materials[0].name, "a");

    const std::string list = Text(longest + "89") + U16(2) + U16(5) + U16(6);
    ByteFile file = Open(list);
    MeshData mesh;
    ReadFaceMaterial(file, list.size(), mesh);
    EXPECT_TRUE((mesh.materials == std::vector<FaceMaterial>{{longest, {5, 6}}}));
}

TEST(Read3ds, TakesColoursAsFloatsAndAsBytes)
{
    const auto colour = [](const std::string& bytes) {
        ByteFile file = Open(bytes);
        ColourData read{0.25F, 0.5F, 0.75F};
        ReadShadingChunk(file, bytes.size(), read);
        return read;
    };
    const std::string floats = Chunk(0x0010, Bytes(0.5F, 2.0F, -1.0F));
    const std::string bytes = Chunk(0x0011, "\xFF\x33\x01");
    EXPECT_TRUE((colour(floats) == ColourData{0.5F, 1, 0}));
    EXPECT_TRUE((colour(bytes) == ColourData{1, 0.2F, 1 / 255.0F}));
    EXPECT_TRUE((colour(bytes + floats) == ColourData{0.5F, 1, 0}));
    EXPECT_TRUE((colour(Chunk(0x0012, "\xFF\x33\x01")) == ColourData{0.25F, 0.5F, 0.75F}));
}

/** The committed files are what the generator makes, and each is read as on the day it was committed. */
TEST(Read3ds, HasTheCorpusThatItsGeneratorMakes)
{
    const std::string folder = "..\\..\\fuzz\\corpus\\models\\";
    for (const ModelFile& file : SeedFiles())
        EXPECT_TRUE(FileBytes(folder + file.name) == file.bytes) << file.name << ": run make_models seeds";
}

TEST(Read3ds, HoldsWithWhatTheCorpusHolds)
{
    const std::vector<std::string> names = FilesIn("..\\..\\fuzz\\corpus\\models\\");
    EXPECT_GE(names.size(), SeedFiles().size()) << "run from tests/display";
    for (const std::string& name : names) {
        const std::string bytes = FileBytes(name);
        const ModelData model = Read(bytes);
        EXPECT_EQ(FaultOf(model), "") << name;
        EXPECT_LE(MemoryOf(model), MostMemory(bytes.size())) << name;
    }
}

TEST(Read3ds, ReadsTheBeginningOfAFileAsTheBeginningOfItsModel)
{
    for (const ModelFile& file : SeedFiles()) {
        const ModelData whole = Read(file.bytes);
        const bool isSound = file.name != "damaged.3ds" && file.name != "other-order.3ds";
        for (std::size_t size = 0; size < file.bytes.size(); ++size) {
            const ModelData part = Read(std::string_view(file.bytes).substr(0, size));
            ASSERT_EQ(FaultOf(part), "") << file.name << " cut at " << size;
            if (!isSound)
                continue;
            ASSERT_LE(part.meshes.size(), whole.meshes.size());
            for (std::size_t i = 0; i < part.meshes.size(); ++i) {
                ASSERT_EQ(part.meshes[i].name, whole.meshes[i].name);
                ASSERT_TRUE(IsBeginningOf(part.meshes[i].vertices, whole.meshes[i].vertices)) << size;
                ASSERT_TRUE(IsBeginningOf(part.meshes[i].faces, whole.meshes[i].faces)) << size;
            }
        }
    }
}

TEST(Read3ds, ReadsTheLargestMeshInNoTime)
{
    constexpr std::uint16_t count = 65'535;
    ModelData model;
    MeshData& mesh = model.meshes.emplace_back();
    for (std::uint16_t i = 0; i < count; ++i) {
        mesh.vertices.push_back({static_cast<double>(i % 256), static_cast<double>(i / 256), 0});
        mesh.faces.push_back({i, static_cast<std::uint16_t>((i + 1) % count),
                              static_cast<std::uint16_t>((i + 256) % count), 0});
        mesh.materials.push_back({"m", {i}}); // a list for every face
    }
    mesh.mapping.resize(count);
    mesh.smoothing.assign(count, 1);
    std::string bytes = Write3ds(model);
    using Clock = std::chrono::steady_clock;
    const auto milliseconds = [](Clock::duration time) {
        return std::chrono::duration<double, std::milli>(time).count();
    };
    // One that takes a step for each face and each vertex takes hours.
    constexpr double limit = 1'000;
    Clock::time_point begin = Clock::now();
    EXPECT_TRUE(Read(bytes) == model);
    EXPECT_LT(milliseconds(Clock::now() - begin), limit);

    // All vertices but three nowhere: every face but one has to go, from every list.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::size_t vertices = bytes.find(Bytes(count) + Bytes(0.0F, 0.0F, 0.0F, 1.0F)) + sizeof count;
    for (std::size_t i = 0; i < count; ++i) {
        if (i != 0 && i != 1 && i != 256)
            bytes.replace(vertices + 12 * i, 4, Bytes(nan));
    }
    begin = Clock::now();
    const ModelData damaged = Read(bytes);
    EXPECT_LT(milliseconds(Clock::now() - begin), limit);
    ASSERT_EQ(damaged.meshes.size(), 1U);
    EXPECT_EQ(damaged.meshes[0].vertices.size(), count);
    EXPECT_EQ(damaged.meshes[0].faces, (std::vector<MeshFace>{{0, 1, 256, 0}}));
    EXPECT_EQ(damaged.meshes[0].materials, (std::vector<FaceMaterial>{{"m", {0}}}));
}
