#include "media/detail/AviHeader.h"

#include <span>
#include <utility>

namespace vant::detail
{

namespace
{

/** Appends little-endian numbers and chunks to the bytes of a RIFF file. */
class RiffBytes
{
public:
    void Number(std::uint64_t value, int bytes)
    {
        for (int i = 0; i < bytes; ++i)
            m_bytes.push_back(static_cast<std::byte>(value >> 8 * i & 0xFF));
    }
    void Number32(std::uint64_t value) { Number(value, 4); }
    void Number16(std::uint64_t value) { Number(value, 2); }
    void Bytes(std::span<const std::byte> bytes)
    {
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    }
    void Zeros(std::size_t count) { m_bytes.insert(m_bytes.end(), count, std::byte{0}); }

    /** Begins a chunk whose size End() puts in. @return what End() is to be given */
    std::size_t Begin(std::uint32_t letters)
    {
        Number32(letters);
        Number32(0);
        return m_bytes.size();
    }
    std::size_t BeginList(std::uint32_t letters, std::uint32_t kind)
    {
        const std::size_t begin = Begin(letters);
        Number32(kind);
        return begin;
    }
    void End(std::size_t begin)
    {
        PutSize(begin, m_bytes.size() - begin);
        if (m_bytes.size() % 2)
            Zeros(1);
    }
    void PutSize(std::size_t begin, std::size_t size)
    {
        for (std::size_t i = 0; i < 4; ++i)
            m_bytes[begin - 4 + i] = static_cast<std::byte>(size >> 8 * i & 0xFF);
    }

    std::size_t Size() const noexcept { return m_bytes.size(); }
    std::vector<std::byte> Take() { return std::move(m_bytes); }

private:
    std::vector<std::byte> m_bytes;
};

void MainHeader(RiffBytes& out, const AviVideo& video)
{
    constexpr std::uint64_t second = 1'000'000; // microseconds
    constexpr std::size_t reserved = 16;
    const std::size_t begin = out.Begin(FourLetters("avih"));
    out.Number32(video.rate ? second * video.scale / video.rate : 0);
    out.Number32(video.scale ? std::uint64_t{video.largest} * video.rate / video.scale : 0);
    out.Number32(0); // no padding between chunks
    out.Number32(0); // no index
    out.Number32(video.frames);
    out.Number32(0); // initial frames
    out.Number32(1); // streams
    out.Number32(video.largest);
    out.Number32(video.width);
    out.Number32(video.height);
    out.Zeros(reserved);
    out.End(begin);
}

void StreamHeader(RiffBytes& out, const AviVideo& video)
{
    const std::size_t begin = out.Begin(FourLetters("strh"));
    out.Number32(FourLetters("vids"));
    out.Number32(video.handler);
    out.Number32(0); // flags
    out.Number32(0); // priority and language
    out.Number32(0); // initial frames
    out.Number32(video.scale);
    out.Number32(video.rate);
    out.Number32(0); // start
    out.Number32(video.frames);
    out.Number32(video.largest);
    out.Number32(0xFFFFFFFF); // quality: the codec's own
    out.Number32(0);          // frames differ in size
    out.Number32(0);          // left and top
    out.Number16(video.width);
    out.Number16(video.height);
    out.End(begin);
}

} // namespace

std::vector<std::byte> MakeAviHeader(const AviVideo& video)
{
    constexpr std::size_t movieList = aviFirstChunk - riffChunkHead - 4; // "LIST", its size, "movi"
    RiffBytes out;
    const std::size_t riff = out.BeginList(FourLetters("RIFF"), FourLetters("AVI "));
    const std::size_t header = out.BeginList(FourLetters("LIST"), FourLetters("hdrl"));
    MainHeader(out, video);
    const std::size_t stream = out.BeginList(FourLetters("LIST"), FourLetters("strl"));
    StreamHeader(out, video);
    const std::size_t format = out.Begin(FourLetters("strf"));
    out.Bytes(video.format);
    out.End(format);
    out.End(stream);
    out.End(header);
    if (out.Size() + riffChunkHead > movieList)
        return {};

    const std::size_t filler = out.Begin(FourLetters("JUNK"));
    out.Zeros(movieList - filler);
    out.End(filler);
    const std::size_t movie = out.BeginList(FourLetters("LIST"), FourLetters("movi"));
    out.PutSize(movie, video.end - movie);
    out.PutSize(riff, video.end - riff);
    return out.Take();
}

} // namespace vant::detail
