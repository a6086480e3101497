// CColTbl: strips.
#include "colour/CColTbl.h"
#include "platform/Vant.h"

#include <algorithm>

namespace
{

/** The bands of a strip along one axis, in the order in which they are painted. */
class Bands
{
public:
    Bands(int from, int to, unsigned count, bool turned)
        : m_from(from)
        , m_length(to - from)
        , m_count(static_cast<int>(count))
        , m_turned(turned)
    {
    }

    int Count() const { return m_count; }
    /** Neighbours overlap by one. */
    int Width() const { return std::max(1, m_length / m_count) + 1; }
    int Start(int i) const
    {
        if (m_count == 1)
            return m_from;
        const int at = m_turned ? m_count - 1 - i : i;
        return m_from + static_cast<int>(static_cast<long long>(m_length) * at / (m_count - 1));
    }
    /** Whether the next one is painted over the whole of it, as where a pixel has many. */
    bool IsCovered(int i) const { return i + 1 < m_count && Start(i + 1) == Start(i); }

private:
    int m_from;
    int m_length;
    int m_count;
    bool m_turned;
};

/** @param band  the rectangle of a band that starts at the first argument and is as wide as the second
 *  @param entry  the entry of the i-th band */
template <class Band, class Entry>
void Paint(const Bands& bands, CDC& dc, Band band, Entry entry)
{
    for (int i = 0; i < bands.Count(); ++i) {
        if (bands.IsCovered(i))
            continue;
        const CRgb& colour = entry(i);
        dc.FillSolidRect(band(bands.Start(i), bands.Width()), RGB(colour.red, colour.green, colour.blue));
    }
}

void PaintEmpty(const CRect& rc, CDC& dc)
{
    const int saved = dc.SaveDC();
    dc.SelectObject(&Vant::blueL);
    dc.SelectObject(&Vant::blackB);
    dc.Rectangle(rc);
    dc.RestoreDC(saved);
}

} // namespace

void CColTbl::DrawH(const CRect& rc, CDC* dc, int reverse) const
{
    const unsigned size = cols.GetSize();
    if (size == 0)
        return PaintEmpty(rc, *dc);
    const bool turned = (reverse != 0) != (reversed != 0);
    Paint(
        Bands(rc.left, rc.right, size, turned), *dc,
        [&](int x, int width) { return CRect(x, rc.top, x + width, rc.bottom); },
        [&](int i) -> const CRgb& { return *cols[static_cast<unsigned>(i)]; });
}

void CColTbl::DrawV(const CRect& rc, CDC* dc, int reverse) const
{
    const unsigned size = cols.GetSize();
    if (size == 0)
        return PaintEmpty(rc, *dc);
    const bool turned = (reverse != 0) != (reversed != 0);
    Paint(
        Bands(rc.top, rc.bottom, size, turned), *dc,
        [&](int y, int height) { return CRect(rc.left, y, rc.right, y + height); },
        [&](int i) -> const CRgb& { return *cols[size - 1 - static_cast<unsigned>(i)]; });
}
