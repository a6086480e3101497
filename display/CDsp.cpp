#include "display/CDsp.h"

#include "display/detail/GLCalls.h"
#include "display/detail/GLContext.h"
#include "display/detail/GLName.h"
#include "display/detail/GlyphLists.h"

IMPLEMENT_DYNCREATE(CDsp, CGLWnd)

HGLRC CDsp::s_sharedRC = nullptr;

void CDsp::InitLists(HDC hdc)
{
    if (s_sharedRC)
        return;
    vant::detail::SetGLFormat(hdc);
    s_sharedRC = vant::detail::GL().createContext(hdc);
}

void CDsp::ReleaseLists()
{
    if (!s_sharedRC)
        return;
    vant::detail::GlyphLists::Forget();
    vant::detail::ForgetNames();
    vant::detail::GL().deleteContext(s_sharedRC);
    s_sharedRC = nullptr;
}
