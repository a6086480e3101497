#pragma once

#include "vafx/CGdiObject.h"

class CDC;
class CSize;

/** A bitmap. Every creating function returns FALSE on failure. */
class VAFX_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() noexcept;

    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const noexcept { return static_cast<HBITMAP>(m_hObject); }

    /** Loads a bitmap of the module in the resource chain that has it; @see AfxFindResourceHandle. */
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    /** @overload */
    BOOL LoadBitmap(UINT nIDResource);
    /** Loads one of the system's own, OBM_... */
    BOOL LoadOEMBitmap(UINT nIDBitmap);

    /** @param lpBits Rows aligned to 16 bits, top first; null leaves the pixels undefined. */
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    /** A bitmap whose pixels the system may discard while it is not selected. */
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);

    int GetBitmap(BITMAP* pBitMap) const noexcept;
    /** Copies at most @p dwCount bytes, rows aligned to 16 bits. @return Bytes copied. */
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const noexcept;
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits) noexcept;
    /** The size in tenths of a millimetre that a program noted with the bitmap. */
    CSize GetBitmapDimension() const noexcept;
    CSize SetBitmapDimension(int nWidth, int nHeight) noexcept;
};
