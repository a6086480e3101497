#include "demo/script/ScreenPicture.h"

#include <atlimage.h>

namespace demo
{

bool SaveSeen(CWnd& wnd, const CString& path)
{
    wnd.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect place;
    wnd.GetWindowRect(&place);
    return SaveScreen(place, path);
}

bool SaveScreen(const CRect& place, const CString& path)
{
    constexpr int bitsPerPixel = 24;
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
