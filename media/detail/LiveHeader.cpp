#include "media/detail/LiveHeader.h"

#include <algorithm>

namespace vant::detail
{

LiveHeader::LiveHeader(LPCWSTR path, AviVideo video)
    : m_file(::CreateFileW(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    , m_video(std::move(video))
{
    m_video.frames = 0;
    m_video.largest = 0;
    m_video.end = aviFirstChunk;
}

LiveHeader::~LiveHeader()
{
    if (m_file != INVALID_HANDLE_VALUE)
        ::CloseHandle(m_file);
}

bool LiveHeader::ReadHead(std::uint32_t at, std::uint32_t (&head)[2]) const
{
    OVERLAPPED place{};
    place.Offset = at;
    DWORD read = 0;
    return ::ReadFile(m_file, head, sizeof head, &read, &place) && read == sizeof head;
}

bool LiveHeader::FindFrames()
{
    LARGE_INTEGER size{};
    ::GetFileSizeEx(m_file, &size);
    std::uint32_t head[2];
    while (m_video.end + riffChunkHead <= size.QuadPart && ReadHead(m_video.end, head)) {
        const auto [letters, bytes] = head;
        if (letters != FourLetters("00db") && letters != FourLetters("00dc"))
            return false;
        const std::uint64_t end = m_video.end + RiffChunkBytes(bytes);
        if (end > static_cast<std::uint64_t>(size.QuadPart) || end > UINT32_MAX)
            return true;
        m_video.end = static_cast<std::uint32_t>(end);
        m_video.largest = std::max(m_video.largest, bytes);
        ++m_video.frames;
    }
    return true;
}

bool LiveHeader::Update()
{
    if (m_file == INVALID_HANDLE_VALUE)
        return false;
    const bool asExpected = FindFrames();
    if (m_video.frames == 0)
        return asExpected;
    const std::vector<std::byte> header = MakeAviHeader(m_video);
    OVERLAPPED beginning{};
    DWORD written = 0;
    return !header.empty() &&
           ::WriteFile(m_file, header.data(), static_cast<DWORD>(header.size()), &written, &beginning) &&
           written == header.size();
}

} // namespace vant::detail
