#pragma once

#include "controls/CDpi.h"

#include <afxwin.h>

namespace demo
{

/** The fonts of the readings, which grow with the window, and of captions and bars, which grow with the
 * monitor's dots per inch only. */
class FontSet
{
public:
    CFont huge;  ///< the depth
    CFont dial;  ///< figure in the middle of a dial
    CFont big;   ///< main reading of a panel
    CFont value; ///< lesser readings
    CFont label; ///< names, units
    CFont small; ///< axes

    CFont title;   ///< name of the application
    CFont clock;   ///< time of day
    CFont caption; ///< names of panels and keys
    CFont line;    ///< alarms
    CFont note;    ///< remarks beside captions

    /** Makes all of them; what already fits does nothing. @param scale  of the readings, without the dpi */
    void Make(double scale, CDpi dpi);

private:
    double m_scale = 0.0;
    CDpi m_dpi;
};

} // namespace demo
