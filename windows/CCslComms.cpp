#include "windows/CCslComms.h"

#include "platform/Vant.h"

IMPLEMENT_DYNAMIC(CCslComms, CConsole)

CCslComms::CCslComms()
{
    m_kind = kindComms;
}

void CCslComms::SetupCsl(int kind)
{
    const CSingleLock guard(&entryLock, TRUE);
    CConsole::SetupCsl(kind);
    m_kind = kindComms;
    fileName = Vant::dataDir + L"Logs\\Comms.csv";
}

void CCslComms::SetupCtrls()
{
    InsLogTo(*OptionCat());
}
