#pragma once

#include <cstdint>
#include <string>

namespace vant::detail
{

/** What is typed into a list to find an entry: characters that come soon after each other count together. */
class TypeAhead
{
public:
    static constexpr std::uint32_t timeOut = 1000; ///< milliseconds between two characters

    /** What to look for after a character. */
    struct Search {
        std::wstring prefix;     ///< how the entry begins
        bool onFromHere = false; ///< not the current entry itself, but one behind it
    };

    /** Takes a character. The same one again and again goes on to the next entry that begins with it.
     *  @param now  milliseconds; may wrap */
    Search Type(wchar_t character, std::uint32_t now);

    /** Whether a text is being typed, of which a blank would be a part. */
    bool IsTyping(std::uint32_t now) const noexcept;

    /** Forgets what has been typed. */
    void Reset() noexcept { m_typed.clear(); }

private:
    std::wstring m_typed;
    std::uint32_t m_last = 0;
};

} // namespace vant::detail
