#pragma once

#include "demo/PlannedRoute.h"
#include "display/CMdl.h"

namespace demo
{

/** The planned route: dashed, between the edges of its corridor, with the numbers of its lines on a chart. */
class CPlanMdl : public CMdl
{
public:
    /** @param route  outlives it */
    explicit CPlanMdl(const PlannedRoute& route);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

private:
    void DrawLine(const CRoute& line, const CV3& org) const;
    void LabelLines(CDsp& dsp) const;

    const PlannedRoute& m_route;
};

} // namespace demo
