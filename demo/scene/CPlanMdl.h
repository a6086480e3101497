#pragma once

#include "demo/scene/PlannedRoute.h"
#include "display/CMdl.h"

namespace demo
{

/** The planned route: dashed, between the edges of its corridor, with the numbers of its lines on a chart.
 *  It is picked on charts only: in a scene it would lie before what stands behind. */
class CPlanMdl : public CMdl
{
public:
    /** Information message of its menu: a view is to show all of the route. Its data is the view. */
    static constexpr int showInfo = 7003;

    /** @param route  outlives it */
    explicit CPlanMdl(const PlannedRoute& route);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;
    /** "Show the planned route". */
    int OnMenu(CDsp& dsp, CEMenu& menu) override;

private:
    void DrawLine(const CRoute& line, const CV3& org) const;
    void LabelLines(CDsp& dsp) const;

    const PlannedRoute& m_route;
};

} // namespace demo
