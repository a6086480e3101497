#include "demo/CColoursWnd.h"

#include "demo/ShownValues.h"
#include "platform/Vant.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr int barWidth = 64; // units, as all lengths here
constexpr int barHeight = 270;
constexpr int edge = 8;

/** The depths that the colours tell apart at first, metres: those of the survey that comes with the program.
 */
constexpr double firstStart = 11.0;
constexpr double firstEnd = 20.0;

} // namespace

IMPLEMENT_DYNAMIC(CColoursWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CColoursWnd, CVantWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

CColoursWnd::CColoursWnd(Session& session)
    : CPopup(L"Depth colours", session, session.settings.colours)
{
    m_pal.name = L"Depth palette";
}

void CColoursWnd::SetupCtrls()
{
    m_bar = new CPalBar; // the category's from here on
    m_bar->Init(m_pal.working, m_pal.start, m_pal.end);
    m_bar->units = lengthUnit;
    m_bar->tip = L"Which colour is which depth.";
    CCtrlCat& beside = *GetCat(L"Bar", CCtrlCat::anchorTopRight, 0, 0);
    beside.ctrlH = barHeight;
    beside.InsCtrl(barWidth, m_bar, 0);
    beside.SetExtents(barWidth + edge, barHeight);
}

int CColoursWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CVantWnd::OnCreate(create) == -1 ||
        !m_pal.Create(Vant::wndClass, m_pal.name, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(), this, 0))
        return -1;
    m_pal.start = firstStart;
    m_pal.end = firstEnd;
    m_pal.SetOption(L"Load", L"Depths");
    m_pal.AttachWnd(this);
    m_pal.UpdatePal();
    return 0;
}

void CColoursWnd::LayoutWnd(int quiet)
{
    CVantWnd::LayoutWnd(quiet);
    if (!m_pal.m_hWnd)
        return;
    const CRect client = ClientRc();
    const CRect left(0, 0, std::max<int>(client.right - barWidth - 2 * edge, 0), client.bottom);
    m_pal.MoveWindow(Dpi().ToPx(left));
}

void CColoursWnd::OnInfoMsg(int msg, void* data)
{
    CPopup::OnInfoMsg(msg, data);
    if (msg == sessionInfo)
        m_bar->Update(1); // units may have changed
}

void CColoursWnd::OnNfyWnd(CVantWnd*, int msg, void*)
{
    if (msg == CPal::changedMsg)
        m_bar->Update(1);
}

} // namespace demo
