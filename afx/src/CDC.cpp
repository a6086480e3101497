#include "vafx/CDC.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"
#include "vafx/CBitmap.h"
#include "vafx/CBrush.h"
#include "vafx/CFont.h"
#include "vafx/CPalette.h"
#include "vafx/CPen.h"
#include "vafx/CRgn.h"
#include "vafx/CWnd.h"

using vafx::detail::HandleKind;

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace
{

/** Does the same to the output and, where it is another one, to the attribute context. @return The attribute
 *  context's answer, as questions go there. */
template <class F>
auto OnBoth(const CDC& dc, F change)
{
    if (dc.m_hDC != nullptr && dc.m_hDC != dc.m_hAttribDC) {
        const auto output = change(dc.m_hDC);
        if (dc.m_hAttribDC == nullptr)
            return output;
    }
    return change(dc.m_hAttribDC);
}

/** What a function of the system writes through the last of its arguments. */
template <class Value, class Call, class... Args>
Value Answer(HDC dc, Call call, Args... args)
{
    Value value;
    call(dc, args..., &value);
    return value;
}

/** Makes a change to both contexts with a function of the system that answers the value before. */
template <class Value, class Call, class... Args>
Value Exchange(const CDC& dc, Call call, Args... args)
{
    Value old;
    OnBoth(dc, [&](HDC handle) { return call(handle, args..., &old); });
    return old;
}

} // namespace

CDC::CDC() noexcept
    : m_hDC(nullptr)
    , m_hAttribDC(nullptr)
{
}

CDC::~CDC()
{
    if (m_hDC != nullptr)
        ::DeleteDC(Detach());
}

HDC CDC::GetSafeHdc() const noexcept
{
    // Callers rely on being allowed to ask a null pointer.
    const CDC* volatile self = this;
    return self == nullptr ? nullptr : m_hDC;
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return vafx::detail::ObjectOf<CDC>(vafx::detail::ThisThread().temporary, HandleKind::DeviceContext, hDC,
                                       [hDC](CDC& dc) { dc.m_hDC = dc.m_hAttribDC = hDC; });
}

BOOL CDC::Attach(HDC hDC)
{
    if (hDC == nullptr)
        return FALSE;
    Detach();
    vafx::detail::SetPermanent(HandleKind::DeviceContext, hDC, this);
    m_hDC = hDC;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    const HDC dc = m_hDC;
    if (dc != nullptr)
        vafx::detail::RemovePermanent(HandleKind::DeviceContext, dc, this);
    ReleaseAttribDC();
    m_hDC = nullptr;
    return dc;
}

BOOL CDC::DeleteDC()
{
    return m_hDC != nullptr ? ::DeleteDC(Detach()) : FALSE;
}

void CDC::SetOutputDC(HDC hDC)
{
    ReleaseOutputDC();
    vafx::detail::SetPermanent(HandleKind::DeviceContext, hDC, this);
    m_hDC = hDC;
}

void CDC::ReleaseOutputDC()
{
    if (m_hDC != nullptr)
        vafx::detail::RemovePermanent(HandleKind::DeviceContext, m_hDC, this);
    m_hDC = nullptr;
}

int CDC::SaveDC()
{
    return OnBoth(*this, [](HDC dc) { return ::SaveDC(dc); });
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    // A relative level means the same in both; an absolute one was the attribute context's, and is as deep in
    // the other.
    return OnBoth(*this, [nSavedDC](HDC dc) { return ::RestoreDC(dc, nSavedDC); });
}

HGDIOBJ CDC::Select(HGDIOBJ object)
{
    if (object == nullptr)
        return nullptr;
    return OnBoth(*this, [object](HDC dc) { return ::SelectObject(dc, object); });
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return CGdiObject::FromHandle(Select(::GetStockObject(nIndex)));
}

// A bitmap fits only one context at a time.
CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    const HGDIOBJ old = pBitmap != nullptr ? ::SelectObject(m_hDC, pBitmap->m_hObject) : nullptr;
    return CBitmap::FromHandle(static_cast<HBITMAP>(old));
}

int CDC::SelectObject(CRgn* pRgn)
{
    return SelectClipRgn(pRgn);
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    const HPALETTE palette = static_cast<HPALETTE>(vafx::detail::HandleOf(pPalette));
    return CPalette::FromHandle(::SelectPalette(m_hDC, palette, bForceBackground));
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return Attach(
        ::CreateDCW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return Attach(
        ::CreateICW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(vafx::detail::HandleOf(pDC)));
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return CPen::FromHandle(static_cast<HPEN>(Select(vafx::detail::HandleOf(pPen))));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(Select(vafx::detail::HandleOf(pBrush))));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle(static_cast<HFONT>(Select(vafx::detail::HandleOf(pFont))));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth(*this, [crColor](HDC dc) { return ::SetBkColor(dc, crColor); });
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBoth(*this, [nBkMode](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth(*this, [crColor](HDC dc) { return ::SetTextColor(dc, crColor); });
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return OnBoth(*this, [nFlags](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBoth(*this, [nDrawMode](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return OnBoth(*this, [nPolyFillMode](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return OnBoth(*this, [nStretchMode](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    return Answer<CPoint>(m_hDC, ::SetBrushOrgEx, x, y);
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

CPoint CDC::GetBrushOrg() const
{
    return Answer<CPoint>(m_hDC, ::GetBrushOrgEx);
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBoth(*this, [nMapMode](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return Exchange<CPoint>(*this, ::SetViewportOrgEx, x, y);
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::GetViewportOrg() const
{
    return Answer<CPoint>(m_hAttribDC, ::GetViewportOrgEx);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    return Exchange<CPoint>(*this, ::OffsetViewportOrgEx, nWidth, nHeight);
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    return Exchange<CSize>(*this, ::SetViewportExtEx, cx, cy);
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::GetViewportExt() const
{
    return Answer<CSize>(m_hAttribDC, ::GetViewportExtEx);
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return Exchange<CPoint>(*this, ::SetWindowOrgEx, x, y);
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::GetWindowOrg() const
{
    return Answer<CPoint>(m_hAttribDC, ::GetWindowOrgEx);
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    return Exchange<CSize>(*this, ::SetWindowExtEx, cx, cy);
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::GetWindowExt() const
{
    return Answer<CSize>(m_hAttribDC, ::GetWindowExtEx);
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

int CDC::GetClipBox(LPRECT lpRect) const
{
    return ::GetClipBox(m_hDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    const HRGN region = static_cast<HRGN>(vafx::detail::HandleOf(pRgn));
    return OnBoth(*this, [region](HDC dc) { return ::SelectClipRgn(dc, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    const HRGN region = static_cast<HRGN>(vafx::detail::HandleOf(pRgn));
    return OnBoth(*this, [=](HDC dc) { return ::ExtSelectClipRgn(dc, region, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return OnBoth(*this, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}
