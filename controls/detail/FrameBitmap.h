#pragma once

#include "controls/detail/PixelCanvas.h"

#include <afxwin.h>

namespace vant::detail
{

/** A picture whose pixels the program paints itself, and the system copies to the screen. */
class FrameBitmap
{
public:
    FrameBitmap() = default;
    ~FrameBitmap();
    FrameBitmap(const FrameBitmap&) = delete;
    FrameBitmap& operator=(const FrameBitmap&) = delete;

    /** Makes it so many pixels large; the pixels are undefined then. @return whether there was memory */
    bool Resize(CSize size);
    /** For painting; until then nothing copies from it any more. */
    PixelCanvas Canvas();
    /** Copies all of it to a place of `dc`, in its pixels. */
    void CopyTo(CDC& dc, CPoint to);

private:
    void Release();

    CSize m_size{0, 0};
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
    Rgb* m_pixels = nullptr;
};

} // namespace vant::detail
