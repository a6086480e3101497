#pragma once

#include "demo/detail/History.h"
#include "demo/detail/Playback.h"

#include <vector>

namespace demo
{

/** How often each depth was sounded: the soundings between `start` and `end` metres, in `classes` of equal
 *  width, each as a part of the most frequent class. All 0 without a sounding; empty without a range. */
std::vector<double> DepthShares(const History<DepthSample>& soundings, double start, double end, int classes);

} // namespace demo
