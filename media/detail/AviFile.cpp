#include "media/detail/AviFile.h"

#include "platform/Vant.h"

#include <utility>

namespace vant::detail
{

namespace
{

constexpr DWORD rate = 1000; // frames in `scale` seconds: 50 frames per second
constexpr DWORD scale = 20;
constexpr ULONGLONG headerPeriod = 1000; // milliseconds

} // namespace

HRESULT AviFile::Create(const CString& path, std::unique_ptr<AviFile>& file)
{
    IAVIFile* opened = nullptr;
    const HRESULT result = Avi().openFile(&opened, path, OF_WRITE | OF_CREATE);
    file.reset(FAILED(result) || !opened ? nullptr : new AviFile(opened, path));
    return SUCCEEDED(result) && !file ? AVIERR_INTERNAL : result;
}

AviFile::AviFile(IAVIFile* file, const CString& path)
    : m_file(file)
    , m_path(path)
    , m_end(aviFirstChunk)
{
}

AviFile::~AviFile()
{
    m_header.reset(); // the library's own must be the last
    ReleaseCompressed();
    if (m_raw)
        Avi().releaseStream(m_raw);
    Avi().releaseFile(m_file);
}

void AviFile::ReleaseCompressed()
{
    if (m_compressed)
        Avi().releaseStream(std::exchange(m_compressed, nullptr));
    m_ready = false;
}

HRESULT AviFile::CreateStream(const DibFrame& frame)
{
    AVISTREAMINFOW info{};
    info.fccType = streamtypeVIDEO;
    info.dwScale = scale;
    info.dwRate = rate;
    info.dwQuality = static_cast<DWORD>(ICQUALITY_DEFAULT);
    info.dwSuggestedBufferSize = static_cast<DWORD>(frame.Bytes());
    info.rcFrame = {0, 0, frame.Width(), frame.Height()};
    const HRESULT result = Avi().createStream(m_file, &m_raw, &info);
    if (SUCCEEDED(result))
        m_frame = frame;
    return result;
}

HRESULT AviFile::Compress(AVICOMPRESSOPTIONS& options)
{
    ReleaseCompressed();
    const HRESULT result = m_raw ? Avi().compressStream(&m_compressed, m_raw, &options) : AVIERR_BADHANDLE;
    if (FAILED(result))
        ReleaseCompressed();
    return result;
}

HRESULT AviFile::SetFormat(const DIBSECTION& section)
{
    std::vector<std::byte> format = FileFormat(section, m_frame.colours);
    const HRESULT result =
        m_compressed ? Avi().setFormat(m_compressed, format.data(), static_cast<LONG>(format.size()))
                     : AVIERR_BADHANDLE;
    m_ready = SUCCEEDED(result);
    return result;
}

bool AviFile::HasRoom(std::size_t bytes) const noexcept
{
    const std::uint64_t whole = m_end + RiffChunkBytes(bytes) + AviIndexBytes(m_frames + 1);
    return m_frames == 0 || whole <= static_cast<std::uint64_t>(Avi().fileLimit);
}

HRESULT AviFile::Write(LONG index, const DibFrame& frame, int headerFrames)
{
    const std::size_t bytes = frame.Bytes();
    LONG written = 0;
    const HRESULT result = Avi().writeSample(m_compressed, index, frame.BottomUp(m_turned),
                                             static_cast<LONG>(bytes), AVIIF_KEYFRAME, &written);
    if (FAILED(result))
        return result;
    m_end += RiffChunkBytes(written > 0 ? static_cast<std::size_t>(written) : bytes);
    ++m_frames;
    ++m_framesSinceHeader;
    if (m_frames == 1)
        StartHeader();
    if (m_frames == 1 || m_framesSinceHeader >= headerFrames ||
        ::GetTickCount64() - m_headerTick >= headerPeriod)
        UpdateHeader();
    return result;
}

void AviFile::StartHeader()
{
    AVISTREAMINFOW info{};
    LONG size = 0;
    AviVideo video{};
    if (SUCCEEDED(Avi().streamInfo(m_raw, &info)) && SUCCEEDED(Avi().readFormat(m_raw, nullptr, &size)) &&
        size > 0) {
        video.format.resize(static_cast<std::size_t>(size));
        if (FAILED(Avi().readFormat(m_raw, video.format.data(), &size)))
            return;
        video.handler = info.fccHandler;
        video.scale = scale;
        video.rate = rate;
        video.width = static_cast<std::uint32_t>(m_frame.Width());
        video.height = static_cast<std::uint32_t>(m_frame.Height());
        m_header = std::make_unique<LiveHeader>(m_path, std::move(video));
    }
}

void AviFile::UpdateHeader()
{
    m_framesSinceHeader = 0;
    m_headerTick = ::GetTickCount64();
    if (m_header && m_header->Update())
        return;
    if (m_frames == 1)
        Vant::Console(0, L"%s can be played only after it has been closed", static_cast<LPCWSTR>(m_path));
    m_header.reset();
}

} // namespace vant::detail
