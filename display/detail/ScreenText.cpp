#include "display/detail/ScreenText.h"

#include "platform/Vant.h"

#include <atlimage.h>

#include <GL/gl.h>

#include <algorithm>
#include <bit>
#include <vector>

namespace vant::detail
{

namespace
{

constexpr int minHeight = 6;
constexpr int maxHeight = 128;

/** Sizes that are kept: labels and headings of views on a few monitors. */
constexpr std::size_t keptSizes = 8;
std::vector<std::shared_ptr<const ScreenText>> kept; // the one last used is the last

/** A device context of an image with the font in it. */
class FontDc
{
public:
    FontDc(CImage& image, int height)
        : m_image(image)
        , m_dc(image.GetDC())
    {
        LOGFONTW font{};
        ::GetObjectW(static_cast<HFONT>(Vant::scrnF), sizeof font, &font);
        font.lfHeight = height;
        font.lfQuality = ANTIALIASED_QUALITY;
        m_font = ::CreateFontIndirectW(&font);
        m_before = ::SelectObject(m_dc, m_font);
        ::SetTextColor(m_dc, RGB(255, 255, 255));
        ::SetBkMode(m_dc, TRANSPARENT);
    }
    ~FontDc()
    {
        ::SelectObject(m_dc, m_before);
        ::DeleteObject(m_font);
        m_image.ReleaseDC();
        ::GdiFlush();
    }
    FontDc(const FontDc&) = delete;
    FontDc& operator=(const FontDc&) = delete;

    operator HDC() const noexcept { return m_dc; }

private:
    CImage& m_image;
    HDC m_dc;
    HFONT m_font;
    HGDIOBJ m_before;
};

int PowerOfTwo(int size)
{
    return static_cast<int>(std::bit_ceil(static_cast<unsigned>(size)));
}

} // namespace

std::shared_ptr<const ScreenText> ScreenText::Of(int height)
{
    const int wanted = std::clamp(height, minHeight, maxHeight);
    const auto at = std::find_if(kept.begin(), kept.end(),
                                 [wanted](const auto& each) { return each->m_height == wanted; });
    if (at != kept.end()) {
        std::rotate(at, at + 1, kept.end());
    } else {
        if (kept.size() == keptSizes)
            kept.erase(kept.begin());
        kept.push_back(std::make_shared<const ScreenText>(wanted));
    }
    return kept.back()->m_texture ? kept.back() : nullptr;
}

void ScreenText::Forget() noexcept
{
    kept.clear();
}

/** Puts the glyphs side by side in rows. @return the height of all rows */
int ScreenText::Arrange(int maxWidth)
{
    int x = 0;
    int y = 0;
    for (Glyph& glyph : m_glyphs) {
        if (x + glyph.width > maxWidth) {
            x = 0;
            y += m_height;
        }
        glyph.left = x;
        glyph.top = y;
        x += glyph.width;
    }
    return y + m_height;
}

ScreenText::ScreenText(int height)
    : m_height(height)
{
    constexpr int perRow = 16;
    constexpr int depth = 32;
    CImage image;
    {
        CImage measuring;
        if (!measuring.Create(1, 1, depth))
            return;
        const FontDc dc(measuring, height);
        TEXTMETRICW cell{};
        ::GetTextMetricsW(dc, &cell);
        m_ascent = cell.tmAscent;
        GLYPHMETRICS capital{};
        constexpr MAT2 upright = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
        const DWORD size = ::GetGlyphOutlineW(dc, L'0', GGO_METRICS, &capital, 0, nullptr, &upright);
        m_capital = size == GDI_ERROR ? m_ascent * 3 / 4 : capital.gmptGlyphOrigin.y;
        for (std::size_t i = 0; i < m_glyphs.size(); ++i) {
            const auto c = static_cast<UINT>(first + i);
            ABC widths{};
            if (!::GetCharABCWidthsW(dc, c, c, &widths)) {
                INT advance = 0;
                ::GetCharWidth32W(dc, c, c, &advance);
                widths = {0, static_cast<UINT>(advance), 0};
            }
            // A pixel to each side, for edges that are smoothed outwards.
            m_glyphs[i] = {0, 0, static_cast<int>(widths.abcB) + 2, widths.abcA - 1,
                           widths.abcA + static_cast<int>(widths.abcB) + widths.abcC};
        }
    }
    m_side[0] = PowerOfTwo(perRow * height);
    m_side[1] = PowerOfTwo(Arrange(m_side[0]));
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    if (m_side[0] > largest || m_side[1] > largest || !image.Create(m_side[0], -m_side[1], depth))
        return;
    {
        const FontDc dc(image, height);
        for (std::size_t i = 0; i < m_glyphs.size(); ++i) {
            const auto c = static_cast<wchar_t>(first + i);
            ::TextOutW(dc, m_glyphs[i].left - m_glyphs[i].bearing, m_glyphs[i].top, &c, 1);
        }
    }
    std::vector<unsigned char> coverage(static_cast<std::size_t>(m_side[0]) *
                                        static_cast<std::size_t>(m_side[1]));
    auto out = coverage.begin();
    for (int y = 0; y < m_side[1]; ++y) {
        const auto* pixel = static_cast<const unsigned char*>(image.GetPixelAddress(0, y));
        for (int x = 0; x < m_side[0]; ++x, pixel += 4)
            *out++ = pixel[1];
    }
    GLuint texture = 0;
    glGenTextures(1, &texture);
    if (!texture)
        return;
    m_texture.emplace(GLName::Kind::texture, texture);
    glPushAttrib(GL_TEXTURE_BIT);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    glPixelStorei(GL_UNPACK_SKIP_ROWS, 0);
    glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_ALPHA8, m_side[0], m_side[1], 0, GL_ALPHA, GL_UNSIGNED_BYTE,
                 coverage.data());
    glPopAttrib();
}

const ScreenText::Glyph& ScreenText::GlyphOf(wchar_t c) const noexcept
{
    const bool isThere = c >= first && c <= last;
    return m_glyphs[static_cast<std::size_t>((isThere ? c : L'?') - first)];
}

int ScreenText::Width(std::wstring_view text) const noexcept
{
    int width = 0;
    for (const wchar_t c : text)
        width += GlyphOf(c).advance;
    return width;
}

void ScreenText::Draw(int x, int y, std::wstring_view text) const
{
    glPushAttrib(GL_ENABLE_BIT | GL_TEXTURE_BIT | GL_COLOR_BUFFER_BIT);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    glBindTexture(GL_TEXTURE_2D, m_texture->First());
    const double perX = 1.0 / m_side[0];
    const double perY = 1.0 / m_side[1];
    const int top = y + m_ascent;
    glBegin(GL_QUADS);
    for (const wchar_t c : text) {
        const Glyph& glyph = GlyphOf(c);
        const int left = x + glyph.bearing;
        for (const auto& [right, down] : {std::pair(0, 0), {0, 1}, {1, 1}, {1, 0}}) {
            glTexCoord2d((glyph.left + right * glyph.width) * perX, (glyph.top + down * m_height) * perY);
            glVertex2i(left + right * glyph.width, top - down * m_height);
        }
        x += glyph.advance;
    }
    glEnd();
    glPopAttrib();
}

} // namespace vant::detail
