#include "display/CDsp.h"

#include "display/CDspGrp.h"
#include "display/CMdlPos.h"
#include "display/detail/GLCalls.h"
#include "display/detail/GLContext.h"
#include "display/detail/GLName.h"
#include "display/detail/GlyphLists.h"
#include "platform/detail/Startup.h"

IMPLEMENT_DYNCREATE(CDsp, CGLWnd)

HGLRC CDsp::s_sharedRC = nullptr;
CDspGrp* CDsp::s_pDspGrp = nullptr;

namespace
{

[[maybe_unused]] const bool isRegistered = [] {
    vant::detail::Startup().releaseLists = CDsp::ReleaseLists;
    return true;
}();

} // namespace

CDsp::CDsp()
{
    if (s_pDspGrp)
        s_pDspGrp->RegDsp(this);
}

CDsp::~CDsp()
{
    CMdlPos::Forget(this);
    if (m_grp)
        m_grp->DeRegDsp(this);
}

void CDsp::Draw(CDC* dc)
{
    // Before: what asks for it while the scene is drawn may have come too late for this picture.
    m_needsDraw = false;
    CGLWnd::Draw(dc);
}

void CDsp::OnMdlUpdated(CMdl*, int)
{
    NeedDraw();
}

void CDsp::OnMdlPos(int, void*)
{
    NeedDraw();
}

void CDsp::NeedDraw()
{
    m_needsDraw = true;
    if (!m_grp && m_hWnd)
        Invalidate(FALSE);
}

void CDsp::DrawIfNeeded()
{
    if (m_needsDraw && m_hWnd && IsWindowVisible())
        RedrawWnd();
}

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
