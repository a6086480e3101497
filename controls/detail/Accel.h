#pragma once

#include <optional>
#include <string_view>

namespace vant::detail
{

/** A key with what is held down meanwhile. */
struct Accel {
    unsigned key = 0; ///< virtual key code
    bool control = false;
    bool shift = false;
    bool alt = false;
    bool operator==(const Accel&) const noexcept = default;
};

/** Reads a key as menus show it: names joined by plus signs, the key last, upper and lower case being the
 * same: "Ctrl+S", "Shift+F5", "Alt+Enter", "Del", "Ctrl++". Nothing for anything else, and for a letter or
 * digit with neither Ctrl nor Alt, which is a text to type. */
std::optional<Accel> ParseAccel(std::wstring_view text);

/** The letter behind the single ampersand of a menu's text, in upper case; 0 without one. Two ampersands are
 * one that is shown. */
wchar_t MnemonicOf(std::wstring_view text) noexcept;

} // namespace vant::detail
