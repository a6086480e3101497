#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/** @file
 *  The scale beside a bar of colours: which values are written on it, and where. */

namespace vant::detail
{

/** A value that is written beside a bar. */
struct BarLabel {
    int at = 0;        ///< where the value is, from the bar's beginning
    int first = 0;     ///< where its text begins
    int size = 0;      ///< room of the text along the bar
    std::wstring text; ///< "%lg"
};

struct BarScale {
    double start = 0; ///< value at the bar's beginning, as shown
    double end = 0;   ///< value at its end; less than `start` for one that runs backwards
    int length = 0;   ///< of the bar, in the unit of the labels' places
    int gap = 0;      ///< room to keep between two labels
};

/** The round number nearest to a positive one. */
using Rounding = std::function<double(double)>;
/** The room of a text along the bar. */
using TextSize = std::function<int(std::wstring_view)>;

/** The labels at whole multiples of a round step, the smallest one at which no two texts overlap or are the
 * same; in order from the bar's beginning. The middle of a text is at its value, except that texts stay
 * within the bar's length as far as they fit. None where the values are not finite or the same, or differ by
 * too little for their size. */
std::vector<BarLabel> BarLabels(const BarScale& scale, const Rounding& rounding, const TextSize& textSize);

} // namespace vant::detail
