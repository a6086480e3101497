#pragma once

/** A pair of times, such as what a source read and the time base at that moment. `CTmVal v;` deliberately
 *  holds nothing in particular; `CTmVal v{};` holds zeros. */
class CTmVal
{
public:
    CTmVal() = default;
    /** Both times, seconds. */
    CTmVal(double yVal, double xVal) noexcept
        : y(yVal)
        , x(xVal)
    {
    }

    double y; ///< what a source read
    double x; ///< time base, seconds since 1980
};
