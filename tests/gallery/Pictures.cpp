// Pictures of a window that is higher than the screen: it is scrolled through, and what is seen is put
// together.
#include "Pictures.h"

#include "support/MessagePump.h"

#include <algorithm>
#include <cstdio>

namespace
{

constexpr DWORD settleTime = 300; // milliseconds, until the screen shows what was drawn

/** Copies what the screen shows of the window, and of what stands over it, to where it belongs. */
void Grab(CGalleryWnd& gallery, CImage& image)
{
    CRect client;
    gallery.GetClientRect(client);
    gallery.ClientToScreen(client);
    const int top = gallery.Dpi().ToPx(gallery.ScrollPos());
    const HDC screen = ::GetDC(nullptr);
    ::BitBlt(image.GetDC(), 0, top, image.GetWidth(), std::min(client.Height(), image.GetHeight() - top),
             screen, client.left, client.top, SRCCOPY);
    image.ReleaseDC();
    ::ReleaseDC(nullptr, screen);
}

/** A menu belongs to the user until it is closed: a timer takes the picture meanwhile, and closes it. Another
 * window that becomes active closes it before. */
void GrabWithMenu(CGalleryWnd& gallery, CImage& image)
{
    constexpr UINT_PTR timer = 100;
    static CGalleryWnd* of;
    static CImage* to;
    of = &gallery;
    to = &image;
    CRect button;
    GalleryMenuButton().GetWindowRect(button);
    for (const UINT key : {VK_END, VK_RIGHT})
        gallery.PostMessage(WM_KEYDOWN, key, 1);
    gallery.SetTimer(timer, settleTime, [](HWND, UINT, UINT_PTR, DWORD) {
        Grab(*of, *to);
        to = nullptr;
        GalleryMenu().Cancel();
    });
    GalleryMenu().TrackBelow(button, &gallery);
    gallery.KillTimer(timer);
    if (to)
        std::puts("the menu was closed before its picture was taken");
}

bool TakePicture(CGalleryWnd& gallery, int dpi, const CString& file)
{
    constexpr int bitsPerPixel = 24;
    const CDpi scale(dpi);
    const int screenH = ::GetSystemMetrics(SM_CYSCREEN);
    const int height = scale.ToPx(gallery.ContentH());
    const CRect place(0, 0, scale.ToPx(CGalleryWnd::contentW), std::min(height, screenH));
    gallery.ShowAt(dpi, place);
    const bool isGood = gallery.TakeStills();
    CImage image;
    // Less what a scroll bar takes.
    constexpr int barW = 12;
    if (!image.Create(scale.ToPx(CGalleryWnd::contentW - barW), height, bitsPerPixel))
        return false;
    int last = -1;
    for (gallery.ScrollTo(0); gallery.ScrollPos() != last;) {
        last = gallery.ScrollPos();
        vant::test::PumpFor(settleTime);
        Grab(gallery, image);
        gallery.ScrollTo(last + scale.ToUnits(place.Height()) / 2 * 2);
    }
    GrabWithMenu(gallery, image);
    const bool isSaved = SUCCEEDED(image.Save(file));
    std::printf(isSaved ? "%ls\n" : "%ls could not be written\n", static_cast<LPCWSTR>(file));
    return isSaved && isGood;
}

} // namespace

bool TakePictures(CGalleryWnd& gallery, const CString& folder)
{
    bool isGood = true;
    for (const int dpi : {96, 144, 192}) {
        CString file;
        file.Format(L"%s\\gallery-%d.png", static_cast<LPCWSTR>(folder), dpi);
        isGood = TakePicture(gallery, dpi, file) && isGood;
    }
    return isGood;
}
