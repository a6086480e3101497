#pragma once

#include <string_view>

namespace demo
{

/** Writes a line to the program's standard output. */
void Say(std::wstring_view line);

/** Writes a line to the program's standard error, with the program's name before it. */
void Tell(std::wstring_view line);

/** Tell() for what nothing else tells: where nobody can read it there, as in a program that was started by a
 * double click, it is kept for ShowComplaints(). */
void Complain(std::wstring_view line);

/** Shows what nobody has read in one message box, which closes itself if nobody is there. */
void ShowComplaints();

} // namespace demo
