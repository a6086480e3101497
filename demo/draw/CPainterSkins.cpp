// The pieces of the library's skins. Its controls draw theirs themselves; a program that paints takes the
// bitmaps of Vant and the regions of resources/Skins.h.
#include "demo/draw/CPainter.h"

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

void CPainter::Skin(const Box& box, CDC& skin, const vant::skins::Region& piece, int cell)
{
    const Cuts x =
        CutsOf(piece.left(cell), piece.w, piece.edges.left, piece.edges.right, box.left, box.Width(), m_dpi);
    const Cuts y =
        CutsOf(piece.y, piece.h, piece.edges.top, piece.edges.bottom, box.top, box.Height(), m_dpi);
    m_dc.SetStretchBltMode(COLORONCOLOR);
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            const int width = x.to[column + 1] - x.to[column];
            const int height = y.to[row + 1] - y.to[row];
            if (width > 0 && height > 0)
                m_dc.StretchBlt(x.to[column], y.to[row], width, height, &skin, x.from[column], y.from[row],
                                x.from[column + 1] - x.from[column], y.from[row + 1] - y.from[row], SRCCOPY);
        }
}

void CPainter::Stamp(int x, int y, CDC& skin, const vant::skins::Region& piece, int cell)
{
    m_dc.SetStretchBltMode(COLORONCOLOR);
    m_dc.TransparentBlt(x, y, ToPx(piece.w), ToPx(piece.h), &skin, piece.left(cell), piece.y, piece.w,
                        piece.h, Vant::back);
}

} // namespace demo
