// CGLWnd: text and circles in the scene.
#include "display/CGLWnd.h"

#include "display/detail/GlyphLists.h"
#include "display/detail/Pbuffer.h"

#include <GL/gl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

using namespace vant::detail;

namespace
{

/** Puts list base and matrix back. */
class SavedState
{
public:
    SavedState()
    {
        glPushAttrib(GL_LIST_BIT);
        glPushMatrix();
    }
    ~SavedState()
    {
        glPopMatrix();
        glPopAttrib();
    }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;
};

/** A text of which every character has a list. What follows the last glyph is somebody else's lists. */
class GlyphText
{
public:
    explicit GlyphText(const CString& text)
        : m_text(text.GetString(), static_cast<std::size_t>(text.GetLength()))
    {
        if (std::all_of(m_text.begin(), m_text.end(), HasGlyph))
            return;
        m_shown.assign(m_text);
        std::replace_if(m_shown.begin(), m_shown.end(), std::not_fn(HasGlyph), L'?');
        m_text = m_shown;
    }
    GlyphText(const GlyphText&) = delete;
    GlyphText& operator=(const GlyphText&) = delete;

    std::wstring_view Codes() const noexcept { return m_text; }

    void Call(unsigned base) const
    {
        static_assert(sizeof(wchar_t) == sizeof(GLushort));
        glListBase(base);
        glCallLists(static_cast<GLsizei>(m_text.size()), GL_UNSIGNED_SHORT, m_text.data());
    }

private:
    static bool HasGlyph(wchar_t c) noexcept { return c < GlyphLists::count - 1; }

    std::wstring_view m_text;
    std::wstring m_shown; // only where it differs
};

} // namespace

CGLWnd* CGLWnd::OfCurrentContext()
{
    const HGLRC rc = ::wglGetCurrentContext();
    for (CVantPtr* pos = rc ? s_glWnds.GetHeadPos() : nullptr; pos;) {
        CGLWnd* const wnd = s_glWnds.GetNext(pos);
        if (wnd->m_rc == rc || (wnd->m_pb && wnd->m_pb->Rc() == rc))
            return wnd;
    }
    return nullptr;
}

void CGLWnd::XyText(double x, double y, double angle, double size, int flags, const CString& text)
{
    const CGLWnd* const wnd = OfCurrentContext();
    if (!wnd || !wnd->m_glyphs->Base())
        return;
    const double extents = flags & alignRight ? -1.0 : flags & alignCentre ? -0.5 : 0.0;
    const double heights = flags & alignTop ? -2.0 / 3 : flags & alignMiddle ? -1.0 / 3 : 0.0;
    const double scale = size * wnd->txtScale;
    const GlyphText glyphs(text);
    const SavedState saved;
    glTranslated(x, y, 0);
    glRotated(angle, 0, 0, 1);
    glScaled(scale, scale, scale);
    glTranslated(extents * wnd->m_glyphs->Extent(glyphs.Codes()), heights, 0);
    glyphs.Call(wnd->m_glyphs->Base());
}

void CGLWnd::XyBmpText(unsigned list, double x, double y, const CString& text)
{
    if (!OfCurrentContext())
        return;
    const SavedState saved;
    glRasterPos2d(x, y);
    GlyphText(text).Call(list);
}

void CGLWnd::XyCircle(double x, double y, double r, const CString& text)
{
    const CGLWnd* const wnd = OfCurrentContext();
    if (!wnd)
        return;
    constexpr double textSize = 20;
    const SavedState saved;
    glTranslated(x, y, r); // deliberately not a radius
    glCallList(wnd->m_circle);
    if (!wnd->m_glyphs->Base())
        return;
    glScaled(textSize, textSize, textSize);
    GlyphText(text).Call(wnd->m_glyphs->Base());
}
