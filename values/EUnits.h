#pragma once

#include <afx.h>

#include "core/VantApi.h"

/** Converts quantities between the native, metric units in which an application stores them and the units in
 * which they are shown, and supplies the labels.
 *
 *  | kind | quantity    | system 0 | system 1 | shown in system 1 as   |
 *  |------|-------------|----------|----------|------------------------|
 *  | 0    | length      | m        | ft       | x * 3.28083            |
 *  | 1    | temperature | °C       | °F       | x * 1.8 + 32           |
 *  | 2    | speed       | m/s      | ft/s     | x * 3.28084            |
 *  | 3    | area        | sq m     | sq ft    | x * 10.76391           |
 *  | 4    | volume      | cu m     | cu ft    | x * 35.31467           |
 *  | 5    | pressure    | MPa      | psi      | x * 145.0377           |
 *  | 6    | angle       | °        | °        | x                      |
 *  | 7    | ratio       | %        | %        | x                      |
 *
 *  Length and speed use factors that differ in the last digit: deliberate, as are factors back that are
 * constants of their own. Any other kind, -1 for "no units" among them, converts nothing and has an empty
 * label.
 *
 *  The conversions and texts may be used from any thread as long as none changes `system`. */
class VANT_API EUnits
{
public:
    EUnits() = delete;

    /** The process's unit system: 0 metric (at start), 1 United States customary; set by the application. Any
     * other value means no conversion and empty labels. */
    static int system;

    /** The unit label in the current system. */
    static CString Get(int kind);

    /** The display text of a native value.
     *  @param format a printf format for one double ("%lg", "%0.2lf"); always written with a decimal point
     *  @param withUnits non-zero appends the label, with no blank between. Feet then take a form of their
     * own, whatever `format` says: whole feet from 100 ft on ("131ft"), below that feet and inches ("3ft
     * 3in", "10ft", "4in"); a negative value that rounds to 0 inches shows "-0ft". */
    static CString Get(int kind, double value, const CString& format, int withUnits);

    /** @name Native to display units, in place
     *  Each rounds integers half up and keeps the low 32 bits of the result; a result that no 64-bit integer
     * holds becomes 0. @{ */
    static void N2D(int kind, double& v);
    static void N2D(int kind, int& v);
    static void N2D(int kind, unsigned int& v);
    /** @} */

    /** @name Display to native units, in place
     *  Each is the reverse of N2D(); integers likewise. @{ */
    static void D2N(int kind, double& v);
    static void D2N(int kind, int& v);
    static void D2N(int kind, unsigned int& v);
    /** @} */
};
