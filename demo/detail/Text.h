#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace demo
{

/** `value` with exactly `decimals` digits after the point, rounded, and dashes of the same shape ("--.-")
 * when it is missing or no finite number. Never a decimal comma, never a negative zero. */
std::wstring FixedText(double value, int decimals);

/** What FixedText() shows for no value. */
std::wstring Dashes(int decimals);

/** A bearing in radians as three digits of degrees, 000 to 359. */
std::wstring BearingText(double radians);

/** A latitude in radians: "54° 28.2721' N". */
std::wstring LatitudeText(double radians);

/** A longitude in radians: "010° 23.5262' E". */
std::wstring LongitudeText(double radians);

/** Seconds of the day as "09:41:20"; fractions are dropped, days beyond the first too. */
std::wstring ClockText(double seconds);

/** A length of time in seconds: "3:20", "1:02:03". */
std::wstring DurationText(double seconds);

/** An address in a network with its port: "192.168.0.40:10110". The first number is the lowest byte. */
std::wstring AddressText(unsigned long address, int port);

/** The text in single quotation marks, as messages name files and arguments. */
std::wstring Quoted(std::wstring_view text);

/** "3 sentences": a number with what it counts. */
std::wstring Counted(std::size_t count, std::wstring_view what);

} // namespace demo
