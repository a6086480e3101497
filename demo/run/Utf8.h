#pragma once

#include <string>
#include <string_view>

namespace demo
{

/** The text as it is written to files. */
std::string Utf8(std::wstring_view text);

} // namespace demo
