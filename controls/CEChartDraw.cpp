// CEChart: the drawing.
#include "controls/CEChart.h"

#include "controls/detail/ChartLayout.h"
#include "controls/detail/CtrlLook.h"
#include "controls/detail/CtrlText.h"
#include "platform/Vant.h"
#include "values/EUnits.h"
#include "values/detail/UnitText.h"

#include <algorithm>
#include <cmath>

using namespace vant::detail;

namespace
{

// Units.
constexpr int nameGap = 14; // from one name to the next
constexpr int swatchW = 14;
constexpr int swatchH = 3;
constexpr int liveDot = 6;      // diameter
constexpr int liveDotGap = 4;   // to the text behind it
constexpr double pointR = 3.5;  // of what the mouse reads
constexpr int pointRim = 2;     // around that
constexpr int textMargin = 1;   // above and below the text of a badge
constexpr int padding = 5;      // before and behind it
constexpr int timeLabelGap = 2; // below the strips, and at the ends of the row of times

// Of 255.
constexpr int fillAlpha = 96;
constexpr int cursorAlpha = 170;
constexpr int dimmed = 150; // how far traces of a disabled chart fade

constexpr int angle = 6; // unit kind

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

TimeLabels LabelsOf(const CEChart& chart)
{
    return chart.timeLabels == CEChart::timeClock ? TimeLabels::Clock : TimeLabels::Relative;
}

/** One drawing of a chart, in pixels. */
class Painter
{
public:
    Painter(ChartState& state, PixelCanvas canvas, int dpi, const CEChart& chart)
        : m_state(state)
        , m_canvas(canvas)
        , m_dpi(dpi)
        , m_enabled(chart.IsEnabled())
        , m_labels(LabelsOf(chart))
        , m_layout(state, canvas.Width(), canvas.Height(), dpi, m_labels)
    {
    }

    void Run(COLORREF back, bool isFocused)
    {
        m_canvas.Fill(m_canvas.Bounds(), RgbOf(back));
        ForgetWidths();
        m_state.names.clear();
        if (m_state.plot.IsEmpty())
            return;
        int headerRight = DrawBadge();
        for (const Strip& strip : m_layout.Strips()) {
            DrawStrip(strip);
            DrawHeader(strip, headerRight);
            headerRight = m_state.plot.right;
        }
        DrawTimes();
        if (isFocused)
            m_canvas.Frame(m_canvas.Bounds(), cursorCol, Px(1));
    }

private:
    using Strip = ChartLayout::Strip;
    struct Line {
        ChartState::Trace* trace = nullptr;
        std::wstring value; // read out
        double valueY = 0;  // where it is; meaningful with hasPoint
        double valueX = 0;
        bool hasPoint = false;
    };

    int Px(int units) const noexcept { return m_layout.Px(units); }
    /** The base line of a text that is centred in a height. */
    int BaseLine(int top, int height) const
    {
        return top + (height - m_state.font.Height()) / 2 + m_state.font.Ascent();
    }
    Rgb Faded(Rgb colour) const noexcept { return m_enabled ? colour : Mix(colour, plotCol, dimmed); }
    Rgb TextCol(Rgb colour) const noexcept { return m_enabled ? colour : RgbOf(disabledText); }

    void ForgetWidths();
    int DrawBadge();
    PxRect DrawBox(int left, int base, const std::wstring& text, Rgb colour);
    void DrawStrip(const Strip& strip);
    void DrawValueLabels(const Strip& strip);
    void DrawTraces(const Strip& strip);
    void DrawCursor(const Strip& strip);
    void DrawHeader(const Strip& strip, int right);
    void DrawTimes();
    void ReadOut(const Strip& strip, Line& line, const ChartData::Reader& reader);
    std::wstring ValueText(const Strip& strip, double v) const;
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
    const bool m_enabled;
    const TimeLabels m_labels;
    const ChartLayout m_layout;
    std::vector<Line> m_lines; // of the strip being drawn
};

/** The widths of texts are for other pixels. */
void Painter::ForgetWidths()
{
    if (m_state.dpi == m_dpi)
        return;
    m_state.dpi = m_dpi;
    for (const auto& trace : m_state.traces)
        trace->valueWidth = 0;
}

/** Draws a text on a box, from `left` on. */
PxRect Painter::DrawBox(int left, int base, const std::wstring& text, Rgb colour)
{
    const int top = base - m_state.font.Ascent();
    const PxRect box{left, top - Px(textMargin), left + m_state.font.WidthOf(text) + 2 * Px(padding),
                     top + m_state.font.Height() + Px(textMargin)};
    m_canvas.Fill(box, colour);
    m_canvas.Text(left + Px(padding), base, text, m_state.font, badgeTextCol);
    return box;
}

/** Tells at the top right how much is shown, and whether it goes on. @return where that begins */
int Painter::DrawBadge()
{
    const bool isLive = m_state.view.IsLive();
    const std::wstring label = (isLive ? L"" : L"Paused  ") + SpanText(m_state.view.Span());
    const int width = m_state.font.WidthOf(label);
    const int top = m_layout.Strips().front().header;
    const int height = Px(ChartLayout::headerH);
    const int right = m_state.plot.right;
    const int base = BaseLine(top, height);
    if (!isLive)
        return DrawBox(right - width - 2 * Px(padding), base, label, TextCol(pausedCol)).left - Px(nameGap);
    const int left = right - width;
    m_canvas.Text(left, base, label, m_state.font, TextCol(labelCol));
    const double radius = Px(liveDot) / 2.0;
    m_canvas.Disc(left - Px(liveDotGap) - radius, top + height / 2.0, radius, Faded(liveCol));
    return left - Px(liveDotGap) - Px(liveDot) - Px(nameGap);
}

void Painter::DrawStrip(const Strip& strip)
{
    const PxRect& plot = strip.plot;
    m_canvas.Fill(plot, plotCol);
    m_canvas.SetClip(plot);
    const int thin = Px(1);
    for (const Tick& tick : m_layout.Times()) {
        const int x = static_cast<int>(std::floor(m_layout.XOf(tick.at)));
        m_canvas.Fill({x, plot.top, x + thin, plot.bottom}, gridCol);
    }
    for (const Tick& tick : strip.ticks) {
        // Divisions are on whole pixels often, which rounding must not miss by one.
        constexpr double slack = 1e-6;
        const int y = static_cast<int>(std::floor(strip.YOf(tick.at) + slack));
        m_canvas.Fill({plot.left, y, plot.right, y + thin}, gridCol);
    }
    DrawTraces(strip);
    m_canvas.SetClip(m_canvas.Bounds());
    m_canvas.Fill({plot.left - thin, plot.top, plot.left, plot.bottom + thin}, axisCol);
    m_canvas.Fill({plot.left - thin, plot.bottom, plot.right, plot.bottom + thin}, axisCol);
    DrawValueLabels(strip);
}

void Painter::DrawValueLabels(const Strip& strip)
{
    const int height = m_state.font.Height();
    int taken = -height; // a label ends here, from the top or from the bottom
    bool isFirst = true;
    for (const Tick& tick : strip.ticks) {
        const int top = static_cast<int>(std::lround(strip.YOf(tick.at))) - height / 2;
        // Rounded ends may be next to each other.
        if (!isFirst && std::abs(top - taken) < height)
            continue;
        isFirst = false;
        taken = top;
        const int left = strip.plot.left - Px(ChartLayout::labelGap) - m_state.font.WidthOf(tick.label);
        m_canvas.Text(left, BaseLine(top, height), tick.label, m_state.font, TextCol(labelCol));
    }
}

std::wstring Painter::ValueText(const Strip& strip, double v) const
{
    const CEStrip& own = strip.state->own;
    int decimals = own.decimals;
    if (decimals < 0) {
        // One more than a pixel is worth.
        const double perPixel = 1 / std::fabs(strip.perDisplayed);
        constexpr int most = 9;
        decimals = static_cast<int>(std::clamp(std::ceil(-std::log10(perPixel)), 0.0, double{most}));
    }
    CString format;
    format.Format(L"%%0.%dlf", decimals);
    const double scaled = own.scale * v;
    if (IsFeet(own.units, EUnits::system))
        return std::wstring(View(EUnits::Get(own.units, scaled, format, 1)));
    CString text = EUnits::Get(own.units, scaled, format, 0);
    const CString label = EUnits::Get(own.units);
    if (!label.IsEmpty())
        text += (own.units == angle ? L"" : L" ") + label;
    return std::wstring(View(text));
}

/** Finds what a trace has under the mouse, or else at the end of what is shown. */
void Painter::ReadOut(const Strip& strip, Line& line, const ChartData::Reader& reader)
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
    const double x = m_layout.XOf(samples.Time(index) + reader.Shift());
    if (v != v || (hasCursor && (x < strip.plot.left - 1 || x > strip.plot.right + 1)))
        return;
    line.value = ValueText(strip, v);
    line.valueX = x;
    line.valueY = strip.map.y0 + v * strip.map.yPer;
    line.hasPoint = true;
}

void Painter::DrawTraces(const Strip& strip)
{
    m_lines.clear();
    for (const auto& trace : m_state.traces) {
        if (trace->own.Strip() == strip.index)
            m_lines.push_back({trace.get(), {}, 0, 0, false});
    }
    const int columns = strip.plot.Width() + 1;
    bool isEmpty = true;
    for (Line& line : m_lines) {
        const CETrace& own = line.trace->own;
        if (!own.visible)
            continue;
        const auto thickness = static_cast<float>(std::clamp(own.width, 0.5, 20.0) * m_dpi / CDpi::base);
        {
            // Nothing is drawn while the lock is held.
            const ChartData::Reader reader(m_state.data);
            m_state.stroke.Make(reader.Trace(own.Index()), strip.map, columns, thickness);
            ReadOut(strip, line, reader);
            isEmpty = isEmpty && reader.Trace(own.Index()).IsEmpty();
        }
        const Rgb colour = Faded(RgbOf(own.colour));
        if (own.fill)
            m_canvas.Shade(m_state.stroke, strip.plot.left, colour, fillAlpha,
                           strip.state->own.reversed != 0);
        m_canvas.Stroke(m_state.stroke, strip.plot.left, colour);
    }
    if (isEmpty) {
        constexpr std::wstring_view nothing = L"No data";
        m_canvas.Text(strip.plot.left + (strip.plot.Width() - m_state.font.WidthOf(nothing)) / 2,
                      BaseLine(strip.plot.top, strip.plot.Height()), nothing, m_state.font,
                      TextCol(labelCol));
    }
    if (HasCursor())
        DrawCursor(strip);
}

/** Where the mouse reads the values: a line, and a point on every trace. */
void Painter::DrawCursor(const Strip& strip)
{
    const int x = m_state.mouse->x;
    m_canvas.Blend({x, strip.plot.top, x + Px(1), strip.plot.bottom}, cursorCol, cursorAlpha);
    const double radius = m_dpi * pointR / CDpi::base;
    for (const Line& line : m_lines) {
        if (!line.hasPoint)
            continue;
        m_canvas.Disc(line.valueX, line.valueY, radius + Px(pointRim), plotCol);
        m_canvas.Disc(line.valueX, line.valueY, radius, RgbOf(line.trace->own.colour));
    }
}

/** The title with the unit, then colour, name and value of each trace, as far as there is room. */
void Painter::DrawHeader(const Strip& strip, int right)
{
    GlyphSet& font = m_state.font;
    const int height = Px(ChartLayout::headerH);
    const int base = BaseLine(strip.header, height);
    int x = strip.plot.left;
    const CEStrip& own = strip.state->own;
    const CString unit = EUnits::Get(own.units);
    std::wstring title(View(own.title));
    if (!title.empty() && !unit.IsEmpty())
        title += L" (" + std::wstring(View(unit)) + L')';
    m_canvas.SetClip({x, strip.header, std::max(right, x), strip.header + height});
    if (!title.empty() && x + font.WidthOf(title) <= right)
        x = m_canvas.Text(x, base, title, font, TextCol(labelCol)) + Px(nameGap);
    for (const Line& line : m_lines) {
        const CETrace& trace = line.trace->own;
        const bool isShown = trace.visible != 0;
        const std::wstring_view name = View(trace.name);
        int& valueWidth = line.trace->valueWidth;
        valueWidth = std::max(valueWidth, font.WidthOf(line.value));
        const int nameWidth = font.WidthOf(name);
        const int gap = Px(ChartLayout::labelGap);
        const int width = Px(swatchW) + gap + nameWidth + (nameWidth > 0 ? gap : 0) + valueWidth;
        if (x + width > right) {
            m_canvas.Text(std::min(x, right - font.WidthOf(L"\u2026")), base, L"\u2026", font,
                          TextCol(labelCol));
            break;
        }
        const int left = x;
        const Rgb colour = isShown ? Faded(RgbOf(trace.colour)) : axisCol;
        const int middle = strip.header + height / 2;
        m_canvas.Fill({x, middle - Px(swatchH) / 2, x + Px(swatchW), middle - Px(swatchH) / 2 + Px(swatchH)},
                      colour);
        x += Px(swatchW) + gap;
        if (nameWidth > 0)
            x = m_canvas.Text(x, base, name, font, isShown ? TextCol(labelCol) : RgbOf(disabledText)) + gap;
        if (isShown)
            m_canvas.Text(x, base, line.value, font, TextCol(textCol));
        x += valueWidth;
        m_state.names.push_back({{left, strip.header, x, strip.header + height}, trace.Index()});
        x += Px(nameGap);
    }
    m_canvas.SetClip(m_canvas.Bounds());
}

/** The labels below the strips; of what the mouse points at the time goes first. */
void Painter::DrawTimes()
{
    GlyphSet& font = m_state.font;
    const int margin = Px(timeLabelGap);
    const int top = m_state.plot.bottom + margin;
    const int base = BaseLine(top, m_canvas.Height() - top);
    const auto leftOf = [&](double x, int width) {
        const int least = margin;
        const int most = std::max(m_canvas.Width() - margin - width, least);
        return std::clamp(static_cast<int>(std::lround(x)) - width / 2, least, most);
    };
    PxRect taken;
    if (HasCursor()) {
        const std::wstring time = TimeText(CursorTime(), m_state.view.Now(), m_labels, m_state.perPixel);
        const int width = font.WidthOf(time) + 2 * Px(padding);
        taken = DrawBox(leftOf(m_state.mouse->x, width), base, time, badgeCol);
    }
    const int gap = Px(ChartLayout::labelGap);
    int free = 0;
    for (const Tick& tick : m_layout.Times()) {
        const int width = font.WidthOf(tick.label);
        const int left = leftOf(m_layout.XOf(tick.at), width);
        const bool isCovered = left < taken.right + gap && left + width > taken.left - gap;
        if (left < free || (isCovered && !taken.IsEmpty()))
            continue;
        m_canvas.Text(left, base, tick.label, font, TextCol(labelCol));
        free = left + width + gap;
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
    Painter(parts, parts.bitmap.Canvas(), dpi, *this).Run(BackCol(), HasFocus(*this));

    CPoint origin(0, 0);
    dc->LPtoDP(&origin);
    const int saved = dc->SaveDC();
    dc->SetMapMode(MM_TEXT);
    dc->SetWindowOrg(0, 0);
    dc->SetViewportOrg(0, 0);
    parts.bitmap.CopyTo(*dc, origin);
    dc->RestoreDC(saved);
}
