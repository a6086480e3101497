#pragma once

#include "demo/detail/Quantities.h"

#include <array>
#include <vector>

namespace demo
{

/** The demonstration's alarms, by the number that the library's alarm console knows them by. */
enum class AlarmId : unsigned long { ShallowWater = 3001, LostFix = 3002 };

inline constexpr std::array<AlarmId, 2> alarmIds = {AlarmId::ShallowWater, AlarmId::LostFix};

/** An alarm's beginning or end. */
struct AlarmEvent {
    double time = 0.0; ///< seconds on the tape
    AlarmId id = AlarmId::ShallowWater;
    bool begins = false;
    double value = missing; ///< shallow water: the depth in metres; lost fix: seconds without a position
};

/** Decides when an alarm begins and ends. An alarm that has begun does not flicker: it ends when its cause is
 * gone with something to spare. Times must not decrease from call to call. */
class AlarmWatch
{
public:
    static constexpr double depthSpare = 0.5;  ///< metres below the limit's depth that end the alarm
    static constexpr double usualSearch = 5.0; ///< see SetLongestSearch()
    static constexpr double steadyFix = 2.0;   ///< seconds of uninterrupted positions that end a search
    static constexpr double longestGap = 3.2;  ///< seconds between two positions of one steady fix

    /** Sets the least safe depth in metres; nothing is shallow at 0. Holds from the next sounding on. */
    void SetShallowLimit(double metres) noexcept { m_limit = metres; }
    double ShallowLimit() const noexcept { return m_limit; }

    /** Sets how many seconds without a position begin the alarm. */
    void SetLongestSearch(double seconds) noexcept { m_longestSearch = seconds; }

    /** Takes a sounding in metres. A missing one tells nothing: an alarm stays as it is. */
    void Sound(double time, double depth);

    /** Takes a receiver's report, with or without a position. */
    void Fix(double time, bool valid);

    /** Lets time pass: silence is a lost fix too. Watching begins at 0, as if there had been a fix then. */
    void Pass(double time);

    /** Ends what is on, for a tape that starts again, and forgets all but the limits and the events. */
    void Restart(double time);

    bool IsOn(AlarmId id) const noexcept;

    /** Seconds since the last position. */
    double SearchTime(double time) const noexcept { return time - m_lastFix; }

    /** Hands over the events since the last call, oldest first. */
    std::vector<AlarmEvent> TakeEvents();

private:
    void Report(const AlarmEvent& event);

    double m_limit = 0.0;
    double m_longestSearch = usualSearch;
    double m_lastFix = 0.0;
    double m_fixSince = missing; // when the present fix was found; missing during a search
    double m_searched = 0.0;     // how long the last search took
    double m_lastDepth = missing;
    bool m_shallow = false;
    bool m_lost = false;
    std::vector<AlarmEvent> m_events;
};

} // namespace demo
