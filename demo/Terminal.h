#pragma once

#include <string_view>

namespace demo
{

/** Writes a line to the program's standard output. */
void Say(std::wstring_view line);

/** Writes a line to the program's standard error, with the program's name before it. */
void Complain(std::wstring_view line);

} // namespace demo
