#pragma once

#include <cstddef>
#include <string_view>

#include "core/detail/NumberText.h"

/** @file
 *  Unit conversion and labels without the process-wide unit system: what EUnits does, for a system that is
 * given. */

namespace vant::detail
{

/** @name Unit systems, and the kind of lengths */
///@{
inline constexpr int metric = 0;
inline constexpr int usCustomary = 1;
inline constexpr int lengthKind = 0;
///@}

/** The unit label; empty outside the kinds 0 to 7 and the systems 0 and 1. */
std::wstring_view UnitLabel(int kind, int system) noexcept;

/** A native value in the units of display. */
double ToDisplay(int kind, int system, double native) noexcept;

/** A displayed value in native units. */
double ToNative(int kind, int system, double displayed) noexcept;

/** Whether texts with units take the feet-and-inches form. */
bool IsFeet(int kind, int system) noexcept;

/** Characters that every text of WriteFeet() fits into. */
inline constexpr std::size_t feetTextMax = fixedTextMax + 2;

/** Feet and inches below 100 feet, whole feet from there on; returns the end of the text, which has no
 * terminator. */
wchar_t* WriteFeet(wchar_t* out, double feet) noexcept;

} // namespace vant::detail
