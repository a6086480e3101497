#include "vafx/CBrush.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"
#include "vafx/CBitmap.h"
#include "vafx/CSimpleException.h"

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush() noexcept = default;

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return vafx::detail::ObjectOf<CBrush>(vafx::detail::ThisThread().temporary,
                                          vafx::detail::HandleKind::GdiObject, hBrush,
                                          [hBrush](CBrush& object) { object.m_hObject = hBrush; });
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        ::AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        ::AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap))
        ::AfxThrowResourceException();
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(vafx::detail::HandleOf(pBitmap))));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return Attach(::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush) const noexcept
{
    return GetObject(sizeof(LOGBRUSH), pLogBrush);
}
