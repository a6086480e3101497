#include "core/CAoi.h"

#include <array>

#include "core/detail/NumberText.h"
#include "core/detail/TextView.h"
#include "settings/CESetObj.h"

CAoi::CAoi(double l, double t, double r, double b)
    : left(l)
    , top(t)
    , right(r)
    , bottom(b)
{
    CalcCentre();
}

void CAoi::Reset()
{
    *this = CAoi();
}

int CAoi::operator==(const CAoi& other) const
{
    return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
}

CAoi& CAoi::operator+=(const CAoi& other)
{
    left = other.left < left ? other.left : left;
    top = other.top < top ? other.top : top;
    right = other.right > right ? other.right : right;
    bottom = other.bottom > bottom ? other.bottom : bottom;
    CalcCentre();
    return *this;
}

void CAoi::AddPt(double x, double y, int update)
{
    left = x < left ? x : left;
    right = x > right ? x : right;
    top = y < top ? y : top;
    bottom = y > bottom ? y : bottom;
    if (update) {
        CalcCentre();
    }
}

void CAoi::CalcCentre()
{
    width = right - left;
    height = bottom - top;
    cx = (left + right) / 2.0;
    cy = (top + bottom) / 2.0;
}

void CAoi::CalcExt()
{
    left = cx - width / 2.0;
    right = cx + width / 2.0;
    top = cy - height / 2.0;
    bottom = cy + height / 2.0;
}

void CAoi::SetWidth(double w, double h)
{
    width = w;
    height = h;
    CalcExt();
}

void CAoi::SetCentre(double x, double y)
{
    cx = x;
    cy = y;
    CalcExt();
}

void CAoi::Scale(double sx, double sy)
{
    SetWidth(width * sx, height * sy);
}

void CAoi::Offset(double dx, double dy)
{
    left += dx;
    right += dx;
    cx += dx;
    top += dy;
    bottom += dy;
    cy += dy;
}

void CAoi::Brdr(double l, double t, double r, double b)
{
    left -= l;
    top -= t;
    right += r;
    bottom += b;
    CalcCentre();
}

int CAoi::OnBrdr(double x, double y) const
{
    const bool beside = top <= y && y <= bottom;
    const bool between = left <= x && x <= right;
    return ((x == left || x == right) && beside) || ((y == top || y == bottom) && between);
}

void CAoi::Serialize(CArchive& ar)
{
    if (ar.IsLoading()) {
        ar >> left >> right >> top >> bottom;
        CalcCentre();
    } else {
        ar << left << right << top << bottom;
    }
}

void CAoi::Settings(const CString& key, CESetObj& obj)
{
    constexpr std::size_t numbers = 4;
    if (obj.IsStoring()) {
        const std::array<double, numbers> written = {left, top, right, bottom};
        std::array<wchar_t, vant::detail::DoublesTextMax(numbers)> text;
        const wchar_t* const end = vant::detail::WriteDoubles(text.data(), written);
        CString item(text.data(), static_cast<int>(end - text.data()));
        obj.Item(key, item);
        return;
    }
    CString text;
    obj.Item(key, text);
    std::array<double, numbers> bounds{};
    if (vant::detail::ScanDoubles(vant::detail::View(text), bounds) == numbers) {
        left = bounds[0];
        top = bounds[1];
        right = bounds[2];
        bottom = bounds[3];
    }
}
