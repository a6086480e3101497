#include "demo/detail/DepthShares.h"

#include <algorithm>

namespace demo
{

std::vector<double> DepthShares(const History<DepthSample>& soundings, double start, double end, int classes)
{
    if (classes <= 0 || !(end > start))
        return {};
    std::vector<double> shares(static_cast<std::size_t>(classes));
    for (std::size_t i = 0; i < soundings.Size(); ++i) {
        const double part = (soundings[i].depth - start) / (end - start);
        if (part >= 0.0 && part < 1.0) // a missing one is neither
            ++shares[static_cast<std::size_t>(part * classes)];
    }
    const double most = *std::ranges::max_element(shares);
    for (double& share : shares)
        share /= std::max(most, 1.0);
    return shares;
}

} // namespace demo
