#pragma once

#include "demo/detail/AlarmWatch.h"

#include <afxwin.h>

#include <cstddef>
#include <fstream>
#include <string>

namespace demo
{

/** Hands alarms to the library, at level 1 when they begin and silently at level -1 when they end, and adds
 * each to a file: date and time, id, level and quoted text, separated by commas. */
class CAlarmLog
{
public:
    static constexpr int beginLevel = 1;
    static constexpr int endLevel = -1;

    /** Opens "Logs\Alarms.csv" below a directory, which ends with a backslash; what is in the file stays.
     *  @return false when it cannot be written */
    bool Open(const std::wstring& dir);

    /** Records a beginning or an end. @param limit the least safe depth in metres
     *  @return the text that was recorded, in the unit system that is on */
    std::wstring Record(const AlarmEvent& event, double limit);

    /** How many alarms have begun. */
    std::size_t Count() const noexcept { return m_count; }

    const std::wstring& Path() const noexcept { return m_path; }
    bool IsGood() const { return m_file.good(); }

private:
    std::wstring m_path;
    std::ofstream m_file;
    std::size_t m_count = 0;
};

/** A depth as alarms tell it, with its unit: "13.2m", "43ft 4in". */
std::wstring DepthText(double metres);

/** What an alarm that is on says: "Shallow water: 13.2m, limit 14.0m". */
std::wstring ShallowText(double depth, double limit);

/** "No position for 7 s". */
std::wstring LostFixText(double seconds);

} // namespace demo
