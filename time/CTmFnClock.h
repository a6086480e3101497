#pragma once

#include "time/CTmFn.h"

/** The system clock of the PC as a source, named "PC Clock": whole milliseconds, and it jumps when somebody
 *  sets it. */
class VANT_API CTmFnClock : public CTmFn
{
public:
    CTmFnClock();

    /** @param value  seconds since 1970, UTC  @return 1 */
    int PollTm(double& value) override;
};
