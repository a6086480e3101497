#include "display/CDspMtrl.h"

#include "display/GLTest.h"
#include "display/detail/PresetMtrls.h"
#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetObj.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vant::detail;

std::wstring Item(CESetObj& obj, LPCWSTR key)
{
    CString text;
    return obj.GetItm(key, text) ? Text(text) : L"(none)";
}

TEST(CDspMtrlTest, HasTwentyPresets)
{
    const PresetTable& table = PresetMtrls();
    const wchar_t* const names[] = {L"Brass",        L"Bronze",          L"Polished Bronze",
                                    L"Chrome",       L"Copper",          L"Polished Copper",
                                    L"Gold",         L"Polished Gold",   L"Pewter",
                                    L"Silver",       L"Polished Silver", L"Emerald",
                                    L"Jade",         L"Obsidian",        L"Pearl",
                                    L"Ruby",         L"Turquoise",       L"Black Plastic",
                                    L"Black Rubber", L"Black Rubber"};
    static_assert(std::size(names) == presetMtrls);
    for (int i = 0; i < presetMtrls; ++i) {
        const CDspMtrl& m = table[i];
        EXPECT_EQ(Text(m.name), names[i]);
        EXPECT_EQ(m.ambient.alpha, m.diffuse.alpha) << i;
        EXPECT_EQ(m.ambient.alpha, m.specular.alpha) << i;
        EXPECT_GT(m.shininess, 9) << i;
        EXPECT_LE(m.shininess, 128) << i;
        EXPECT_TRUE(m.texName.IsEmpty());
    }
    EXPECT_EQ(table[0].ambient, CRgbf(0.329412F, 0.223529F, 0.027451F, 1));
    EXPECT_EQ(table[0].shininess, 27.8974F);
    EXPECT_EQ(table[3].specular, CRgbf(0.774597F, 0.774597F, 0.774597F, 1));
    EXPECT_EQ(table[14].diffuse, CRgbf(1, 0.829F, 0.829F, 0.922F));
    EXPECT_EQ(table[15].ambient.alpha, 0.55F);
    EXPECT_EQ(table[17].ambient, CRgbf(0, 0, 0, 1));
    EXPECT_EQ(table[18].specular, table[19].specular);
    EXPECT_EQ(&PresetMtrls(), &table);
}

TEST(CDspMtrlTest, IsWhiteAndKeepsItsSettings)
{
    CDspMtrl material;
    EXPECT_EQ(Text(material.name), L"Default");
    EXPECT_EQ(material.ambient, CRgbf(1, 1, 1, 1));
    EXPECT_EQ(material.shininess, 128);
    EXPECT_EQ(material.transparency, 0);
    EXPECT_EQ(material.dblSided, 1);

    CESet saving(1);
    CESetObj* const to = saving.AddCol(L"Materials")->AddObj(L"A", L"");
    material = PresetMtrls()[0];
    material.transparency = 0.25F;
    material.dblSided = 5;
    material.texName = L"hull.bmp";
    material.Settings(*to);
    EXPECT_EQ(Item(*to, L"MatName"), L"Brass");
    EXPECT_EQ(Item(*to, L"Shininess"), L"27.8974");
    EXPECT_EQ(Item(*to, L"Transparency"), L"0.25");
    EXPECT_EQ(Item(*to, L"DblSided"), L"1");
    EXPECT_EQ(Item(*to, L"TexName"), L"hull.bmp");
    EXPECT_EQ(Item(*to, L"Ambient"), L"0.329412,0.223529,0.027451");
    EXPECT_EQ(Item(*to, L"Specular"), L"0.992157,0.941176,0.807843");

    CESet loading(0);
    CESetObj* const from = loading.AddCol(L"Materials")->AddObj(L"A", L"");
    from->Add(L"MatName", L"Loaded");
    from->Add(L"Shininess", L"1e99"); // beyond a float
    from->Add(L"DblSided", L"0");
    from->Add(L"Ambient", L"0.1,0.2"); // two numbers only
    from->Add(L"Diffuse", L"0.5, 0.25,0.125 and more");
    from->Add(L"Specular", L"0.5,0.25,1e60");
    CDspMtrl loaded = PresetMtrls()[15];
    loaded.Settings(*from);
    EXPECT_EQ(Text(loaded.name), L"Loaded");
    EXPECT_EQ(loaded.shininess, PresetMtrls()[15].shininess);
    EXPECT_EQ(loaded.dblSided, 0);
    EXPECT_EQ(loaded.ambient, PresetMtrls()[15].ambient);
    EXPECT_EQ(loaded.diffuse, CRgbf(0.5F, 0.25F, 0.125F, 0.55F)); // alpha is not kept in the settings
    EXPECT_EQ(loaded.specular, PresetMtrls()[15].specular);
}

/** A window to load textures in, and image files to load. */
class Textures : public GLTest
{
protected:
    Textures() { wnd.CreatePopup(); }

    /** A picture whose upper left quarter is red and whose lower right one is blue. */
    static CString Picture(int width, int height, int depth, const wchar_t* file)
    {
        CImage image;
        EXPECT_TRUE(image.Create(width, height, depth));
        if (image.IsIndexed()) {
            const RGBQUAD colours[] = {{0, 0, 0, 0}, {0, 0, 255, 0}, {255, 0, 0, 0}};
            image.SetColorTable(0, 3, colours);
        }
        const HDC dc = image.GetDC();
        ::PatBlt(dc, 0, 0, width, height, BLACKNESS);
        const CRect quarter(0, 0, width / 2, height / 2);
        CRect opposite = quarter;
        opposite.OffsetRect(width - width / 2, height - height / 2);
        const HBRUSH red = ::CreateSolidBrush(RGB(255, 0, 0));
        const HBRUSH blue = ::CreateSolidBrush(RGB(0, 0, 255));
        ::FillRect(dc, quarter, red);
        ::FillRect(dc, opposite, blue);
        ::DeleteObject(red);
        ::DeleteObject(blue);
        image.ReleaseDC();
        const CString path = (TempDir() + file).c_str();
        EXPECT_EQ(image.Save(path), S_OK);
        return path;
    }

    /** The texture over the whole picture, seen as it was drawn. */
    void Show(CDspMtrl& material, CImage& image)
    {
        wnd.scene = [&material] {
            glEnable(GL_TEXTURE_2D);
            material.SetMtrl();
            glBegin(GL_QUADS);
            glTexCoord2d(0, 0), glVertex2d(0, 0);
            glTexCoord2d(1, 0), glVertex2d(64, 0);
            glTexCoord2d(1, 1), glVertex2d(64, 64);
            glTexCoord2d(0, 1), glVertex2d(0, 64);
            glEnd();
            glDisable(GL_TEXTURE_2D);
        };
        wnd.Capture(image, 64, 64);
    }

    /** What is left of the neighbours between two pixels of a texture. */
    static constexpr int blend = 16;

    bool IsTexture(unsigned name)
    {
        bool is = false;
        wnd.InContext([&] { is = glIsTexture(name); });
        return is;
    }

    SceneWnd wnd;
};

TEST_F(Textures, ShowUprightInTheirColoursWhateverTheFile)
{
    struct File {
        int width, height, depth;
        const wchar_t* name;
    };
    // Widths whose rows are padded in a bitmap too, and one that is no power of two.
    for (const File& file :
         {File{64, 64, 24, L"a.bmp"}, File{2, 2, 24, L"b.bmp"}, File{64, 32, 32, L"c.bmp"},
          File{32, 32, 8, L"d.bmp"}, File{16, 16, 24, L"e.png"}, File{30, 22, 24, L"f.bmp"}}) {
        CDspMtrl material;
        material.texName = Picture(file.width, file.height, file.depth, file.name);
        CImage image;
        Show(material, image);
        EXPECT_NE(material.texture, 0u) << file.depth;
        EXPECT_TRUE(IsNear(At(image, 16, 16), 0xFF0000u, blend))
            << testing::PrintToString(std::wstring(file.name));
        EXPECT_TRUE(IsNear(At(image, 48, 48), 0x0000FFu, blend))
            << testing::PrintToString(std::wstring(file.name));
        EXPECT_TRUE(IsNear(At(image, 48, 16), 0u, blend)) << testing::PrintToString(std::wstring(file.name));
        EXPECT_TRUE(IsNear(At(image, 16, 48), 0u, blend)) << testing::PrintToString(std::wstring(file.name));
    }
    EXPECT_THAT(alarms, IsEmpty());
}

TEST_F(Textures, BelongToAllCopiesAndGoWithTheLast)
{
    const CString file = Picture(8, 8, 24, L"a.bmp");
    const CString otherFile = Picture(16, 16, 24, L"b.bmp");
    unsigned first = 0;
    {
        CDspMtrl copy;
        {
            CDspMtrl material;
            wnd.InContext([&] {
                EXPECT_EQ(material.Load(file), 1);
                GLint value = 0;
                glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &value);
                EXPECT_EQ(value, GL_REPEAT);
                glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &value);
                EXPECT_EQ(value, GL_NEAREST);
                glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &value);
                EXPECT_EQ(value, GL_LINEAR);
            });
            first = material.texture;
            copy = material;
        }
        EXPECT_EQ(copy.texture, first);
        EXPECT_TRUE(IsTexture(first));
    }
    EXPECT_FALSE(IsTexture(first)) << "the last copy is gone";

    CDspMtrl material;
    wnd.InContext([&] {
        EXPECT_EQ(material.Load(file), 1);
        const unsigned before = material.texture;
        EXPECT_EQ(material.Load(otherFile), 1);
        EXPECT_EQ(glIsTexture(before) && before != material.texture, false);
    });

    // Another file name in the settings lets the texture go; SetMtrl() then loads the new one.
    const unsigned before = material.texture;
    CESet loading(0);
    CESetObj* const from = loading.AddCol(L"Materials")->AddObj(L"A", L"");
    from->Add(L"TexName", L"%s", file.GetString());
    material.Settings(*from);
    EXPECT_EQ(material.texture, 0u);
    EXPECT_FALSE(IsTexture(before));
    wnd.InContext([&] {
        material.SetMtrl();
        GLint width = 0;
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
        EXPECT_EQ(width, 8);
    });
}

TEST_F(Textures, ThatCannotBeLoadedLeaveTheMaterialDrawable)
{
    const CString good = Picture(8, 8, 24, L"a.bmp");
    const CString odd = Picture(300, 200, 24, L"odd.bmp");
    static int tries;
    tries = 0;
    // A driver that needs powers of two.
    GL().acceptsTexture = [](int width, int height) {
        ++tries;
        return !(width & (width - 1)) && !(height & (height - 1));
    };
    CDspMtrl material;
    wnd.InContext([&] {
        EXPECT_EQ(material.Load(L"C:\\no such file.bmp"), 0);
        EXPECT_THAT(alarms, IsEmpty());
        EXPECT_EQ(material.Load(odd), 0);
        EXPECT_EQ(material.texture, 0u);
        EXPECT_EQ(material.Load(good), 1);
        const unsigned before = material.texture;
        EXPECT_EQ(material.Load(odd), 0);
        EXPECT_EQ(material.texture, before) << "the texture of before is still there";
    });
    const Logged tooOdd{10, 1,
                        L"DspMdl: BMP Texture File: " + Text(odd) +
                            L" is too large, or texture dimensions are not a Power of 2"};
    EXPECT_THAT(alarms, ElementsAre(tooOdd, tooOdd));

    // Drawing again and again reports a bad file once; a new name is tried.
    alarms.clear();
    tries = 0;
    CDspMtrl named;
    named.texName = odd;
    wnd.InContext([&] {
        named.SetMtrl();
        named.SetMtrl();
        EXPECT_EQ(tries, 1);
        EXPECT_THAT(alarms, ElementsAre(tooOdd));
        EXPECT_EQ(named.texture, 0u);
        named.texName = good;
        named.SetMtrl();
        EXPECT_NE(named.texture, 0u);
    });

    alarms.clear();
    GL().newTexture = [] { return 0u; };
    wnd.InContext([&] { EXPECT_EQ(named.Load(good), 1); });
    EXPECT_EQ(named.texture, 0u);
    EXPECT_THAT(alarms,
                ElementsAre(Logged{20, 1, L"Model Load: Cannot load texture for model " + Text(good)}));
}

TEST_F(Textures, OfAnySizeThatTheDriverRefusesRaiseTheAlarm)
{
    wnd.InContext([] {
        GLint largest = 0;
        glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
        CDspMtrl material;
        EXPECT_EQ(material.Load(Picture(largest * 2, 1, 8, L"wide.bmp")), 0);
        EXPECT_EQ(material.texture, 0u);
    });
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0].id, 10u);
}

TEST_F(Textures, GoWithTheSharedContextAndAreNotTakenForLaterOnes)
{
    const CString file = Picture(8, 8, 24, L"a.bmp");
    auto old = std::make_unique<CDspMtrl>();
    wnd.InContext([&] { EXPECT_EQ(old->Load(file), 1); });
    wnd.DestroyWindow();
    CDsp::ReleaseLists();

    wnd.CreatePopup();
    CDspMtrl fresh;
    wnd.InContext([&] { EXPECT_EQ(fresh.Load(file), 1); });
    EXPECT_EQ(fresh.texture, old->texture) << "the new contexts count from the beginning";
    old.reset();
    EXPECT_TRUE(IsTexture(fresh.texture));
}

TEST_F(Textures, MaterialsReachOpenGL)
{
    wnd.InContext([] {
        CDspMtrl material = PresetMtrls()[11];
        glBindTexture(GL_TEXTURE_2D, 0);
        material.SetMtrl();
        float values[4]{};
        for (const GLenum side : {GL_FRONT, GL_BACK}) {
            glGetMaterialfv(side, GL_AMBIENT, values);
            EXPECT_THAT(values, ElementsAre(0.0215F, 0.1745F, 0.0215F, 0.55F));
            glGetMaterialfv(side, GL_DIFFUSE, values);
            EXPECT_THAT(values, ElementsAre(0.07568F, 0.61424F, 0.07568F, 0.55F));
            glGetMaterialfv(side, GL_SPECULAR, values);
            EXPECT_THAT(values, ElementsAre(0.633F, 0.727811F, 0.633F, 0.55F));
            glGetMaterialfv(side, GL_SHININESS, values);
            EXPECT_EQ(values[0], 76.8F);
        }
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    });
}

} // namespace
