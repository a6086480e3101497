#pragma once

#include "controls/detail/PixelCanvas.h"

#include <afxwin.h>

#include <unordered_map>

namespace vant::detail
{

/** The characters of a font of the system as pictures, each asked for once: a text that changes with every
 * frame costs no more than its pixels. */
class GlyphSet : public GlyphSource
{
public:
    GlyphSet();

    /** Takes a font, at a number of dots per inch; nothing happens if it is the one already. */
    void Use(const CFont& font, int dpi);

    const Glyph& Get(wchar_t character) override;
    int Ascent() const override { return m_ascent; }
    int Height() const override { return m_height; }

private:
    Glyph Make(wchar_t character);

    LOGFONTW m_logical{};
    CFont m_font;
    CDC m_dc;
    int m_ascent = 0;
    int m_height = 0;
    std::unordered_map<wchar_t, Glyph> m_glyphs;
};

} // namespace vant::detail
