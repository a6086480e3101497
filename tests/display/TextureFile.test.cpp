#include "display/detail/TextureFile.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using vant::detail::FindTextureFile;

/** The place of the file that was found, or -1. */
long long Found(const wchar_t* name, const std::vector<std::wstring>& files)
{
    const std::wstring* found = FindTextureFile(name, files);
    return found == nullptr ? -1 : found - files.data();
}

} // namespace

TEST(FindTextureFile, FindsNamesWhateverTheirCase)
{
    const std::vector<std::wstring> files = {
        L"boat.3ds", L"teak.bmp", L"Teak.BMP",      L"marble.jpg",
        L"noext",    L"a.b.tga",  L"gr\u00FCn.bmp", L"\u0401\u041B\u041A\u0410.bmp"};
    EXPECT_EQ(Found(L"TEAK.BMP", files), 1);
    EXPECT_EQ(Found(L"Teak.BMP", files), 2) << "exactly that name comes first";
    EXPECT_EQ(Found(L"MARBLE.JPG", files), 3);
    EXPECT_EQ(Found(L"NOEXT", files), 4);
    EXPECT_EQ(Found(L"A.B.TGA", files), 5);
    EXPECT_EQ(Found(L"GR\u00DCN.BMP", files), 6);
    EXPECT_EQ(Found(L"\u0451\u043B\u043A\u0430.bmp", files), 7);
    for (const wchar_t* missing :
         {L"", L"TEAK", L"TEAK.BM", L"EAK.BMP", L"TEAK.BMP.BMP", L"NOEXT.BMP", L"*", L"*.BMP"})
        EXPECT_EQ(Found(missing, files), -1) << missing;
    EXPECT_EQ(Found(L"TEAK.BMP", {}), -1);
}

TEST(FindTextureFile, ForgetsTheDirectoriesOfOtherMachines)
{
    const std::vector<std::wstring> files = {L"..", L"maps", L"teak.bmp"};
    for (const wchar_t* name :
         {L"C:\\3DS\\MAPS\\TEAK.BMP", L"maps/TEAK.BMP", L"C:TEAK.BMP", L"..\\..\\teak.bmp"})
        EXPECT_EQ(Found(name, files), 2) << name;
    EXPECT_EQ(Found(L"C:\\MAPS\\", files), -1);
}

TEST(FindTextureFile, FindsFilesWhoseNamesWereCut)
{
    const std::vector<std::wstring> files = {L"hullplate.bmp", L"hullplates.tiff", L"hullplat.tif",
                                             L"HullPlating.tiff", L"longname"};
    EXPECT_EQ(Found(L"HULLPLAT.TIF", files), 2) << "the whole name comes first";
    EXPECT_EQ(Found(L"HULLPLAT.BMP", files), 0);
    EXPECT_EQ(Found(L"HULLPLAT.TIF", {files[0], files[3], files[1]}), 1) << "the first that fits";
    EXPECT_EQ(Found(L"LONGNAME.", files), 4);
    for (const wchar_t* missing :
         {L"HULLPLA.BMP", L"HULLPLATI.TIF", L"HULLPLAT.TI", L"HULLPLAT.TIFX", L"HULLPLAT"})
        EXPECT_EQ(Found(missing, files), -1) << missing;
}
