#pragma once

#include <afxwin.h>

namespace demo
{

/** The fonts of the readings, which grow with the window. The biggest is Vant::largeF, which the library
 * leaves to the application; captions use the library's own. */
class FontSet
{
public:
    CFont dial;  ///< figure in the middle of a dial
    CFont big;   ///< main reading of a panel
    CFont value; ///< lesser readings
    CFont label; ///< names, units
    CFont small; ///< axes

    /** Makes all of them for a scale; one that already fits does nothing. */
    void Make(double scale);

private:
    double m_scale = 0.0;
};

} // namespace demo
