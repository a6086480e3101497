#include "controls/detail/SkinPiece.h"

#include <algorithm>
#include <array>

namespace vant::detail
{
namespace
{

/** One direction of a piece in three parts: margin, middle, margin. */
struct Cuts {
    std::array<int, 4> from;
    std::array<int, 4> to;
};

Cuts CutsOf(int from, int length, int low, int high, int to, int toLength)
{
    const int margins = low + high;
    const int toLow = margins > toLength ? toLength * low / margins : low;
    const int toHigh = margins > toLength ? toLength - toLow : high;
    return {{from, from + low, from + length - high, from + length},
            {to, to + toLow, to + toLength - toHigh, to + toLength}};
}

} // namespace

bool HasPiece(CDC& skin, const vant::skins::Region& piece)
{
    BITMAP bitmap{};
    if (!skin.m_hDC || !::GetObjectW(::GetCurrentObject(skin.m_hDC, OBJ_BITMAP), sizeof bitmap, &bitmap))
        return false;
    return bitmap.bmWidth >= piece.x + piece.w * piece.cells && bitmap.bmHeight >= piece.y + piece.h;
}

bool DrawPiece(CDC& dc, const CRect& box, CDC& skin, const vant::skins::Region& piece, int cell,
               COLORREF back)
{
    if (!HasPiece(skin, piece))
        return false;
    const Cuts x = CutsOf(piece.left(cell), piece.w, piece.edges.left, piece.edges.right, box.left,
                          std::max(box.Width(), 0));
    const Cuts y =
        CutsOf(piece.y, piece.h, piece.edges.top, piece.edges.bottom, box.top, std::max(box.Height(), 0));
    const int mode = dc.SetStretchBltMode(COLORONCOLOR);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const CRect from(x.from[column], y.from[row], x.from[column + 1], y.from[row + 1]);
            const CRect to(x.to[column], y.to[row], x.to[column + 1], y.to[row + 1]);
            if (from.IsRectEmpty() || to.IsRectEmpty())
                continue;
            if (back == skinBack)
                dc.StretchBlt(to.left, to.top, to.Width(), to.Height(), &skin, from.left, from.top,
                              from.Width(), from.Height(), SRCCOPY);
            else
                dc.TransparentBlt(to.left, to.top, to.Width(), to.Height(), &skin, from.left, from.top,
                                  from.Width(), from.Height(), skinBack);
        }
    }
    dc.SetStretchBltMode(mode);
    return true;
}

} // namespace vant::detail
