#pragma once

#include "demo/detail/AlarmWatch.h"
#include "demo/detail/History.h"
#include "demo/detail/Mounting.h"
#include "demo/detail/NmeaReadings.h"
#include "demo/detail/Tape.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace demo
{

/** How far the reading of an instrument can be trusted. */
enum class Freshness {
    Live,  ///< as young as its sensor allows
    Stale, ///< the sensor has fallen silent; the last value is still known
    None   ///< never seen, reported as missing, or too old to be shown
};

/** The instruments on board, as far as they fail together. */
enum class Sensor : std::uint8_t { Position, Heading, Depth, Wind, WaterSpeed, Temperature, Count };

inline constexpr std::size_t sensorCount = static_cast<std::size_t>(Sensor::Count);

/** Name of a sensor in lower case: "position". */
const char* SensorName(Sensor sensor) noexcept;

/** The quantity whose freshness stands for the whole sensor. */
Quantity SensorQuantity(Sensor sensor) noexcept;

/** A drop-out's beginning or end. */
struct SensorEvent {
    double time = 0.0; ///< seconds on the tape
    Sensor sensor = Sensor::Count;
    bool lost = false;   ///< true at the beginning, false at the end
    double outage = 0.0; ///< at the end: how long the readings were away, seconds
};

/** What was read so far. */
struct LineCounts {
    std::size_t read = 0;     ///< lines, all of the following
    std::size_t accepted = 0; ///< lines whose readings were taken
    std::size_t ignored = 0;  ///< sound lines of other types
    std::size_t rejected = 0; ///< damaged lines
};

/** A position of the track; the angles are radians. */
struct TrackPoint {
    double latitude = missing;
    double longitude = missing;
    bool joined = false;    ///< the track runs here from the point before; false after a drop-out
    double depth = missing; ///< metres below the surface, missing while the sounder is silent
};

/** A sounding of the depth graph. */
struct DepthSample {
    double time = 0.0;      ///< seconds on the tape
    double depth = missing; ///< metres below the surface, missing in a drop-out
};

/** Plays a tape: holds the latest reading of everything, its age, and a bounded past. What it holds at a time
 * does not depend on the steps in which that time was reached. The tape must outlive it. */
class Playback
{
public:
    static constexpr std::size_t trackCapacity = 7200;  ///< two hours at one position a second
    static constexpr std::size_t depthCapacity = 7200;  ///< an hour at two soundings a second
    static constexpr std::size_t eventCapacity = 10000; ///< events that nobody has taken yet

    explicit Playback(const Tape& tape);

    /** Goes on by `seconds` of the tape; a negative time or one that is no number goes nowhere. Beyond the
     * end the clock runs on and the readings grow old. */
    void Advance(double seconds);

    /** Starts again at the beginning, with nothing known and nothing counted. Alarms end; their limits and
     * the mounting stay. */
    void Rewind();

    double Time() const noexcept { return m_time; }
    bool AtEnd() const noexcept { return m_next >= m_tape->Size(); }

    /** The last value of a quantity, however old; missing when there was none, or the last report was empty.
     */
    double Value(Quantity quantity) const noexcept { return m_values[quantity].value; }

    /** Seconds since the last report of a quantity, whatever it said; negative when there was none. */
    double Age(Quantity quantity) const noexcept;

    Freshness State(Quantity quantity) const noexcept { return StateAt(quantity, m_time); }
    Freshness State(Sensor sensor) const noexcept { return State(SensorQuantity(sensor)); }

    const LineCounts& Counts() const noexcept { return m_counts; }
    const History<TrackPoint>& Track() const noexcept { return m_track; }
    const History<DepthSample>& Depths() const noexcept { return m_depths; }

    /** Hands over the events since the last call, oldest first. */
    std::vector<SensorEvent> TakeEvents();

    /** Sets how the echo sounder is mounted; holds from the next sounding on. */
    void SetMounting(const Mounting& mounting) noexcept { m_mounting = mounting; }
    const Mounting& Mounted() const noexcept { return m_mounting; }

    /** Lines that have been played, damaged ones too; each is Tape::Line() of its number. */
    std::size_t Played() const noexcept { return m_next; }

    /** The alarms, which follow every line of the tape. */
    AlarmWatch& Alarms() noexcept { return m_alarms; }
    const AlarmWatch& Alarms() const noexcept { return m_alarms; }

private:
    struct Held {
        double value = missing;
        double time = 0.0;
        bool seen = false;
    };

    struct Watch {
        bool seen = false; // live at least once
        bool live = false;
        double lastGood = 0.0; // time of the last reading that was not missing
    };

    Freshness StateAt(Quantity quantity, double time) const noexcept;
    void PlayLine(std::size_t index);
    void Keep(const NmeaReadings& readings, double time);
    double Corrected(const NmeaReadings& readings, const Reading& reading) const noexcept;
    void WatchSensors(double time);
    void Report(const SensorEvent& event);

    const Tape* m_tape;
    std::size_t m_next = 0;
    double m_time = 0.0;
    PerQuantity<Held> m_values;
    LineCounts m_counts;
    History<TrackPoint> m_track{trackCapacity};
    History<DepthSample> m_depths{depthCapacity};
    std::array<Watch, sensorCount> m_watches{};
    std::vector<SensorEvent> m_events;
    AlarmWatch m_alarms;
    Mounting m_mounting;
};

} // namespace demo
