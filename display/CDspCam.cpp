#include "display/CDspCam.h"

#include "display/detail/ViewCameraOf.h"
#include "settings/CESetObj.h"

#include <algorithm>
#include <cmath>

using namespace vant::detail;

namespace
{

constexpr double minFov = ML::D2R(1);
constexpr double maxFov = ML::D2R(120);

void TakeNumber(double& number, double wanted, double least, double most) noexcept
{
    if (std::isfinite(wanted))
        number = std::clamp(wanted, least, most);
}

double Turn(double angle) noexcept
{
    const double rest = std::fmod(angle, ML::pi2);
    const double turn = rest < 0 ? rest + ML::pi2 : rest;
    return turn < ML::pi2 ? turn : 0; // a tiny negative one is rounded up to the whole turn
}

} // namespace

int CDspCam::operator==(const CDspCam& other) const noexcept
{
    return kind == other.kind && org == other.org && zoom == other.zoom && align == other.align &&
           elev == other.elev && fov == other.fov;
}

int CDspCam::Take(const CDspCam& wanted) noexcept
{
    const CDspCam before = *this;
    if (wanted.kind == plan || wanted.kind == orbit)
        kind = wanted.kind;
    TakeNumber(org.x, wanted.org.x, -maxOrg, maxOrg);
    TakeNumber(org.y, wanted.org.y, -maxOrg, maxOrg);
    TakeNumber(org.z, wanted.org.z, -maxOrg, maxOrg);
    TakeNumber(zoom, wanted.zoom, minZoom, maxZoom);
    if (std::isfinite(wanted.align))
        align = Turn(wanted.align);
    TakeNumber(elev, wanted.elev, -ML::pi_2, ML::pi_2);
    TakeNumber(fov, wanted.fov, minFov, maxFov);
    return !(*this == before);
}

CV3 CDspCam::Right() const noexcept
{
    return FromPoint(AxesOf(ViewCameraOf(*this)).right);
}

CV3 CDspCam::Up() const noexcept
{
    return FromPoint(AxesOf(ViewCameraOf(*this)).up);
}

CV3 CDspCam::Front() const noexcept
{
    return FromPoint(AxesOf(ViewCameraOf(*this)).front);
}

double CDspCam::Dist() const noexcept
{
    return EyeDistance(ViewCameraOf(*this));
}

void CDspCam::SetDist(double dist) noexcept
{
    zoom = dist * 2 * std::tan(fov / 2);
}

CV3 CDspCam::Eye() const noexcept
{
    CDspCam orbiting = *this;
    orbiting.kind = orbit;
    return org + orbiting.Front() * Dist();
}

void CDspCam::Settings(CESetObj& obj)
{
    CDspCam loaded = *this;
    obj.Item(L"CamKind", loaded.kind);
    // A single number of the settings has six digits, which is metres far away from zero.
    if (obj.IsStoring())
        obj.Add(L"CamOrg", L"%.3f, %.3f, %.3f", org.x, org.y, org.z);
    else
        obj.Item(L"CamOrg", loaded.org);
    obj.Item(L"CamZoom", loaded.zoom);
    obj.Item(L"CamAlign", loaded.align);
    obj.Item(L"CamElev", loaded.elev);
    obj.Item(L"CamFov", loaded.fov);
    Take(loaded);
}
