#include "demo/detail/Mounting.h"

#include <algorithm>
#include <cmath>

namespace demo
{

double Mounting::DepthPart() const noexcept
{
    return std::sin(std::clamp(slope, 0.0, upright));
}

double Mounting::SidePart() const noexcept
{
    return slope >= upright ? 0.0 : std::cos(std::max(slope, 0.0));
}

} // namespace demo
