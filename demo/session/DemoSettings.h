#pragma once

#include "demo/detail/AlarmWatch.h"
#include "demo/detail/Geometry.h"
#include "demo/detail/Mounting.h"

#include <afxwin.h>

#include <string>

class CESetObj;

namespace demo
{

/** What is remembered of a window beside the bridge. */
struct PopupPlace {
    int open = 1; ///< non-zero: it is shown
    Box box;      ///< its place on the screen, pixels; empty before it was ever shown
};

/** What a settings file turned out to be. */
struct SettingsFound {
    bool isThere = false;
    std::wstring kept;    ///< path of the copy that was made of it; empty for none
    std::wstring trouble; ///< one line that says what is wrong with it; empty for nothing
};

/** What the demonstration remembers from one run to the next. The controls of the set-up window are bound to
 * these variables. */
struct DemoSettings {
    static constexpr int ownFormat = 1; ///< number of the file's format; a newer program's is larger

    int format = 0; ///< of the file that was loaded; 0 when it does not say
    int runs = 0;   ///< how often it has been started
    Box window; ///< place of the window while it is neither maximised nor an icon; empty before the first run
    int maximised = 0;
    PopupPlace chart;
    PopupPlace orbit;
    PopupPlace colours;
    PopupPlace survey{.open = 0, .box = {}}; ///< which lies over the bridge

    int headingUp = 1;        ///< see Readout
    double depthSpan = 120.0; ///< seconds, see Readout
    double gain = 0.0;        ///< of the sea bed's colours, decibels
    int units = 0;            ///< unit system: 0 metric, 1 United States customary

    /** Metres; a smaller depth raises the alarm, 0 never does. The survey that comes with the program crosses
     * a bank that is shallower than the default twice within its first 200 s. */
    double shallowLimit = 14.0;
    double lostFix = AlarmWatch::usualSearch; ///< seconds without a position that raise the alarm
    int sound = 0;                            ///< non-zero: alarms are heard

    CString sensor = L"Echo sounder";   ///< name of the instrument that is played
    unsigned long address = 0x2800A8C0; ///< its network address, the first number in the lowest byte
    int port = 10110;                   ///< its port: that of NMEA 0183 over a network
    Mounting mounting;                  ///< of its transducer

    /** @name Ranges of the values that the user types @{ */
    static constexpr double leastSpan = 10.0; ///< seconds
    static constexpr double mostSpan = 3600.0;
    static constexpr double mostLimit = 1000.0; ///< metres
    static constexpr double leastLostFix = 1.0; ///< seconds
    static constexpr double mostLostFix = 300.0;
    static constexpr double leastGain = -20.0; ///< decibels
    static constexpr double mostGain = 5.0;
    static constexpr int mostPort = 65535;
    /** @} */

    /** Writes the state to, or reads it from, a settings object; the object's tree decides the direction. */
    void Settings(CESetObj& obj);

    /** Gives way to the defaults where a value cannot be used: a settings file is input. */
    void Mend();

    /** Reads a settings file, Vant's own state in it included. What the file lacks keeps its value. A file
     * that Save() could not write in full, of a newer program or damaged, is copied first; it is left as it
     * is if it can be neither read nor copied. */
    SettingsFound Load(const CString& file);

    /** Replaces a settings file, unless Load() found that it must not be; the state of the platform windows
     * goes into it too. @return false when it could not be written */
    bool Save(const CString& file);

private:
    bool m_mayReplace = true;
};

/** Gives the platform windows that exist the state that DemoSettings::Save() put into the file.
 *  @param keeps  whether there is a directory that the consoles can log to */
void LoadWindows(const CString& file, bool keeps);

/** A name as a settings file can keep it: without quotation marks and per cent signs. */
CString PlainName(const CString& name);

} // namespace demo
