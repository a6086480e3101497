#include "colour/detail/BarScale.h"

#include "core/detail/NumberText.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

namespace
{

std::wstring TextOf(double value)
{
    wchar_t text[generalTextMax];
    return {text, WriteGeneral(text, value)};
}

/** The labels at the multiples of a step, without regard to each other. */
std::vector<BarLabel> LabelsAt(const BarScale& scale, double step, const TextSize& textSize)
{
    constexpr double slack = 1e-9; // of a step: a multiple at the very end is inside
    const double first = std::ceil(std::min(scale.start, scale.end) / step - slack);
    const double last = std::floor(std::max(scale.start, scale.end) / step + slack);
    std::vector<BarLabel> labels;
    for (double i = first; i <= last; ++i) {
        const double value = i * step + 0.0; // no negative zero
        const double share = (value - scale.start) / (scale.end - scale.start);
        BarLabel label;
        label.at = std::clamp(static_cast<int>(std::lround(share * scale.length)), 0, scale.length);
        label.text = TextOf(value);
        label.size = textSize(label.text);
        label.first = std::clamp(label.at - label.size / 2, 0, std::max(0, scale.length - label.size));
        labels.push_back(std::move(label));
    }
    if (scale.end < scale.start)
        std::reverse(labels.begin(), labels.end());
    return labels;
}

bool AreApart(const std::vector<BarLabel>& labels, int gap)
{
    return std::adjacent_find(labels.begin(), labels.end(), [gap](const BarLabel& a, const BarLabel& b) {
               return a.first + a.size + gap > b.first || a.text == b.text;
           }) == labels.end();
}

} // namespace

std::vector<BarLabel> BarLabels(const BarScale& scale, const Rounding& rounding, const TextSize& textSize)
{
    const double range = std::abs(scale.end - scale.start);
    if (!std::isfinite(range) || range == 0 || scale.length <= 0)
        return {};
    // Six digits are written: steps that they do not show would give the same text again and again.
    constexpr double finest = 1e-7;
    const double largest = std::max(std::abs(scale.start), std::abs(scale.end));
    if (range < largest * finest)
        return {};

    constexpr int densest = 16;    // room of the shortest label, its gap included
    constexpr double growth = 1.3; // less than from one round number to the next
    const double most = std::max(1, scale.length / densest);
    double step = 0;
    for (double wanted = range / most; wanted <= range * growth; wanted *= growth) {
        const double round = rounding(wanted);
        if (!(round > step) || range / round > most + 1)
            continue;
        step = round;
        std::vector<BarLabel> labels = LabelsAt(scale, step, textSize);
        if (AreApart(labels, scale.gap))
            return labels;
    }
    return {};
}

} // namespace vant::detail
