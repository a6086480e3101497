#include "vafx/CImage.h"

#include <cstdlib>

constexpr DWORD CImage::createAlphaChannel;

namespace
{

constexpr int bitsPerByte = 8;
constexpr int depthWithAlpha = 32;

struct BitmapInfo {
    BITMAPINFOHEADER header;
    DWORD colours[256]; ///< The masks, or the colour table.
};

} // namespace

CImage::CImage() noexcept
    : m_bitmap(nullptr)
    , m_bits(nullptr)
    , m_width(0)
    , m_height(0)
    , m_pitch(0)
    , m_bpp(0)
    , m_alpha(false)
    , m_dc(nullptr)
    , m_selected(nullptr)
    , m_taken(0)
{
}

CImage::~CImage()
{
    Destroy();
}

BOOL CImage::Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags) noexcept
{
    return CreateEx(nWidth, nHeight, nBPP, BI_RGB, nullptr, dwFlags);
}

BOOL CImage::CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression, const DWORD* pdwBitmasks,
                      DWORD dwFlags) noexcept
{
    const bool alpha = (dwFlags & createAlphaChannel) != 0;
    const bool masks = eCompression == BI_BITFIELDS;
    if (nWidth <= 0 || nHeight == 0 || (alpha && nBPP != depthWithAlpha) || (masks && pdwBitmasks == nullptr))
        return FALSE;

    BitmapInfo info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = nWidth;
    info.header.biHeight = nHeight;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(nBPP);
    info.header.biCompression = eCompression;
    if (masks) {
        for (int i = 0; i < 3; ++i)
            info.colours[i] = pdwBitmasks[i];
    }
    void* bits = nullptr;
    const HBITMAP bitmap =
        ::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr)
        return FALSE;
    Attach(bitmap, nHeight < 0 ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    m_alpha = alpha;
    return TRUE;
}

void CImage::Attach(HBITMAP hBitmap, DIBOrientation eOrientation) noexcept
{
    Destroy();
    DIBSECTION section{};
    const int size = ::GetObjectW(hBitmap, sizeof section, &section);
    if (size == 0)
        return;
    m_bitmap = hBitmap;
    m_width = section.dsBm.bmWidth;
    m_height = std::abs(section.dsBm.bmHeight);
    m_bpp = section.dsBm.bmBitsPixel;
    if (size != sizeof section || section.dsBm.bmBits == nullptr)
        return;

    // GetObject loses the sign of the height: unless the caller knows better, rows lie bottom up as usual.
    const int rowBytes = section.dsBm.bmWidthBytes;
    auto* first = static_cast<BYTE*>(section.dsBm.bmBits);
    if (eOrientation == DIBOR_TOPDOWN) {
        m_bits = first;
        m_pitch = rowBytes;
    } else {
        m_bits = first + static_cast<ptrdiff_t>(m_height - 1) * rowBytes;
        m_pitch = -rowBytes;
    }
}

HBITMAP CImage::Detach() noexcept
{
    const HBITMAP bitmap = m_bitmap;
    m_taken = m_taken > 0 ? 1 : 0;
    ReleaseDC();
    m_bitmap = nullptr;
    m_bits = nullptr;
    m_width = m_height = m_pitch = m_bpp = 0;
    m_alpha = false;
    return bitmap;
}

void CImage::Destroy() noexcept
{
    if (const HBITMAP bitmap = Detach())
        ::DeleteObject(bitmap);
}

const void* CImage::GetPixelAddress(int x, int y) const noexcept
{
    const auto* row = static_cast<const BYTE*>(m_bits) + static_cast<ptrdiff_t>(y) * m_pitch;
    return row + static_cast<ptrdiff_t>(x) * m_bpp / bitsPerByte;
}

void* CImage::GetPixelAddress(int x, int y) noexcept
{
    return const_cast<void*>(static_cast<const CImage*>(this)->GetPixelAddress(x, y));
}

void CImage::GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const noexcept
{
    ::GetDIBColorTable(GetDC(), iFirstColor, nColors, prgbColors);
    ReleaseDC();
}

void CImage::SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) noexcept
{
    ::SetDIBColorTable(GetDC(), iFirstColor, nColors, prgbColors);
    ReleaseDC();
}

COLORREF CImage::GetPixel(int x, int y) const noexcept
{
    const COLORREF colour = ::GetPixel(GetDC(), x, y);
    ReleaseDC();
    return colour;
}

void CImage::SetPixel(int x, int y, COLORREF color) noexcept
{
    ::SetPixel(GetDC(), x, y, color);
    ReleaseDC();
}

void CImage::SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) noexcept
{
    SetPixel(x, y, RGB(r, g, b));
}

HDC CImage::GetDC() const noexcept
{
    if (m_taken == 0) {
        m_dc = ::CreateCompatibleDC(nullptr);
        if (m_dc == nullptr)
            return nullptr;
        m_selected = static_cast<HBITMAP>(::SelectObject(m_dc, m_bitmap));
    }
    ++m_taken;
    return m_dc;
}

void CImage::ReleaseDC() const noexcept
{
    if (m_taken == 0 || --m_taken > 0)
        return;
    // Drawing is queued, and the pixels are read from memory next.
    ::GdiFlush();
    ::SelectObject(m_dc, m_selected);
    ::DeleteDC(m_dc);
    m_dc = nullptr;
    m_selected = nullptr;
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP) const noexcept
{
    return BitBlt(hDestDC, xDest, yDest, m_width, m_height, 0, 0, dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    DWORD dwROP) const noexcept
{
    const BOOL drawn = ::BitBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, GetDC(), xSrc, ySrc, dwROP);
    ReleaseDC();
    return drawn;
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        DWORD dwROP) const noexcept
{
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_width, m_height, dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, DWORD dwROP) const noexcept
{
    const BOOL drawn = ::StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, GetDC(), xSrc, ySrc,
                                    nSrcWidth, nSrcHeight, dwROP);
    ReleaseDC();
    return drawn;
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha, BYTE bBlendOp) const noexcept
{
    return AlphaBlend(hDestDC, xDest, yDest, m_width, m_height, 0, 0, m_width, m_height, bSrcAlpha, bBlendOp);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha, BYTE bBlendOp) const noexcept
{
    const BYTE format = m_alpha ? AC_SRC_ALPHA : 0;
    const BLENDFUNCTION blend{bBlendOp, 0, bSrcAlpha, format};
    const BOOL drawn = ::AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, GetDC(), xSrc, ySrc,
                                    nSrcWidth, nSrcHeight, blend);
    ReleaseDC();
    return drawn;
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest) const noexcept
{
    return Draw(hDestDC, xDest, yDest, m_width, m_height);
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const noexcept
{
    return Draw(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_width, m_height);
}

BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest) const noexcept
{
    return Draw(hDestDC, rectDest.left, rectDest.top, rectDest.right - rectDest.left,
                rectDest.bottom - rectDest.top);
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                  int nSrcWidth, int nSrcHeight) const noexcept
{
    if (m_alpha)
        return AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
}
