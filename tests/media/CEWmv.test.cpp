#include "media/CEWmv.h"
#include "media/FakeWmv.h"
#include "media/MediaTest.h"
#include "media/detail/WmvProfile.h"
#include "media/detail/WmvWriter.h"

#include <algorithm>
#include <regex>
#include <sstream>

using namespace vant::detail;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

class CEWmvTest : public MediaTest
{
protected:
    FakeWmv& fake = FakeWmv::Install();
    CEWmv wmv;
};

using RealWmvTest = MediaTest;

} // namespace

TEST_F(CEWmvTest, EachStepOfOpeningHasItsMessage)
{
    const std::pair<const char*, const wchar_t*> steps[] = {
        {"WMCreateProfileManager", L"Unable to Create WindowsMedia Profile Manager"},
        {"QueryInterface", L"Unable to Query Interface for ProfileManager2"},
        {"SetSystemProfileVersion", L"Unable to Set System Profile Version"},
        {"LoadProfileByData", L"Unable to Load System Profile"},
        {"WMCreateWriter", L"Unable to Create Media Writer Object"},
        {"SetProfile", L"Unable to Set System Profile"},
        {"GetInputCount", L"Unable to Get input count For Profile"},
        {"GetInputProps", L"Unable to GetInput Properties"},
        {"GetType", L"Unable to Get Input Property Type"},
        {"SetOutputFilename", L"Unable to Set Output Filename"},
    };
    for (const auto& [step, text] : steps) {
        fake.refuse = step;
        fake.steps.clear();
        EXPECT_EQ(wmv.Open(L"a.wmv"), 0);
        EXPECT_EQ(fake.steps.back(), step) << "nothing follows the step that failed";
        EXPECT_THAT(AlarmTexts(), ElementsAre(text));
        EXPECT_EQ(fake.objects, 0) << step;
    }
    fake.refuse.clear();
    fake.inputs = {false, false};
    EXPECT_EQ(wmv.Open(L"a.wmv"), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Unable to Find Video Input"));
    EXPECT_THAT(ConsoleTexts(), testing::Contains(L"Unable to Load System Profile: result 80004001"));
}

TEST_F(CEWmvTest, WritesFramesToTheVideoInput)
{
    TestFrame first(5, 3, 32);
    TestFrame second(5, 3, 32, true);
    ASSERT_EQ(wmv.Open(L"C:\\dive.wmv"), 1);
    EXPECT_EQ(fake.file, L"C:\\dive.wmv");
    EXPECT_EQ(fake.profile, WmvProfile());
    fake.clock = 987654321;
    EXPECT_EQ(wmv.AddDib(first), 1);
    fake.clock += 2000000;
    EXPECT_EQ(wmv.AddDib(second), 1);
    EXPECT_EQ(wmv.AddDib(first), 1) << "within the same millisecond";
    fake.clock += 500000;
    EXPECT_EQ(wmv.AddDib(first), 1);
    wmv.Close();

    EXPECT_EQ(fake.formatInput, 1U);
    EXPECT_TRUE(::IsEqualGUID(fake.type.subtype, wmvRgb32));
    EXPECT_EQ(fake.type.lSampleSize, 60U);
    EXPECT_EQ(fake.format.biWidth, 5);
    EXPECT_EQ(fake.format.biHeight, 3) << "lowest row first";
    EXPECT_EQ(fake.format.biBitCount, 32);
    ASSERT_EQ(fake.samples.size(), 4U);
    std::vector<unsigned long long> times;
    for (const FakeWmv::Sample& sample : fake.samples) {
        EXPECT_EQ(sample.input, 1U);
        times.push_back(sample.time);
    }
    EXPECT_THAT(times, ElementsAre(0, 2000000, 2010000, 2500000));
    EXPECT_EQ(fake.samples[0].pixels, first.pixels);
    std::vector<unsigned char> turned;
    for (int row = 2; row >= 0; --row)
        turned.insert(turned.end(), second.pixels.begin() + row * 20, second.pixels.begin() + row * 20 + 20);
    EXPECT_EQ(fake.samples[1].pixels, turned);
    EXPECT_EQ(std::ranges::count(fake.steps, "EndWriting"), 1);
    EXPECT_EQ(fake.objects, 0);
    EXPECT_THAT(AlarmTexts(), IsEmpty());
}

TEST_F(CEWmvTest, ConvertsWhatTheWriterDoesNotTake)
{
    TestFrame narrow(3, 2, 24); // rows of 9 bytes, padded to 12
    ASSERT_EQ(wmv.Open(L"a.wmv"), 1);
    EXPECT_EQ(wmv.AddDib(narrow), 1);
    EXPECT_TRUE(::IsEqualGUID(fake.type.subtype, wmvRgb24));
    EXPECT_EQ(fake.samples.back().pixels.size(), 24U);
    EXPECT_TRUE(
        std::equal(narrow.pixels.begin(), narrow.pixels.begin() + 9, fake.samples.back().pixels.begin()));

    fake.subtypes = {wmvRgb24};
    TestFrame wide(3, 2, 32, true);
    ASSERT_EQ(wmv.Open(L"a.wmv"), 1);
    EXPECT_EQ(wmv.AddDib(wide), 1);
    EXPECT_TRUE(::IsEqualGUID(fake.type.subtype, wmvRgb24));
    const std::vector<unsigned char>& pixels = fake.samples.back().pixels;
    ASSERT_EQ(pixels.size(), 24U);
    for (int x = 0; x < 3; ++x) {
        for (int i = 0; i < 3; ++i) { // the lower row of the frame is the first of the sample
            EXPECT_EQ(pixels[static_cast<std::size_t>(3 * x + i)],
                      wide.pixels[static_cast<std::size_t>(12 + 4 * x + i)]);
        }
    }
}

TEST_F(CEWmvTest, DropsFramesThatFail)
{
    TestFrame frame(4, 4, 32);
    EXPECT_EQ(wmv.AddDib(frame), 0);
    ASSERT_EQ(wmv.Open(L"a.wmv"), 1);
    EXPECT_EQ(wmv.AddDib(nullptr), 0);
    const HBITMAP dependent = ::CreateBitmap(4, 4, 1, 32, nullptr);
    EXPECT_EQ(wmv.AddDib(dependent), 0);
    ::DeleteObject(dependent);
    EXPECT_THAT(AlarmTexts(),
                ElementsAre(L"Cannot add bitmap - wmv not open", L"Cannot add bitmap - invalid handle",
                            L"Cannot add bitmap - not a valid DIB"));

    const std::pair<const char*, const wchar_t*> steps[] = {
        {"SetMediaType", L"Unable to Set Input Properties"},
        {"SetInputProps", L"Unable to Set Input Properties"},
        {"BeginWriting", L"Unable to Begin Writing"},
        {"AllocateSample", L"Unable to Allocate Sample"},
        {"WriteSample", L"Unable to Write Sample"},
    };
    for (const auto& [step, text] : steps) {
        fake.refuse = step;
        EXPECT_EQ(wmv.AddDib(frame), 0);
        EXPECT_THAT(AlarmTexts(), ElementsAre(text));
    }
    fake.refuse = "EndWriting";
    EXPECT_EQ(wmv.AddDib(frame), 1);
    EXPECT_EQ(wmv.AddDib(TestFrame(4, 5, 32)), 0);
    EXPECT_EQ(fake.samples.size(), 1U);
    wmv.Close();
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Cannot add bitmap - 4 x 5 pixels do not fit a video of 4 x 4",
                                          L"Unable to End Writing"));
    EXPECT_EQ(fake.objects, 0);

    fake.subtypes.clear();
    ASSERT_EQ(wmv.Open(L"a.wmv"), 1);
    EXPECT_EQ(wmv.AddDib(frame), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Unable to Set Input Properties"));
}

TEST_F(CEWmvTest, ProfileIsWellFormedAndSaysWhatFilesAreLike)
{
    const std::wstring wide = WmvProfile();
    const std::string document(wide.begin(), wide.end());
    static const std::regex tag(R"(\s*<(/?)([a-z0-9]+)((?:\s+[A-Za-z0-9]+="[^"<&]*")*)(/?)>\s*)");
    std::vector<std::string> open;
    std::vector<std::string> elements; // each with the path to it and its attributes
    std::smatch match;
    auto at = document.cbegin();
    while (std::regex_search(at, document.cend(), match, tag, std::regex_constants::match_continuous)) {
        at = match.suffix().first;
        if (match[1].length()) {
            ASSERT_FALSE(open.empty());
            EXPECT_EQ(open.back(), match[2]);
            open.pop_back();
            continue;
        }
        open.push_back(match[2]);
        elements.emplace_back();
        for (const std::string& part : open)
            elements.back().append("/").append(part);
        elements.back().append(match[3]).append(" ");
        if (match[4].length())
            open.pop_back();
    }
    EXPECT_EQ(at, document.cend());
    EXPECT_TRUE(open.empty());

    const std::string config = "/profile/streamconfig";
    const std::string type = config + "/wmmediatype";
    const std::string format = type + "/videoinfoheader";
    const std::string quality = " bufferwindow=-1 vbrenabled=1 vbrquality=100";
    for (const std::string& expected : std::initializer_list<std::string>{
             "/profile version=589824 storageformat=1 "
             "name=Lossless_quality_audio_(VBR_100)_/_Highest_quality_"
             "video_(VBR_100)",
             config + " streamnumber=1 streamname=Audio_Stream inputname=Audio409 bitrate=128016" + quality,
             type + "/waveformatex wFormatTag=355 nChannels=2 nSamplesPerSec=44100 wBitsPerSample=16 "
                    "nBlockAlign=13375",
             config + " streamnumber=2 streamname=Video_Stream inputname=Video409 bitrate=100000" + quality,
             config + "/videomediaprops maxkeyframespacing=20000000",
             format + " avgtimeperframe=2000000",
             format + "/rcsource left=0 top=0 right=874 bottom=576",
             format + "/rctarget left=0 top=0 right=874 bottom=576",
             format + "/bitmapinfoheader biwidth=874 biheight=576 bibitcount=32 bicompression=WMV3",
             "/profile/streamprioritization/stream number=1 mandatory=0",
             "/profile/streamprioritization/stream number=2 mandatory=0",
         }) {
        const auto hasAll = [&](const std::string& element) {
            std::istringstream words(expected);
            std::string word;
            words >> word;
            bool has = element.starts_with(word + " ");
            while (words >> word) {
                std::ranges::replace(word, '_', ' ');
                const std::size_t equals = word.find('=');
                has = has && element.find(" " + word.substr(0, equals) + "=\"" + word.substr(equals + 1) +
                                          "\" ") != std::string::npos;
            }
            return has;
        };
        EXPECT_EQ(std::ranges::count_if(elements, hasAll), 1) << expected;
    }
}

// Whatever the machine offers: a file that cannot be opened, for one reason or another, and no more than
// that.
TEST_F(RealWmvTest, WithoutAFileAFrameIsRefused)
{
    CEWmv wmv;
    const bool opened = wmv.Open(Path(L"no\\such\\folder.wmv").c_str()) != 0;
    const auto reasons = AlarmTexts();
    EXPECT_EQ(reasons.size(), opened ? 0U : 1U);
    if (!opened) {
        EXPECT_THAT(reasons[0], HasSubstr(L"Unable to "));
    }
    EXPECT_EQ(wmv.AddDib(TestFrame(4, 4, 24)), 0);
    EXPECT_EQ(AlarmTexts().size(), 1U);
}
