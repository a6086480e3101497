#include "controls/detail/TypeAhead.h"

namespace vant::detail
{

bool TypeAhead::IsTyping(std::uint32_t now) const noexcept
{
    return !m_typed.empty() && now - m_last < timeOut;
}

const std::wstring& TypeAhead::Type(wchar_t character, std::uint32_t now)
{
    if (!IsTyping(now))
        m_typed.clear();
    m_last = now;
    m_typed += character;
    return m_typed;
}

bool TypeAhead::IsRepeated() const noexcept
{
    return m_typed.size() > 1 && m_typed.find_first_not_of(m_typed.front()) == std::wstring::npos;
}

} // namespace vant::detail
