#pragma once

#include <string_view>

namespace demo
{

/** What a settings file looks like from outside. */
enum class FileState {
    Empty,   ///< nothing is in it
    Whole,   ///< its root element begins and ends
    Damaged, ///< something else is in it, or its end is missing
};

/** Judges a file by its beginning and its end, which may overlap. */
FileState Judge(std::string_view begin, std::string_view end) noexcept;

} // namespace demo
