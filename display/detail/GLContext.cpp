#include "display/detail/GLContext.h"

#include "display/detail/GLCalls.h"

namespace vant::detail
{

void SetGLFormat(HDC dc)
{
    PIXELFORMATDESCRIPTOR format{};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    format.iPixelType = PFD_TYPE_RGBA;
    format.cColorBits = 24;
    format.cDepthBits = 32;
    format.iLayerType = PFD_MAIN_PLANE;
    ::SetPixelFormat(dc, ::ChoosePixelFormat(dc, &format), &format);
}

CurrentContext::CurrentContext(HDC dc, HGLRC rc)
    : m_outer(s_innermost)
    , m_dc(dc)
    , m_rc(rc)
    , m_isCurrent(rc && GL().makeCurrent(dc, rc))
{
    s_innermost = this;
}

CurrentContext::~CurrentContext()
{
    s_innermost = m_outer;
    Restore();
}

void CurrentContext::Restore()
{
    if (s_innermost)
        GL().makeCurrent(s_innermost->m_dc, s_innermost->m_rc);
    else
        GL().makeCurrent(nullptr, nullptr);
}

} // namespace vant::detail
