#pragma once

#include "windows/CConsole.h"

/** The console of the communications traffic. Its only option is "Log To": all traffic has one kind, and a
 * protocol has no level of detail. */
class VANT_API CCslComms : public CConsole
{
    DECLARE_DYNAMIC(CCslComms)

public:
    CCslComms();

    /** As CConsole::SetupCsl(), but the log file is "Logs\Comms.csv" whatever the kind. */
    void SetupCsl(int kindOf) override;
    void SetupCtrls() override;
};
