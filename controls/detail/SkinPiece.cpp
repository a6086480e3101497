#include "controls/detail/SkinPiece.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

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

/** One cell of a piece with another colour around its shape. */
class RecolouredCell
{
public:
    RecolouredCell(CDC& skin, const vant::skins::Region& piece, int cell, COLORREF back)
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, piece.w, -piece.h, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (!bits || !m_dc.CreateCompatibleDC(nullptr))
            return;
        m_before = ::SelectObject(m_dc, m_bitmap);
        m_dc.BitBlt(0, 0, piece.w, piece.h, &skin, piece.left(cell), piece.y, SRCCOPY);
        ::GdiFlush();
        const std::span pixels(static_cast<std::uint32_t*>(bits),
                               static_cast<std::size_t>(piece.w * piece.h));
        for (std::uint32_t& pixel : pixels)
            if ((pixel & rgbBits) == Pixel(skinBack))
                pixel = Pixel(back);
    }
    ~RecolouredCell()
    {
        if (m_before)
            ::SelectObject(m_dc, m_before);
    }
    RecolouredCell(const RecolouredCell&) = delete;
    RecolouredCell& operator=(const RecolouredCell&) = delete;

    /** The cell, at the origin; null if there was no memory for it. */
    CDC* Dc() noexcept { return m_before ? &m_dc : nullptr; }

private:
    static constexpr std::uint32_t rgbBits = 0xFFFFFF; // the fourth byte is of no interest
    static constexpr std::uint32_t Pixel(COLORREF c) noexcept
    {
        return RGB(GetBValue(c), GetGValue(c), GetRValue(c));
    }

    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
};

/** Copies the cell whose upper left corner is at `from`, in its nine parts. */
void CopyParts(CDC& dc, const CRect& box, CDC& source, CPoint from, const vant::skins::Region& piece)
{
    const auto& edges = piece.edges;
    const Cuts x = CutsOf(from.x, piece.w, edges.left, edges.right, box.left, std::max(box.Width(), 0));
    const Cuts y = CutsOf(from.y, piece.h, edges.top, edges.bottom, box.top, std::max(box.Height(), 0));
    // At the screen's basic scale what is between margins is alike wherever it is stretched.
    const bool hasMargins = edges.left || edges.top || edges.right || edges.bottom;
    const bool asDrawn = hasMargins || box.Size() == CSize(piece.w, piece.h);
    const bool exact = asDrawn && dc.GetMapMode() == MM_TEXT;
    const int mode = dc.SetStretchBltMode(exact ? COLORONCOLOR : HALFTONE);
    const CPoint origin = dc.SetBrushOrg(0, 0); // asked for after every change to HALFTONE
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const CRect part(x.from[column], y.from[row], x.from[column + 1], y.from[row + 1]);
            const CRect to(x.to[column], y.to[row], x.to[column + 1], y.to[row + 1]);
            if (!part.IsRectEmpty() && !to.IsRectEmpty())
                dc.StretchBlt(to.left, to.top, to.Width(), to.Height(), &source, part.left, part.top,
                              part.Width(), part.Height(), SRCCOPY);
        }
    }
    dc.SetBrushOrg(origin);
    dc.SetStretchBltMode(mode);
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
    if (back != skinBack) {
        RecolouredCell recoloured(skin, piece, cell, back);
        if (CDC* const source = recoloured.Dc()) {
            CopyParts(dc, box, *source, {0, 0}, piece);
            return true;
        }
    }
    CopyParts(dc, box, skin, {piece.left(cell), piece.y}, piece);
    return true;
}

} // namespace vant::detail
