#include "windows/CCslComms.h"

#include "platform/Vant.h"

IMPLEMENT_DYNAMIC(CCslComms, CConsole)

CCslComms::CCslComms()
{
    m_kind = kindComms;
}

void CCslComms::SetupCsl(int kindOf)
{
    const CSingleLock guard(&entryLock, TRUE);
    CConsole::SetupCsl(kindOf);
    m_kind = kindComms;
    fileName = Vant::dataDir + L"Logs\\Comms.csv";
}

void CCslComms::SetupCtrls()
{
    InsLogTo(*OptionCat());
}
