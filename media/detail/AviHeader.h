#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vant::detail
{

/** Where the AVI library puts the chunk of the first frame: everything before it is header. */
inline constexpr std::uint32_t aviFirstChunk = 2048;

/** Bytes before a chunk's contents: its four letters and its size. */
inline constexpr std::uint32_t riffChunkHead = 8;

/** Four letters as a RIFF file has them. */
constexpr std::uint32_t FourLetters(const char (&letters)[5]) noexcept
{
    std::uint32_t code = 0;
    for (int i = 3; i >= 0; --i)
        code = code << 8 | static_cast<unsigned char>(letters[i]);
    return code;
}

/** What the header of a file with one video stream tells. */
struct AviVideo {
    std::uint32_t handler;         ///< four letters of the codec
    std::uint32_t scale;           ///< the frame rate is rate / scale
    std::uint32_t rate;            ///<
    std::uint32_t width;           ///< pixels
    std::uint32_t height;          ///< pixels
    std::uint32_t frames;          ///< in the file so far
    std::uint32_t largest;         ///< bytes of the largest frame
    std::uint32_t end;             ///< where the last frame ends, from the beginning of the file
    std::vector<std::byte> format; ///< a BITMAPINFOHEADER and what follows it
};

/** The header of a file whose frames begin at aviFirstChunk and which has no index: exactly that many bytes;
 * none if the format is too long to fit. */
std::vector<std::byte> MakeAviHeader(const AviVideo& video);

/** Bytes that a chunk takes: with its head, padded to an even size. */
constexpr std::uint64_t RiffChunkBytes(std::uint64_t contents) noexcept
{
    return riffChunkHead + contents + contents % 2;
}

/** Bytes of the index that the library adds to a file when it is closed. */
constexpr std::uint64_t AviIndexBytes(std::uint64_t frames) noexcept
{
    constexpr std::uint64_t entry = 16;
    return riffChunkHead + entry * frames;
}

} // namespace vant::detail
