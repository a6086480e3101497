#pragma once

/** One sample of a time source and the straight line that leads to it from the sample before: y = m x + c. */
class CTmEnt
{
public:
    double x = 0.0; ///< time base at the sample, seconds since 1980
    double y = 0.0; ///< what the source read
    double m = 1.0; ///< slope from the sample before; 1 until there is one
    double c = 0.0; ///< intercept of that line; 0 until there is one
};
