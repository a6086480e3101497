#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

/** One of the strips of a chart (CEChart), which stand above each other over the same time: the axis that the
 * traces in it share. Made by CEChart::AddStrip(); its fields may be changed at any time, and are drawn with
 * the next Update(). */
class VANT_API CEStrip
{
public:
    /** Values of #range. */
    enum Range {
        rangeAuto = 0,  ///< round numbers around what is shown
        rangeFixed = 1, ///< #rangeMin to #rangeMax
    };

    CString title;         ///< shown above the strip, with the unit
    int units = -1;        ///< unit kind of EUnits in which all traces of the strip are; -1 for none
    double scale = 1.0;    ///< display scale: values are multiplied by it before they are converted
    int decimals = -1;     ///< decimal places of the values that are read out; below 0 as the axis needs
    int range = rangeAuto; ///< Range; persistent
    double rangeMin = 0.0; ///< of a fixed range, in the unit of the values; persistent
    double rangeMax = 1.0; ///< above #rangeMin, or else the range is found as by rangeAuto; persistent
    int reversed = 0;      ///< non-zero: values grow downwards, as depths do
    int share = 1;         ///< of the height, compared with the other strips; 0 hides the strip
};
