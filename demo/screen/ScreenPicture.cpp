#include "demo/screen/ScreenPicture.h"

#include <atlimage.h>

namespace demo
{

bool SaveSeen(std::span<CWnd* const> windows, const CString& path)
{
    CRect seen;
    for (CWnd* const wnd : windows) {
        if (!wnd->IsWindowVisible())
            continue;
        CRect place;
        wnd->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        wnd->GetWindowRect(&place);
        seen.UnionRect(&seen, &place);
    }
    return SaveScreen(seen, path);
}

bool SaveScreen(const CRect& wanted, const CString& path)
{
    constexpr int bitsPerPixel = 24;
    CRect place(CPoint(::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN)),
                CSize(::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN)));
    if (!place.IntersectRect(&place, &wanted))
        return false;
    CImage image;
    if (!image.Create(place.Width(), place.Height(), bitsPerPixel))
        return false;
    const HDC screen = ::GetDC(nullptr);
    const BOOL copied =
        ::BitBlt(image.GetDC(), 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
    image.ReleaseDC();
    ::ReleaseDC(nullptr, screen);
    return copied && SUCCEEDED(image.Save(path));
}

} // namespace demo
