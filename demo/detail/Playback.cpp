#include "demo/detail/Playback.h"

#include <utility>

namespace demo
{
namespace
{

constexpr double droppedAge = 30.0; // seconds: older values are no longer shown at all

struct SensorInfo {
    const char* name;
    Quantity quantity;
};

constexpr std::array<SensorInfo, sensorCount> sensors = {{
    {"position", Quantity::Latitude},
    {"heading", Quantity::Heading},
    {"depth", Quantity::DepthBelowTransducer},
    {"wind", Quantity::ApparentWindSpeed},
    {"water speed", Quantity::SpeedThroughWater},
    {"water temperature", Quantity::WaterTemperature},
}};

/** Seconds after which a sensor counts as silent: three of the intervals at which it reports. */
double StaleAge(Quantity quantity) noexcept
{
    switch (quantity) {
    case Quantity::Heading:
        return 1.5;
    case Quantity::WaterTemperature:
        return 8.0;
    default:
        return 3.2;
    }
}

} // namespace

const char* SensorName(Sensor sensor) noexcept
{
    return sensors[static_cast<std::size_t>(sensor)].name;
}

Quantity SensorQuantity(Sensor sensor) noexcept
{
    return sensors[static_cast<std::size_t>(sensor)].quantity;
}

Playback::Playback(const Tape& tape)
    : m_tape(&tape)
{
}

void Playback::Advance(double seconds)
{
    if (!(seconds >= 0.0))
        return;
    m_time += seconds;
    while (m_next < m_tape->Size() && m_tape->Time(m_next) <= m_time)
        PlayLine(m_next++);
    WatchSensors(m_time);
    m_alarms.Pass(m_time);
}

void Playback::Rewind()
{
    AlarmWatch alarms = std::move(m_alarms);
    alarms.Restart(m_time);
    const Mounting mounting = m_mounting;
    *this = Playback(*m_tape);
    m_alarms = std::move(alarms);
    m_mounting = mounting;
}

double Playback::Age(Quantity quantity) const noexcept
{
    const Held& held = m_values[quantity];
    return held.seen ? m_time - held.time : -1.0;
}

std::vector<SensorEvent> Playback::TakeEvents()
{
    return std::exchange(m_events, {});
}

Freshness Playback::StateAt(Quantity quantity, double time) const noexcept
{
    const Held& held = m_values[quantity];
    const double age = time - held.time;
    if (!held.seen || IsMissing(held.value) || age > droppedAge)
        return Freshness::None;
    return age > StaleAge(quantity) ? Freshness::Stale : Freshness::Live;
}

void Playback::PlayLine(std::size_t index)
{
    const double time = m_tape->Time(index);
    WatchSensors(time);
    m_alarms.Pass(time);

    NmeaReadings readings;
    ++m_counts.read;
    switch (readings.Read(m_tape->Line(index))) {
    case Verdict::Rejected:
        ++m_counts.rejected;
        return;
    case Verdict::Ignored:
        ++m_counts.ignored;
        return;
    case Verdict::Accepted:
        ++m_counts.accepted;
        break;
    }
    Keep(readings, time);
    WatchSensors(time);
}

void Playback::Keep(const NmeaReadings& readings, double time)
{
    const bool wasLive = StateAt(Quantity::Latitude, time) == Freshness::Live;
    bool moved = false;
    for (const Reading& reading : readings.Items()) {
        if (reading.quantity == Quantity::UtcTime) {
            // GGA and RMC of one second carry the same position: the track takes it once. Without a time it
            // is not known which belong together: it takes all.
            moved = reading.value != m_values[Quantity::UtcTime].value || m_track.IsEmpty() ||
                    IsMissing(reading.value);
        }
        const double value = Corrected(readings, reading);
        m_values[reading.quantity] = {value, time, true};
        if (reading.quantity == Quantity::DepthBelowSurface) {
            m_depths.Add({time, value});
            m_alarms.Sound(time, value);
        }
        if (reading.quantity == Quantity::Latitude)
            m_alarms.Fix(time, !IsMissing(reading.value));
    }
    const double latitude = readings.Value(Quantity::Latitude);
    if (moved && !IsMissing(latitude)) {
        const bool isSounding = StateAt(Quantity::DepthBelowSurface, time) == Freshness::Live;
        m_track.Add({latitude, readings.Value(Quantity::Longitude), wasLive && !m_track.IsEmpty(),
                     isSounding ? Value(Quantity::DepthBelowSurface) : missing});
    }
}

double Playback::Corrected(const NmeaReadings& readings, const Reading& reading) const noexcept
{
    const bool belowSurface = reading.quantity == Quantity::DepthBelowSurface;
    if (IsMissing(reading.value) || (!belowSurface && reading.quantity != Quantity::DepthBelowTransducer))
        return reading.value;
    // The beam slants from the transducer down; what lies above the transducer is measured upright.
    const double along = readings.Value(Quantity::DepthBelowTransducer);
    return reading.value - (IsMissing(along) ? reading.value : along) * (1.0 - m_mounting.DepthPart());
}

void Playback::WatchSensors(double time)
{
    for (std::size_t i = 0; i < sensorCount; ++i) {
        Watch& watch = m_watches[i];
        const Sensor sensor = static_cast<Sensor>(i);
        const Quantity quantity = sensors[i].quantity;
        const bool live = StateAt(quantity, time) == Freshness::Live;
        if (live != watch.live && watch.seen) {
            const Held& held = m_values[quantity];
            // Silence is noticed at its own time, not at that of whatever line comes next.
            const double when = live || IsMissing(held.value) ? time : held.time + StaleAge(quantity);
            Report({when, sensor, !live, live ? time - watch.lastGood : 0.0});
        }
        watch.live = live;
        if (live) {
            watch.seen = true;
            watch.lastGood = m_values[quantity].time;
        }
    }
}

void Playback::Report(const SensorEvent& event)
{
    if (m_events.size() < eventCapacity)
        m_events.push_back(event);
}

} // namespace demo
