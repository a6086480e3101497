#pragma once

#include "demo/detail/AlarmWatch.h"

#include <string>

namespace demo
{

/** Level of an alarm that begins, which is heard and shown, and of one that ends, which only takes its place
 * in the console. */
inline constexpr int beginLevel = 1;
inline constexpr int endLevel = -1;

/** Hands the beginning or end of an alarm to the library. @param limit the least safe depth in metres
 *  @return the text, in the unit system that is on */
std::wstring RaiseAlarm(const AlarmEvent& event, double limit);

/** A depth as alarms tell it, with its unit: "13.2m", "43ft 4in". */
std::wstring DepthText(double metres);

/** What an alarm that is on says: "Shallow water: 13.2m, limit 14.0m". */
std::wstring ShallowText(double depth, double limit);

/** "No position for 7 s". */
std::wstring LostFixText(double seconds);

} // namespace demo
