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

    /** Takes a character. @param now  milliseconds; may wrap  @return how the entry begins that is meant,
     * from the current one on; a single character looks behind the current one */
    const std::wstring& Type(wchar_t character, std::uint32_t now);

    /** Whether what is typed is one character again and again: if no entry begins so, the next one is meant
     * that begins with the character. */
    bool IsRepeated() const noexcept;

    /** Whether a text is being typed, of which a blank would be a part. */
    bool IsTyping(std::uint32_t now) const noexcept;

    /** Forgets what has been typed. */
    void Reset() noexcept { m_typed.clear(); }

private:
    std::wstring m_typed;
    std::uint32_t m_last = 0;
};

} // namespace vant::detail
