#pragma once

#include "vafx/CGdiObject.h"

class CBitmap;

/** A brush. The constructors with arguments throw CResourceException when the brush cannot be made. */
class VAFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() noexcept;
    explicit CBrush(COLORREF crColor);
    /** @param nIndex Hatch, HS_CROSS ... */
    CBrush(int nIndex, COLORREF crColor);
    /** A brush of the bitmap's pattern; the bitmap may be deleted afterwards. */
    explicit CBrush(CBitmap* pBitmap);

    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const noexcept { return static_cast<HBRUSH>(m_hObject); }

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    /** @param nIndex COLOR_WINDOW ... */
    BOOL CreateSysColorBrush(int nIndex);

    int GetLogBrush(LOGBRUSH* pLogBrush) const noexcept;
};
