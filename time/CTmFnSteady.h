#pragma once

#include "time/CTmFn.h"

#include <memory>

namespace vant::detail
{
class SteadyLine;
}

/** A source in front of another one whose readings jitter: it reads as the other would on the average of
 *  hours.
 *
 *  The other's readings of each minute become one point, without those that do not agree, and a line through
 *  the points of the last hours gives the reading. With readings that are off by 10 ms (standard deviation),
 *  30 % of them plain wrong, the rate is within 7e-8 and the reading within 0.5 ms after four hours, in 19 of
 *  20 runs; after one hour within 4e-7 and 0.9 ms.
 *
 *  Add this one to TmSync, and the other one only if its own status line is wanted too: each is polled for
 *  itself. Until the first minute is over it reads what the other does. While the other fails or stands still
 *  it goes on along the line. When the other is set anew it follows after two minutes, with its rate as good
 *  as before. A rate that itself wanders, as of a clock that warms up, wants shorter records than one that
 *  does not. */
class VANT_API CTmFnSteady : public CTmFn
{
public:
    /** @param source  not owned; must live as long as this one is polled
     *  @param hours  length of the record, up to a day; beyond 4 hours the points are made of more than a
     * minute each. 10 minutes at least */
    explicit CTmFnSteady(CTmFn& source, double hours = 4.0);
    ~CTmFnSteady() override;

    /** @param value  the steadied reading now  @return what the other's PollTm() returned */
    int PollTm(double& value) override;

private:
    CTmFn& m_source;
    const std::unique_ptr<vant::detail::SteadyLine> m_line;
};
