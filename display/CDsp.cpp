#include "display/CDsp.h"

#include "display/CDspGrp.h"
#include "display/CMdlPos.h"
#include "display/detail/GLCalls.h"
#include "display/detail/GLContext.h"
#include "display/detail/GLName.h"
#include "display/detail/GlyphLists.h"
#include "display/detail/ScreenText.h"
#include "display/detail/ViewState.h"
#include "platform/Vant.h"
#include "platform/detail/Startup.h"

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNCREATE(CDsp, CGLWnd)

BEGIN_MESSAGE_MAP(CDsp, CGLWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_CONTEXTMENU()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_SETCURSOR()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

HGLRC CDsp::s_sharedRC = nullptr;
CDspGrp* CDsp::s_pDspGrp = nullptr;
constexpr int CDsp::lightCount;

namespace
{

[[maybe_unused]] const bool isRegistered = [] {
    vant::detail::Startup().releaseLists = CDsp::ReleaseLists;
    return true;
}();

COLORREF Darker(COLORREF colour)
{
    return RGB(GetRValue(colour) / 2, GetGValue(colour) / 2, GetBValue(colour) / 2);
}

/** From the upper left and the side of the eye: what rises casts its shade to where a reader of charts
 * expects it. */
void SetUpUsualLight(CDspLight& light)
{
    constexpr float direction[] = {-0.45F, 0.6F, 0.8F, 0};
    light.on = 1;
    light.specularInt = 1;
    std::copy(std::begin(direction), std::end(direction), light.position);
    light.CalculateValues();
}

} // namespace

CDsp::CDsp()
    : backCol(Darker(Vant::back))
    , m_state(std::make_unique<vant::detail::ViewState>())
{
    SetUpUsualLight(lights[0]);
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

void CDsp::NeedDraw()
{
    m_state->isBoxKnown = false;
    AskDraw();
}

void CDsp::AskDraw()
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
    vant::detail::ScreenText::Forget();
    vant::detail::ForgetNames();
    vant::detail::GL().deleteContext(s_sharedRC);
    s_sharedRC = nullptr;
}
