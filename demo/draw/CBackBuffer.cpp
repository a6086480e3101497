#include "demo/draw/CBackBuffer.h"

namespace demo
{

CBackBuffer::~CBackBuffer()
{
    Free();
}

bool CBackBuffer::Resize(int width, int height)
{
    if (m_bitmap && width == m_width && height == m_height)
        return true;
    Free();

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!m_bitmap || !m_dc.CreateCompatibleDC(nullptr)) {
        Free();
        return false;
    }
    m_before = ::SelectObject(m_dc, m_bitmap);
    m_pixels = static_cast<std::uint32_t*>(bits);
    m_width = width;
    m_height = height;
    return true;
}

void CBackBuffer::Free()
{
    if (m_before)
        ::SelectObject(m_dc, m_before);
    m_dc.DeleteDC();
    if (m_bitmap)
        ::DeleteObject(m_bitmap);
    m_bitmap = nullptr;
    m_before = nullptr;
    m_pixels = nullptr;
    m_width = 0;
    m_height = 0;
}

} // namespace demo
