#include "demo/draw/SkinPiece.h"

#include "platform/Vant.h"

#include <array>

namespace demo
{
namespace
{

/** One direction of a region in three parts: margin, middle, margin. */
struct Cuts {
    std::array<int, 4> from;
    std::array<int, 4> to;
};

Cuts CutsOf(int from, int length, int low, int high, int to, int toLength, CDpi dpi)
{
    return {{from, from + low, from + length - high, from + length},
            {to, to + dpi.ToPx(low), to + toLength - dpi.ToPx(high), to + toLength}};
}

} // namespace

void DrawSkin(CDC& dc, const Box& box, CDC& skin, const vant::skins::Region& piece, CDpi dpi, int cell)
{
    const Cuts x =
        CutsOf(piece.left(cell), piece.w, piece.edges.left, piece.edges.right, box.left, box.Width(), dpi);
    const Cuts y = CutsOf(piece.y, piece.h, piece.edges.top, piece.edges.bottom, box.top, box.Height(), dpi);
    dc.SetStretchBltMode(COLORONCOLOR);
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            const int width = x.to[column + 1] - x.to[column];
            const int height = y.to[row + 1] - y.to[row];
            if (width > 0 && height > 0)
                dc.StretchBlt(x.to[column], y.to[row], width, height, &skin, x.from[column], y.from[row],
                              x.from[column + 1] - x.from[column], y.from[row + 1] - y.from[row], SRCCOPY);
        }
}

void StampSkin(CDC& dc, int x, int y, CDC& skin, const vant::skins::Region& piece, CDpi dpi, int cell)
{
    dc.SetStretchBltMode(COLORONCOLOR);
    dc.TransparentBlt(x, y, dpi.ToPx(piece.w), dpi.ToPx(piece.h), &skin, piece.left(cell), piece.y, piece.w,
                      piece.h, Vant::back);
}

} // namespace demo
