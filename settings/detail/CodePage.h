#pragma once

#include <string>
#include <string_view>

/** @file
 *  Between wide text and the system's 8-bit code page, the encoding of settings files. */

namespace vant::detail
{

/** The bytes of a text. What the code page lacks becomes '?', and never a character that merely looks alike,
 *  which could be a quotation mark. */
std::string EncodeAcp(std::wstring_view text);

/** The text of a field, cut to fieldSize - 1 characters. */
std::wstring DecodeAcp(std::string_view field);

/** A char as a wide character: what the code page says, or the number itself where it says nothing. */
wchar_t WideChar(char c) noexcept;

/** The reverse; false, and `c` untouched, when the wide character is not one byte of the code page. */
bool NarrowChar(wchar_t wide, char& c) noexcept;

} // namespace vant::detail
