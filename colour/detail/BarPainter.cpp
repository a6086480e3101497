#include "colour/detail/BarPainter.h"

#include "colour/CColTbl.h"
#include "colour/detail/PalLookup.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vant::detail
{

namespace
{

constexpr int textGap = 8;    // between two texts of a lying bar
constexpr int uprightGap = 2; // above and below a text of an upright bar

/** The platform's round number nearest to a positive one. Its markers begin at 0.01, so it is asked within
 * one decade; and they are round in the units that lengths are shown in, so it is given such a length. */
double RoundNumber(double wanted)
{
    constexpr int length = 0;
    const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
    double marker = wanted / decade;
    EUnits::D2N(length, marker);
    marker = Vant::NearestMkr(marker);
    EUnits::N2D(length, marker);
    return marker * decade;
}

CSize TextSizeOf(CDC& dc, std::wstring_view text)
{
    return dc.GetTextExtent(text.data(), static_cast<int>(text.size()));
}

/** Lets pixels be painted one by one, whatever the scale. */
class InPixels
{
public:
    explicit InPixels(CDC& dc)
        : m_dc(dc)
        , m_saved(dc.SaveDC())
    {
        dc.SetMapMode(MM_TEXT);
        dc.SetWindowOrg(0, 0);
        dc.SetViewportOrg(0, 0);
    }
    ~InPixels() { m_dc.RestoreDC(m_saved); }
    InPixels(const InPixels&) = delete;
    InPixels& operator=(const InPixels&) = delete;

private:
    CDC& m_dc;
    int m_saved;
};

} // namespace

/** Whether the scale begins at the strip's far end, as the table is drawn from there. */
bool BarPainter::IsTurned() const
{
    return tbl.reversed != 0;
}

void BarPainter::DrawStrip(CDC& dc, const CRect& strip) const
{
    CRect px = strip;
    dc.LPtoDP(&px);
    const InPixels pixels(dc);
    const int length = isUpright ? px.Height() : px.Width();
    const PalRange range{0, 1, tbl.cols.GetSize(), wrap};
    if (range.size == 0)
        return dc.FillSolidRect(px, RGB(0, 0, 0));
    const auto entryAt = [&](int pixel) {
        const bool fromEnd = isUpright != IsTurned();
        return EntryOf(((fromEnd ? length - 1 - pixel : pixel) + 0.5) / length, range);
    };
    for (int begin = 0; begin < length;) {
        const std::size_t entry = entryAt(begin);
        int next = begin + 1;
        while (next < length && entryAt(next) == entry)
            ++next;
        const CRgb& colour = *tbl.cols[static_cast<unsigned>(entry)];
        const CRect run = isUpright ? CRect(px.left, px.top + begin, px.right, px.top + next)
                                    : CRect(px.left + begin, px.top, px.left + next, px.bottom);
        dc.FillSolidRect(run, RGB(colour.red, colour.green, colour.blue));
        begin = next;
    }
}

std::vector<BarLabel> BarPainter::Labels(CDC& dc, int length) const
{
    BarScale scale{start, end, length, isUpright ? uprightGap : textGap};
    EUnits::N2D(units, scale.start);
    EUnits::N2D(units, scale.end);
    // An upright bar begins at the bottom, and is laid out from the top.
    if (isUpright != IsTurned())
        std::swap(scale.start, scale.end);
    return BarLabels(scale, RoundNumber, [&](std::wstring_view text) {
        const CSize size = TextSizeOf(dc, text);
        return static_cast<int>(isUpright ? size.cy : size.cx);
    });
}

int BarPainter::ScaleRoom(CDC& dc, int length) const
{
    int room = 0;
    for (const BarLabel& label : Labels(dc, length)) {
        const CSize size = TextSizeOf(dc, label.text);
        room = std::max(room, static_cast<int>(isUpright ? size.cx + textGap / 2 : size.cy));
    }
    return room > 0 ? markSize + room : 0;
}

void BarPainter::DrawScale(CDC& dc, const CRect& strip) const
{
    const int saved = dc.SaveDC();
    dc.SetBkMode(TRANSPARENT);
    const auto labels = Labels(dc, isUpright ? strip.Height() : strip.Width());
    for (const BarLabel& label : labels) {
        // The mark of the far end belongs to the bar's last line.
        if (isUpright) {
            const int y = std::min<int>(strip.top + label.at, strip.bottom - 1);
            dc.MoveTo(strip.right, y);
            dc.LineTo(strip.right + markSize, y);
            dc.TextOut(strip.right + markSize + textGap / 2, strip.top + label.first, label.text.c_str(),
                       static_cast<int>(label.text.size()));
        } else {
            const int x = std::min<int>(strip.left + label.at, strip.right - 1);
            dc.MoveTo(x, strip.bottom);
            dc.LineTo(x, strip.bottom + markSize);
            dc.TextOut(strip.left + label.first, strip.bottom + markSize, label.text.c_str(),
                       static_cast<int>(label.text.size()));
        }
    }
    dc.RestoreDC(saved);
}

} // namespace vant::detail
