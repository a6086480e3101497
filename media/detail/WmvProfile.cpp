#include "media/detail/WmvProfile.h"

#include <initializer_list>

namespace vant::detail
{

namespace
{

constexpr int version = 589824; // 9.0 as the documents write it
constexpr int quality = 100;
constexpr int width = 874;
constexpr int height = 576;
constexpr int audioBitRate = 128016;
constexpr int videoBitRate = 100000;
constexpr int blockAlign = 13375;
constexpr int keyFrameSpacing = 20000000; // 2 s in units of 100 ns
constexpr int frameTime = 2000000;        // 200 ms

/** An attribute of an element. */
struct Attribute {
    const wchar_t* name;
    std::wstring value;

    Attribute(const wchar_t* n, int number)
        : name(n)
        , value(std::to_wstring(number))
    {
    }
    Attribute(const wchar_t* n, const wchar_t* text)
        : name(n)
        , value(text)
    {
    }
};

/** Writes elements within each other. No text in this document has a character that would need escaping. */
class Document
{
public:
    void Begin(const wchar_t* name, std::initializer_list<Attribute> attributes)
    {
        Tag(name, attributes);
        m_text += L">\r\n";
    }
    void Empty(const wchar_t* name, std::initializer_list<Attribute> attributes)
    {
        Tag(name, attributes);
        m_text += L"/>\r\n";
    }
    void End(const wchar_t* name) { m_text.append(L"</").append(name).append(L">\r\n"); }
    std::wstring Take() { return std::move(m_text); }

private:
    void Tag(const wchar_t* name, std::initializer_list<Attribute> attributes)
    {
        m_text.append(L"<").append(name);
        for (const Attribute& attribute : attributes)
            m_text.append(L" ").append(attribute.name).append(L"=\"").append(attribute.value).append(L"\"");
    }

    std::wstring m_text;
};

/** What differs between the two streams' configurations. */
struct Stream {
    const wchar_t* majorType;
    int number;
    const wchar_t* name;
    const wchar_t* input;
    int bitRate;
    const wchar_t* complexity;
};

void BeginStream(Document& out, const Stream& stream)
{
    out.Begin(L"streamconfig", {{L"majortype", stream.majorType},
                                {L"streamnumber", stream.number},
                                {L"streamname", stream.name},
                                {L"inputname", stream.input},
                                {L"bitrate", stream.bitRate},
                                {L"bufferwindow", -1},
                                {L"reliabletransport", 0},
                                {L"decodercomplexity", stream.complexity},
                                {L"rfc1766langid", L"en-us"},
                                {L"vbrenabled", 1},
                                {L"vbrquality", quality},
                                {L"bitratemax", 0},
                                {L"bufferwindowmax", 0}});
}

void Audio(Document& out)
{
    constexpr int losslessTag = 355;
    BeginStream(
        out, {L"{73647561-0000-0010-8000-00AA00389B71}", 1, L"Audio Stream", L"Audio409", audioBitRate, L""});
    out.Begin(L"wmmediatype", {{L"subtype", L"{00000163-0000-0010-8000-00AA00389B71}"},
                               {L"bfixedsizesamples", 1},
                               {L"btemporalcompression", 0},
                               {L"lsamplesize", blockAlign}});
    out.Empty(L"waveformatex", {{L"wFormatTag", losslessTag},
                                {L"nChannels", 2},
                                {L"nSamplesPerSec", 44100},
                                {L"nAvgBytesPerSec", audioBitRate / 8},
                                {L"nBlockAlign", blockAlign},
                                {L"wBitsPerSample", 16},
                                // 16 valid bits, channels left and right, the codec's usual options
                                {L"codecdata", L"1000030000000000000000000000E0000000"}});
    out.End(L"wmmediatype");
    out.End(L"streamconfig");
}

void Rectangle(Document& out, const wchar_t* name)
{
    out.Empty(name, {{L"left", 0}, {L"top", 0}, {L"right", width}, {L"bottom", height}});
}

void Video(Document& out)
{
    BeginStream(out, {L"{73646976-0000-0010-8000-00AA00389B71}", 2, L"Video Stream", L"Video409",
                      videoBitRate, L"AU"});
    out.Empty(L"videomediaprops", {{L"maxkeyframespacing", keyFrameSpacing}, {L"quality", quality}});
    out.Begin(L"wmmediatype", {{L"subtype", L"{33564D57-0000-0010-8000-00AA00389B71}"},
                               {L"bfixedsizesamples", 0},
                               {L"btemporalcompression", 1},
                               {L"lsamplesize", 0}});
    out.Begin(L"videoinfoheader",
              {{L"dwbitrate", videoBitRate}, {L"dwbiterrorrate", 0}, {L"avgtimeperframe", frameTime}});
    Rectangle(out, L"rcsource");
    Rectangle(out, L"rctarget");
    out.Empty(L"bitmapinfoheader", {{L"biwidth", width},
                                    {L"biheight", height},
                                    {L"biplanes", 1},
                                    {L"bibitcount", 32},
                                    {L"bicompression", L"WMV3"},
                                    {L"bisizeimage", 0},
                                    {L"bixpelspermeter", 0},
                                    {L"biypelspermeter", 0},
                                    {L"biclrused", 0},
                                    {L"biclrimportant", 0}});
    out.End(L"videoinfoheader");
    out.End(L"wmmediatype");
    out.End(L"streamconfig");
}

} // namespace

std::wstring WmvProfile()
{
    Document out;
    out.Begin(L"profile", {{L"version", version},
                           {L"storageformat", 1},
                           {L"name", L"Lossless quality audio (VBR 100) / Highest quality video (VBR 100)"},
                           {L"description", L"Streams: 1 audio 1 video"}});
    Audio(out);
    Video(out);
    out.Begin(L"streamprioritization", {});
    out.Empty(L"stream", {{L"number", 1}, {L"mandatory", 0}});
    out.Empty(L"stream", {{L"number", 2}, {L"mandatory", 0}});
    out.End(L"streamprioritization");
    out.End(L"profile");
    return out.Take();
}

} // namespace vant::detail
