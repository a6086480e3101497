#pragma once

#include <windows.h>

class CPoint;
class CRect;

/** A width and a height: a SIZE with operators. */
class CSize : public tagSIZE
{
public:
    CSize() noexcept
        : tagSIZE{0, 0}
    {
    }
    CSize(int initCX, int initCY) noexcept
        : tagSIZE{initCX, initCY}
    {
    }
    CSize(SIZE initSize) noexcept
        : tagSIZE(initSize)
    {
    }
    CSize(POINT initPt) noexcept
        : tagSIZE{initPt.x, initPt.y}
    {
    }
    /** Low word: width, high word: height, both signed. */
    CSize(DWORD dwSize) noexcept
        : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))}
    {
    }

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return cx != size.cx || cy != size.cy; }
    void operator+=(SIZE size) noexcept { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) noexcept { SetSize(cx - size.cx, cy - size.cy); }
    void SetSize(int newCX, int newCY) noexcept
    {
        cx = newCX;
        cy = newCY;
    }

    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    inline CPoint operator+(POINT point) const noexcept;
    inline CPoint operator-(POINT point) const noexcept;
    inline CRect operator+(const RECT* lpRect) const noexcept;
    inline CRect operator-(const RECT* lpRect) const noexcept;
};
