#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>

namespace vant::detail
{

static_assert(std::endian::native == std::endian::little, "numbers are taken as they stand in the file");

/** A file held in memory, read from a position on. Every read names the end of the chunk it belongs to and
 *  never goes beyond it, nor beyond the file. The bytes stay the caller's. */
class ByteFile
{
public:
    explicit ByteFile(std::span<const std::byte> bytes) noexcept
        : m_bytes(bytes)
    {
    }

    std::size_t Size() const noexcept { return m_bytes.size(); }
    std::size_t Position() const noexcept { return m_position; }

    /** A position beyond the file is its end. */
    void Seek(std::size_t position) noexcept { m_position = std::min(position, m_bytes.size()); }

    /** How many bytes lie between the position and an end. */
    std::size_t Left(std::size_t end) const noexcept
    {
        return std::max(std::min(end, m_bytes.size()), m_position) - m_position;
    }

    /** Takes one number or an array of them. False, and nothing taken, when fewer bytes are left. */
    template <class T>
    bool Take(T& value, std::size_t end) noexcept
    {
        static_assert(std::is_trivially_copyable_v<T>);
        if (Left(end) < sizeof(T))
            return false;
        std::memcpy(&value, m_bytes.data() + m_position, sizeof(T));
        m_position += sizeof(T);
        return true;
    }

    /** Takes `count` items of `size` bytes, or as many whole ones as are left. */
    std::span<const std::byte> TakeItems(std::size_t count, std::size_t size, std::size_t end) noexcept
    {
        const std::size_t bytes = std::min(count, Left(end) / size) * size;
        const std::span<const std::byte> items = m_bytes.subspan(m_position, bytes);
        m_position += bytes;
        return items;
    }

    /** Takes a text and the NUL behind it, and keeps `longest` bytes of the text. False when the end comes
     *  before the NUL: the text is then all there was. */
    bool TakeText(std::string& text, std::size_t longest, std::size_t end)
    {
        const std::span<const std::byte> rest = m_bytes.subspan(m_position, Left(end));
        const auto nul = std::find(rest.begin(), rest.end(), std::byte{0});
        const auto size = static_cast<std::size_t>(nul - rest.begin());
        text.assign(reinterpret_cast<const char*>(rest.data()), std::min(size, longest));
        const bool ended = nul != rest.end();
        m_position += size + (ended ? 1 : 0);
        return ended;
    }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_position = 0;
};

} // namespace vant::detail
