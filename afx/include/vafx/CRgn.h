#pragma once

#include "vafx/CGdiObject.h"

class CPoint;
class CRect;

/** A region. Creating functions return FALSE on failure, combining ones ERROR or the kind of the result. */
class VAFX_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() noexcept;

    static CRgn* PASCAL FromHandle(HRGN hRgn);
    operator HRGN() const noexcept { return static_cast<HRGN>(m_hObject); }

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode);

    void SetRectRgn(int x1, int y1, int x2, int y2) noexcept;
    void SetRectRgn(LPCRECT lpRect) noexcept;
    /** Makes this, which must exist, the combination of two regions. @param nCombineMode RGN_AND ... */
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) noexcept;
    int CopyRgn(const CRgn* pRgnSrc) noexcept;
    BOOL EqualRgn(const CRgn* pRgn) const noexcept;
    int OffsetRgn(int x, int y) noexcept;
    int OffsetRgn(POINT point) noexcept;
    int GetRgnBox(LPRECT lpRect) const noexcept;
    BOOL PtInRegion(int x, int y) const noexcept;
    BOOL PtInRegion(POINT point) const noexcept;
    BOOL RectInRegion(LPCRECT lpRect) const noexcept;
};
