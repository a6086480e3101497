#include "Compare.h"
#include "TempFile.h"

#include "media/CEAvi.h"
#include "media/detail/AviCalls.h"

#include <atlimage.h>

#include <catch2/catch.hpp>

#include <optional>
#include <string>

namespace
{

constexpr int width = 874;
constexpr int height = 576;
constexpr DWORD frameBytes = width * height * 4;
constexpr int frames = 20;

/** The same file by the bare calls, without a header meanwhile and without looking at the bitmap. */
void RecordByHand(Stopwatch& watch, const std::filesystem::path& path, void* pixels)
{
    BITMAPINFOHEADER format{};
    format.biSize = sizeof format;
    format.biWidth = width;
    format.biHeight = height;
    format.biPlanes = 1;
    format.biBitCount = 32;
    format.biSizeImage = frameBytes;
    AVISTREAMINFOW info{};
    info.fccType = streamtypeVIDEO;
    info.dwScale = 20;
    info.dwRate = 1000;
    info.dwSuggestedBufferSize = frameBytes;
    const vant::detail::AviCalls& avi = vant::detail::Avi();
    IAVIFile* file = nullptr;
    IAVIStream* stream = nullptr;
    avi.openFile(&file, path.c_str(), OF_WRITE | OF_CREATE);
    avi.createStream(file, &stream, &info);
    avi.setFormat(stream, &format, sizeof format);
    const auto write = [&](LONG index) {
        LONG written = 0;
        REQUIRE(avi.writeSample(stream, index, pixels, frameBytes, AVIIF_KEYFRAME, &written) == 0);
    };
    write(0);
    watch.Measure([&] {
        for (int i = 1; i <= frames; ++i)
            write(i);
        avi.releaseStream(stream);
        avi.releaseFile(file);
    });
}

void CompareWith(const char* rows, bool topDown)
{
    CImage image;
    REQUIRE(image.Create(width, topDown ? -height : height, 32));
    for (int y = 0; y < height; ++y)
        *static_cast<unsigned*>(image.GetPixelAddress(y, y)) = static_cast<unsigned>(y);
    const TempFile video(L"ours.avi");
    const TempFile plain(L"peer.avi");

    // Looking for a codec, once for a file, is no part of writing.
    const Round ours = [&](Stopwatch& watch) {
        CEAvi avi;
        REQUIRE(avi.Open(video.Path().c_str()));
        REQUIRE(avi.AddDib(image));
        watch.Measure([&] {
            for (int i = 0; i < frames; ++i)
                REQUIRE(avi.AddDib(image));
            avi.Close();
        });
        REQUIRE(video.Size() > frameBytes * frames);
    };
    const Round bytes = [&](Stopwatch& watch) {
        const void* const lowest = image.GetPixelAddress(0, topDown ? 0 : height - 1);
        const HANDLE file = ::CreateFileW(plain.Path().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        const auto write = [&] {
            DWORD written = 0;
            REQUIRE(::WriteFile(file, lowest, frameBytes, &written, nullptr));
        };
        write();
        watch.Measure([&] {
            for (int i = 0; i < frames; ++i)
                write();
            ::CloseHandle(file);
        });
        REQUIRE(plain.Size() == frameBytes * (frames + 1));
    };
    const Round byHand = [&](Stopwatch& watch) {
        void* const lowest = image.GetPixelAddress(0, topDown ? 0 : height - 1);
        RecordByHand(watch, plain.Path(), lowest);
        REQUIRE(plain.Size() > frameBytes * frames);
    };
    const std::string work =
        std::string("media: 20 frames of 874 x 576 x 32, ") + rows + ", into an AVI file ";
    // Turning a frame over is a copy of it, which the bytes alone do without.
    const std::optional<double> target = topDown ? std::nullopt : std::optional(1.3);
    Compare(work + "(WriteFile of the same bytes)", ours, bytes, {.target = target, .rounds = 41});
    Compare(work + "(the AVI library's bare calls)", ours, byHand, {.target = target, .rounds = 41});
}

} // namespace

TEST_CASE("media")
{
    CompareWith("lowest row first", false);
    CompareWith("top row first", true);
}
