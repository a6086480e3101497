#include "demo/detail/SettingsText.h"

namespace demo
{

FileState Judge(std::string_view begin, std::string_view end) noexcept
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t last = end.find_last_not_of(blanks);
    if (last == std::string_view::npos)
        return FileState::Empty;
    const bool begins = begin.find("<Corvane") != std::string_view::npos;
    const bool ends = end.substr(0, last + 1).ends_with("</Corvane>");
    return begins && ends ? FileState::Whole : FileState::Damaged;
}

} // namespace demo
