#pragma once

#include "vafx/CObject.h"
#include "vafx/CPoint.h"
#include "vafx/CRect.h"
#include "vafx/CSize.h"
#include "vafx/CStringW.h"

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPalette;
class CPen;
class CRgn;
class CWnd;

/** A device context. Output goes to m_hDC, questions about attributes to m_hAttribDC; both are the same
 * except where a program sets them apart. Coordinates are logical units of the current mapping mode. A CDC
 * that was created (CreateCompatibleDC, Attach) is deleted with the object; objects that Select... returns
 * may be temporary and last until the thread is idle. */
class VAFX_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    HDC m_hDC;       ///< Where output goes; null while there is no device context.
    HDC m_hAttribDC; ///< Where attributes are asked for.

    CDC() noexcept;
    ~CDC() override;

    operator HDC() const noexcept { return m_hDC; }
    /** @return The handle; null also when this is null. */
    HDC GetSafeHdc() const noexcept;

    /** @name Life
     *  FromHandle finds the owning object or makes a temporary one; Detach gives the handle away, as Attach
     * does with one that was here before. */
    ///@{
    static CDC* PASCAL FromHandle(HDC hDC);
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    /** A memory device context that fits @p pDC, or the screen when it is null. */
    BOOL CreateCompatibleDC(CDC* pDC);
    virtual BOOL DeleteDC();
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;
    CWnd* GetWindow() const;
    BOOL IsPrinting() const noexcept { return FALSE; }
    ///@}

    /** @name Selecting
     *  @return The object selected before; null on failure. */
    ///@{
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    /** @return The kind of the region, or ERROR. */
    int SelectObject(CRgn* pRgn);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette();
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    ///@}

    /** @name Attributes
     *  Setting returns the value before. */
    ///@{
    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    int SetBkMode(int nBkMode);
    int GetBkMode() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetTextColor() const;
    UINT SetTextAlign(UINT nFlags);
    UINT GetTextAlign() const;
    int SetROP2(int nDrawMode);
    int GetROP2() const;
    int SetPolyFillMode(int nPolyFillMode);
    int SetStretchBltMode(int nStretchMode);
    int GetStretchBltMode() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point);
    CPoint GetBrushOrg() const;
    ///@}

    /** @name Mapping */
    ///@{
    virtual int SetMapMode(int nMapMode);
    int GetMapMode() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point);
    CPoint GetViewportOrg() const;
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size);
    CSize GetViewportExt() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CPoint GetWindowOrg() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size);
    CSize GetWindowExt() const;
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    ///@}

    /** @name Clipping
     *  @return The kind of the resulting region, or ERROR. */
    ///@{
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;
    virtual BOOL RectVisible(LPCRECT lpRect) const;
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y);
    ///@}

    /** @name Lines
     *  Drawn with the current pen. MoveTo returns the position before. */
    ///@{
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polyline(const POINT* lpPoints, int nCount);
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount);
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount);
    ///@}

    /** @name Areas
     *  Outlined with the current pen, filled with the current or the given brush. */
    ///@{
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect);
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    void DrawFocusRect(LPCRECT lpRect);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT lpRect, POINT point);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Polygon(const POINT* lpPoints, int nCount);
    BOOL PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount);
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL PaintRgn(CRgn* pRgn);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode);
    ///@}

    /** @name Pixels
     *  Copies take their pixels from @p pSrcDC. */
    ///@{
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor);
    BOOL SetPixelV(int x, int y, COLORREF crColor);
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType);
    ///@}

    /** @name Text
     *  Drawn with the current font and text colours. A negative count: the text ends with a zero. */
    ///@{
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths);
    /** @return The text's height in logical units; 0 on failure. */
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    CSize GetOutputTextExtent(const CString& str) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;
    int GetTextFace(int nCount, LPTSTR lpszFacename) const;
    int GetTextFace(CString& rString) const;
    ///@}

private:
    HGDIOBJ Select(HGDIOBJ object);
};
