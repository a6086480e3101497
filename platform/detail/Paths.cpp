#include "platform/detail/Paths.h"

#include <cwctype>

namespace vant::detail
{

namespace
{

constexpr std::wstring_view slashes = L"\\/";

// "\\server\share" is the root of what can be created on a network; "\\?\" and "\\.\" lead a drive or device.
std::size_t RootLength(std::wstring_view path)
{
    const bool twoSlashes =
        path.size() > 2 && slashes.find(path[0]) != slashes.npos && slashes.find(path[1]) != slashes.npos;
    if (!twoSlashes)
        return 0;
    const std::size_t server = path.find_first_of(slashes, 2);
    if (server == path.npos)
        return path.size();
    const std::size_t share = path.find_first_of(slashes, server + 1);
    return share == path.npos ? path.size() : share;
}

} // namespace

std::vector<std::size_t> DirectoryEnds(std::wstring_view path)
{
    std::vector<std::size_t> ends;
    std::size_t pos = RootLength(path);
    if (pos > 0)
        ends.push_back(pos);
    while (ends.size() < maxPathComponents) {
        const std::size_t start = path.find_first_not_of(slashes, pos);
        if (start == path.npos)
            break;
        pos = path.find_first_of(slashes, start);
        if (pos == path.npos)
            pos = path.size();
        ends.push_back(pos);
    }
    return ends;
}

std::size_t NameStart(std::wstring_view path) noexcept
{
    const std::size_t last = path.find_last_of(L"\\/:");
    return last == path.npos ? 0 : last + 1;
}

bool MatchesPattern(std::wstring_view name, std::wstring_view pattern) noexcept
{
    if (pattern == L"*.*")
        return true;
    // On a mismatch only the last star is tried again, one character further on: the work stays within
    // name x pattern.
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t starPattern = pattern.npos;
    std::size_t starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            starPattern = p++;
            starName = n;
        } else if (p < pattern.size() &&
                   (pattern[p] == L'?' || std::towlower(static_cast<std::wint_t>(pattern[p])) ==
                                              std::towlower(static_cast<std::wint_t>(name[n])))) {
            ++p;
            ++n;
        } else if (starPattern != pattern.npos) {
            p = starPattern + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*')
        ++p;
    return p == pattern.size();
}

} // namespace vant::detail
