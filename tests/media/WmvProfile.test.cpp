#include "media/detail/WmvProfile.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

namespace
{

/** Elements of a document by their path, "profile/streamconfig[2]/...", with their attributes as text. */
using Elements = std::map<std::string, std::map<std::string, std::string>>;

/** Reads a document that consists of elements only; says so in a test failure if it is not well-formed. */
Elements Read(const std::string& document)
{
    static const std::regex tag(R"(\s*<(/?)([a-z0-9]+)((?:\s+[A-Za-z0-9]+="[^"<&]*")*)\s*(/?)>\s*)");
    static const std::regex attribute(R"re(([A-Za-z0-9]+)="([^"]*)")re");
    Elements elements;
    std::vector<std::string> open;
    auto at = document.cbegin();
    std::smatch match;
    while (std::regex_search(at, document.cend(), match, tag, std::regex_constants::match_continuous)) {
        at = match.suffix().first;
        if (match[1].length()) {
            if (open.empty() || open.back().find(match[2].str()) == std::string::npos) {
                ADD_FAILURE() << match[0] << " closes nothing";
                return {};
            }
            open.pop_back();
            continue;
        }
        std::string path = open.empty() ? std::string() : open.back();
        path.append("/").append(match[2].str());
        std::string name = path;
        for (int twin = 2; elements.contains(name); ++twin)
            name = path + std::to_string(twin);
        const std::string attributes = match[3];
        for (std::sregex_iterator it(attributes.begin(), attributes.end(), attribute), end; it != end; ++it)
            EXPECT_TRUE(elements[name].emplace((*it)[1], (*it)[2]).second) << (*it)[1] << " stands twice";
        elements[name];
        if (!match[4].length())
            open.push_back(name);
    }
    EXPECT_EQ(at, document.cend());
    EXPECT_TRUE(open.empty());
    return elements;
}

} // namespace

TEST(WmvProfileTest, IsWellFormedAndSaysWhatFilesAreLike)
{
    const std::wstring wide = vant::detail::WmvProfile();
    Elements profile = Read(std::string(wide.begin(), wide.end()));
    const auto expect = [&](const std::string& element, std::map<std::string, std::string> values) {
        ASSERT_TRUE(profile.contains(element)) << element;
        for (const auto& [name, value] : values)
            EXPECT_EQ(profile[element][name], value) << element << " " << name;
    };
    expect("/profile", {{"version", "589824"},
                        {"storageformat", "1"},
                        {"name", "Lossless quality audio (VBR 100) / Highest quality video (VBR 100)"}});
    const std::string audio = "/profile/streamconfig";
    expect(audio, {{"majortype", "{73647561-0000-0010-8000-00AA00389B71}"},
                   {"streamnumber", "1"},
                   {"streamname", "Audio Stream"},
                   {"inputname", "Audio409"},
                   {"bitrate", "128016"},
                   {"bufferwindow", "-1"},
                   {"vbrenabled", "1"},
                   {"vbrquality", "100"}});
    expect(audio + "/wmmediatype/waveformatex", {{"wFormatTag", "355"},
                                                 {"nChannels", "2"},
                                                 {"nSamplesPerSec", "44100"},
                                                 {"wBitsPerSample", "16"},
                                                 {"nBlockAlign", "13375"}});
    const std::string video = "/profile/streamconfig2";
    expect(video, {{"majortype", "{73646976-0000-0010-8000-00AA00389B71}"},
                   {"streamnumber", "2"},
                   {"streamname", "Video Stream"},
                   {"inputname", "Video409"},
                   {"bitrate", "100000"},
                   {"bufferwindow", "-1"},
                   {"vbrenabled", "1"},
                   {"vbrquality", "100"}});
    expect(video + "/videomediaprops", {{"maxkeyframespacing", "20000000"}});
    const std::string format = video + "/wmmediatype/videoinfoheader";
    expect(format, {{"avgtimeperframe", "2000000"}});
    for (const char* rectangle : {"/rcsource", "/rctarget"})
        expect(format + rectangle, {{"left", "0"}, {"top", "0"}, {"right", "874"}, {"bottom", "576"}});
    expect(format + "/bitmapinfoheader",
           {{"biwidth", "874"}, {"biheight", "576"}, {"bibitcount", "32"}, {"bicompression", "WMV3"}});
    for (const char* stream : {"/stream", "/stream2"})
        expect(std::string("/profile/streamprioritization") + stream, {{"mandatory", "0"}});
}
