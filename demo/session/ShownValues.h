#pragma once

#include "demo/detail/Playback.h"
#include "values/CEVal.h"

#include <string>

namespace demo
{

/** The application's variables, one for each quantity, and the typed values bound to them, which turn them
 * into text in the unit system that is on (`EUnits::system`). */
class ShownValues
{
public:
    ShownValues();

    ShownValues(const ShownValues&) = delete;
    ShownValues& operator=(const ShownValues&) = delete;

    /** Copies the readings into the variables; what is too old or not reported becomes demo::missing. */
    void Take(const Playback& playback);

    /** The typed value of a quantity. */
    const CEVal& Value(Quantity quantity) const noexcept { return m_values[quantity]; }

    /** The text of a quantity, without its unit. */
    std::wstring Text(Quantity quantity) const { return TextOf(m_values[quantity]); }

    /** The unit of a quantity; empty for a plain number. */
    std::wstring Unit(Quantity quantity) const;

    /** A speed in knots whatever the unit system, with its unit: what a helmsman reads. */
    std::wstring KnotsText(Quantity speed) const;

    /** The one place where a value becomes text: dashes of the value's shape when it is missing, and never a
     * negative zero. */
    static std::wstring TextOf(const CEVal& value);

    /** The text of a length in metres that is no quantity of its own. */
    static std::wstring LengthText(double metres, int decimals);

private:
    PerQuantity<double> m_variables;
    PerQuantity<CEVal> m_values;
};

/** The unit kinds of EUnits that are shown here. */
enum UnitKind : int { noUnit = -1, lengthUnit = 0, temperatureUnit = 1, speedUnit = 2 };

/** The label of a unit kind in the unit system that is on. */
std::wstring UnitText(UnitKind kind);

/** A length in metres in the unit system that is on; demo::missing stays. */
double DisplayLength(double metres) noexcept;

/** How many metres the unit of length of the system that is on has. */
double LengthUnitMetres() noexcept;

} // namespace demo
