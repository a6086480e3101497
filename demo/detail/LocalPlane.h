#pragma once

namespace demo
{

/** A place on the plane around an origin, metres. */
struct GroundPoint {
    double east = 0.0;
    double north = 0.0;
};

/** The plane that touches the earth at a position: a map of a few kilometres. Angles are radians. */
class LocalPlane
{
public:
    LocalPlane() = default;
    LocalPlane(double latitude, double longitude) noexcept;

    GroundPoint PlaceOf(double latitude, double longitude) const noexcept;

    /** Whether it lies at this position. */
    bool IsAt(double latitude, double longitude) const noexcept
    {
        return m_latitude == latitude && m_longitude == longitude;
    }

private:
    double m_latitude = 0.0;
    double m_longitude = 0.0;
    double m_cosine = 1.0;
};

} // namespace demo
