#pragma once

#include "core/VantApi.h"

#include <afx.h>

#include <vector>

namespace vant::detail
{

/** What one tick of the polling thread found out: the contents of the status lines. */
struct TickReport {
    struct Source {
        CString name;
        double off; ///< of the last reading from the fit, ms
        double m;
        double c;
    };

    std::vector<Source> sources; ///< in the order of the list
    double clock = 0.0;          ///< system clock, seconds since 1970
    double base = 0.0;           ///< time base, seconds since 1980
    double elapsed = 0.0;        ///< since the start, s
    double err = 0.0;            ///< mean of clock less time base, ms
    double advance = 0.0;        ///< mean advance of the clock from tick to tick, ms
    long long scale = 0;         ///< counts per second
    double slowest = 0.0;        ///< the longest that a source took to answer, s
    double took = 0.0;           ///< the whole tick, s
};

/** Writes the status lines: 4100 onwards for the sources, 4000 to 4002 for the clocks. */
VANT_API void WriteStatus(const TickReport& report);

} // namespace vant::detail
