// The code of docs/time.md.
#include <VantCore.h>

// [source]
class CReceiver : public CTmFn
{
public:
    CReceiver() { name = L"Receiver"; } // what its status line begins with
    int PollTm(double& value) override; // what does it read now? non-zero: it did tell
};
// [source]

int CReceiver::PollTm(double& value)
{
    value = TmSync::GetPc();
    return 1;
}

// [life]
class CSurveyApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        TmSync::Init();               // once, before anything asks for the time
        TmSync::AddTmFn(&m_receiver); // sources of your own
        ::SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR, DWORD) {
            CVantWnd::Poll(TmSync::GetTm()); // seconds since 1980
        });
        return TRUE;
    }

    int ExitInstance() override
    {
        TmSync::Exit(); // before the sources go
        Vant::Exit();
        return CBaseApp::ExitInstance();
    }

private:
    CReceiver m_receiver;
};
// [life]

double When(CReceiver& receiver, double stamp)
{
    // [stamp]
    const double when = receiver.GetTm(stamp); // a time stamp of the device, on the time base
    // [stamp]
    return when;
}

void Run(CReceiver& receiver)
{
    // [steady]
    CTmFnSteady steady(receiver); // a record of 4 hours
    TmSync::AddTmFn(&steady);
    // [steady]
    ::MessageBoxW(nullptr, L"Close this to end", L"Time", MB_OK);
    TmSync::Exit();
}
