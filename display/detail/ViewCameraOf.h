#pragma once

#include "core/CV3.h"
#include "display/CDspCam.h"
#include "display/detail/ViewGeometry.h"

/** @file
 *  Between the public classes and the geometry, which knows none of them. */

namespace vant::detail
{

inline Point3 ToPoint(const CV3& v) noexcept
{
    return {v.x, v.y, v.z};
}

inline CV3 FromPoint(const Point3& v) noexcept
{
    return {v.x, v.y, v.z};
}

inline ViewCamera ViewCameraOf(const CDspCam& cam) noexcept
{
    return {cam.kind == CDspCam::orbit, ToPoint(cam.org), cam.zoom, cam.align, cam.elev, cam.fov};
}

} // namespace vant::detail
