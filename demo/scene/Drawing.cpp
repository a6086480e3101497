#include "demo/scene/Drawing.h"

#include <algorithm>

namespace demo
{

void SetGlColour(COLORREF colour, GLubyte opacity)
{
    glColor4ub(GetRValue(colour), GetGValue(colour), GetBValue(colour), opacity);
}

void Widen(CMdlInf& inf, const CV3& lower, const CV3& upper)
{
    if (!inf.hasExt) {
        inf.lower = lower;
        inf.upper = upper;
        inf.hasExt = 1;
        return;
    }
    inf.lower = {std::min(inf.lower.x, lower.x), std::min(inf.lower.y, lower.y),
                 std::min(inf.lower.z, lower.z)};
    inf.upper = {std::max(inf.upper.x, upper.x), std::max(inf.upper.y, upper.y),
                 std::max(inf.upper.z, upper.z)};
}

} // namespace demo
