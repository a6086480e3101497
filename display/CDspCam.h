#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

class CESetObj;

/** The camera of a view: what point it looks at, from where, and how much it shows. A value: set fields, then
 * give it to CDsp::SetCam().
 *
 *  It looks at the origin, which is in the middle of the view. The plan camera looks straight down without
 * perspective, as a chart does. The orbit camera stands on a sphere around the origin, at a bearing and an
 * elevation, and shows what is farther away smaller. Both share origin, zoom and alignment, so that changing
 * between them stays at the place.
 *
 *  Lengths are metres in display coordinates (x east, y north, z up), angles radians. */
class CDspCam
{
public:
    /** How a camera sees. */
    enum Kind {
        plan, ///< orthographic, from above
        orbit ///< perspective, around the origin
    };

    static constexpr double minZoom = 0.05; ///< lower limit of #zoom, metres
    static constexpr double maxZoom = 1e8;  ///< upper limit of #zoom, metres
    static constexpr double maxOrg = 1e12;  ///< limit of each coordinate of #org, either way

    int kind = plan; ///< Kind
    CV3 org;         ///< what the middle of the view shows
    /** Metres of the display from the lower to the upper edge of the view, at the origin: smaller numbers
     * show more detail. The same whatever size, resolution or DPI the view has; CDsp::PxSize() tells how much
     * of it a pixel is. */
    double zoom = 1000;
    /** The bearing that is up in the view, [0, 2 pi): 0 is north up, a ship's course is course up. The orbit
     * camera looks in this direction. */
    double align = 0;
    double elev = ML::D2R(35); ///< of the orbit camera above the horizon, -pi/2 .. pi/2
    double fov = ML::D2R(40);  ///< angle of the orbit camera from the lower to the upper edge, 1 .. 120 deg

    /** Exact equality of all values. */
    VANT_API int operator==(const CDspCam& other) const noexcept;

    /** Takes what is valid in another camera: numbers that are not finite leave the own ones, numbers beyond
     * their limits are brought to these, and the alignment into its range. @return non-zero if this changed
     */
    VANT_API int Take(const CDspCam& wanted) noexcept;

    /** @name Directions, of length 1 */
    ///@{
    /** To the right edge of the view. */
    VANT_API CV3 Right() const noexcept;
    /** To its upper edge. */
    VANT_API CV3 Up() const noexcept;
    /** Towards the eye. */
    VANT_API CV3 Front() const noexcept;
    /** @} */

    /** @name The orbit camera's eye */
    ///@{
    /** Its distance from the origin, metres, which follows from #zoom and #fov. */
    VANT_API double Dist() const noexcept;
    /** Brings the eye to a distance by setting #zoom. */
    VANT_API void SetDist(double dist) noexcept;
    /** Its place. */
    VANT_API CV3 Eye() const noexcept;
    /** @} */

    /** Exchanges "CamKind", "CamOrg", "CamZoom", "CamAlign", "CamElev" and "CamFov". The origin is kept to
     * the millimetre, however far away it is; what is loaded goes through Take(). */
    VANT_API void Settings(CESetObj& obj);
};
