#include "demo/views/CColoursWnd.h"

#include "demo/detail/DepthShares.h"
#include "demo/session/ShownValues.h"
#include "platform/Vant.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr int barWidth = 64; // units, as all lengths here
constexpr int barHeight = 270;
constexpr int edge = 8;
constexpr int palHeight = 166;      // of the palette with its range, while there is room for columns below it
constexpr int leastColumns = 60;    // height of the columns that is worth while
constexpr int captionHeight = 20;   // above the columns
constexpr int columnWidth = 6;      // with the gap to the next
constexpr std::size_t newPart = 20; // soundings between two drawings of the columns

/** The depths that the colours tell apart at first, metres: those of the survey that comes with the program.
 */
constexpr double firstStart = 11.0;
constexpr double firstEnd = 20.0;

} // namespace

IMPLEMENT_DYNAMIC(CColoursWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CColoursWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CColoursWnd::CColoursWnd(Session& session)
    : CPopup(L"Depth colours", session, session.settings.colours)
    , m_playback(session.playback)
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
    s_pollRx.AddTail(this);
    return 0;
}

void CColoursWnd::OnDestroy()
{
    s_pollRx.RemoveAt(s_pollRx.Find(this));
    CVantWnd::OnDestroy();
}

void CColoursWnd::LayoutWnd(int quiet)
{
    CVantWnd::LayoutWnd(quiet);
    if (!m_pal.m_hWnd)
        return;
    const CRect client = ClientRc();
    const bool hasColumns = client.bottom >= palHeight + captionHeight + leastColumns;
    const CRect left(0, 0, std::max<int>(client.right - barWidth - 2 * edge, 0),
                     hasColumns ? palHeight : client.bottom);
    m_pal.MoveWindow(Dpi().ToPx(left));
}

/** Where the columns stand, below the colours that they have; empty while there is no room. */
CRect CColoursWnd::ColumnsRc() const
{
    const CRect client = ClientRc();
    const CRect columns(m_pal.barRc.left, palHeight + captionHeight, m_pal.barRc.right, client.bottom - edge);
    return columns.Height() >= leastColumns ? columns : CRect();
}

void CColoursWnd::Draw(CDC* dc)
{
    CVantWnd::Draw(dc);
    const CRect area = ColumnsRc();
    if (area.IsRectEmpty())
        return;
    const int classes = area.Width() / columnWidth;
    const std::vector<double> shares = DepthShares(m_playback.Depths(), m_pal.start, m_pal.end, classes);
    for (std::size_t i = 0; i < shares.size(); ++i) {
        const int number = static_cast<int>(i);
        const int left = area.left + number * area.Width() / classes;
        const int right = area.left + (number + 1) * area.Width() / classes - 1;
        const int height = static_cast<int>(area.Height() * shares[i] + 0.5);
        const double depth = m_pal.start + (m_pal.end - m_pal.start) * (number + 0.5) / classes;
        dc->FillSolidRect(left, area.bottom - height, right - left, height, m_pal.GetCol(depth));
    }
    dc->FillSolidRect(area.left, area.bottom, area.Width(), 1, Vant::med);
    dc->SelectObject(&Vant::smallF);
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(Vant::light);
    CRect caption(area.left, area.top - captionHeight, area.right, area.top);
    dc->DrawText(L"Soundings so far", &caption, DT_LEFT | DT_TOP | DT_SINGLELINE | DT_NOPREFIX);
}

void CColoursWnd::OnPoll(double t)
{
    CVantWnd::OnPoll(t);
    const std::size_t added = m_playback.Depths().Added();
    if (added >= m_drawn && added < m_drawn + newPart) // else the log may have begun again
        return;
    m_drawn = added;
    Invalidate(FALSE);
}

void CColoursWnd::OnInfoMsg(int msg, void* data)
{
    CPopup::OnInfoMsg(msg, data);
    if (msg == sessionInfo)
        m_bar->Update(1); // units may have changed
}

void CColoursWnd::OnNfyWnd(CVantWnd*, int msg, void*)
{
    if (msg != CPal::changedMsg)
        return;
    m_bar->Update(1);
    Invalidate(FALSE);
}

} // namespace demo
