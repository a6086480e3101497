#include "detail/CodePage.h"

#include <algorithm>
#include <climits>
#include <new>
#include <windows.h>

namespace vafx::detail
{

namespace
{

bool IsAscii(auto first, auto last)
{
    return std::all_of(first, last, [](auto c) { return c >= 0 && c < 0x80; });
}

int CheckedLength(std::size_t length)
{
    if (length > INT_MAX / 4) // four bytes are the most that one character takes
        throw std::bad_alloc();
    return static_cast<int>(length);
}

} // namespace

std::wstring Widen(const char* text, std::size_t length)
{
    const int count = CheckedLength(length);
    // All Windows code pages agree on ASCII, and nearly all text is ASCII.
    if (IsAscii(text, text + length))
        return std::wstring(text, text + length);
    const int needed = ::MultiByteToWideChar(CP_ACP, 0, text, count, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(std::max(needed, 0)), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, count, wide.data(), needed);
    return wide;
}

std::string Narrow(const wchar_t* text, std::size_t length)
{
    const int count = CheckedLength(length);
    if (IsAscii(text, text + length)) {
        std::string narrow(length, '\0');
        std::transform(text, text + length, narrow.begin(), [](wchar_t c) { return static_cast<char>(c); });
        return narrow;
    }
    const int needed = ::WideCharToMultiByte(CP_ACP, 0, text, count, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(std::max(needed, 0)), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text, count, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}

} // namespace vafx::detail
