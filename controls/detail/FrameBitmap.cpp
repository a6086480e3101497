#include "controls/detail/FrameBitmap.h"

namespace vant::detail
{

FrameBitmap::~FrameBitmap()
{
    Release();
}

void FrameBitmap::Release()
{
    if (m_before)
        ::SelectObject(m_dc, m_before);
    m_before = nullptr;
    m_bitmap.DeleteObject();
    m_pixels = nullptr;
    m_size = CSize(0, 0);
}

bool FrameBitmap::Resize(CSize size)
{
    if (m_pixels && size == m_size)
        return true;
    Release();
    if (size.cx <= 0 || size.cy <= 0)
        return false;
    if (!m_dc.m_hDC && !m_dc.CreateCompatibleDC(nullptr))
        return false;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!bitmap)
        return false;
    m_bitmap.Attach(bitmap);
    m_before = ::SelectObject(m_dc, bitmap);
    m_pixels = static_cast<Rgb*>(pixels);
    m_size = size;
    return true;
}

PixelCanvas FrameBitmap::Canvas()
{
    ::GdiFlush();
    return {m_pixels, m_size.cx, m_size.cy};
}

void FrameBitmap::CopyTo(CDC& dc, CPoint to)
{
    dc.BitBlt(to.x, to.y, m_size.cx, m_size.cy, &m_dc, 0, 0, SRCCOPY);
}

} // namespace vant::detail
