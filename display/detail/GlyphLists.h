#pragma once

#include "display/detail/GLName.h"

#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <windows.h>

namespace vant::detail
{

/** The display font as OpenGL lists of filled outlines, one em high, and what its texts measure. */
class GlyphLists
{
public:
    static constexpr int count = 256; ///< lists; the last one is deliberately left empty

    /** The lists for the context that is current on `dc`. Those of the contexts that share are made once per
     * font, since making them takes longer than everything else about a window.
     *  @param shares  whether the context is one of them; otherwise its lists are its own and go with it
     *  @return never null; without lists after an alarm if the font has no outlines */
    static std::shared_ptr<const GlyphLists> For(HDC dc, bool shares);

    /** Lets go of what is kept for windows to come. */
    static void Forget() noexcept;

    GlyphLists(HDC dc, HFONT font, bool shares);

    /** The first list; 0 if there are none. */
    unsigned Base() const noexcept { return m_base; }

    /** Width of a text whose characters all have a glyph, em. */
    double Extent(std::wstring_view text) const noexcept;

private:
    LOGFONTW m_font{};
    unsigned m_base = 0;
    std::array<float, count> m_extents{}; // em
    std::optional<GLName> m_shared;
};

} // namespace vant::detail
