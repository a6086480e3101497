#pragma once

#include <cstdint>

class CEVal;

namespace vant::detail
{

/** @file
 *  The bound variable of a control as a number, 64-bit integers included, which CEVal::GetVal() passes by.
 *  Each call is one access under the value's mutex. */

/** Whether an integer of any width is bound. */
bool IsInteger(const CEVal& value) noexcept;

/** Whether an integer or a floating number is bound. */
bool IsNumber(const CEVal& value) noexcept;

/** The bound integer; 0 where none is bound. */
std::int64_t IntegerOf(const CEVal& value);

/** Writes an integer, of which a narrow variable keeps the low bits; nothing where none is bound. */
void PutInteger(CEVal& value, std::int64_t number);

/** What IntegerOf() gives after PutInteger() of this number. */
std::int64_t AsHeld(const CEVal& value, std::int64_t number) noexcept;

/** The bound number; NaN where none is bound, and for a floating one that marks missing data. */
double NumberOf(const CEVal& value);

/** Writes a number; an integer takes the nearest one that its type holds, and is left alone by NaN. Nothing
 * where no number is bound. */
void PutNumber(CEVal& value, double number);

/** The bound number exactly as it is, also one that marks missing data, to be compared and to be put back; 0
 * where none is bound. */
std::uint64_t SnapshotOf(const CEVal& value);
void PutBack(CEVal& value, std::uint64_t snapshot);

/** What an integer variable is able to hold; of any other one everything finite. */
struct NumberLimits {
    double least;
    double most;
};
NumberLimits LimitsOf(const CEVal& value) noexcept;

} // namespace vant::detail
