#include "controls/CEFlex.h"

#include <algorithm>
#include <cmath>

namespace
{

LONG Shifted(LONG edge, double share, int growth) noexcept
{
    return static_cast<LONG>(std::floor(edge + share * growth + 0.5));
}

} // namespace

CRect CEFlex::Apply(const CRect& base, int dx, int dy) const noexcept
{
    CRect r(Shifted(base.left, left, dx), Shifted(base.top, top, dy), Shifted(base.right, right, dx),
            Shifted(base.bottom, bottom, dy));
    r.right = std::max(r.left, r.right);
    r.bottom = std::max(r.top, r.bottom);
    return r;
}
