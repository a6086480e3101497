#include "platform/Vant.h"
#include "platform/detail/Markers.h"
#include "values/EUnits.h"
#include "values/detail/UnitText.h"

#include <span>

namespace
{

double Step(double (*step)(std::span<const double>, double) noexcept, double x) noexcept
{
    using vant::detail::lengthKind;
    if (EUnits::system != vant::detail::usCustomary)
        return step(std::span<const double>(Vant::markers_SI), x);
    double feet = x;
    EUnits::N2D(lengthKind, feet);
    double marker = step(std::span<const double>(Vant::markers_USA), feet);
    // Unchanged means unchanged: the way to feet and back would cost the last digit.
    if (marker == feet || marker != marker)
        return x;
    EUnits::D2N(lengthKind, marker);
    return marker;
}

} // namespace

double Vant::NearestMkr(double x)
{
    return Step(vant::detail::NearestMarker, x);
}

double Vant::NextMkr(double x)
{
    return Step(vant::detail::NextMarker, x);
}

double Vant::PrevMkr(double x)
{
    return Step(vant::detail::PrevMarker, x);
}
