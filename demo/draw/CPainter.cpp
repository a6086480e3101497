#include "demo/draw/CPainter.h"

#include "platform/Vant.h"

#include <cmath>
#include <string>

namespace demo
{
namespace
{

constexpr double unitGap = 5.0;
constexpr const wchar_t* degreeSign = L"\u00B0";

} // namespace

Lamp LampOf(Freshness state) noexcept
{
    return state == Freshness::Live ? Lamp::Green : state == Freshness::Stale ? Lamp::Amber : Lamp::Red;
}

CPainter::CPainter(CDC& dc, Canvas canvas, FontSet& fonts, const ColourSet& colours, double scale, CDpi dpi)
    : m_dc(dc)
    , m_canvas(std::move(canvas))
    , m_fonts(fonts)
    , m_colours(colours)
    , m_scale(scale)
    , m_dpi(dpi)
    , m_saved(dc.SaveDC())
{
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.SetTextAlign(TA_LEFT | TA_BASELINE);
}

CPainter::~CPainter()
{
    m_dc.RestoreDC(m_saved);
}

void CPainter::Text(double x, double baseline, Align align, CFont& font, COLORREF colour,
                    std::wstring_view text)
{
    m_dc.SelectObject(&font);
    m_dc.SetTextColor(colour);
    const int length = static_cast<int>(text.size());
    const double width = align == Align::Left ? 0.0 : m_dc.GetTextExtent(text.data(), length).cx;
    const double left = x - (align == Align::Right ? width : width / 2.0);
    m_dc.TextOut(static_cast<int>(std::lround(left)), static_cast<int>(std::lround(baseline)), text.data(),
                 length);
}

int CPainter::TextWidth(CFont& font, std::wstring_view text)
{
    m_dc.SelectObject(&font);
    return m_dc.GetTextExtent(text.data(), static_cast<int>(text.size())).cx;
}

void CPainter::TextWithin(double x, double baseline, double room, CFont& font, COLORREF colour,
                          std::wstring_view text)
{
    std::wstring shown(text);
    while (!text.empty() && TextWidth(font, shown) > room) {
        text.remove_suffix(1);
        shown = std::wstring(text) + L"\u2026";
    }
    Text(x, baseline, Align::Left, font, colour, shown);
}

void CPainter::Value(double x, double baseline, Align align, CFont& font, const Figure& figure)
{
    // The degree sign belongs to the figure and stands as high; what follows is a unit like any other.
    const bool degrees = figure.unit.starts_with(degreeSign);
    const std::wstring text = std::wstring(figure.text) + (degrees ? degreeSign : L"");
    const std::wstring_view unit = degrees ? figure.unit.substr(1) : figure.unit;

    CFont& unitFont = &font == &m_fonts.value   ? m_fonts.label
                      : &font == &m_fonts.clock ? m_fonts.title
                                                : m_fonts.value;
    const double textWidth = TextWidth(font, text);
    const double gap = unit.empty() || degrees ? 0.0 : Scaled(unitGap);
    const double unitWidth = unit.empty() ? 0.0 : gap + TextWidth(unitFont, unit);
    double left = x;
    if (align == Align::Right)
        left = x - textWidth - unitWidth;
    else if (align == Align::Centre)
        left = x - TextWidth(font, figure.text) / 2.0; // the digits stay in the middle, the unit hangs on
    Text(left, baseline, Align::Left, font, ValueColour(figure.state), text);
    if (!unit.empty())
        Text(left + textWidth + gap, baseline, Align::Left, unitFont, m_colours.label, unit);
}

void CPainter::Labelled(double x, double baseline, Align align, std::wstring_view name, CFont& font,
                        const Figure& figure)
{
    Labelled(x, baseline, align, name, m_colours.label, font, figure);
}

void CPainter::Labelled(double x, double baseline, Align align, std::wstring_view name, COLORREF nameColour,
                        CFont& font, const Figure& figure)
{
    const double rise = &font == &m_fonts.value ? 22.0 : 36.0;
    Text(x, baseline - Scaled(rise), align, m_fonts.small, nameColour, name);

    Value(x, baseline, align, font, figure);
}

void CPainter::Solid(const Box& box, COLORREF colour)
{
    m_dc.FillSolidRect(box.left, box.top, box.Width(), box.Height(), colour);
}

void CPainter::Fill(const Path& path, const Ink& ink)
{
    ::GdiFlush();
    m_canvas.Fill(path, ink);
}

void CPainter::FillFading(const Path& path, const Ink& ink, const Ink& end, double top, double bottom)
{
    ::GdiFlush();
    m_canvas.FillFading(path, ink, end, top, bottom);
}

void CPainter::SetClip(const Box& clip)
{
    m_canvas.SetClip(clip);
}

void CPainter::ClearClip()
{
    m_canvas.ClearClip();
}

Box CPainter::Panel(const Box& box, std::wstring_view title, std::wstring_view note, std::optional<Lamp> lamp)
{
    Solid(box, m_colours.frame);
    Solid(box.Inset(1, 1), m_colours.panel);

    namespace skins = vant::skins;
    const Box caption{box.left + 1, box.top + 1, box.right - 1, box.top + 1 + ToPx(skins::grad2::category.h)};
    Skin(caption, Vant::grad2, skins::grad2::category);
    int right = caption.right - ToPx(4);
    if (lamp) {
        right -= ToPx(skins::leds::lit.w);
        Stamp(right, caption.CentreY() - ToPx(skins::leds::lit.h) / 2, Vant::leds, skins::leds::lit,
              static_cast<int>(*lamp));
    }

    const int baseline = caption.bottom - ToPx(8);
    const int left = caption.left + ToPx(12);
    Text(left, baseline, Align::Left, m_fonts.caption, m_colours.text, title);
    const int noteLeft = right - ToPx(8) - TextWidth(m_fonts.note, note);
    if (noteLeft >= left + TextWidth(m_fonts.caption, title) + ToPx(8)) // else it would stand on the title
        Text(noteLeft, baseline, Align::Left, m_fonts.note, m_colours.label, note);
    return {box.left + 1, caption.bottom, box.right - 1, box.bottom - 1};
}

COLORREF CPainter::ValueColour(Freshness state) const noexcept
{
    return state == Freshness::Live ? m_colours.text : m_colours.stale;
}

} // namespace demo
