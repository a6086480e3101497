#include "demo/Terminal.h"

#include "demo/Utf8.h"

#include <string>

#include <windows.h>

namespace demo
{
namespace
{

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

void Complain(std::wstring_view line)
{
    Write(STD_ERROR_HANDLE, L"VantDemo: " + std::wstring(line));
}

} // namespace demo
