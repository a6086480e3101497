#pragma once

#include "demo/detail/Geometry.h"

#include <afxwin.h>

class CESetObj;

namespace demo
{

/** What the demonstration remembers from one run to the next. */
struct DemoSettings {
    int runs = 0; ///< how often it has been started
    Box window; ///< place of the window while it is neither maximised nor an icon; empty before the first run
    int maximised = 0;
    int headingUp = 1;   ///< see View
    int depthSpan = 120; ///< seconds, see View
    int units = 0;       ///< unit system: 0 metric, 1 United States customary
    /** Metres; a smaller depth raises the alarm, 0 never does. The survey that comes with the program crosses
     * a bank that is shallower than the default twice within its first 200 s. */
    double shallowLimit = 14.0;

    /** Writes the state to, or reads it from, a settings object; the object's tree decides the direction. */
    void Settings(CESetObj& obj);

    /** Reads a settings file, Vant's own state in it included. What the file lacks keeps its value.
     *  @return false when there is no such file */
    bool Load(const CString& file);

    /** Replaces a settings file. @return false when it could not be written */
    bool Save(const CString& file);
};

} // namespace demo
