#pragma once

#include <windows.h>

namespace vant::detail
{

/** Gives a window's device context the pixel format of all 3D windows, so that one context can share its
 * lists with every other. To the same window any number of times; failure shows in the context that is made
 * then. */
void SetGLFormat(HDC dc);

/** While it lives, a context is current; then none is, or that of the drawing which this one interrupted: a
 *  window may have to be drawn while another one renders. */
class CurrentContext
{
public:
    CurrentContext(HDC dc, HGLRC rc);
    ~CurrentContext();
    CurrentContext(const CurrentContext&) = delete;
    CurrentContext& operator=(const CurrentContext&) = delete;

    /** Makes current what the innermost object asks for; without one, none. For code that has made a context
     * current by itself. */
    static void Restore();

    /** Whether the context could be made current. */
    explicit operator bool() const noexcept { return m_isCurrent; }

private:
    static inline CurrentContext* s_innermost = nullptr; // UI thread only

    CurrentContext* const m_outer;
    const HDC m_dc;
    const HGLRC m_rc;
    const bool m_isCurrent;
};

} // namespace vant::detail
