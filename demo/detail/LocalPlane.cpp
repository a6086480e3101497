#include "demo/detail/LocalPlane.h"

#include "demo/detail/Scale.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

constexpr double earthRadius = 6371000.0; // metres, mean
constexpr double leastCosine = 1.0e-6;    // at the poles

} // namespace

LocalPlane::LocalPlane(double latitude, double longitude) noexcept
    : m_latitude(latitude)
    , m_longitude(longitude)
    , m_cosine(std::max(std::cos(latitude), leastCosine))
{
}

GroundPoint LocalPlane::PlaceOf(double latitude, double longitude) const noexcept
{
    return {TurnBetween(m_longitude, longitude) * m_cosine * earthRadius,
            (latitude - m_latitude) * earthRadius};
}

} // namespace demo
