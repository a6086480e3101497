// Lets a program of the guide take its picture as any other would be taken: FILE of "--picture FILE" gets the
// main window as it is on the screen some seconds after the start, and then the window is closed. The
// programs themselves stay as an application has them.
#include <VantCore.h>

#include <cstdio>
#include <string_view>

#include <shellapi.h>

namespace
{

constexpr UINT usualDelay = 3000; // milliseconds; "--after MILLISECONDS" takes another

class CPictureTaker
{
public:
    CPictureTaker()
    {
        int count = 0;
        wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
        for (int i = 1; i + 1 < count; ++i) {
            const std::wstring_view option = words[i];
            if (option == L"--picture")
                s_file = words[i + 1];
            else if (option == L"--after")
                m_delay = static_cast<UINT>(_wtoi(words[i + 1]));
        }
        ::LocalFree(words);
        if (!s_file.IsEmpty())
            ::SetTimer(nullptr, 0, m_delay, Take);
    }

private:
    static void CALLBACK Take(HWND, UINT, UINT_PTR timer, DWORD)
    {
        ::KillTimer(nullptr, timer);
        if (!Vant::PrintScn(s_file)) {
            std::fprintf(stderr, "cannot write %ls\n", static_cast<LPCWSTR>(s_file));
            ::ExitProcess(1);
        }
        AfxGetMainWnd()->PostMessage(WM_CLOSE);
    }

    static inline CString s_file;
    UINT m_delay = usualDelay;
};

CPictureTaker taker;

} // namespace
