#include "support/MessagePump.h"

#include <afxwin.h>

bool vant::test::PumpPending()
{
    MSG msg;
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == WM_QUIT)
            return false;
        CWinThread* thread = ::AfxGetThread();
        if (thread != nullptr && thread->PreTranslateMessage(&msg))
            continue;
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
    return true;
}

bool vant::test::PumpUntil(const std::function<bool()>& condition, unsigned milliseconds)
{
    constexpr DWORD lookAgainAfter = 20;
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    while (!condition()) {
        if (::GetTickCount64() > end)
            return false;
        PumpPending();
        if (!condition())
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, lookAgainAfter, QS_ALLINPUT);
    }
    return true;
}

void vant::test::PumpFor(unsigned milliseconds)
{
    PumpUntil([] { return false; }, milliseconds);
}
