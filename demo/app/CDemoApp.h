#pragma once

#include "controls/CRcKeys.h"
#include "demo/bridge/CBridge.h"
#include "demo/detail/Options.h"
#include "demo/detail/Playback.h"
#include "demo/detail/Tape.h"
#include "demo/run/CRunLock.h"
#include "demo/run/CRunLog.h"
#include "demo/session/CLogClock.h"
#include "demo/session/DemoSettings.h"

#include "platform/CBaseApp.h"

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

namespace demo
{

/** Exit codes, besides 0 after a run that went well. */
enum ExitCode : int {
    exitFailed = 1, ///< something could not be written
    exitUsage = 2,  ///< an argument or the log is no good
    exitScript = 3, ///< the program did not do what its script expects
    exitRuns = 4,   ///< another one runs with the same directory
};

/** Something that its user must know about a run. */
struct Warning {
    std::wstring line; ///< all of it
    std::wstring box;  ///< what a message box of four short lines can hold
};

/** The application: reads the command line and the log, starts the library, opens the bridge, and at the end
 * saves the settings and says what was done. */
class CDemoApp : public CBaseApp
{
public:
    CDemoApp();
    ~CDemoApp() override;

    BOOL InitInstance() override;
    int ExitInstance() override;
    BOOL PreTranslateMessage(MSG* message) override;

private:
    bool ReadCommandLine();
    bool ReadLog();
    bool PrepareOutput();
    bool TryOutput(const std::wstring& dir);
    void StartLibrary();
    void LoadSettings();
    void Warn(std::wstring line, std::wstring box);
    bool OpenWindow();
    void ShowWarning();
    void Keep();
    void Summarise() const;

    Options m_options;
    std::wstring m_logPath;
    std::wstring m_outDir; // absolute, with a backslash at the end
    bool m_keeps = true;   // it can be written
    bool m_settingsSaved = false;
    std::vector<Warning> m_warnings;
    CRunLock m_lock;
    std::unique_ptr<Tape> m_tape;
    std::unique_ptr<Playback> m_playback;
    DemoSettings m_settings;
    CRunLog m_log;
    CLogClock m_clock;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<CBridge> m_bridge;
    CRcKeys m_remoteKeys;   // a controller's
    bool m_started = false; // the library was
    int m_exitCode = 0;
};

} // namespace demo
