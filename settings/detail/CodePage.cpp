#include "settings/detail/CodePage.h"

#include "settings/detail/SetReader.h"

#include <algorithm>
#include <windows.h>

namespace vant::detail
{

namespace
{

constexpr std::size_t longestChar = 4; // bytes, in GB 18030 and UTF-8
constexpr wchar_t firstNonAscii = 0x80;

int Encode(DWORD flags, std::wstring_view text, char* out, std::size_t room) noexcept
{
    return WideCharToMultiByte(CP_ACP, flags, text.data(), static_cast<int>(text.size()), out,
                               static_cast<int>(room), nullptr, nullptr);
}

bool IsHighSurrogate(wchar_t c) noexcept
{
    return (c & 0xFC00) == 0xD800;
}

} // namespace

std::string EncodeAcp(std::wstring_view text)
{
    // Larger than any text of a tree that fits memory in practice; the calls count in int.
    constexpr std::size_t most = 0x1000'0000;
    text = text.substr(0, most);
    std::string bytes(text.size() * longestChar, '\0');
    // Some code pages, UTF-8 among them, take no flags and need none.
    int size = Encode(WC_NO_BEST_FIT_CHARS, text, bytes.data(), bytes.size());
    if (size <= 0)
        size = Encode(0, text, bytes.data(), bytes.size());
    bytes.resize(static_cast<std::size_t>(std::max(size, 0)));
    return bytes;
}

std::wstring DecodeAcp(std::string_view field)
{
    constexpr std::size_t most = fieldSize - 1;
    field = field.substr(0, most * longestChar);
    std::wstring text(field.size(), L'\0');
    const int size = MultiByteToWideChar(CP_ACP, 0, field.data(), static_cast<int>(field.size()), text.data(),
                                         static_cast<int>(text.size()));
    text.resize(std::min(static_cast<std::size_t>(std::max(size, 0)), most));
    if (!text.empty() && text.size() == most && IsHighSurrogate(text.back()))
        text.pop_back();
    return text;
}

wchar_t WideChar(char c) noexcept
{
    const auto number = static_cast<wchar_t>(static_cast<unsigned char>(c));
    wchar_t wide = 0;
    if (number < firstNonAscii || MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &c, 1, &wide, 1) != 1)
        return number;
    return wide;
}

bool NarrowChar(wchar_t wide, char& c) noexcept
{
    if (wide < firstNonAscii) {
        c = static_cast<char>(wide);
        return true;
    }
    char bytes[longestChar] = {};
    if (Encode(0, {&wide, 1}, bytes, longestChar) == 1 && WideChar(bytes[0]) == wide) {
        c = bytes[0];
        return true;
    }
    // The counterpart of WideChar's last resort.
    if (wide <= 0xFF && WideChar(static_cast<char>(wide)) == wide) {
        c = static_cast<char>(wide);
        return true;
    }
    return false;
}

} // namespace vant::detail
