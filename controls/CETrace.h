#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

/** One of the lines of a chart (CEChart). Made by CEChart::AddTrace(); its fields may be changed at any time,
 * and are drawn with the next Update(). */
class VANT_API CETrace
{
public:
    CString name;                        ///< shown above the strip
    COLORREF colour = RGB(98, 203, 255); ///< AddTrace() gives each trace one of its own
    int visible = 1;                     ///< 0: only the name is shown, dimmed; persistent
    int fill = 0;                        ///< non-zero: what is under the line is shaded
    double width = 1.5;                  ///< of the line, units

    /** Its number, for CEChart::Add(). */
    int Index() const noexcept { return m_index; }
    /** Number of the strip that it is in. */
    int Strip() const noexcept { return m_strip; }

private:
    friend class CEChart;

    int m_index = 0;
    int m_strip = 0;
};
