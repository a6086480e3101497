#include "platform/detail/SystemCalls.h"

#include "platform/detail/Module.h"

#include <afxwin.h>
#include <cstdio>
#include <cstdlib>
#include <mmsystem.h>

namespace vant::detail
{

namespace
{

HBITMAP LoadBitmapResource(int id)
{
    // A DIB section keeps the pixels as they were drawn, the fourth byte included, whatever the screen is.
    return static_cast<HBITMAP>(
        ::LoadImageW(Module(), MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
}

void PlaySoundResource(int id)
{
    ::PlaySoundW(MAKEINTRESOURCEW(id), Module(), SND_RESOURCE | SND_ASYNC | SND_NOWAIT | SND_NODEFAULT);
}

void OpenHelpPage(HWND owner, LPCWSTR file, LPCWSTR page)
{
    using HtmlHelpFn = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
    constexpr UINT displayTopic = 0; // HH_DISPLAY_TOPIC; the help SDK's header is not part of every toolchain

    // The viewer runs windows of its own in this process, so it stays loaded once it has been used.
    static const HtmlHelpFn htmlHelp = [] {
        const HMODULE viewer = ::LoadLibraryW(L"hhctrl.ocx");
        const FARPROC entry = viewer ? ::GetProcAddress(viewer, "HtmlHelpW") : nullptr;
        return reinterpret_cast<HtmlHelpFn>(reinterpret_cast<void*>(entry));
    }();
    if (htmlHelp)
        htmlHelp(owner, file, displayTopic, reinterpret_cast<DWORD_PTR>(page));
}

void ShowFatalError(LPCWSTR text, LPCWSTR caption)
{
    // No owner: the window that would own the box may belong to what has just failed.
    ::MessageBoxW(nullptr, text, caption, MB_OK | MB_TASKMODAL);
}

int ShowMessageBox(LPCWSTR text, LPCWSTR caption, UINT style)
{
    CWnd* const owner = AfxGetMainWnd();
    return ::MessageBoxW(owner ? owner->GetSafeHwnd() : nullptr, text, caption, style);
}

void EndProcess(unsigned exitCode)
{
    // Buffered output is still worth having; destructors of a process in this state are not.
    std::fflush(nullptr);
    ::ExitProcess(exitCode);
}

constinit SystemCalls inUse{&LoadBitmapResource, &PlaySoundResource, &OpenHelpPage, &std::realloc,
                            &ShowFatalError,     &ShowMessageBox,    &EndProcess};

} // namespace

SystemCalls& Calls() noexcept
{
    return inUse;
}

} // namespace vant::detail
