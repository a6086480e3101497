#include "demo/run/Terminal.h"

#include "demo/run/Utf8.h"

#include <string>

#include <windows.h>

namespace demo
{
namespace
{

constexpr UINT shownFor = 60000; // milliseconds

std::wstring complaints; // that nobody has read

/** Whether somebody sees what is written to the standard error. A console that only this program has goes
 * with it. */
bool IsRead()
{
    const HANDLE handle = ::GetStdHandle(STD_ERROR_HANDLE);
    if (!handle || handle == INVALID_HANDLE_VALUE)
        return false;
    DWORD mode = 0;
    DWORD process = 0;
    return !::GetConsoleMode(handle, &mode) || ::GetConsoleProcessList(&process, 1) != 1;
}

void CALLBACK CloseBox(HWND, UINT, UINT_PTR, DWORD)
{
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND wnd, LPARAM) -> BOOL {
            ::EndDialog(wnd, IDOK);
            return TRUE;
        },
        0);
}

/** A console takes wide text; files and pipes get UTF-8. */
void Write(DWORD stream, std::wstring text)
{
    text += L"\r\n";
    const HANDLE handle = ::GetStdHandle(stream);
    DWORD mode = 0;
    DWORD written = 0;
    if (::GetConsoleMode(handle, &mode)) {
        ::WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        return;
    }
    const std::string bytes = Utf8(text);
    ::WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace

void Say(std::wstring_view line)
{
    Write(STD_OUTPUT_HANDLE, std::wstring(line));
}

void Tell(std::wstring_view line)
{
    Write(STD_ERROR_HANDLE, L"VantDemo: " + std::wstring(line));
}

void Complain(std::wstring_view line)
{
    Tell(line);
    if (!IsRead())
        complaints += std::wstring(line) + L"\n";
}

void ShowComplaints()
{
    if (complaints.empty())
        return;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, shownFor, CloseBox);
    ::MessageBoxW(nullptr, complaints.c_str(), L"VantDemo", MB_OK | MB_ICONWARNING | MB_SETFOREGROUND);
    ::KillTimer(nullptr, timer);
    complaints.clear();
}

} // namespace demo
