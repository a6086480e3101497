// Lets a program of the guide take its picture as any other would be taken: FILE of "--picture FILE" gets the
// main window as it is on the screen some seconds after the start, and then the window is closed. The
// programs themselves stay as an application has them.
#include <VantCore.h>

#include "resources/Ids.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string_view>

#include <atlimage.h>
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
        if (s_file.IsEmpty())
            return;
        // Not the system's picture for programs without an icon, which says nothing and differs by system.
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(VANT_IDI_APP));
        ::SetTimer(nullptr, 0, m_delay, Take);
    }

private:
    static void CALLBACK Take(HWND, UINT, UINT_PTR timer, DWORD)
    {
        ::KillTimer(nullptr, timer);
        CWnd*& mainWnd = AfxGetThread()->m_pMainWnd;
        CWnd* const first = mainWnd;
        Save(s_file);
        for (CVantPtr* pos = CVantWnd::s_wnds.GetHeadPos(); pos;) {
            CVantWnd* const wnd = CVantWnd::s_wnds.GetNext(pos);
            if (wnd == first || !wnd->m_hWnd || !wnd->IsWindowVisible() || wnd->GetParent())
                continue;
            mainWnd = wnd;
            Save(s_file.Left(s_file.ReverseFind(L'.')) + L"-" + wnd->name + L".png");
        }
        mainWnd = first;
        AfxGetMainWnd()->PostMessage(WM_CLOSE);
    }

    /** Whether a window shows something: a picture of one colour is no documentation. */
    static bool ShowsSomething(const CWnd& wnd, const CString& file)
    {
        CImage image;
        if (FAILED(image.Load(file)))
            return false;
        CRect frame;
        CRect client;
        wnd.GetWindowRect(&frame);
        wnd.GetClientRect(&client);
        wnd.ClientToScreen(&client);
        client.OffsetRect(-frame.TopLeft());
        std::map<COLORREF, int> counts;
        constexpr int step = 4; // a sixteenth of the pixels tells enough
        int most = 0;
        int all = 0;
        const HDC pixels = image.GetDC();
        for (int y = client.top; y < client.bottom; y += step)
            for (int x = client.left; x < client.right; x += step, ++all)
                most = std::max(most, ++counts[::GetPixel(pixels, x, y)]);
        image.ReleaseDC();
        constexpr double blank = 0.97; // share of one colour
        return most < blank * all;
    }

    static void Save(const CString& file)
    {
        if (Vant::PrintScn(file) && ShowsSomething(*AfxGetMainWnd(), file))
            return;
        std::fprintf(stderr, "no picture, or an empty one: %ls\n", static_cast<LPCWSTR>(file));
        ::ExitProcess(1);
    }

    static inline CString s_file;
    UINT m_delay = usualDelay;
};

CPictureTaker taker;

} // namespace
