#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <numbers>

namespace demo
{

/** What the instruments show. Values are in SI units; angles are radians, bearings clockwise from north. */
enum class Quantity : std::uint8_t {
    UtcTime,              ///< seconds of the day
    Latitude,             ///< radians, north positive
    Longitude,            ///< radians, east positive
    FixQuality,           ///< as in GGA: 0 none, 1 single, 2 differential, 4 and 5 kinematic
    Satellites,           ///< used in the fix
    Hdop,                 ///< horizontal dilution of precision
    SpeedOverGround,      ///< m/s
    CourseOverGround,     ///< radians
    Heading,              ///< radians, true
    TurnRate,             ///< radians per second, positive to starboard
    DepthBelowTransducer, ///< metres
    DepthBelowSurface,    ///< metres
    ApparentWindAngle,    ///< radians clockwise from the bow, where the wind comes from
    ApparentWindSpeed,    ///< m/s
    TrueWindAngle,        ///< radians clockwise from the bow
    TrueWindSpeed,        ///< m/s
    WaterTemperature,     ///< degrees Celsius
    SpeedThroughWater,    ///< m/s
    Count
};

inline constexpr std::size_t quantityCount = static_cast<std::size_t>(Quantity::Count);

/** The value that stands for "no reading" wherever values are shown. */
inline constexpr double missing = -32768.0;

constexpr bool IsMissing(double value) noexcept
{
    return value == missing;
}

inline constexpr double twoPi = 2.0 * std::numbers::pi;
inline constexpr double degree = std::numbers::pi / 180.0; ///< radians
inline constexpr double knot = 1852.0 / 3600.0;            ///< m/s
inline constexpr double secondsPerDay = 86400.0;

/** Array with one element for each quantity, indexed by the quantity itself. */
template <typename T>
struct PerQuantity {
    std::array<T, quantityCount> items{};

    constexpr T& operator[](Quantity q) noexcept { return items[static_cast<std::size_t>(q)]; }
    constexpr const T& operator[](Quantity q) const noexcept { return items[static_cast<std::size_t>(q)]; }
};

} // namespace demo
