#include "vafx/CRgn.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn::CRgn() noexcept = default;

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn)
{
    return vafx::detail::ObjectOf<CRgn>(vafx::detail::ThisThread().temporary,
                                        vafx::detail::HandleKind::GdiObject, hRgn,
                                        [hRgn](CRgn& object) { object.m_hObject = hRgn; });
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode)
{
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2) noexcept
{
    ::SetRectRgn(*this, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect) noexcept
{
    SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) noexcept
{
    return ::CombineRgn(*this, static_cast<HRGN>(vafx::detail::HandleOf(pRgn1)),
                        static_cast<HRGN>(vafx::detail::HandleOf(pRgn2)), nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc) noexcept
{
    return ::CombineRgn(*this, static_cast<HRGN>(vafx::detail::HandleOf(pRgnSrc)), nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const noexcept
{
    return ::EqualRgn(*this, static_cast<HRGN>(vafx::detail::HandleOf(pRgn)));
}

int CRgn::OffsetRgn(int x, int y) noexcept
{
    return ::OffsetRgn(*this, x, y);
}

int CRgn::OffsetRgn(POINT point) noexcept
{
    return ::OffsetRgn(*this, point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const noexcept
{
    return ::GetRgnBox(*this, lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const noexcept
{
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const noexcept
{
    return ::PtInRegion(*this, point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const noexcept
{
    return ::RectInRegion(*this, lpRect);
}
