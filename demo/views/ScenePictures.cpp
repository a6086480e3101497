// Pictures of a view: for files, and for the frames of a video.
#include "demo/views/CSceneWnd.h"

#include <atlimage.h>

namespace demo
{
namespace
{

constexpr int pictureWidth = 1280; // pixels
constexpr int pictureHeight = 800;

} // namespace

bool CSceneWnd::SavePicture(const CString& path)
{
    CImage image;
    return Capture(image, {pictureWidth, pictureHeight}) && SUCCEEDED(image.Save(path));
}

bool CSceneWnd::Capture(CImage& image, CSize size)
{
    constexpr int bitsPerPixel = 32;
    if (!image.Create(size.cx, size.cy, bitsPerPixel))
        return false;
    return DrawsPictures(size) ? CapPB(image) != 0 : CopySeen(image, size);
}

/** Whether the driver draws pictures of this size. It is asked once: its refusal is an alarm. */
bool CSceneWnd::DrawsPictures(CSize size)
{
    if (!m_drawsPictures || (PbWidth() == size.cx && PbHeight() == size.cy))
        return m_drawsPictures;
    CClientDC dc(this);
    m_drawsPictures = InitPB(dc, size.cx, size.cy) != 0;
    return m_drawsPictures;
}

bool CSceneWnd::CopySeen(CImage& image, CSize size)
{
    RedrawWnd();
    CRect seen;
    GetClientRect(&seen);
    ClientToScreen(&seen);
    const HDC to = image.GetDC();
    const HDC screen = ::GetDC(nullptr);
    ::SetStretchBltMode(to, HALFTONE);
    const BOOL copied = ::StretchBlt(to, 0, 0, size.cx, size.cy, screen, seen.left, seen.top, seen.Width(),
                                     seen.Height(), SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    image.ReleaseDC();
    return copied != FALSE;
}

} // namespace demo
