// CEChart: the layout of the strips, and the drawing.
#include "controls/CEChart.h"

#include "controls/detail/ChartState.h"
#include "controls/detail/CtrlText.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

#include <algorithm>
#include <cmath>
#include <span>

using namespace vant::detail;

namespace
{

// Units.
constexpr int headerH = 22; // names and values above a strip
constexpr int timeH = 20;   // labels of the time
constexpr int marginTop = 2;
constexpr int marginRight = 14;
constexpr int leastGutter = 34; // labels of the values
constexpr int labelGap = 6;     // between labels and what they belong to
constexpr int nameGap = 14;     // from one name to the next
constexpr int swatchW = 14;
constexpr int swatchH = 3;
constexpr int valueRoom = 26; // a division of a strip takes at least
constexpr int timeRoom = 84;  // a division of the time takes at least
constexpr int inset = 3;      // of the ends of the range from the edges of a strip
constexpr int leastPlotH = 8;
constexpr int padding = 5; // around the text of a badge
constexpr int fillAlpha = 96;
constexpr int dimmed = 150; // how far traces of a disabled chart fade, of 255

constexpr int usCustomary = 1; // unit system
constexpr int length = 0;      // unit kinds
constexpr int angle = 6;

constexpr Rgb plotCol = 0x051C36;
constexpr Rgb gridCol = 0x16314F;
constexpr Rgb axisCol = 0x3C5A7D;
constexpr Rgb labelCol = 0xA9BDD3;
constexpr Rgb textCol = 0xF5F5F5;
constexpr Rgb cursorCol = 0x8FA9C6;
constexpr Rgb badgeCol = 0xA9BDD3;
constexpr Rgb badgeTextCol = 0x00121F;
constexpr Rgb pausedCol = 0xFFB84D;
constexpr Rgb liveCol = 0x50D88A;

constexpr Rgb RgbOf(COLORREF colour) noexcept
{
    return (colour & 0xFFU) << 16 | (colour & 0xFF00U) | (colour >> 16 & 0xFFU);
}

std::wstring_view View(const CString& text)
{
    return {static_cast<LPCWSTR>(text), static_cast<std::size_t>(text.GetLength())};
}

/** Round numbers of the units that are displayed. */
std::span<const double> Markers()
{
    if (EUnits::system == usCustomary)
        return Vant::markers_USA;
    return Vant::markers_SI;
}

/** One drawing of a chart, in pixels. */
class Painter
{
public:
    Painter(ChartState& state, PixelCanvas canvas, int dpi, const CEChart& chart)
        : m_state(state)
        , m_canvas(canvas)
        , m_dpi(dpi)
        , m_chart(chart)
        , m_enabled(chart.IsEnabled())
    {
    }

    void Run(bool isFocused)
    {
        m_canvas.Fill(m_canvas.Bounds(), RgbOf(m_chart.BackCol()));
        Measure();
        m_state.names.clear();
        if (m_state.plot.IsEmpty())
            return;
        DrawBadge();
        int headerRight = m_badgeLeft;
        for (Place& place : m_places) {
            DrawStrip(place);
            DrawHeader(place, headerRight);
            headerRight = m_state.plot.right;
        }
        DrawTimes();
        if (isFocused)
            m_canvas.Frame(m_canvas.Bounds(), cursorCol, Px(1));
    }

private:
    struct Place {
        int index = 0;
        ChartState::Strip* strip = nullptr;
        PxRect plot;
        int header = 0; // its top
        TraceStroke::Map map;
        std::vector<Tick> ticks;
    };
    struct Line {
        ChartState::Trace* trace = nullptr;
        std::wstring value; // read out
        double valueY = 0;  // where it is; meaningful with hasPoint
        double valueX = 0;
        bool hasPoint = false;
    };

    int Px(int units) const noexcept { return ::MulDiv(units, m_dpi, CDpi::base); }
    /** The base line of a text that is centred in a height. */
    int BaseLine(int top, int height) const
    {
        return top + (height - m_state.font.Height()) / 2 + m_state.font.Ascent();
    }
    Rgb Faded(Rgb colour) const noexcept { return m_enabled ? colour : Mix(colour, plotCol, dimmed); }
    Rgb TextCol(Rgb colour) const noexcept { return m_enabled ? colour : RgbOf(disabledText); }

    void Measure();
    void PlaceStrips();
    void FindUnits(Place& place);
    void FindRange(Place& place, const ChartData::Reader& reader);
    int Divisions(const Place& place) const { return std::max(place.plot.Height() / Px(valueRoom), 1); }
    double XOf(double t) const noexcept { return m_state.plot.left + (t - m_state.start) / m_state.perPixel; }
    void DrawBadge();
    void DrawStrip(Place& place);
    void DrawValueLabels(const Place& place);
    void DrawTraces(Place& place);
    void DrawHeader(const Place& place, int right);
    void DrawTimes();
    void ReadOut(const Place& place, Line& line, const ChartData::Reader& reader);
    std::wstring ValueText(const Place& place, double v) const;
    bool HasCursor() const noexcept
    {
        return m_state.mouse && !m_state.dragging && m_enabled && m_state.perPixel > 0 &&
               m_state.view.IsSet() && m_state.plot.Has(m_state.mouse->x, m_state.mouse->y);
    }
    double CursorTime() const noexcept
    {
        return m_state.start + (m_state.mouse->x + 0.5 - m_state.plot.left) * m_state.perPixel;
    }

    ChartState& m_state;
    PixelCanvas m_canvas;
    const int m_dpi;
    const CEChart& m_chart;
    const bool m_enabled;
    std::vector<Place> m_places;
    std::vector<Line> m_lines; // of the strip being drawn
    std::vector<Tick> m_times;
    int m_badgeLeft = 0;
};

/** Shares the height out among the strips, top to bottom. */
void Painter::PlaceStrips()
{
    int shares = 0;
    for (std::size_t i = 0; i < m_state.strips.size(); ++i) {
        const int share = m_state.strips[i]->own.share;
        if (share <= 0)
            continue;
        shares += share;
        Place place;
        place.index = static_cast<int>(i);
        place.strip = m_state.strips[i].get();
        m_places.push_back(place);
    }
    int top = Px(marginTop);
    const int bottom = m_canvas.Height() - Px(timeH);
    for (Place& place : m_places) {
        const int height = static_cast<int>(std::int64_t{bottom - top} * place.strip->own.share / shares);
        shares -= place.strip->own.share;
        place.header = top;
        place.plot.top = top + Px(headerH);
        place.plot.bottom = top + height;
        top += height;
    }
    // Those without room for a line are left out.
    std::erase_if(m_places, [this](const Place& p) { return p.plot.Height() < Px(leastPlotH); });
}

/** From native values to those displayed. */
void Painter::FindUnits(Place& place)
{
    ChartState::Strip& strip = *place.strip;
    double zero = 0;
    double one = strip.own.scale;
    EUnits::N2D(strip.own.units, zero);
    EUnits::N2D(strip.own.units, one);
    const double gain = one - zero;
    // A range of other units says nothing about the next one.
    if (gain != strip.gain || zero != strip.offset)
        strip.shown = {0, 0};
    strip.gain = gain;
    strip.offset = zero;
}

void Painter::FindRange(Place& place, const ChartData::Reader& reader)
{
    ChartState::Strip& strip = *place.strip;
    const CEStrip& own = strip.own;
    const auto displayed = [&](double v) { return v * strip.gain + strip.offset; };
    const AxisRange asked = {std::min(displayed(own.rangeMin), displayed(own.rangeMax)),
                             std::max(displayed(own.rangeMin), displayed(own.rangeMax))};
    if (own.range == CEStrip::rangeFixed && own.rangeMin < own.rangeMax && std::isfinite(asked.Length()) &&
        asked.Length() > 0) {
        strip.shown = asked;
    } else {
        MinMax data;
        for (const auto& trace : m_state.traces) {
            if (trace->own.Strip() != place.index || !trace->own.visible)
                continue;
            const SamplePyramid& samples = reader.Trace(trace->own.Index());
            const double start = m_state.start - reader.Shift();
            const double end = start + m_state.perPixel * m_state.plot.Width();
            data.Add(samples.Range(samples.From(start), samples.After(end)));
        }
        if (!data.IsEmpty()) {
            const double a = displayed(data.min);
            const double b = displayed(data.max);
            strip.shown =
                FitRange(Markers(), {std::min(a, b), std::max(a, b)}, strip.shown, Divisions(place));
        }
    }
    AxisRange range = strip.shown;
    if (!(range.min < range.max))
        range = {0, 1};
    // The value at the top has the smaller y.
    const double top = place.plot.top + Px(inset);
    const double height = std::max(place.plot.Height() - 2 * Px(inset), 1);
    const double perDisplayed = (own.reversed ? 1 : -1) * height / range.Length();
    const double zeroAt = own.reversed ? top - range.min * perDisplayed : top - range.max * perDisplayed;
    place.map = {m_state.start - reader.Shift(), m_state.perPixel, zeroAt + strip.offset * perDisplayed,
                 strip.gain * perDisplayed};
    place.ticks = ValueTicks(Markers(), range, Divisions(place));
}

void Painter::Measure()
{
    PlaceStrips();
    if (m_state.dpi != m_dpi) {
        m_state.dpi = m_dpi;
        for (const auto& trace : m_state.traces)
            trace->valueWidth = 0;
    }
    PxRect& plot = m_state.plot;
    plot = {};
    if (m_places.empty())
        return;
    plot = {Px(leastGutter), m_places.front().plot.top, m_canvas.Width() - Px(marginRight),
            m_places.back().plot.bottom};
    for (Place& place : m_places)
        FindUnits(place);

    const ChartData::Reader reader(m_state.data);
    const MinMax times = reader.Times();
    if (!times.IsEmpty())
        m_state.view.SetTimes(times.min, times.max);
    // Labels need the ranges, which need the width: the labels of the range as it is with the least gutter
    // are good enough, as the range depends on the width by a pixel or two of time only.
    for (int pass = 0; pass < 2; ++pass) {
        if (plot.IsEmpty())
            break;
        m_state.perPixel = m_state.view.Span() / plot.Width();
        // Whole pixels, so that what moves through the chart keeps its shape.
        m_state.start = std::floor(m_state.view.Start() / m_state.perPixel) * m_state.perPixel;
        int gutter = Px(leastGutter);
        for (Place& place : m_places) {
            FindRange(place, reader);
            for (const Tick& tick : place.ticks)
                gutter = std::max(gutter, m_state.font.WidthOf(tick.label) + 2 * Px(labelGap));
        }
        plot.left = gutter;
    }
    for (Place& place : m_places) {
        place.plot.left = plot.left;
        place.plot.right = plot.right;
    }
    if (plot.IsEmpty())
        return;
    const auto labels = m_chart.timeLabels == CEChart::timeClock ? TimeLabels::Clock : TimeLabels::Relative;
    if (m_state.view.IsSet())
        m_times = TimeTicks({m_state.start, m_state.start + (plot.Width() + 1) * m_state.perPixel},
                            m_state.view.Now(), labels, std::max(plot.Width() / Px(timeRoom), 1));
}

/** Tells at the top right how much is shown, and whether it goes on. */
void Painter::DrawBadge()
{
    const bool isLive = m_state.view.IsLive();
    const std::wstring label = (isLive ? L"" : L"Paused  ") + SpanText(m_state.view.Span());
    const int width = m_state.font.WidthOf(label);
    const int top = m_places.front().header;
    const int height = Px(headerH);
    const int right = m_state.plot.right;
    const int base = BaseLine(top, height);
    if (isLive) {
        const int left = right - width;
        m_canvas.Text(left, base, label, m_state.font, TextCol(labelCol));
        const double radius = Px(6) / 2.0;
        m_canvas.Disc(left - Px(4) - radius, top + height / 2.0, radius, Faded(liveCol));
        m_badgeLeft = left - Px(4) - Px(6) - Px(nameGap);
        return;
    }
    const PxRect box{right - width - 2 * Px(padding), base - m_state.font.Ascent() - Px(1), right,
                     base - m_state.font.Ascent() + m_state.font.Height() + Px(1)};
    m_canvas.Fill(box, TextCol(pausedCol));
    m_canvas.Text(box.left + Px(padding), base, label, m_state.font, badgeTextCol);
    m_badgeLeft = box.left - Px(nameGap);
}

void Painter::DrawStrip(Place& place)
{
    const PxRect& plot = place.plot;
    m_canvas.Fill(plot, plotCol);
    m_canvas.SetClip(plot);
    const int thin = Px(1);
    for (const Tick& tick : m_times) {
        const int x = static_cast<int>(std::floor(XOf(tick.at)));
        m_canvas.Fill({x, plot.top, x + thin, plot.bottom}, gridCol);
    }
    const ChartState::Strip& strip = *place.strip;
    for (const Tick& tick : place.ticks) {
        const double native = (tick.at - strip.offset) / strip.gain;
        const int y = static_cast<int>(std::floor(place.map.y0 + native * place.map.yPer));
        m_canvas.Fill({plot.left, y, plot.right, y + thin}, gridCol);
    }
    m_canvas.SetClip(m_canvas.Bounds());
    DrawTraces(place);
    m_canvas.Fill({plot.left - thin, plot.top, plot.left, plot.bottom + thin}, axisCol);
    m_canvas.Fill({plot.left - thin, plot.bottom, plot.right, plot.bottom + thin}, axisCol);
    DrawValueLabels(place);
}

void Painter::DrawValueLabels(const Place& place)
{
    const ChartState::Strip& strip = *place.strip;
    const int height = m_state.font.Height();
    int taken = -height; // a label ends here, from the top or from the bottom
    bool isFirst = true;
    for (const Tick& tick : place.ticks) {
        const double native = (tick.at - strip.offset) / strip.gain;
        const double y = place.map.y0 + native * place.map.yPer;
        const int top = static_cast<int>(std::lround(y)) - height / 2;
        // Rounded ends may be next to each other.
        if (!isFirst && std::abs(top - taken) < height)
            continue;
        isFirst = false;
        taken = top;
        const int left = place.plot.left - Px(labelGap) - m_state.font.WidthOf(tick.label);
        m_canvas.Text(left, BaseLine(top, height), tick.label, m_state.font, TextCol(labelCol));
    }
}

std::wstring Painter::ValueText(const Place& place, double v) const
{
    const CEStrip& own = place.strip->own;
    int decimals = own.decimals;
    if (decimals < 0) {
        // One more than a pixel is worth.
        const double perPixel = place.map.yPer != 0 ? std::fabs(place.strip->gain / place.map.yPer) : 1;
        constexpr int most = 9;
        decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(perPixel))), 0, most);
    }
    CString format;
    format.Format(L"%%0.%dlf", decimals);
    const double scaled = own.scale * v;
    if (own.units == length && EUnits::system == usCustomary)
        return std::wstring(View(EUnits::Get(length, scaled, format, 1))); // feet and inches
    CString text = EUnits::Get(own.units, scaled, format, 0);
    const CString label = EUnits::Get(own.units);
    if (!label.IsEmpty())
        text += (own.units == angle ? L"" : L" ") + label;
    return std::wstring(View(text));
}

/** Finds what a trace has under the mouse, or else at the end of what is shown. */
void Painter::ReadOut(const Place& place, Line& line, const ChartData::Reader& reader)
{
    const SamplePyramid& samples = reader.Trace(line.trace->own.Index());
    const bool hasCursor = HasCursor();
    const double t = (hasCursor ? CursorTime() : m_state.view.End()) - reader.Shift();
    const auto at = hasCursor ? samples.Nearest(t) : samples.After(t);
    // Without the mouse, the newest that has been shown.
    const auto index = hasCursor ? at : at - 1;
    if (samples.IsEmpty() || (!hasCursor && at == samples.First()) || index >= samples.End())
        return;
    const double v = samples.Value(index);
    const double x = XOf(samples.Time(index) + reader.Shift());
    if (v != v || (hasCursor && (x < place.plot.left - 1 || x > place.plot.right + 1)))
        return;
    line.value = ValueText(place, v);
    line.valueX = x;
    line.valueY = place.map.y0 + v * place.map.yPer;
    line.hasPoint = true;
}

void Painter::DrawTraces(Place& place)
{
    m_lines.clear();
    for (const auto& trace : m_state.traces) {
        if (trace->own.Strip() == place.index)
            m_lines.push_back({trace.get(), {}, 0, 0, false});
    }
    m_canvas.SetClip(place.plot);
    const int columns = place.plot.Width() + 1;
    bool isEmpty = true;
    for (Line& line : m_lines) {
        const CETrace& own = line.trace->own;
        if (!own.visible)
            continue;
        const auto thickness = static_cast<float>(std::clamp(own.width, 0.5, 20.0) * m_dpi / CDpi::base);
        {
            // Nothing is drawn while the lock is held.
            const ChartData::Reader reader(m_state.data);
            m_state.stroke.Make(reader.Trace(own.Index()), place.map, columns, thickness);
            ReadOut(place, line, reader);
            isEmpty = isEmpty && reader.Trace(own.Index()).IsEmpty();
        }
        const Rgb colour = Faded(RgbOf(own.colour));
        if (own.fill)
            m_canvas.Shade(m_state.stroke, place.plot.left, colour, fillAlpha,
                           place.strip->own.reversed != 0);
        m_canvas.Stroke(m_state.stroke, place.plot.left, colour);
    }
    if (isEmpty) {
        constexpr std::wstring_view nothing = L"No data";
        m_canvas.Text(place.plot.left + (place.plot.Width() - m_state.font.WidthOf(nothing)) / 2,
                      BaseLine(place.plot.top, place.plot.Height()), nothing, m_state.font,
                      TextCol(labelCol));
    }
    if (HasCursor()) {
        const int x = m_state.mouse->x;
        m_canvas.Blend({x, place.plot.top, x + Px(1), place.plot.bottom}, cursorCol, 170);
        for (const Line& line : m_lines) {
            if (!line.hasPoint)
                continue;
            const double radius = m_dpi * 3.5 / CDpi::base;
            m_canvas.Disc(line.valueX, line.valueY, radius + Px(2), plotCol);
            m_canvas.Disc(line.valueX, line.valueY, radius, RgbOf(line.trace->own.colour));
        }
    }
    m_canvas.SetClip(m_canvas.Bounds());
}

/** The title with the unit, then colour, name and value of each trace, as far as there is room. */
void Painter::DrawHeader(const Place& place, int right)
{
    GlyphSet& font = m_state.font;
    const int height = Px(headerH);
    const int base = BaseLine(place.header, height);
    int x = place.plot.left;
    const CEStrip& own = place.strip->own;
    const CString unit = EUnits::Get(own.units);
    std::wstring title(View(own.title));
    if (!title.empty() && !unit.IsEmpty())
        title += L" (" + std::wstring(View(unit)) + L')';
    m_canvas.SetClip({x, place.header, std::max(right, x), place.header + height});
    if (!title.empty() && x + font.WidthOf(title) <= right)
        x = m_canvas.Text(x, base, title, font, TextCol(labelCol)) + Px(nameGap);
    for (const Line& line : m_lines) {
        const CETrace& trace = line.trace->own;
        const bool isShown = trace.visible != 0;
        const std::wstring_view name = View(trace.name);
        int& valueWidth = line.trace->valueWidth;
        valueWidth = std::max(valueWidth, font.WidthOf(line.value));
        const int nameWidth = font.WidthOf(name);
        const int gap = Px(labelGap);
        const int width = Px(swatchW) + gap + nameWidth + (nameWidth > 0 ? gap : 0) + valueWidth;
        if (x + width > right) {
            m_canvas.Text(std::min(x, right - font.WidthOf(L"\u2026")), base, L"\u2026", font,
                          TextCol(labelCol));
            break;
        }
        const int left = x;
        const Rgb colour = isShown ? Faded(RgbOf(trace.colour)) : axisCol;
        const int middle = place.header + height / 2;
        m_canvas.Fill({x, middle - Px(swatchH) / 2, x + Px(swatchW), middle - Px(swatchH) / 2 + Px(swatchH)},
                      colour);
        x += Px(swatchW) + gap;
        if (nameWidth > 0)
            x = m_canvas.Text(x, base, name, font, isShown ? TextCol(labelCol) : RgbOf(disabledText)) + gap;
        if (isShown)
            m_canvas.Text(x, base, line.value, font, TextCol(textCol));
        x += valueWidth;
        m_state.names.push_back({{left, place.header, x, place.header + height}, trace.Index()});
        x += Px(nameGap);
    }
    m_canvas.SetClip(m_canvas.Bounds());
}

/** The labels below the strips; of what the mouse points at the time goes first. */
void Painter::DrawTimes()
{
    GlyphSet& font = m_state.font;
    const int top = m_state.plot.bottom + Px(2);
    const int height = m_canvas.Height() - top;
    const int base = BaseLine(top, height);
    const int margin = Px(2);
    const auto leftOf = [&](double x, int width) {
        const int least = margin;
        const int most = std::max(m_canvas.Width() - margin - width, least);
        return std::clamp(static_cast<int>(std::lround(x)) - width / 2, least, most);
    };
    PxRect taken{0, 0, 0, 0};
    if (HasCursor()) {
        const auto labels =
            m_chart.timeLabels == CEChart::timeClock ? TimeLabels::Clock : TimeLabels::Relative;
        const std::wstring time = TimeText(CursorTime(), m_state.view.Now(), labels, m_state.perPixel);
        const int width = font.WidthOf(time) + 2 * Px(padding);
        const int left = leftOf(m_state.mouse->x, width);
        taken = {left, base - font.Ascent() - Px(1), left + width,
                 base - font.Ascent() + font.Height() + Px(1)};
        m_canvas.Fill(taken, badgeCol);
        m_canvas.Text(left + Px(padding), base, time, font, badgeTextCol);
    }
    int free = 0;
    for (const Tick& tick : m_times) {
        const int width = font.WidthOf(tick.label);
        const int left = leftOf(XOf(tick.at), width);
        const bool isCovered = left < taken.right + Px(labelGap) && left + width > taken.left - Px(labelGap);
        if (left < free || (isCovered && !taken.IsEmpty()))
            continue;
        m_canvas.Text(left, base, tick.label, font, TextCol(labelCol));
        free = left + width + Px(labelGap);
    }
}

} // namespace

void CEChart::Draw(CDC* dc)
{
    // The picture is made of the pixels of where it goes to, whatever these are.
    CRect px = ClientRc();
    if (m_hWnd)
        GetClientRect(&px);
    else
        dc->LPtoDP(&px);
    ChartState& parts = *m_state;
    if (px.IsRectEmpty() || !parts.bitmap.Resize(px.Size()))
        return;
    const CRect client = ClientRc();
    const int dpi = m_hWnd ? Dpi().Dpi() : ::MulDiv(CDpi::base, px.Width(), std::max(client.Width(), 1));
    parts.font.Use(Vant::smallF, dpi);
    Painter(parts, parts.bitmap.Canvas(), dpi, *this).Run(m_hWnd && ::GetFocus() == m_hWnd);

    CPoint origin(0, 0);
    dc->LPtoDP(&origin);
    const int saved = dc->SaveDC();
    dc->SetMapMode(MM_TEXT);
    dc->SetWindowOrg(0, 0);
    dc->SetViewportOrg(0, 0);
    parts.bitmap.CopyTo(*dc, origin);
    dc->RestoreDC(saved);
}
