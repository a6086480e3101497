#include "vafx/CPen.h"

#include "detail/WndThread.h"
#include "vafx/CSimpleException.h"

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen() noexcept = default;

CPen* PASCAL CPen::FromHandle(HPEN hPen)
{
    return vafx::detail::ObjectOf<CPen>(vafx::detail::ThisThread().temporary,
                                        vafx::detail::HandleKind::GdiObject, hPen,
                                        [hPen](CPen& object) { object.m_hObject = hPen; });
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        ::AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        ::AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle)
{
    return Attach(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                 static_cast<DWORD>(nStyleCount), lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return Attach(::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen) const noexcept
{
    return GetObject(sizeof(LOGPEN), pLogPen);
}
