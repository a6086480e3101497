#include "demo/CMainWnd.h"

#include "demo/Panels.h"
#include "demo/detail/Layout.h"
#include "demo/detail/Options.h"
#include "demo/detail/Text.h"
#include "demo/detail/WindowPlace.h"
#include "platform/Vant.h"

#include <algorithm>
#include <vector>

namespace demo
{
namespace
{

constexpr UINT_PTR frameTimer = 1;
constexpr UINT frameInterval = 33;  // milliseconds
constexpr double longestStep = 0.5; // seconds: a stopped program does not make the tape jump
constexpr double rates[] = {0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0};
constexpr int depthSpans[] = {60, 120, 300};
constexpr DWORD wndStyle = WS_OVERLAPPEDWINDOW;

Box BoxOf(const RECT& rect) noexcept
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

CRect RectOf(const Box& box) noexcept
{
    return {box.left, box.top, box.right, box.bottom};
}

/** The window around a client area of that size. */
CSize FrameAround(int width, int height) noexcept
{
    CRect rect(0, 0, width, height);
    ::AdjustWindowRect(&rect, wndStyle, FALSE);
    return rect.Size();
}

BOOL CALLBACK AddWorkArea(HMONITOR monitor, HDC, LPRECT, LPARAM list)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info))
        reinterpret_cast<std::vector<Box>*>(list)->push_back(BoxOf(info.rcWork));
    return TRUE;
}

std::vector<Box> WorkAreas()
{
    std::vector<Box> areas;
    ::EnumDisplayMonitors(nullptr, nullptr, AddWorkArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

/** Where a window that was never open goes: the middle of the main screen. */
Box FirstPlace() noexcept
{
    const CSize size = FrameAround(Layout::designWidth, Layout::designHeight);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int width = std::min<int>(size.cx, work.Width());
    const int height = std::min<int>(size.cy, work.Height());
    const int left = work.left + (work.Width() - width) / 2;
    const int top = work.top + (work.Height() - height) / 2;
    return {left, top, left + width, top + height};
}

} // namespace

BEGIN_MESSAGE_MAP(CMainWnd, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_ENDSESSION()
    ON_WM_TIMER()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_MOVE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
END_MESSAGE_MAP()

CMainWnd::CMainWnd(Session& session)
    : m_session(session)
    , m_palette(Palette::FromScheme())
{
}

bool CMainWnd::Open()
{
    const Box& saved = m_session.settings.window;
    const bool isSaved = saved.Width() > 0 && saved.Height() > 0;
    const Box place = isSaved ? KeepOnScreen(saved, WorkAreas()) : FirstPlace();
    const CRect rect = RectOf(place);
    if (!Create(Vant::wndClass, Vant::appTitle, wndStyle, rect))
        return false;
    m_open = true;
    NotePlace();
    ShowWindow(m_session.settings.maximised ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
    UpdateWindow();
    return true;
}

int CMainWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CFrameWnd::OnCreate(create) == -1)
        return -1;
    m_last = Clock::now();
    SetTimer(frameTimer, frameInterval);
    return 0;
}

void CMainWnd::OnClose()
{
    Finish();
    CFrameWnd::OnClose();
}

void CMainWnd::OnDestroy()
{
    KillTimer(frameTimer);
    CFrameWnd::OnDestroy();
}

void CMainWnd::OnEndSession(BOOL ending)
{
    // The process may be gone as soon as this returns.
    if (ending)
        m_session.settings.Save(Vant::setFile);
    CFrameWnd::OnEndSession(ending);
}

void CMainWnd::OnTimer(UINT_PTR id)
{
    if (id != frameTimer) {
        CFrameWnd::OnTimer(id);
        return;
    }
    const Clock::time_point now = Clock::now();
    const double step = std::chrono::duration<double>(now - m_last).count();
    m_last = now;
    m_elapsed += step;
    if (!m_paused)
        m_session.playback.Advance(std::min(step, longestStep) * m_session.rate);
    ReportEvents();
    Invalidate(FALSE);

    if (m_session.seconds > 0.0 && m_elapsed >= m_session.seconds) {
        KillTimer(frameTimer);
        PostMessage(WM_CLOSE);
    }
}

void CMainWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (!client.IsRectEmpty())
        Draw(dc, client);
}

void CMainWnd::Draw(CPaintDC& dc, const CRect& client)
{
    const Layout layout = Layout::Of(client.Width(), client.Height());
    if (!m_buffer.Resize(layout.footer.right, layout.footer.bottom)) {
        dc.FillSolidRect(&client, Vant::back);
        return;
    }
    m_fonts.Make(layout.scale);
    {
        CPainter painter(m_buffer.Dc(), m_buffer.Surface(), m_fonts, m_palette, layout.scale);
        m_values.Take(m_session.playback);
        const View view{m_session.playback,
                        m_values,
                        m_session.tape.Duration(),
                        m_session.rate,
                        m_paused,
                        m_session.source,
                        m_session.settings.headingUp != 0,
                        static_cast<double>(m_session.settings.depthSpan),
                        m_session.alarms.Count()};
        painter.Solid({0, 0, layout.footer.right, layout.footer.bottom}, m_palette.back);
        PaintHeader(painter, layout.header, view);
        PaintAlarms(painter, layout.alarms, view);
        PaintDepth(painter, layout.depth, view);
        PaintTrack(painter, layout.track, view);
        PaintHeading(painter, layout.heading, view);
        PaintPosition(painter, layout.position, view);
        PaintWind(painter, layout.wind, view);
        PaintMotion(painter, layout.motion, view);
        PaintFooter(painter, layout.footer, view);
    }
    dc.BitBlt(0, 0, client.Width(), client.Height(), &m_buffer.Dc(), 0, 0, SRCCOPY);
    ++m_session.frames;
}

BOOL CMainWnd::OnEraseBkgnd(CDC*)
{
    return TRUE; // WM_PAINT covers everything; erasing would flicker
}

void CMainWnd::OnMove(int x, int y)
{
    CFrameWnd::OnMove(x, y);
    NotePlace();
}

void CMainWnd::OnSize(UINT type, int cx, int cy)
{
    CFrameWnd::OnSize(type, cx, cy);
    NotePlace();
    Invalidate(FALSE);
}

void CMainWnd::OnGetMinMaxInfo(MINMAXINFO* info)
{
    const CSize least = FrameAround(Layout::leastWidth, Layout::leastHeight);
    info->ptMinTrackSize = {least.cx, least.cy};
}

void CMainWnd::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (key == VK_ESCAPE)
        PostMessage(WM_CLOSE);
    else
        CFrameWnd::OnKeyDown(key, repeats, flags);
}

void CMainWnd::OnChar(UINT character, UINT repeats, UINT flags)
{
    DemoSettings& settings = m_session.settings;
    switch (character) {
    case L' ':
        m_paused = !m_paused;
        break;
    case L'+':
        StepRate(+1);
        break;
    case L'-':
        StepRate(-1);
        break;
    case L'r':
    case L'R':
        m_session.playback.Rewind();
        ReportEvents();
        m_atEnd = false;
        m_session.log.Line(L"restarted");
        break;
    case L'h':
    case L'H':
        settings.headingUp = !settings.headingUp;
        break;
    case L'd':
    case L'D':
        StepDepthSpan();
        break;
    case L'u':
    case L'U':
        settings.units = SwitchUnits();
        break;
    case L's':
    case L'S':
        TakePicture();
        break;
    default:
        CFrameWnd::OnChar(character, repeats, flags);
        return;
    }
    Invalidate(FALSE);
}

void CMainWnd::NotePlace()
{
    if (!m_open || m_finished || IsIconic() || !IsWindowVisible())
        return;
    m_session.settings.maximised = IsZoomed() ? 1 : 0;
    if (IsZoomed())
        return;
    CRect rect;
    GetWindowRect(&rect);
    m_session.settings.window = BoxOf(rect);
}

void CMainWnd::ReportEvents()
{
    for (const SensorEvent& event : m_session.playback.TakeEvents())
        m_session.log.Event(event);
    AlarmWatch& alarms = m_session.playback.Alarms();
    for (const AlarmEvent& event : alarms.TakeEvents())
        m_session.log.Alarm(event, m_session.alarms.Record(event, alarms.ShallowLimit()));
    if (m_session.playback.AtEnd() && !m_atEnd) {
        m_atEnd = true;
        m_session.log.Line(L"end of the log at " + DurationText(m_session.tape.Duration()));
    }
}

void CMainWnd::StepRate(int direction)
{
    const auto* const above = std::ranges::upper_bound(rates, m_session.rate);
    const auto* const from = std::ranges::lower_bound(rates, m_session.rate);
    if (direction > 0 && above != std::end(rates))
        m_session.rate = *above;
    if (direction < 0 && from != std::begin(rates))
        m_session.rate = *(from - 1);
}

void CMainWnd::StepDepthSpan()
{
    const auto* const next = std::ranges::upper_bound(depthSpans, m_session.settings.depthSpan);
    m_session.settings.depthSpan = next != std::end(depthSpans) ? *next : depthSpans[0];
}

void CMainWnd::TakePicture()
{
    CString path;
    path.Format(L"%s%03d.png", static_cast<LPCWSTR>(m_session.pictures), Vant::imgInd);
    UpdateWindow();
    const bool saved = Vant::PrintScn(path) != 0;
    Vant::imgInd += saved ? 1 : 0;
    m_session.log.Line((saved ? L"picture saved to " : L"no picture could be saved to ") +
                       std::wstring(static_cast<LPCWSTR>(path)));
}

void CMainWnd::Finish()
{
    if (m_finished)
        return;
    NotePlace();
    m_finished = true;
    Vant::vantClosing = 1;
    KillTimer(frameTimer);
    if (IsIconic())
        ShowWindow(SW_SHOWNOACTIVATE);
    Invalidate(FALSE);
    UpdateWindow();
    m_session.pictureSaved = Vant::PrintScn(m_session.picture) != 0;
}

} // namespace demo
