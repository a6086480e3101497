#include "display/detail/GlyphLists.h"

#include "display/detail/GLCalls.h"
#include "platform/Vant.h"

#include <GL/gl.h>

#include <cstring>

namespace vant::detail
{

namespace
{

std::shared_ptr<const GlyphLists> kept;

LOGFONTW Description(HFONT font)
{
    LOGFONTW description{};
    ::GetObjectW(font, sizeof description, &description);
    return description;
}

/** Selects a font for as long as it lives. */
class SelectedFont
{
public:
    SelectedFont(HDC dc, HFONT font)
        : m_dc(dc)
        , m_before(::SelectObject(dc, font))
    {
    }
    ~SelectedFont()
    {
        if (m_before)
            ::SelectObject(m_dc, m_before);
    }
    SelectedFont(const SelectedFont&) = delete;
    SelectedFont& operator=(const SelectedFont&) = delete;

private:
    const HDC m_dc;
    const HGDIOBJ m_before;
};

} // namespace

std::shared_ptr<const GlyphLists> GlyphLists::For(HDC dc, bool shares)
{
    if (!shares)
        return std::make_shared<GlyphLists>(dc, Vant::scrnF, false);
    const LOGFONTW wanted = Description(Vant::scrnF);
    if (!kept || !kept->m_base || std::memcmp(&kept->m_font, &wanted, sizeof wanted) != 0)
        kept = std::make_shared<GlyphLists>(dc, Vant::scrnF, true);
    return kept;
}

void GlyphLists::Forget() noexcept
{
    kept.reset();
}

GlyphLists::GlyphLists(HDC dc, HFONT font, bool shares)
    : m_font(Description(font))
{
    const SelectedFont selected(dc, font);
    const unsigned lists = glGenLists(count);
    // Without any they would be the lists from 0 on, which are others' to fill and to delete.
    if (shares && lists)
        m_shared.emplace(GLName::Kind::lists, lists, count);
    GLYPHMETRICSFLOAT metrics[count]{};
    if (!lists || !GL().fontOutlines(dc, 0, count - 1, lists, metrics)) {
        const CString cause = Vant::ErrorString(::GetLastError());
        Vant::Alarm(0, 1, L"Error in generating drawn font code = %s", static_cast<LPCWSTR>(cause));
        return;
    }
    m_base = lists;
    TEXTMETRICW cell{};
    if (!::GetTextMetricsW(dc, &cell) || cell.tmHeight <= 0)
        return;
    // A text measures so many heights of the font's cell, and a cell is 1.11 em.
    constexpr float extentFactor = 1.11F;
    const float cellsPerEm =
        static_cast<float>(cell.tmHeight - cell.tmInternalLeading) / static_cast<float>(cell.tmHeight);
    for (std::size_t i = 0; i < m_extents.size(); ++i)
        m_extents[i] = metrics[i].gmfCellIncX * cellsPerEm * extentFactor;
}

double GlyphLists::Extent(std::wstring_view text) const noexcept
{
    double extent = 0;
    for (const wchar_t c : text)
        extent += m_extents[c % count];
    return extent;
}

} // namespace vant::detail
