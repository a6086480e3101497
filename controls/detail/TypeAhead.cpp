#include "controls/detail/TypeAhead.h"

namespace vant::detail
{

bool TypeAhead::IsTyping(std::uint32_t now) const noexcept
{
    return !m_typed.empty() && now - m_last < timeOut;
}

TypeAhead::Search TypeAhead::Type(wchar_t character, std::uint32_t now)
{
    if (!IsTyping(now))
        m_typed.clear();
    m_last = now;
    m_typed += character;
    const bool isRepeated = m_typed.find_first_not_of(m_typed.front()) == std::wstring::npos;
    if (isRepeated)
        return {m_typed.substr(0, 1), true};
    return {m_typed, false};
}

} // namespace vant::detail
