#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vant::detail
{

/** The most components that a path is created with; deeper ones are ignored. */
inline constexpr std::size_t maxPathComponents = 20;

/** The ends of a path's leading directories, outermost first: `path.substr(0, end)` names each of them. The
 * first is the drive ("C:"), the share ("\\server\share") or the first directory of a relative path. Both
 * slashes separate; empty components count for nothing. At most maxPathComponents ends. */
std::vector<std::size_t> DirectoryEnds(std::wstring_view path);

/** Where the last component of a path starts: behind its last slash of either kind, or behind a drive's
 * colon. */
std::size_t NameStart(std::wstring_view path) noexcept;

/** Whether a file name fits a pattern of `*` and `?`, whatever the case. "*.*" fits every name, as everywhere
 * in the system. Short (8.3) aliases are not consulted: "*.htm" leaves "page.html" alone. */
bool MatchesPattern(std::wstring_view name, std::wstring_view pattern) noexcept;

} // namespace vant::detail
