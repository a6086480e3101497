#include "media/detail/WmvWriter.h"

#include "media/detail/WmvProfile.h"
#include "platform/Vant.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

constexpr int alarmLevel = 1;

/** Raises the alarm of a step that failed. @return whether it did not */
bool Good(HRESULT result, WmvAlarm id, LPCWSTR text)
{
    if (SUCCEEDED(result))
        return true;
    Vant::Alarm(static_cast<unsigned long>(id), alarmLevel, text);
    Vant::Console(alarmLevel, L"%s: result %08X", text, static_cast<unsigned>(result));
    return false;
}

/** Bytes of a row of pixels, which is a multiple of four. */
std::size_t RowBytes(LONG width, int bits)
{
    constexpr std::size_t wordBits = 32;
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + wordBits - 1) / wordBits * 4;
}

BITMAPINFOHEADER Header(LONG width, LONG height, int bits)
{
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height; // lowest row first
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(bits);
    header.biSizeImage = static_cast<DWORD>(RowBytes(width, bits) * static_cast<std::size_t>(height));
    return header;
}

/** The media type of an input, with the format that lies behind it. */
HRESULT MediaType(IWMInputMediaProps* input, std::vector<std::byte>& bytes)
{
    DWORD size = 0;
    HRESULT result = input->GetMediaType(nullptr, &size);
    if (FAILED(result))
        return result;
    bytes.resize(std::max<std::size_t>(size, sizeof(WM_MEDIA_TYPE)));
    return input->GetMediaType(reinterpret_cast<WM_MEDIA_TYPE*>(bytes.data()), &size);
}

} // namespace

std::unique_ptr<WmvWriter> WmvWriter::Open(LPCWSTR path)
{
    std::unique_ptr<WmvWriter> opened(new WmvWriter);
    if (!opened->SetProfile() || !opened->FindVideoInput() ||
        !Good(opened->m_writer->SetOutputFilename(path), WmvAlarm::outputFile,
              L"Unable to Set Output Filename"))
        return nullptr;
    return opened;
}

WmvWriter::~WmvWriter()
{
    if (m_writing)
        Good(m_writer->EndWriting(), WmvAlarm::endWriting, L"Unable to End Writing");
}

bool WmvWriter::SetProfile()
{
    ComPtr<IWMProfileManager> manager;
    ComPtr<IWMProfileManager2> manager2;
    ComPtr<IWMProfile> profile;
    return Good(Wmv().createProfileManager(manager.Out()), WmvAlarm::profileManager,
                L"Unable to Create WindowsMedia Profile Manager") &&
           Good(manager->QueryInterface(__uuidof(IWMProfileManager2), manager2.OutAny()),
                WmvAlarm::profileManager2, L"Unable to Query Interface for ProfileManager2") &&
           Good(manager2->SetSystemProfileVersion(WMT_VER_9_0), WmvAlarm::profileVersion,
                L"Unable to Set System Profile Version") &&
           Good(manager2->LoadProfileByData(WmvProfile().c_str(), profile.Out()), WmvAlarm::loadProfile,
                L"Unable to Load System Profile") &&
           Good(Wmv().createWriter(m_writer.Out()), WmvAlarm::createWriter,
                L"Unable to Create Media Writer Object") &&
           Good(m_writer->SetProfile(profile.Get()), WmvAlarm::setProfile, L"Unable to Set System Profile");
}

bool WmvWriter::FindVideoInput()
{
    DWORD count = 0;
    if (!Good(m_writer->GetInputCount(&count), WmvAlarm::inputCount,
              L"Unable to Get input count For Profile"))
        return false;
    for (m_inputNumber = 0; m_inputNumber < count; ++m_inputNumber) {
        GUID type{};
        if (!Good(m_writer->GetInputProps(m_inputNumber, m_input.Out()), WmvAlarm::inputProperties,
                  L"Unable to GetInput Properties") ||
            !Good(m_input->GetType(&type), WmvAlarm::inputType, L"Unable to Get Input Property Type"))
            return false;
        if (::IsEqualGUID(type, wmvVideo))
            return true;
    }
    return Good(E_FAIL, WmvAlarm::noVideoInput, L"Unable to Find Video Input");
}

/** A format of pixels that the writer offers for its video input; null if it does not. */
ComPtr<IWMInputMediaProps> WmvWriter::OfferedInput(const GUID& subtype)
{
    DWORD count = 0;
    m_writer->GetInputFormatCount(m_inputNumber, &count);
    for (DWORD i = 0; i < count; ++i) {
        ComPtr<IWMInputMediaProps> offered;
        std::vector<std::byte> bytes;
        if (SUCCEEDED(m_writer->GetInputFormat(m_inputNumber, i, offered.Out())) &&
            SUCCEEDED(MediaType(offered.Get(), bytes)) &&
            ::IsEqualGUID(reinterpret_cast<const WM_MEDIA_TYPE*>(bytes.data())->subtype, subtype))
            return offered;
    }
    return {};
}

/** Gives an input the frames' size and sets it. */
HRESULT WmvWriter::DescribeInput(IWMInputMediaProps* input, const GUID& subtype, const DibFrame& frame)
{
    std::vector<std::byte> bytes;
    HRESULT result = MediaType(input, bytes);
    if (FAILED(result))
        return result;
    auto& type = *reinterpret_cast<WM_MEDIA_TYPE*>(bytes.data());
    if (type.cbFormat < sizeof(WmvVideoFormat) || !type.pbFormat)
        return E_INVALIDARG;
    auto& format = *reinterpret_cast<WmvVideoFormat*>(type.pbFormat);
    format.source = {0, 0, frame.Width(), frame.Height()};
    format.target = format.source;
    format.bitmap = Header(frame.Width(), frame.Height(), m_bits);
    type.subtype = subtype;
    type.bFixedSizeSamples = TRUE;
    type.lSampleSize = format.bitmap.biSizeImage;
    result = input->SetMediaType(&type);
    return FAILED(result) ? result : m_writer->SetInputProps(m_inputNumber, input);
}

bool WmvWriter::Begin(const DibFrame& frame)
{
    constexpr int rgb24 = 24;
    constexpr int rgb32 = 32;
    const bool prefers24 = frame.Bits() == rgb24;
    ComPtr<IWMInputMediaProps> input = OfferedInput(prefers24 ? wmvRgb24 : wmvRgb32);
    const bool is24 = input ? prefers24 : !prefers24;
    if (!input)
        input = OfferedInput(is24 ? wmvRgb24 : wmvRgb32);
    m_bits = is24 ? rgb24 : rgb32;
    const HRESULT described =
        input ? DescribeInput(input.Get(), is24 ? wmvRgb24 : wmvRgb32, frame) : E_NOTIMPL;
    if (!Good(described, WmvAlarm::setInput, L"Unable to Set Input Properties"))
        return false;
    m_input = std::move(input);
    m_width = frame.Width();
    m_height = frame.Height();
    m_writing = Good(m_writer->BeginWriting(), WmvAlarm::beginWriting, L"Unable to Begin Writing");
    return m_writing;
}

std::size_t WmvWriter::SampleBytes() const noexcept
{
    return RowBytes(m_width, m_bits) * static_cast<std::size_t>(m_height);
}

/** Copies pixels of the samples' depth, and lets GDI convert others. */
bool WmvWriter::FillSample(INSSBuffer* sample, HBITMAP bitmap, const DibFrame& frame) const
{
    BYTE* pixels = nullptr;
    if (FAILED(sample->GetBuffer(&pixels)) || !pixels ||
        FAILED(sample->SetLength(static_cast<DWORD>(SampleBytes()))))
        return false;
    if (frame.Bits() == m_bits && frame.Bytes() == SampleBytes() && frame.HasUsualColours()) {
        frame.CopyBottomUp(pixels);
        return true;
    }
    BITMAPINFO info{};
    info.bmiHeader = Header(m_width, m_height, m_bits);
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const int rows = ::GetDIBits(dc, bitmap, 0, static_cast<UINT>(m_height), pixels, &info, DIB_RGB_COLORS);
    ::DeleteDC(dc);
    return rows == m_height;
}

/** Time of a frame that is added now, from the first one on. The file counts in milliseconds, and a frame has
 * one of its own. */
unsigned long long WmvWriter::NextTime()
{
    constexpr unsigned long long millisecond = 10000; // units of 100 ns
    const unsigned long long now = Wmv().now();
    if (!m_hasTime) {
        m_hasTime = true;
        m_start = now;
    } else {
        m_time = std::max(now - m_start, m_time + millisecond);
    }
    return m_time;
}

bool WmvWriter::Add(HBITMAP bitmap, const DibFrame& frame)
{
    if (!m_writing && !Begin(frame))
        return false;
    if (frame.Width() != m_width || frame.Height() != m_height) {
        Vant::Alarm(static_cast<unsigned long>(WmvAlarm::otherSize), alarmLevel,
                    L"Cannot add bitmap - %d x %d pixels do not fit a video of %d x %d",
                    static_cast<int>(frame.Width()), static_cast<int>(frame.Height()),
                    static_cast<int>(m_width), static_cast<int>(m_height));
        return false;
    }
    ComPtr<INSSBuffer> sample;
    return Good(m_writer->AllocateSample(static_cast<DWORD>(SampleBytes()), sample.Out()),
                WmvAlarm::allocateSample, L"Unable to Allocate Sample") &&
           Good(FillSample(sample.Get(), bitmap, frame) ? S_OK : E_FAIL, WmvAlarm::writeSample,
                L"Unable to Write Sample") &&
           Good(m_writer->WriteSample(m_inputNumber, NextTime(), 0, sample.Get()), WmvAlarm::writeSample,
                L"Unable to Write Sample");
}

} // namespace vant::detail
