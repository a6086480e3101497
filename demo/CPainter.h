#pragma once

#include "demo/FontSet.h"
#include "demo/Palette.h"
#include "demo/detail/Canvas.h"
#include "demo/detail/Path.h"
#include "demo/detail/Playback.h"

#include <afxwin.h>

#include <string_view>

namespace demo
{

enum class Align { Left, Centre, Right };

/** A reading as it is written: the value's text, its unit, and how far it can be trusted. */
struct Figure {
    std::wstring_view text;
    std::wstring_view unit;
    Freshness state = Freshness::Live;
};

/** What the instruments paint with: one drawing's context, canvas, fonts, colours and scale. */
class CPainter
{
public:
    CPainter(CDC& dc, Canvas canvas, FontSet& fonts, const Palette& palette, double scale);
    ~CPainter();

    CPainter(const CPainter&) = delete;
    CPainter& operator=(const CPainter&) = delete;

    CDC& Dc() noexcept { return m_dc; }
    FontSet& Fonts() noexcept { return m_fonts; }
    const Palette& Colours() const noexcept { return m_palette; }

    /** A length in the display's own pixels, scaled. */
    double S(double pixels) const noexcept { return pixels * m_scale; }
    int I(double pixels) const noexcept { return static_cast<int>(pixels * m_scale + 0.5); }

    /** Writes text on a base line; `x` is its left end, middle or right end. */
    void Text(double x, double baseline, Align align, CFont& font, COLORREF colour, std::wstring_view text);
    int TextWidth(CFont& font, std::wstring_view text);

    /** Writes a value and, smaller, its unit, both aligned as one. Stale values are greyed, missing ones too.
     */
    void Value(double x, double baseline, Align align, CFont& font, const Figure& figure);

    /** A small name with a value under it. */
    void Labelled(double x, double baseline, Align align, std::wstring_view name, CFont& font,
                  const Figure& figure);

    /** The same with a name in another colour, that of the mark on the instrument which it explains. */
    void Labelled(double x, double baseline, Align align, std::wstring_view name, COLORREF nameColour,
                  CFont& font, const Figure& figure);

    void Solid(const Box& box, COLORREF colour);
    void Fill(const Path& path, const Ink& ink);
    void FillFading(const Path& path, const Ink& ink, const Ink& end, double top, double bottom);
    void SetClip(const Box& clip);
    void ClearClip();

    /** An instrument's panel with its caption and lamp: green while live, amber when stale, red without a
     * reading.
     *  @return the place inside */
    Box Panel(const Box& box, std::wstring_view title, std::wstring_view note, Freshness state);

    /** The colour of a value in a state. */
    COLORREF ValueColour(Freshness state) const noexcept;

private:
    CDC& m_dc;
    Canvas m_canvas;
    FontSet& m_fonts;
    const Palette& m_palette;
    double m_scale;
    int m_saved;
};

} // namespace demo
