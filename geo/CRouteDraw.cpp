// CRoute: drawing.
#include "geo/CRoute.h"

#include "core/CV3.h"
#include "geo/detail/GeoDrawing.h"

using namespace vant::detail;

namespace
{

void Follow(const CRoute& route, GeoDrawing& drawing)
{
    for (CVantPtr* pos = route.GetHeadPos(); pos;) {
        if (const CRtV3* const node = route.GetNext(pos))
            drawing.To(node->Pos());
    }
}

} // namespace

void CRoute::DwLineRt(CDsp& dsp) const
{
    GeoDrawing drawing(dsp);
    Follow(*this, drawing);
    drawing.DrawLine(GL_LINE_STRIP);
}

void CRoute::DwSolidRt(CDsp& dsp, double width) const
{
    GeoDrawing drawing(dsp);
    drawing.KeepLight();
    Follow(*this, drawing);
    drawing.DrawRibbon(width);
}

void CRoute::DwMrkrs(CDsp&) {}

void CRoute::DwMrkr(CDsp& dsp, const CRtV3& at, double size)
{
    GeoDrawing(dsp).Diamond(at.Pos(), size);
}
