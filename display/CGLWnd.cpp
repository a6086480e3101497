#include "display/CGLWnd.h"

#include "core/ML.h"
#include "display/CDsp.h"
#include "display/detail/GLCalls.h"
#include "display/detail/GLContext.h"
#include "display/detail/GLName.h"
#include "display/detail/GlyphLists.h"
#include "display/detail/Pbuffer.h"
#include "platform/Vant.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

using namespace vant::detail;

IMPLEMENT_DYNCREATE(CGLWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CGLWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_SIZE()
END_MESSAGE_MAP()

constinit CLstPtr<CGLWnd*> CGLWnd::s_glWnds;

CGLWnd::CGLWnd()
{
    s_glWnds.AddTail(this);
}

CGLWnd::~CGLWnd()
{
    ReleaseContexts();
    s_glWnds.RemoveAt(s_glWnds.Find(this));
}

BOOL CGLWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    // What OpenGL asks of a window that it draws into.
    cs.style |= WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    return CVantWnd::PreCreateWindow(cs);
}

int CGLWnd::OnCreate(LPCREATESTRUCT cs)
{
    {
        CClientDC dc(this);
        CDsp::InitLists(dc);
        m_rc = CreateRC(dc);
        CurrentContext::Restore();
    }
    return CVantWnd::OnCreate(cs) == -1 ? -1 : 0;
}

HGLRC CGLWnd::CreateRC(HDC hdc)
{
    SetGLFormat(hdc);
    const HGLRC rc = GL().createContext(hdc);
    // Before the context is current for the first time: some drivers refuse later on.
    m_shares = GL().shareLists(CDsp::s_sharedRC, rc) != FALSE;
    if (!m_shares) {
        const CString cause = Vant::ErrorString(::GetLastError());
        Vant::Alarm(0, 1, L"Error in sharing display lists code = %s", static_cast<LPCWSTR>(cause));
    }
    if (!rc)
        return nullptr;
    GL().makeCurrent(hdc, rc);
    m_glyphs = GlyphLists::For(hdc, m_shares);
    MakeCircle();
    return rc;
}

void CGLWnd::MakeCircle()
{
    constexpr int corners = 500;
    constexpr double radius = 0.5;
    if (m_circle)
        glDeleteLists(m_circle, 1);
    m_circle = glGenLists(1);
    glNewList(m_circle, GL_COMPILE);
    glBegin(GL_LINE_LOOP);
    for (int i = 0; i < corners; ++i) {
        const double angle = ML::pi2 * i / corners;
        glVertex2d(std::cos(angle) * radius, std::sin(angle) * radius);
    }
    glEnd();
    glEndList();
}

void CGLWnd::OnDestroy()
{
    CVantWnd::OnDestroy();
    ReleaseContexts();
}

void CGLWnd::ReleaseContexts()
{
    if (m_rc && m_hWnd) {
        CClientDC dc(this);
        if (const CurrentContext current{dc, m_rc}) {
            // It would outlive the context: lists are common to all.
            glDeleteLists(m_circle, 1);
            m_glyphs.reset();
            if (m_shares)
                DeleteReleasedNames();
        }
    }
    m_circle = 0;
    m_glyphs.reset();
    if (m_rc)
        GL().deleteContext(m_rc);
    m_rc = nullptr;
    m_pb.reset();
    m_pbWidth = 0;
    m_pbHeight = 0;
}

void CGLWnd::OnPaint()
{
    // Straight to the window: the memory that other platform windows paint in has no place for OpenGL.
    CPaintDC dc(this);
    Draw(&dc);
}

void CGLWnd::OnSize(UINT type, int cx, int cy)
{
    CVantWnd::OnSize(type, cx, cy);
    Invalidate(FALSE);
}

void CGLWnd::RenderTo(const CRect& view, bool shares)
{
    m_viewRc = view;
    glViewport(view.left, view.top, std::max<LONG>(view.Width(), 0), std::max<LONG>(view.Height(), 0));
    if (shares)
        DeleteReleasedNames();
    m_sharesNow = shares;
    Render();
}

bool CGLWnd::WithContext(const std::function<void()>& code)
{
    if (!m_rc || !m_hWnd)
        return false;
    CClientDC dc(this);
    const CurrentContext current{dc, m_rc};
    if (!current)
        return false;
    m_sharesNow = m_shares;
    code();
    return true;
}

/** In place of a scene that cannot be drawn: an empty window would leave its user guessing. */
void CGLWnd::DrawExcuse(CDC& dc) const
{
    constexpr int margin = 12; // units
    const int state = dc.SaveDC();
    Dpi().Apply(dc);
    CRect r = ClientRc();
    dc.FillRect(r, &Vant::backB);
    dc.SelectObject(&Vant::normalF);
    dc.SetTextColor(Vant::light);
    dc.SetBkMode(TRANSPARENT);
    r.DeflateRect(margin, margin);
    dc.DrawText(L"Nothing can be drawn here: this computer's graphics driver offers no OpenGL.", &r,
                DT_LEFT | DT_TOP | DT_WORDBREAK | DT_NOPREFIX);
    dc.RestoreDC(state);
}

void CGLWnd::Draw(CDC* dc)
{
    if (!m_hWnd || !IsWindowVisible())
        return;
    CRect view;
    GetClientRect(&view);
    const CurrentContext current{*dc, m_rc};
    if (!current) {
        DrawExcuse(*dc);
        return;
    }
    // The viewport counts from the bottom, where a client rectangle has its top.
    view.left += insetLeft;
    view.top += insetBottom;
    view.right -= insetRight;
    view.bottom -= insetTop;
    RenderTo(view, m_shares);
    GL().swapBuffers(*dc);
}

void CGLWnd::Render() {}
