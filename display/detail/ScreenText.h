#pragma once

#include "display/detail/GLName.h"

#include <array>
#include <memory>
#include <optional>
#include <string_view>

namespace vant::detail
{

/** The display font at one size in pixels, as a texture: text that stands still on the screen, as sharp as
 * the system draws it. The outlines of GlyphLists are for text that moves and turns with the scene. */
class ScreenText
{
public:
    /** The font at a height of its cell, pixels; in a context that shares. Some sizes are kept.
     *  @return null if the driver takes no such texture */
    static std::shared_ptr<const ScreenText> Of(int height);

    /** Lets go of all that is kept. */
    static void Forget() noexcept;

    explicit ScreenText(int height);

    int Capital() const noexcept { return m_capital; } ///< height of capitals and figures
    int Width(std::wstring_view text) const noexcept;

    /** Draws in the current colour, in coordinates of one per pixel and y upwards. @param x,y  where the
     * baseline begins */
    void Draw(int x, int y, std::wstring_view text) const;

private:
    static constexpr wchar_t first = L' ';
    static constexpr wchar_t last = 0xFF;

    /** Where a character is in the texture, pixels, and how far the next one is from it. */
    struct Glyph {
        int left, top, width, bearing, advance;
    };

    const Glyph& GlyphOf(wchar_t c) const noexcept;
    int Arrange(int maxWidth);

    int m_height;
    int m_ascent = 0;
    int m_capital = 0;
    int m_side[2] = {}; // of the texture
    std::array<Glyph, last - first + 1> m_glyphs{};
    std::optional<GLName> m_texture;
};

} // namespace vant::detail
