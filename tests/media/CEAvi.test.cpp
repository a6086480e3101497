#include "media/CEAvi.h"
#include "media/MediaTest.h"
#include "support/GdiCount.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

using namespace vant::detail;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const wchar_t* const noXvid =
    L"Cannot generate Xvid compression trying DIB - AVIERR_NOCOMPRESSOR: a suitable "
    L"compressor could not be found";

/** What the compressing call was asked for, and how often to refuse. */
struct Compression {
    std::vector<std::string> asked;
    std::vector<std::string> refused;
    std::vector<char> parameters;
} compression;

HRESULT (*realCompress)(IAVIStream**, IAVIStream*, AVICOMPRESSOPTIONS*);

/** Takes every codec for whole frames, unless it is to refuse it. */
HRESULT AskedCompression(IAVIStream** compressed, IAVIStream* raw, AVICOMPRESSOPTIONS* options)
{
    std::string codec(4, ' ');
    std::memcpy(codec.data(), &options->fccHandler, 4);
    compression.asked.push_back(codec);
    const auto* parameters = static_cast<const char*>(options->lpParms);
    compression.parameters.assign(parameters, parameters + options->cbParms);
    if (std::ranges::find(compression.refused, codec) != compression.refused.end())
        return AVIERR_NOCOMPRESSOR;
    AVICOMPRESSOPTIONS whole = *options;
    whole.fccHandler = comptypeDIB;
    return realCompress(compressed, raw, &whole);
}

class CEAviTest : public MediaTest
{
protected:
    CEAviTest()
    {
        compression = {};
        realCompress = Avi().compressStream;
    }

    /** Frames that a file's header tells of; -1 for another file. */
    static int FramesIn(const std::wstring& path)
    {
        constexpr std::size_t totalFrames = 48;
        std::uint32_t head[16]{};
        std::ifstream file(std::filesystem::path(path), std::ios::binary);
        file.read(reinterpret_cast<char*>(head), sizeof head);
        return file && head[0] == mmioFOURCC('R', 'I', 'F', 'F')
                   ? static_cast<int>(head[totalFrames / sizeof *head])
                   : -1;
    }

    TestFrame frame{31, 20, 24};
};

} // namespace

TEST_F(CEAviTest, ErrStrNamesResults)
{
    const std::pair<unsigned, const wchar_t*> table[] = {
        {0, L"Success"},
        {0x80044064, L"unknown avi result code"},
        {0x80044065, L"AVIERR_UNSUPPORTED: compression is not supported for this type of data"},
        {0x80044072, L"AVIERR_READONLY: file is read-only"},
        {0x80044073, L"AVIERR_READONLY"}, // no data, deliberately
        {0x80044075, L"AVIERR_CANTCOMPRESS"},
        {0x80044076, L"unknown avi result code"},
        {0x800440C7, L"AVIERR_ERROR"},
        {0x80040154, L"REGDB_E_CLASSNOTREG: file type not recognised"},
        {1, L"unknown avi result code"},
    };
    for (const auto& [result, text] : table)
        EXPECT_EQ(Text(CEAvi::ErrStr(static_cast<int>(result))), text);
}

TEST_F(CEAviTest, TellsWhyAFileCannotBeOpened)
{
    CEAvi avi;
    const std::wstring lost = Path(L"no\\such\\folder.avi");
    EXPECT_EQ(avi.Open(lost.c_str()), 0);
    Avi().openFile = [](IAVIFile**, LPCWSTR, UINT) -> HRESULT { return REGDB_E_CLASSNOTREG; };
    EXPECT_EQ(avi.Open(L"video.vid"), 0);
    EXPECT_THAT(
        AlarmTexts(),
        ElementsAre(L"Cannot open avi file " + lost + L" - AVIERR_FILEOPEN: disk error while opening file",
                    L"Cannot open avi file video.vid - REGDB_E_CLASSNOTREG: file type not recognised"));

    // A machine without the library: the call answers as the loader does.
    Avi().openFile = [](IAVIFile**, LPCWSTR, UINT) { return __HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND); };
    EXPECT_EQ(avi.Open(L"x.avi"), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Cannot open avi file x.avi - unknown avi result code"));
}

TEST_F(CEAviTest, ChecksFramesInOrder)
{
    CEAvi avi;
    EXPECT_EQ(avi.AddDib(nullptr), 0);
    ASSERT_EQ(avi.Open(Path(L"a.avi").c_str()), 1);
    EXPECT_EQ(avi.AddDib(nullptr), 0);
    const HBITMAP dependent = ::CreateBitmap(31, 20, 1, 32, nullptr);
    EXPECT_EQ(avi.AddDib(dependent), 0);
    EXPECT_EQ(avi.SelectCmp(dependent), 0);
    ::DeleteObject(dependent);
    EXPECT_EQ(avi.AddDib(dependent), 0) << "a handle that has gone";
    EXPECT_THAT(AlarmTexts(),
                ElementsAre(L"Cannot add bitmap - avi not open", L"Cannot add bitmap - invalid handle",
                            L"Cannot add bitmap - not a valid DIB", L"Cannot add bitmap - not a valid DIB",
                            L"Cannot add bitmap - not a valid DIB"));
    EXPECT_EQ(avi.AddDib(frame), 1);
    avi.Close();
    EXPECT_EQ(avi.AddDib(frame), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(noXvid, L"Cannot add bitmap - avi not open"));
    EXPECT_EQ(FramesIn(Path(L"a.avi")), 1);
}

TEST_F(CEAviTest, RefusesFramesOfAnotherSizeOrDepth)
{
    CEAvi avi;
    avi.Open(Path(L"a.avi").c_str());
    avi.AddDib(frame);
    AlarmTexts();
    EXPECT_EQ(avi.AddDib(TestFrame(32, 20, 24)), 0);
    EXPECT_EQ(avi.AddDib(TestFrame(31, 20, 32)), 0);
    EXPECT_THAT(
        AlarmTexts(),
        ElementsAre(
            L"Cannot add bitmap - 32 x 20 pixels of 24 bits do not fit a video of 31 x 20 of 24 bits",
            L"Cannot add bitmap - 31 x 20 pixels of 32 bits do not fit a video of 31 x 20 of 24 bits"));
    EXPECT_EQ(avi.AddDib(TestFrame(31, 20, 24, true)), 1) << "rows may lie either way";
    EXPECT_EQ(avi.FrameCount(), 2);
    EXPECT_THAT(AlarmTexts(), IsEmpty());
}

TEST_F(CEAviTest, PrefersXvidAndFallsBackOnce)
{
    Avi().compressStream = &AskedCompression;
    CEAvi avi;
    avi.Open(Path(L"a.avi").c_str());
    EXPECT_EQ(avi.AddDib(frame), 1);
    EXPECT_THAT(AlarmTexts(), IsEmpty());
    EXPECT_THAT(compression.asked, ElementsAre("xvid"));

    compression.refused = {"xvid"};
    avi.Open(Path(L"b.avi").c_str());
    EXPECT_EQ(avi.AddDib(frame), 1);
    EXPECT_EQ(avi.AddDib(frame), 1);
    EXPECT_THAT(compression.asked, ElementsAre("xvid", "xvid", "DIB "));
    EXPECT_THAT(AlarmTexts(), ElementsAre(noXvid));

    compression.refused = {"xvid", "DIB "};
    avi.Open(Path(L"c.avi").c_str());
    EXPECT_EQ(avi.AddDib(frame), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(noXvid, L"Failed to generate compression - AVIERR_NOCOMPRESSOR: a "
                                                  L"suitable compressor could not be found"));
    compression.refused.clear();
    EXPECT_EQ(avi.AddDib(frame), 1) << "the next frame is tried again";
}

TEST_F(CEAviTest, DropsAFrameThatFailsAndGoesOn)
{
    static int failAt;
    static std::vector<LONG> indices;
    static AviCalls real;
    real = Avi();
    indices.clear();
    failAt = 0;
    Avi().createStream = [](IAVIFile* file, IAVIStream** stream, AVISTREAMINFOW* info) -> HRESULT {
        EXPECT_EQ(info->dwScale, 20U);
        EXPECT_EQ(info->dwRate, 1000U);
        EXPECT_EQ(info->rcFrame.right, 31);
        EXPECT_EQ(info->rcFrame.bottom, 20);
        return failAt++ == 0 ? AVIERR_MEMORY : real.createStream(file, stream, info);
    };
    Avi().setFormat = [](IAVIStream* stream, void* format, LONG size) -> HRESULT {
        return failAt++ == 2 ? AVIERR_BADFORMAT : real.setFormat(stream, format, size);
    };
    Avi().writeSample = [](IAVIStream* stream, LONG index, void* data, LONG size, DWORD flags,
                           LONG* written) -> HRESULT {
        EXPECT_EQ(flags, static_cast<DWORD>(AVIIF_KEYFRAME));
        indices.push_back(index);
        return failAt++ == 5 ? AVIERR_FILEWRITE : real.writeSample(stream, index, data, size, flags, written);
    };
    CEAvi avi;
    avi.Open(Path(L"a.avi").c_str());
    for (const int added : {0, 0, 1, 0, 1})
        EXPECT_EQ(avi.AddDib(frame), added);
    EXPECT_THAT(
        AlarmTexts(),
        ElementsAre(L"Cannot create avi stream - AVIERR_MEMORY: insufficient memory", noXvid,
                    L"Failed to set the compression - AVIERR_BADFORMAT: corrupt file or unrecognized "
                    L"format",
                    L"Cannot add bitmap to stream - AVIERR_FILEWRITE: disk error while writing file"));
    EXPECT_THAT(indices, ElementsAre(0, 1, 1));
    avi.Close();
    EXPECT_EQ(FramesIn(Path(L"a.avi")), 2);
}

TEST_F(CEAviTest, ContinuesInTheNextFreeFileBeforeTheLimit)
{
    constexpr int limit = 20000;
    Avi().fileLimit = limit;
    std::ofstream(std::filesystem::path(Path(L"dive-2.avi"))) << "an earlier recording";
    {
        CEAvi avi;
        avi.Open(Path(L"dive.avi").c_str());
        for (int i = 0; i < 25; ++i)
            EXPECT_EQ(avi.AddDib(frame), 1);
    }
    EXPECT_THAT(AlarmTexts(), ElementsAre(noXvid)) << "once, for the whole recording";
    EXPECT_THAT(ConsoleTexts(), ElementsAre(L"Video file " + Path(L"dive.avi") +
                                                L" is full; it continues in " + Path(L"dive-3.avi"),
                                            L"Video file " + Path(L"dive-3.avi") +
                                                L" is full; it continues in " + Path(L"dive-4.avi")));
    int frames = 0;
    for (const wchar_t* name : {L"dive.avi", L"dive-3.avi", L"dive-4.avi"}) {
        EXPECT_LE(std::filesystem::file_size(Path(name)), static_cast<std::uintmax_t>(limit));
        frames += FramesIn(Path(name));
    }
    EXPECT_EQ(frames, 25);
    EXPECT_GT(std::filesystem::file_size(Path(L"dive.avi")), static_cast<std::uintmax_t>(limit - 2000))
        << "filled up before";
    EXPECT_EQ(FramesIn(Path(L"dive-2.avi")), -1) << "left as it was";
}

TEST_F(CEAviTest, KeepsAFullFileWhenTheNextCannotBeCreated)
{
    Avi().fileLimit = 5000;
    CEAvi avi;
    avi.Open(Path(L"a.avi").c_str());
    EXPECT_EQ(avi.AddDib(frame), 1);
    AlarmTexts();
    Avi().openFile = [](IAVIFile**, LPCWSTR, UINT) -> HRESULT { return AVIERR_FILEOPEN; };
    EXPECT_EQ(avi.AddDib(frame), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Cannot open avi file " + Path(L"a-2.avi") +
                                          L" - AVIERR_FILEOPEN: disk error while opening file"));
    avi.Close();
    EXPECT_EQ(FramesIn(Path(L"a.avi")), 1);
}

TEST_F(CEAviTest, UsesTheSelectedCompression)
{
    static int freed;
    static bool confirm;
    freed = 0;
    confirm = true;
    Avi().compressStream = &AskedCompression;
    Avi().chooseOptions = [](HWND, IAVIStream* stream, AVICOMPRESSOPTIONS* options) {
        EXPECT_NE(stream, nullptr);
        options->fccType = streamtypeVIDEO;
        options->fccHandler = mmioFOURCC('t', 'e', 's', 't');
        options->cbParms = 3;
        options->lpParms = new char[3]{'a', 'b', 'c'};
        return confirm;
    };
    Avi().freeOptions = [](AVICOMPRESSOPTIONS* options) {
        ++freed;
        delete[] static_cast<char*>(std::exchange(options->lpParms, nullptr));
    };
    CEAvi avi;
    EXPECT_EQ(avi.SelectCmp(frame), 0);
    avi.Open(Path(L"a.avi").c_str());
    confirm = false;
    EXPECT_EQ(avi.SelectCmp(frame), 0);
    confirm = true;
    EXPECT_EQ(avi.SelectCmp(frame), 1);
    EXPECT_EQ(freed, 2);
    EXPECT_EQ(avi.AddDib(frame), 1);
    EXPECT_THAT(compression.asked, ElementsAre("test"));
    EXPECT_THAT(compression.parameters, ElementsAre('a', 'b', 'c'));
    EXPECT_EQ(avi.SelectCmp(frame), 0);

    compression.refused = {"test"};
    avi.Open(Path(L"b.avi").c_str());
    EXPECT_EQ(avi.AddDib(frame), 1);
    EXPECT_THAT(compression.asked, ElementsAre("test", "test", "xvid"));
    EXPECT_THAT(
        AlarmTexts(),
        ElementsAre(L"Cannot add bitmap - avi not open",
                    L"Cannot select the compression - the video has begun",
                    L"Cannot use the selected compression - AVIERR_NOCOMPRESSOR: a suitable compressor "
                    L"could not be found"));
}

TEST_F(CEAviTest, WritesTheSameFileWhicheverWayItIsOpened)
{
    std::string contents[2];
    for (const bool whole : {false, true}) {
        Avi().wholeFrames = whole;
        const std::wstring path = Path(L"a.avi");
        CEAvi avi;
        ASSERT_EQ(avi.Open(path.c_str()), 1);
        for (int i = 0; i < 30; ++i)
            EXPECT_EQ(avi.AddDib(frame), 1);
        avi.Close();
        EXPECT_EQ(FramesIn(path), 30);
        std::ifstream file(std::filesystem::path(path), std::ios::binary);
        contents[whole].assign(std::istreambuf_iterator<char>(file), {});
    }
    EXPECT_TRUE(contents[0] == contents[1]);
    CEAvi avi;
    EXPECT_EQ(avi.Open(Path(L"\u00D8rsted \u6C34.avi").c_str()), 1) << "in no code page as a whole";
    EXPECT_TRUE(std::filesystem::exists(Path(L"\u00D8rsted \u6C34.avi")));
}

TEST_F(CEAviTest, GivesEverythingBack)
{
    const auto record = [&] {
        CEAvi avi;
        avi.Open(Path(L"a.avi").c_str());
        for (const bool topDown : {false, true})
            avi.AddDib(TestFrame(16, 16, 8, topDown));
        avi.Open(Path(L"b.avi").c_str());
    };
    record();
    const int handles = vant::test::KernelHandleCount();
    const int objects = vant::test::GdiObjectCount();
    for (int i = 0; i < 20; ++i)
        record();
    EXPECT_EQ(vant::test::KernelHandleCount(), handles);
    EXPECT_EQ(vant::test::GdiObjectCount(), objects);
}
