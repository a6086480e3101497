#pragma once

#include "controls/CDpi.h"
#include "demo/detail/Canvas.h"
#include "demo/detail/Path.h"
#include "demo/detail/Playback.h"
#include "demo/draw/ColourSet.h"
#include "demo/draw/FontSet.h"
#include "resources/Skins.h"

#include <afxwin.h>

#include <optional>
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

/** The lamp in a panel's caption, by its cell in the skin. */
enum class Lamp { Green, Amber, Red };

/** Green while live, amber when stale, red without a reading. */
Lamp LampOf(Freshness state) noexcept;

/** What the instruments paint with: one drawing's context, canvas, fonts, colours and scale. */
class CPainter
{
public:
    /** @param scale  pixels of the display in a pixel that the instruments were drawn for
     *  @param dpi  of the monitor, for captions, bars and skins */
    CPainter(CDC& dc, Canvas canvas, FontSet& fonts, const ColourSet& colours, double scale, CDpi dpi);
    ~CPainter();

    CPainter(const CPainter&) = delete;
    CPainter& operator=(const CPainter&) = delete;

    CDC& Dc() noexcept { return m_dc; }
    FontSet& Fonts() noexcept { return m_fonts; }
    const ColourSet& Colours() const noexcept { return m_colours; }

    /** A length in the pixels that the instruments were drawn for, in those of the display. */
    double Scaled(double pixels) const noexcept { return pixels * m_scale; }
    int ScaledInt(double pixels) const noexcept { return static_cast<int>(pixels * m_scale + 0.5); }

    /** A length in layout units, in pixels. */
    int ToPx(int units) const noexcept { return m_dpi.ToPx(units); }

    /** @name Pieces of the library's skins, see CPainterSkins.cpp
     *  @param cell  which of the pieces that stand side by side, from 0 @{ */
    /** Copies a piece into `box`, stretching what lies between its margins; these are as wide as the dots per
     * inch ask for. */
    void Skin(const Box& box, CDC& skin, const vant::skins::Region& piece, int cell = 0);
    /** Copies a piece in its own size in units, with its upper left corner at the pixel (x, y), leaving out
     * the background around it. */
    void Stamp(int x, int y, CDC& skin, const vant::skins::Region& piece, int cell = 0);
    /** @} */

    /** Writes text on a base line; `x` is its left end, middle or right end. */
    void Text(double x, double baseline, Align align, CFont& font, COLORREF colour, std::wstring_view text);
    int TextWidth(CFont& font, std::wstring_view text);

    /** Writes text from `x` on, no wider than `room`: an ellipsis takes the place of what does not fit. */
    void TextWithin(double x, double baseline, double room, CFont& font, COLORREF colour,
                    std::wstring_view text);

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

    /** A panel with its caption and, if it has one, its lamp. @return the place inside */
    Box Panel(const Box& box, std::wstring_view title, std::wstring_view note, std::optional<Lamp> lamp);

    /** An instrument's panel, whose lamp tells the state of its sensor. */
    Box Panel(const Box& box, std::wstring_view title, std::wstring_view note, Freshness state)
    {
        return Panel(box, title, note, LampOf(state));
    }

    /** The colour of a value in a state. */
    COLORREF ValueColour(Freshness state) const noexcept;

private:
    CDC& m_dc;
    Canvas m_canvas;
    FontSet& m_fonts;
    const ColourSet& m_colours;
    double m_scale;
    CDpi m_dpi;
    int m_saved;
};

} // namespace demo
