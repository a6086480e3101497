#pragma once

#include "vafx/CGdiObject.h"

/** A pen. The constructors with arguments throw CResourceException when the pen cannot be made. */
class VAFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen() noexcept;
    /** @param nPenStyle PS_SOLID, PS_DASH ... @param nWidth Logical units; 0 is always one pixel. */
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = nullptr);

    static CPen* PASCAL FromHandle(HPEN hPen);
    operator HPEN() const noexcept { return static_cast<HPEN>(m_hObject); }

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);

    int GetLogPen(LOGPEN* pLogPen) const noexcept;
};
