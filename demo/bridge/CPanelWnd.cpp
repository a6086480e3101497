#include "demo/bridge/CPanelWnd.h"

#include "platform/Vant.h"

namespace demo
{

IMPLEMENT_DYNAMIC(CPanelWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CPanelWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CPanelWnd::CPanelWnd(const wchar_t* panelName, Session& session, Looks& looks, Paint paint)
    : m_session(session)
    , m_looks(looks)
    , m_paint(std::move(paint))
{
    CVantWnd::name = panelName;
}

bool CPanelWnd::Open(CWnd& parent)
{
    return Create(Vant::wndClass, CVantWnd::name, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                  CRect(0, 0, 0, 0), &parent, 0) != FALSE;
}

void CPanelWnd::OnPoll(double)
{
    Invalidate(FALSE);
}

Box CPanelWnd::Client() const
{
    CRect client;
    GetClientRect(&client);
    return {0, 0, static_cast<int>(client.right), static_cast<int>(client.bottom)};
}

int CPanelWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CVantWnd::OnCreate(create) == -1)
        return -1;
    s_pollRx.AddTail(this);
    return 0;
}

void CPanelWnd::OnDestroy()
{
    s_pollRx.RemoveAt(s_pollRx.Find(this));
    CVantWnd::OnDestroy();
}

void CPanelWnd::OnPaint()
{
    CPaintDC dc(this);
    const Box client = Client();
    if (client.Width() <= 0 || client.Height() <= 0)
        return;
    if (!m_buffer.Resize(client.Width(), client.Height())) {
        dc.FillSolidRect(0, 0, client.right, client.bottom, Vant::back);
        return;
    }
    m_looks.fonts.Make(m_looks.scale, m_looks.dpi);
    {
        const double scale = m_looks.scale * m_looks.dpi.Dpi() / CDpi::base;
        CPainter painter(m_buffer.Dc(), m_buffer.Surface(), m_looks.fonts, m_looks.colours, scale,
                         m_looks.dpi);
        m_paint(painter, client, m_session.Now());
    }
    dc.BitBlt(0, 0, client.right, client.bottom, &m_buffer.Dc(), 0, 0, SRCCOPY);
}

BOOL CPanelWnd::OnEraseBkgnd(CDC*)
{
    return TRUE; // WM_PAINT covers everything; erasing would flicker
}

void CPanelWnd::OnLButtonDown(UINT, CPoint)
{
    SetFocus(); // a way out of every control: the keys are the bridge's again
}

} // namespace demo
