#include "controls/detail/Accel.h"

#include <cwctype>

namespace vant::detail
{
namespace
{

/** The codes of the system's keys that have names. */
struct NamedKey {
    std::wstring_view name;
    unsigned key;
};

constexpr NamedKey namedKeys[] = {
    {L"BACKSPACE", 0x08}, {L"TAB", 0x09},    {L"ENTER", 0x0D}, {L"RETURN", 0x0D}, {L"PAUSE", 0x13},
    {L"ESC", 0x1B},       {L"SPACE", 0x20},  {L"PGUP", 0x21},  {L"PGDN", 0x22},   {L"END", 0x23},
    {L"HOME", 0x24},      {L"LEFT", 0x25},   {L"UP", 0x26},    {L"RIGHT", 0x27},  {L"DOWN", 0x28},
    {L"INS", 0x2D},       {L"INSERT", 0x2D}, {L"DEL", 0x2E},   {L"DELETE", 0x2E}, {L"+", 0xBB},
    {L",", 0xBC},         {L"-", 0xBD},      {L".", 0xBE},     {L"NUM +", 0x6B},  {L"NUM -", 0x6D},
    {L"NUM *", 0x6A},     {L"NUM /", 0x6F},
};

constexpr unsigned firstFunctionKey = 0x70; // F1
constexpr unsigned functionKeys = 24;

wchar_t Upper(wchar_t c) noexcept
{
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
}

bool IsSame(std::wstring_view text, std::wstring_view upper) noexcept
{
    if (text.size() != upper.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (Upper(text[i]) != upper[i])
            return false;
    }
    return true;
}

bool IsDigit(wchar_t c) noexcept
{
    return c >= L'0' && c <= L'9';
}

/** The number of a function key; 0 if it is none. */
unsigned FunctionKey(std::wstring_view name) noexcept
{
    if (name.size() < 2 || name.size() > 3 || Upper(name.front()) != L'F' || name[1] == L'0')
        return 0;
    unsigned number = 0;
    for (const wchar_t c : name.substr(1)) {
        if (!IsDigit(c))
            return 0;
        number = 10 * number + static_cast<unsigned>(c - L'0');
    }
    return number <= functionKeys ? number : 0;
}

/** The code of a letter or digit; 0 if it is none. */
unsigned Character(std::wstring_view name) noexcept
{
    if (name.size() != 1)
        return 0;
    const wchar_t c = Upper(name.front());
    return IsDigit(c) || (c >= L'A' && c <= L'Z') ? static_cast<unsigned>(c) : 0;
}

/** Whether a key types something by itself. */
bool IsTyped(unsigned key) noexcept
{
    constexpr unsigned blank = 0x20;
    constexpr unsigned firstDigit = 0x30, lastLetter = 0x5A;
    constexpr unsigned firstOfPad = 0x60, lastOfPad = 0x6F;
    constexpr unsigned firstSign = 0xBA, lastSign = 0xE2;
    return key == blank || (key >= firstDigit && key <= lastLetter) ||
           (key >= firstOfPad && key <= lastOfPad) || (key >= firstSign && key <= lastSign);
}

std::wstring_view Trimmed(std::wstring_view text) noexcept
{
    while (!text.empty() && text.front() == L' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == L' ')
        text.remove_suffix(1);
    return text;
}

/** The code of a key; 0 if there is none of that name. */
unsigned KeyOf(std::wstring_view name) noexcept
{
    if (const unsigned number = FunctionKey(name))
        return firstFunctionKey + number - 1;
    if (const unsigned key = Character(name))
        return key;
    for (const NamedKey& named : namedKeys) {
        if (IsSame(name, named.name))
            return named.key;
    }
    return 0;
}

} // namespace

std::optional<Accel> ParseAccel(std::wstring_view text)
{
    Accel accel;
    text = Trimmed(text);
    // A plus sign at the very end is the key itself.
    for (std::size_t plus = text.find(L'+'); plus != std::wstring_view::npos && plus + 1 < text.size();
         plus = text.find(L'+')) {
        const std::wstring_view name = Trimmed(text.substr(0, plus));
        if (IsSame(name, L"CTRL"))
            accel.control = true;
        else if (IsSame(name, L"SHIFT"))
            accel.shift = true;
        else if (IsSame(name, L"ALT"))
            accel.alt = true;
        else
            return std::nullopt;
        text = Trimmed(text.substr(plus + 1));
    }
    accel.key = KeyOf(text);
    const bool isBare = !accel.control && !accel.alt;
    return accel.key && !(isBare && IsTyped(accel.key)) ? std::optional(accel) : std::nullopt;
}

wchar_t MnemonicOf(std::wstring_view text) noexcept
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != L'&')
            continue;
        if (text[i + 1] != L'&')
            return Upper(text[i + 1]);
        ++i;
    }
    return 0;
}

} // namespace vant::detail
