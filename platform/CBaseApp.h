#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

/** The application object that applications of the library derive from. It adds one word of state for the
 *  application's own use and no behaviour: start-up and shutdown are Vant::Init() and Vant::Exit(), which the
 *  application calls in its InitInstance and ExitInstance. */
class VANT_API CBaseApp : public CWinApp
{
public:
    CBaseApp();
    ~CBaseApp() override;

    /** Zero at first; the library neither reads nor writes it. */
    int m_appState = 0;
};
