#pragma once

#include "vafx/CPoint.h"

/** A rectangle: a RECT with operators. Right and bottom lie outside. Most operations expect a normalised
 *  rectangle (left not right of right, top not below bottom). */
class CRect : public tagRECT
{
public:
    CRect() noexcept
        : tagRECT{0, 0, 0, 0}
    {
    }
    CRect(int l, int t, int r, int b) noexcept
        : tagRECT{l, t, r, b}
    {
    }
    CRect(const RECT& srcRect) noexcept
        : tagRECT(srcRect)
    {
    }
    CRect(LPCRECT lpSrcRect) noexcept
        : tagRECT(*lpSrcRect)
    {
    }
    CRect(POINT point, SIZE size) noexcept
        : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy}
    {
    }
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}
    {
    }

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    /** The corners as points of the rectangle itself. */
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    /** TRUE when width or height is not above 0. */
    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    /** TRUE when all four are 0. */
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    /** A point on the left or top side lies inside, one on the right or bottom side does not. */
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { *this = *lpSrcRect; }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    /** @name Growing and shrinking: every side moves outwards (Inflate) or inwards (Deflate) */
    ///@{
    void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept
    {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept
    {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept
    {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    ///@}

    void OffsetRect(int x, int y) noexcept { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /** Exchanges sides until width and height are not negative. */
    void NormalizeRect() noexcept
    {
        SetRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
                top < bottom ? bottom : top);
    }
    /** @return FALSE, and this empty, when the two have nothing in common. */
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
    {
        return ::IntersectRect(this, lpRect1, lpRect2);
    }
    /** Empty rectangles do not count. @return FALSE when both are empty. */
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    /** The first without the second, where the second covers it across one whole direction. */
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept
    {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(const RECT& srcRect) noexcept { static_cast<tagRECT&>(*this) = srcRect; }
    BOOL operator==(const RECT& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(CRect(*this), &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(CRect(*this), &rect); }

    CRect operator+(POINT point) const noexcept
    {
        return Changed([&](CRect& r) { r += point; });
    }
    CRect operator-(POINT point) const noexcept
    {
        return Changed([&](CRect& r) { r -= point; });
    }
    CRect operator+(SIZE size) const noexcept
    {
        return Changed([&](CRect& r) { r += size; });
    }
    CRect operator-(SIZE size) const noexcept
    {
        return Changed([&](CRect& r) { r -= size; });
    }
    CRect operator+(LPCRECT lpRect) const noexcept
    {
        return Changed([&](CRect& r) { r += lpRect; });
    }
    CRect operator-(LPCRECT lpRect) const noexcept
    {
        return Changed([&](CRect& r) { r -= lpRect; });
    }
    CRect operator&(const RECT& rect) const noexcept
    {
        return Changed([&](CRect& r) { r &= rect; });
    }
    CRect operator|(const RECT& rect) const noexcept
    {
        return Changed([&](CRect& r) { r |= rect; });
    }

private:
    CRect Changed(auto&& change) const noexcept
    {
        CRect result(*this);
        change(result);
        return result;
    }
};

CRect CSize::operator+(const RECT* lpRect) const noexcept
{
    return CRect(*lpRect) + *this;
}

CRect CSize::operator-(const RECT* lpRect) const noexcept
{
    return CRect(*lpRect) - *this;
}

CRect CPoint::operator+(const RECT* lpRect) const noexcept
{
    return CRect(*lpRect) + *this;
}

CRect CPoint::operator-(const RECT* lpRect) const noexcept
{
    return CRect(*lpRect) - *this;
}
