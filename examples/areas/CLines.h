#pragma once

#include <VantCore.h>

/** A route with markers at its ends. */
class CLine : public CRoute
{
public:
    void DwMrkrs(CDsp& dsp) override
    {
        DwMrkr(dsp, *GetHead());
        DwMrkr(dsp, *GetTail());
    }
};

/** A category of routes that draws them: the corridor as a band, the route in it as a line. */
class CLines : public CRtCat
{
public:
    explicit CLines(double width)
        : m_width(width)
    {
    }
    void DrawModel(CDsp& dsp) override;

private:
    double m_width;
};
