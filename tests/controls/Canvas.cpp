#include "controls/Canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atlimage.h>

Canvas::Canvas(int width, int height)
    : m_width(width)
    , m_height(height)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    m_pixels = static_cast<std::uint32_t*>(bits);
    m_dc.CreateCompatibleDC(nullptr);
    m_before = ::SelectObject(m_dc, m_bitmap);
}

Canvas::~Canvas()
{
    ::SelectObject(m_dc, m_before);
}

std::uint32_t Canvas::At(int x, int y) const
{
    ::GdiFlush();
    return m_pixels[y * m_width + x] & 0xFFFFFF;
}

void Canvas::Fill(COLORREF colour)
{
    m_dc.FillSolidRect(0, 0, m_width, m_height, colour);
}

CRect Canvas::Bounds(COLORREF colour) const
{
    const std::uint32_t wanted =
        static_cast<std::uint32_t>(RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour)));
    CRect bounds(m_width, m_height, 0, 0);
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            if (At(x, y) != wanted)
                continue;
            bounds.left = std::min<LONG>(bounds.left, x);
            bounds.top = std::min<LONG>(bounds.top, y);
            bounds.right = std::max<LONG>(bounds.right, x + 1);
            bounds.bottom = std::max<LONG>(bounds.bottom, y + 1);
        }
    }
    return bounds.right ? bounds : CRect(0, 0, 0, 0);
}

bool Canvas::SameAs(const Canvas& other) const
{
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            if (At(x, y) != other.At(x, y))
                return false;
    return true;
}

void Canvas::CopyTo(Canvas& to, int x, int y)
{
    ::BitBlt(to.m_dc, x, y, m_width, m_height, m_dc, 0, 0, SRCCOPY);
}

void Canvas::Save(const std::wstring& path)
{
    CImage image;
    image.Create(m_width, m_height, 32);
    ::BitBlt(image.GetDC(), 0, 0, m_width, m_height, m_dc, 0, 0, SRCCOPY);
    image.ReleaseDC();
    EXPECT_EQ(image.Save(path.c_str()), S_OK);
}
