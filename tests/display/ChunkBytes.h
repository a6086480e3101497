#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

/** @file
 *  Builds the bytes of 3D Studio files: numbers and texts put together with +, chunks around them. */

namespace support
{

/** Numbers as they stand in the file, one behind the other. */
template <class... Numbers>
std::string Bytes(const Numbers&... numbers)
{
    static_assert((std::is_trivially_copyable_v<Numbers> && ...));
    std::string bytes;
    (bytes.append(reinterpret_cast<const char*>(&numbers), sizeof numbers), ...);
    return bytes;
}

inline std::string U16(unsigned number)
{
    return Bytes(static_cast<std::uint16_t>(number));
}

/** A text and its NUL. */
inline std::string Text(std::string_view text)
{
    return std::string(text) + '\0';
}

/** A chunk that claims a length of its own. */
inline std::string ChunkOfLength(unsigned id, std::uint32_t length, std::string_view content)
{
    return U16(id) + Bytes(length) + std::string(content);
}

inline std::string Chunk(unsigned id, std::string_view content)
{
    constexpr std::uint32_t header = 6;
    return ChunkOfLength(id, header + static_cast<std::uint32_t>(content.size()), content);
}

} // namespace support
