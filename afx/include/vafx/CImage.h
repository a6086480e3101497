#pragma once

#include "vafx/api.h"

#include <windows.h>

/** A bitmap with its pixels in memory, from and to files of the formats that GDI+ knows. GDI+ is started for
 *  the length of a load or save only, so that images may be global objects.
 *
 *  x counts from the left and y from the top, whichever way the rows lie. An image with an alpha channel
 * keeps its colours multiplied with it, as AlphaBlend wants them. An image may be used by one thread at a
 * time. */
class VAFX_API CImage
{
public:
    /** For Create: 32 bits per pixel, of which 8 are opacity. */
    static constexpr DWORD createAlphaChannel = 0x01;
    /** How the rows of an attached bitmap lie. */
    enum DIBOrientation { DIBOR_DEFAULT, DIBOR_TOPDOWN, DIBOR_BOTTOMUP };

    CImage() noexcept;
    virtual ~CImage();
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    operator HBITMAP() const noexcept { return m_bitmap; }

    /** @name Life */
    ///@{
    /** Makes an image of undefined pixels. @param nHeight Negative: the top row comes first in memory.
     *  @param nBPP 1, 4, 8, 16, 24 or 32. @param dwFlags 0 or createAlphaChannel. @return FALSE on failure.
     */
    BOOL Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags = 0) noexcept;
    /** The same with BI_RGB or BI_BITFIELDS and its three masks. Save expects blue lowest and red highest,
     * and of 16 bits 5 each or 6 of green. */
    BOOL CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression, const DWORD* pdwBitmasks = nullptr,
                  DWORD dwFlags = 0) noexcept;
    /** Takes ownership of a bitmap. */
    void Attach(HBITMAP hBitmap, DIBOrientation eOrientation = DIBOR_DEFAULT) noexcept;
    /** Gives the bitmap away. */
    HBITMAP Detach() noexcept;
    /** Frees the bitmap; the image is null then. */
    void Destroy() noexcept;
    bool IsNull() const noexcept { return m_bitmap == nullptr; }
    ///@}

    /** @name Properties, of an image that is not null */
    ///@{
    int GetWidth() const noexcept { return m_width; }
    int GetHeight() const noexcept { return m_height; }
    int GetBPP() const noexcept { return m_bpp; }
    /** @return Bytes from a row to the one below it; negative when the bottom row comes first in memory. */
    int GetPitch() const noexcept { return m_pitch; }
    /** @return The top row's first pixel; null when the pixels are not in memory. */
    void* GetBits() noexcept { return m_bits; }
    const void* GetBits() const noexcept { return m_bits; }
    /** @return The byte where a pixel begins. The position must lie within the image. */
    void* GetPixelAddress(int x, int y) noexcept;
    const void* GetPixelAddress(int x, int y) const noexcept;
    bool IsDIBSection() const noexcept { return m_bits != nullptr; }
    /** @return Whether pixels are indices into a colour table. */
    bool IsIndexed() const noexcept { return m_bits != nullptr && m_bpp <= 8; }
    int GetMaxColorTableEntries() const noexcept { return IsIndexed() ? 1 << m_bpp : 0; }
    void GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const noexcept;
    void SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) noexcept;
    COLORREF GetPixel(int x, int y) const noexcept;
    void SetPixel(int x, int y, COLORREF color) noexcept;
    void SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) noexcept;
    ///@}

    /** @name Files
     *  The results are S_OK or what went wrong. A file that could not be written whole is deleted. */
    ///@{
    HRESULT Load(LPCTSTR pszFileName) noexcept;
    HRESULT Load(IStream* pStream) noexcept;
    void LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) noexcept;
    void LoadFromResource(HINSTANCE hInstance, UINT nIDResource) noexcept;
    /** @param guidFileType ImageFormatPNG ...; GUID_NULL: by the name's extension (bmp, jpg, gif, tif, png).
     */
    HRESULT Save(LPCTSTR pszFileName, REFGUID guidFileType = GUID_NULL) const noexcept;
    HRESULT Save(IStream* pStream, REFGUID guidFileType) const noexcept;
    ///@}

    /** @name Drawing
     *  GetDC returns a context with the image selected, to be given back as often as it was taken. The other
     *  functions draw the image, or the part given, into another context. */
    ///@{
    HDC GetDC() const noexcept;
    void ReleaseDC() const noexcept;
    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                DWORD dwROP = SRCCOPY) const noexcept;
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                    DWORD dwROP = SRCCOPY) const noexcept;
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwROP = SRCCOPY) const noexcept;
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const noexcept;
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const noexcept;
    /** Blends an image with an alpha channel and stretches any other. */
    BOOL Draw(HDC hDestDC, int xDest, int yDest) const noexcept;
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const noexcept;
    BOOL Draw(HDC hDestDC, const RECT& rectDest) const noexcept;
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
              int nSrcWidth, int nSrcHeight) const noexcept;
    ///@}

private:
    HBITMAP m_bitmap;
    void* m_bits; ///< Top row.
    int m_width;
    int m_height;
    int m_pitch;
    int m_bpp;
    bool m_alpha;
    mutable HDC m_dc;           ///< While it is taken.
    mutable HBITMAP m_selected; ///< What it had before.
    mutable int m_taken;
};
