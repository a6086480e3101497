#pragma once

#include <afx.h>

#include <string_view>

namespace vant::detail
{

/** A text as the plain parts take it; good until the text changes. */
inline std::wstring_view View(const CString& text) noexcept
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

/** A copy as a text of the interface. */
inline CString ToCString(std::wstring_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

} // namespace vant::detail
