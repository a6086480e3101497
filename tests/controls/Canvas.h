#pragma once

#include <afxwin.h>

#include <cstdint>
#include <string>

/** A picture in memory, 32 bits per pixel, black at first. */
class Canvas
{
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC& Dc() { return m_dc; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    /** Colour of a pixel as 0xRRGGBB. */
    std::uint32_t At(int x, int y) const;
    void Fill(COLORREF colour);
    /** The smallest rectangle around the pixels of this colour (COLORREF); empty without one. */
    CRect Bounds(COLORREF colour) const;
    bool SameAs(const Canvas& other) const;
    /** Copies this picture to a place of another. */
    void CopyTo(Canvas& to, int x, int y);
    void Save(const std::wstring& path);

private:
    int m_width;
    int m_height;
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
    std::uint32_t* m_pixels = nullptr;
};
