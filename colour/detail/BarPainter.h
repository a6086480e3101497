#pragma once

#include "colour/detail/BarScale.h"

#include <afxwin.h>

class CColTbl;

namespace vant::detail
{

/** Paints a table as a bar whose every pixel has the colour that CPal::GetCol() gives to the value there, and
 * beside it the scale: a mark and a text at round values. Lengths are units; text is in the font and colour
 * of the device context, marks in its pen. */
struct BarPainter {
    const CColTbl& tbl;
    double start = 0; ///< value at the beginning: the left, of an upright bar the bottom
    double end = 1;
    bool wrap = false;      ///< as CPal::wrap
    bool isUpright = false; ///< scale at the right instead of below
    int units = -1;         ///< kind of the values (EUnits), which are shown in the units of the system

    static constexpr int markSize = 4; ///< of the scale's marks

    /** Room that the scale takes beside the bar: below a lying one, at the right of an upright one. */
    int ScaleRoom(CDC& dc, int length) const;
    void DrawStrip(CDC& dc, const CRect& strip) const;
    /** Draws marks and texts beside a strip. */
    void DrawScale(CDC& dc, const CRect& strip) const;

private:
    std::vector<BarLabel> Labels(CDC& dc, int length) const;
    bool IsTurned() const;
};

} // namespace vant::detail
