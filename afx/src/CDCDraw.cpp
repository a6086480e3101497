#include "detail/Handles.h"
#include "vafx/CBrush.h"
#include "vafx/CDC.h"
#include "vafx/CRgn.h"

namespace
{

int LengthOf(LPCTSTR text, int count) noexcept
{
    return count >= 0 ? count : ::lstrlenW(text);
}

} // namespace

CPoint CDC::GetCurrentPosition() const
{
    CPoint point;
    ::GetCurrentPositionEx(m_hDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint old;
    ::MoveToEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}

BOOL CDC::Polyline(const POINT* lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    return ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount)
{
    return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(vafx::detail::HandleOf(pBrush)));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, static_cast<HBRUSH>(vafx::detail::HandleOf(pBrush)));
}

void CDC::InvertRect(LPCRECT lpRect)
{
    ::InvertRect(m_hDC, lpRect);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    // The background colour stays changed, as documented.
    SetBkColor(clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    ::DrawFocusRect(m_hDC, lpRect);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Polygon(const POINT* lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    return ::FillRgn(m_hDC, static_cast<HRGN>(vafx::detail::HandleOf(pRgn)),
                     static_cast<HBRUSH>(vafx::detail::HandleOf(pBrush)));
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    return ::PaintRgn(m_hDC, static_cast<HRGN>(vafx::detail::HandleOf(pRgn)));
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor)
{
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor)
{
    return SetPixel(point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, vafx::detail::HandleOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, vafx::detail::HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, dwRop);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, vafx::detail::HandleOf(pSrcDC), xSrc,
                        ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                         int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, vafx::detail::HandleOf(pSrcDC),
                            xSrc, ySrc, nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOutW(m_hDC, x, y, lpszString, LengthOf(lpszString, nCount));
}

BOOL CDC::TextOut(int x, int y, const CString& str)
{
    return TextOut(x, y, str, str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths)
{
    return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hAttribDC, lpszString, LengthOf(lpszString, nCount), &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return GetTextExtent(str, str.GetLength());
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, str, str.GetLength(), &size);
    return size;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetricsW(m_hAttribDC, lpMetrics);
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFaceW(m_hAttribDC, nCount, lpszFacename);
}

int CDC::GetTextFace(CString& rString) const
{
    wchar_t name[LF_FACESIZE] = {};
    const int length = GetTextFace(LF_FACESIZE, name);
    rString = name;
    return length;
}
