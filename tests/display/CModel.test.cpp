// Models: reading files, copies, the collection.

#include "display/CModel.h"

#include "display/CMdlDb.h"
#include "tests/display/ChunkBytes.h"
#include "tests/display/Models.h"
#include "tests/display/ViewTest.h"

#include <algorithm>

namespace
{

using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;

class CModelTest : public ViewTest
{
};

TEST_F(CModelTest, ReadsAFile)
{
    WriteImage(L"teak.bmp", 0, 0);
    const CString path = WriteModel(L"Boat.3ds", Boat());
    CModel model;
    ASSERT_EQ(model.Read3DS(path), 1);
    EXPECT_THAT(alarms, IsEmpty());
    EXPECT_EQ(Text(model.file), Text(path));
    EXPECT_EQ(Text(model.dir), TempDir());
    EXPECT_EQ(Text(model.name), L"Boat.3ds");
    ASSERT_EQ(model.GetMeshCount(), 3);
    EXPECT_EQ(Text(model.GetMeshName(0)), L"Hull");
    EXPECT_EQ(Text(model.GetMeshName(3)), L"");
    EXPECT_EQ(Text(model.GetMeshName(-1)), L"");
    const vant::detail::ModelData boat = Boat();
    std::size_t faces = 0;
    for (const auto& mesh : boat.meshes)
        faces += mesh.faces.size();
    EXPECT_EQ(model.GetFaceCount(), static_cast<int>(faces));
    CV3 lower;
    CV3 upper;
    ASSERT_TRUE(model.GetExtents(lower, upper));
    EXPECT_EQ(lower.y, -5);
    EXPECT_EQ(upper.y, 5);

    ASSERT_EQ(model.mtrls.GetSize(), 5U);
    const CDspMtrl& teak = *model.mtrls[2];
    EXPECT_EQ(Text(teak.name), L"Teak");
    EXPECT_NEAR(teak.diffuse.red, 0.7, 0.01);
    EXPECT_NEAR(teak.ambient.red, 0.35, 0.01);
    EXPECT_EQ(teak.diffuse.alpha, 1);
    EXPECT_TRUE(teak.dblSided);
    EXPECT_EQ(Text(teak.texName), TempDir() + L"teak.bmp"); // the file says TEAK.BMP
    const CDspMtrl& glass = *model.mtrls[4];
    EXPECT_FLOAT_EQ(glass.transparency, 0.4F);
    EXPECT_FALSE(glass.dblSided); // unlike a material that no file says anything about
    EXPECT_TRUE(glass.texName.IsEmpty());
}

TEST_F(CModelTest, TellsWhyItCannotRead)
{
    const CString good = WriteModel(L"cube.3ds", Cube());
    CModel model;
    const auto failed = [&](const CString& path) {
        EXPECT_EQ(model.Read3DS(good), 1);
        alarms.clear();
        EXPECT_EQ(model.Read3DS(path), 0);
        EXPECT_EQ(model.GetMeshCount(), 0);
        EXPECT_EQ(model.mtrls.GetSize(), 0U);
        std::vector<Logged> raised;
        std::swap(raised, alarms);
        return raised;
    };
    EXPECT_THAT(failed(L"None"), IsEmpty());
    EXPECT_THAT(failed(L""), IsEmpty());

    const std::wstring missing = TempDir() + L"none.3ds";
    EXPECT_THAT(failed(missing.c_str()),
                ElementsAre(Logged{50, 1,
                                   L"Model Read: Unable to load " + missing + L", cause=" +
                                       Text(Vant::FileExceptionStr(CFileException::fileNotFound))}));
    const auto notAThreeDs = [](const CString& path) {
        return ElementsAre(
            Logged{60, 1, L"Model Read: Unable to load " + Text(path) + L", cause=Not in 3DS format"});
    };
    for (const std::string& bytes : {std::string(), std::string("M"), std::string(40'000, '\0'),
                                     Chunk(0x3D3D, Chunk(0x4000, support::Text("A")))}) {
        const CString path = WriteFile(L"bad.3ds", bytes);
        EXPECT_THAT(failed(path), notAThreeDs(path)) << bytes.size();
    }
    const auto folder = failed(TempDir().c_str());
    ASSERT_EQ(folder.size(), 1U);
    EXPECT_EQ(folder[0].id, 50U);

    EXPECT_EQ(model.Read3DS(good), 1);
    model.ReadDXF(good);
    EXPECT_EQ(model.GetMeshCount(), 1);
    model.name = model.file;
    EXPECT_EQ(model.Read3DS(model.name), 1);
}

TEST_F(CModelTest, ReadsWhatIsLeftOfADamagedFile)
{
    std::string bytes = Write3ds(Cube());
    const CString whole = WriteFile(L"whole.3ds", bytes + std::string(1'000, '?'));
    const CString cut = WriteFile(L"cut.3ds", bytes.substr(0, bytes.size() / 2));
    const CString header = WriteFile(L"header.3ds", ChunkOfLength(0x4D4D, 0xFFFFFFFF, ""));
    CModel model;
    EXPECT_EQ(model.Read3DS(whole), 1);
    EXPECT_EQ(model.GetFaceCount(), 12);
    EXPECT_EQ(model.Read3DS(cut), 1);
    EXPECT_EQ(model.Read3DS(header), 1);
    EXPECT_EQ(model.GetMeshCount(), 0);
    CV3 lower(1, 2, 3);
    EXPECT_EQ(model.GetExtents(lower, lower), 0);
    EXPECT_EQ(lower, CV3(1, 2, 3));
    EXPECT_THAT(alarms, IsEmpty());
}

TEST_F(CModelTest, SubstitutesTransparencyAndFindsTextures)
{
    const auto material = [](const std::string& name, unsigned percent, const std::string& texture) {
        std::string content = Chunk(0xA000, support::Text(name)) + Chunk(0xA050, Chunk(0x0030, U16(percent)));
        if (!texture.empty())
            content += Chunk(0xA200, Chunk(0xA300, support::Text(texture)));
        return Chunk(0xAFFF, content);
    };
    WriteImage(L"hull plates.bmp", 0, 0);
    const CString path = WriteFile(
        L"m.3ds", Chunk(0x4D4D, Chunk(0x3D3D, material("a", 0, "C:\\MAPS\\HULL PLATES.BMP") +
                                                  material("b", 50, "GONE.BMP") + material("c", 100, ""))));
    std::wstring slashes = ::Text(path);
    std::replace(slashes.begin(), slashes.end(), L'\\', L'/');
    CModel model;
    for (const CString& way : {path, CString(slashes.c_str())}) {
        ASSERT_EQ(model.Read3DS(way), 1);
        ASSERT_EQ(model.mtrls.GetSize(), 3U);
        EXPECT_EQ(model.mtrls[0]->transparency, 1.0F);
        EXPECT_EQ(model.mtrls[1]->transparency, 0.5F);
        EXPECT_EQ(model.mtrls[2]->transparency, 1.0F);
        EXPECT_EQ(::Text(model.mtrls[0]->texName), TempDir() + L"hull plates.bmp");
        EXPECT_EQ(::Text(model.mtrls[1]->texName), TempDir() + L"GONE.BMP");
    }
}

TEST_F(CModelTest, CopiesIntoCollections)
{
    const CString cube = WriteModel(L"cube.3ds", Cube());
    const CString boat = WriteModel(L"BOAT.3ds", Boat());
    CMdlDb db;
    CModel* const first = db.GetMdl(cube);
    ASSERT_NE(first, nullptr);
    CModel* const second = db.GetMdl(boat);
    EXPECT_EQ(db.GetMdl(CString(cube).MakeUpper()), first);
    EXPECT_EQ(db.models.GetCount(), 2);
    EXPECT_EQ(db.GetMdl(L"None"), nullptr);
    EXPECT_EQ(db.GetMdl((TempDir() + L"none.3ds").c_str()), nullptr);
    EXPECT_EQ(db.models.GetCount(), 2);
    EXPECT_TRUE(*second < *first);
    EXPECT_FALSE(*first < *second);

    CMdlDb copy(db);
    db.Clear();
    EXPECT_EQ(db.FindMdl(cube), nullptr);
    CModel* const copied = copy.FindMdl(cube);
    ASSERT_NE(copied, nullptr);
    EXPECT_EQ(copied->GetFaceCount(), 12);

    CModel own(*copied);
    own.mtrls[0]->name = L"changed";
    EXPECT_NE(::Text(copied->mtrls[0]->name), L"changed");
    own = own;
    EXPECT_EQ(own.GetFaceCount(), 12);
    own.Clear();
    EXPECT_EQ(copied->GetFaceCount(), 12);
    EXPECT_EQ(own.GetFaceCount(), 0);
}

} // namespace
