#pragma once

#include "vafx/CSize.h"

/** A point: a POINT with operators. */
class CPoint : public tagPOINT
{
public:
    CPoint() noexcept
        : tagPOINT{0, 0}
    {
    }
    CPoint(int initX, int initY) noexcept
        : tagPOINT{initX, initY}
    {
    }
    CPoint(POINT initPt) noexcept
        : tagPOINT(initPt)
    {
    }
    CPoint(SIZE initSize) noexcept
        : tagPOINT{initSize.cx, initSize.cy}
    {
    }
    /** Low word: x, high word: y, both signed, as mouse messages pass them. */
    CPoint(LPARAM dwPoint) noexcept
        : tagPOINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))}
    {
    }

    void Offset(int xOffset, int yOffset) noexcept { SetPoint(x + xOffset, y + yOffset); }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int newX, int newY) noexcept
    {
        x = newX;
        y = newY;
    }

    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return x != point.x || y != point.y; }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    /** The difference of two points is a size. */
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    inline CRect operator+(const RECT* lpRect) const noexcept;
    inline CRect operator-(const RECT* lpRect) const noexcept;
};

CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(cx + point.x, cy + point.y);
}

CPoint CSize::operator-(POINT point) const noexcept
{
    return CPoint(cx - point.x, cy - point.y);
}
