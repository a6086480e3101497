#include "platform/Vant.h"

#include <algorithm>
#include <atlimage.h>
#include <cstring>
#include <limits>

namespace
{

bool SaveWindow(HWND wnd, const CString& path)
{
    RECT frame{};
    if (!wnd || !::GetWindowRect(wnd, &frame))
        return false;
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    const HDC pixels = ::GetWindowDC(wnd);
    if (!pixels)
        return false;

    constexpr int leastDepth = 24;
    const int depth = ::GetDeviceCaps(pixels, BITSPIXEL) * ::GetDeviceCaps(pixels, PLANES);
    CImage image;
    bool copied = false;
    if (width > 0 && height > 0 && image.Create(width, height, std::max(depth, leastDepth))) {
        copied = ::BitBlt(image.GetDC(), 0, 0, width, height, pixels, 0, 0, SRCCOPY) != FALSE;
        image.ReleaseDC();
    }
    ::ReleaseDC(wnd, pixels);
    // Drawing is queued; the file is written from the bitmap's memory.
    ::GdiFlush();
    return copied && SUCCEEDED(image.Save(path));
}

bool SavePixels(const CString& path, int width, int height, const unsigned char* bits)
{
    constexpr int bytesPerPixel = 4;
    if (!bits || width <= 0 || height <= 0 ||
        width > std::numeric_limits<int>::max() / bytesPerPixel / height)
        return false;
    CImage image;
    if (!image.Create(width, height, 8 * bytesPerPixel))
        return false;
    const std::size_t rowSize = static_cast<std::size_t>(width) * bytesPerPixel;
    for (int y = 0; y < height; ++y)
        std::memcpy(image.GetPixelAddress(0, y), bits + static_cast<std::size_t>(y) * rowSize, rowSize);
    return SUCCEEDED(image.Save(path));
}

} // namespace

int Vant::PrintScn(CString path)
{
    const CWnd* const mainWnd = AfxGetMainWnd();
    if (SaveWindow(mainWnd ? mainWnd->GetSafeHwnd() : nullptr, path))
        return 1;
    Alarm(120, 1, L"Unable to save screen to %s", static_cast<LPCWSTR>(path));
    return 0;
}

int Vant::WriteImg(CString path, int width, int height, unsigned char* bits)
{
    if (SavePixels(path, width, height, bits))
        return 1;
    Alarm(130, 1, L"Unable to save image to %s", static_cast<LPCWSTR>(path));
    return 0;
}
