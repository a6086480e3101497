#include "support/GdiCount.h"
#include "support/TempDir.h"

#include <atlimage.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace
{

using vant::test::TempDir;

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

/** Red over green, with a blue block at the right of the top. */
void Paint(CImage& image)
{
    const int width = image.GetWidth();
    const int height = image.GetHeight();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.SetPixel(x, y, y >= height / 2 ? Green : (x >= width / 2 ? Blue : Red));
    }
}

int Distance(COLORREF a, COLORREF b)
{
    return std::abs(GetRValue(a) - GetRValue(b)) + std::abs(GetGValue(a) - GetGValue(b)) +
           std::abs(GetBValue(a) - GetBValue(b));
}

class Encoders : public testing::TestWithParam<const wchar_t*>
{
};

} // namespace

TEST_P(Encoders, BringBackWhatWasSaved)
{
    const TempDir dir;
    const CString file = dir.Path(GetParam());
    // JPEG is not exact, and mixes colours within blocks of 16 pixels.
    constexpr int Tolerance = 12;
    for (const int depth : {24, 32}) {
        for (const int sign : {1, -1}) {
            CImage image;
            ASSERT_TRUE(image.Create(64, sign * 32, depth));
            Paint(image);
            ASSERT_EQ(image.Save(file), S_OK);

            CImage back;
            ASSERT_EQ(back.Load(file), S_OK);
            ASSERT_EQ(back.GetWidth(), 64);
            ASSERT_EQ(back.GetHeight(), 32);
            EXPECT_LE(Distance(back.GetPixel(9, 7), Red), Tolerance) << depth << " " << sign;
            EXPECT_LE(Distance(back.GetPixel(56, 7), Blue), Tolerance) << depth << " " << sign;
            EXPECT_LE(Distance(back.GetPixel(9, 25), Green), Tolerance) << depth << " " << sign;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(CImage, Encoders,
                         testing::Values(L"a.bmp", L"a.jpg", L"a.JPEG", L"a.gif", L"a.tif", L"a.png"));

TEST(CImage, TheFormatCanBeNamedInsteadOfTheExtension)
{
    const TempDir dir;
    const CString file = dir.Path(L"picture.bin");
    CImage image;
    ASSERT_TRUE(image.Create(8, 8, 24));
    Paint(image);
    EXPECT_TRUE(FAILED(image.Save(file))) << "no encoder has this extension";
    EXPECT_TRUE(dir.Files().empty());
    ASSERT_EQ(image.Save(file, Gdiplus::ImageFormatPNG), S_OK);
    CImage back;
    ASSERT_EQ(back.Load(file), S_OK);
    EXPECT_EQ(back.GetPixel(1, 1), Red);

    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    EXPECT_EQ(image.Save(stream, Gdiplus::ImageFormatBMP), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_EQ(back.Load(stream), S_OK);
    EXPECT_EQ(back.GetPixel(1, 6), Green);
    stream->Release();
}

TEST(CImage, MoreColoursThanAGifHoldsMoveToTheNearest)
{
    const TempDir dir;
    const CString file = dir.Path(L"ramp.gif");
    CImage image;
    ASSERT_TRUE(image.Create(64, 64, 24));
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            image.SetPixelRGB(x, y, static_cast<BYTE>(4 * x), static_cast<BYTE>(4 * y), 0);
    ASSERT_EQ(image.Save(file), S_OK);
    CImage back;
    ASSERT_EQ(back.Load(file), S_OK);
    for (const POINT at : {POINT{0, 0}, POINT{63, 63}, POINT{20, 50}})
        EXPECT_LE(Distance(back.GetPixel(at.x, at.y), image.GetPixel(at.x, at.y)), 2 * 26);
}

TEST(CImage, FailuresSayWhy)
{
    CImage image;
    EXPECT_TRUE(FAILED(image.Save(L"C:\\nothing.png"))) << "there is no image";
    ASSERT_TRUE(image.Create(8, 8, 24));
    EXPECT_EQ(image.Save(L"C:\\no such folder\\a.png"), HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(image.Load(L"C:\\no such file.png"), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(image.IsNull()) << "an image that cannot be loaded is none";

    const TempDir dir;
    const CString file = dir.Path(L"noise.png");
    const HANDLE raw = ::CreateFileW(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(raw, "\x89PNG\r\n\x1a\nnoise", 13, &written, nullptr);
    ::CloseHandle(raw);
    EXPECT_TRUE(FAILED(image.Load(file)));

    EXPECT_FALSE(image.Create(0, 8, 24));
    EXPECT_FALSE(image.Create(8, 8, 24, CImage::createAlphaChannel)) << "opacity needs 32 bits";
    EXPECT_FALSE(image.Create(0x7fffffff, 0x7fffffff, 32));
}

TEST(CImage, AFullDiskIsReported)
{
    const HANDLE full = ::CreateFileW(L"Z:\\dev\\full", GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (full == INVALID_HANDLE_VALUE)
        GTEST_SKIP() << "no device that is always full here";
    ::CloseHandle(full);
    CImage image;
    ASSERT_TRUE(image.Create(8, 8, 24));
    EXPECT_EQ(image.Save(L"Z:\\dev\\full", Gdiplus::ImageFormatBMP), HRESULT_FROM_WIN32(ERROR_DISK_FULL));
}

TEST(CImage, RowsLieAsAsked)
{
    CImage up;
    ASSERT_TRUE(up.Create(3, 4, 32));
    EXPECT_EQ(up.GetPitch(), -12);
    CImage down;
    ASSERT_TRUE(down.Create(3, -4, 24));
    EXPECT_EQ(down.GetPitch(), 12) << "rows are multiples of four bytes";
    EXPECT_EQ(down.GetHeight(), 4);
    for (CImage* image : {&up, &down}) {
        image->SetPixel(2, 1, RGB(10, 20, 30));
        const auto* pixel = static_cast<const BYTE*>(image->GetPixelAddress(2, 1));
        EXPECT_EQ(pixel[0], 30);
        EXPECT_EQ(pixel[1], 20);
        EXPECT_EQ(pixel[2], 10);
    }
}

TEST(CImage, SixteenBitsAreSavedByTheirMasks)
{
    const DWORD masks[][3] = {{0x7C00, 0x03E0, 0x001F}, {0xF800, 0x07E0, 0x001F}};
    for (const auto& mask : masks) {
        const TempDir dir;
        const CString file = dir.Path(L"sixteen.png");
        CImage image;
        ASSERT_TRUE(image.CreateEx(64, 32, 16, BI_BITFIELDS, mask));
        Paint(image);
        ASSERT_EQ(image.Save(file), S_OK);
        CImage back;
        ASSERT_EQ(back.Load(file), S_OK);
        EXPECT_EQ(back.GetPixel(9, 7), Red) << mask[0];
        EXPECT_EQ(back.GetPixel(56, 7), Blue) << mask[0];
        EXPECT_EQ(back.GetPixel(9, 25), Green) << mask[0];
    }
}

TEST(CImage, OpacitySurvivesAFileAndIsDrawn)
{
    const TempDir dir;
    const CString file = dir.Path(L"alpha.png");
    {
        CImage image;
        ASSERT_TRUE(image.Create(4, 4, 32, CImage::createAlphaChannel));
        // Half-opaque red: the colour is multiplied with the opacity.
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 4; ++x)
                *static_cast<DWORD*>(image.GetPixelAddress(x, y)) = 0x80800000;
        ASSERT_EQ(image.Save(file), S_OK);
    }
    CImage back;
    ASSERT_EQ(back.Load(file), S_OK);
    ASSERT_EQ(back.GetBPP(), 32);
    CImage target;
    ASSERT_TRUE(target.Create(8, 8, 24));
    Paint(target);
    EXPECT_TRUE(back.Draw(target.GetDC(), 0, 4));
    target.ReleaseDC();
    EXPECT_LE(Distance(target.GetPixel(1, 5), RGB(128, 127, 0)), 4);
}

TEST(CImage, AttachesDrawsAndLeavesNothingBehind)
{
    const int before = vant::test::GdiObjectCount();
    for (int i = 0; i < 100; ++i) {
        CImage image;
        ASSERT_TRUE(image.Create(8, 8, 24));
        Paint(image);
        CImage target;
        ASSERT_TRUE(target.Create(16, 16, 24));
        EXPECT_TRUE(image.StretchBlt(target.GetDC(), 0, 0, 16, 16));
        EXPECT_TRUE(image.BitBlt(target.GetDC(), 8, 8));
        target.ReleaseDC();
        target.ReleaseDC();
        EXPECT_EQ(target.GetPixel(1, 1), Red);
        EXPECT_EQ(target.GetPixel(9, 9), Red);
        EXPECT_EQ(target.GetPixel(1, 14), Green);

        CImage other;
        other.Attach(image.Detach());
        EXPECT_TRUE(image.IsNull());
        EXPECT_EQ(other.GetPixel(7, 0), Blue);
        other.GetDC(); // never given back
    }
    EXPECT_EQ(vant::test::GdiObjectCount(), before);
}
