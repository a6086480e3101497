#pragma once

#include <cstddef>
#include <string>

namespace vafx::detail
{

/** Wide text of the system's 8-bit code page. A byte that has no meaning there becomes the system's default.
 */
std::wstring Widen(const char* text, std::size_t length);

/** Text in the system's 8-bit code page; what it cannot hold becomes the page's default character. */
std::string Narrow(const wchar_t* text, std::size_t length);

} // namespace vafx::detail
