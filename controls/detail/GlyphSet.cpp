#include "controls/detail/GlyphSet.h"

#include "controls/CDpi.h"

#include <algorithm>
#include <cstring>

namespace vant::detail
{

GlyphSet::GlyphSet()
{
    m_dc.CreateCompatibleDC(nullptr);
}

void GlyphSet::Use(const CFont& font, int dpi)
{
    LOGFONTW logical{};
    if (!font.m_hObject || !::GetObjectW(font.m_hObject, sizeof logical, &logical))
        return;
    logical.lfHeight = ::MulDiv(logical.lfHeight, dpi, CDpi::base);
    if (m_font.m_hObject && std::memcmp(&logical, &m_logical, sizeof logical) == 0)
        return;
    m_logical = logical;
    m_glyphs.clear();
    ::SelectObject(m_dc, ::GetStockObject(SYSTEM_FONT));
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&logical);
    ::SelectObject(m_dc, m_font);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(m_dc, &metrics);
    m_ascent = metrics.tmAscent;
    m_height = metrics.tmHeight;
}

const Glyph& GlyphSet::Get(wchar_t character)
{
    const auto found = m_glyphs.find(character);
    return found != m_glyphs.end() ? found->second
                                   : m_glyphs.emplace(character, Make(character)).first->second;
}

Glyph GlyphSet::Make(wchar_t character)
{
    constexpr MAT2 upright{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    constexpr UINT format = GGO_GRAY8_BITMAP;
    constexpr int full = 64; // what this format calls all of a pixel
    Glyph glyph;
    GLYPHMETRICS metrics{};
    const DWORD size = ::GetGlyphOutlineW(m_dc, character, format, &metrics, 0, nullptr, &upright);
    if (size == GDI_ERROR) {
        SIZE extent{};
        ::GetTextExtentPoint32W(m_dc, &character, 1, &extent);
        glyph.advance = extent.cx;
        return glyph;
    }
    glyph.advance = metrics.gmCellIncX;
    std::vector<std::uint8_t> grey(size);
    if (size == 0 ||
        ::GetGlyphOutlineW(m_dc, character, format, &metrics, size, grey.data(), &upright) == GDI_ERROR)
        return glyph; // a blank
    glyph.left = metrics.gmptGlyphOrigin.x;
    glyph.top = metrics.gmptGlyphOrigin.y;
    glyph.width = static_cast<int>(metrics.gmBlackBoxX);
    glyph.height = static_cast<int>(metrics.gmBlackBoxY);
    // Rows are padded to whole words.
    const std::size_t pitch = (metrics.gmBlackBoxX + 3U) & ~3U;
    glyph.cover.resize(static_cast<std::size_t>(glyph.width) * static_cast<std::size_t>(glyph.height));
    for (std::size_t y = 0; y < metrics.gmBlackBoxY; ++y) {
        for (std::size_t x = 0; x < metrics.gmBlackBoxX; ++x) {
            const std::size_t from = y * pitch + x;
            const int level = from < grey.size() ? grey[from] : 0;
            glyph.cover[y * metrics.gmBlackBoxX + x] =
                static_cast<std::uint8_t>(std::min(level * 255 / full, 255));
        }
    }
    return glyph;
}

} // namespace vant::detail
