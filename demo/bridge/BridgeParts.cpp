// Where the parts of the bridge are.
#include "demo/bridge/CBridge.h"

#include "demo/detail/Layout.h"
#include "demo/panels/Panels.h"
#include "demo/screen/ScreenPlace.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <optional>

namespace demo
{
namespace
{

int UnacknowledgedAlarms()
{
    const CSingleLock guard(&Vant::alarm.entryLock, TRUE);
    int count = 0;
    for (CVantPtr* pos = Vant::alarm.entries.GetHeadPos(); pos;)
        count += Vant::alarm.entries.GetNext(pos)->kind & CConsole::kindChecked ? 0 : 1;
    return count;
}

} // namespace

void CBridge::AddPanels()
{
    const struct {
        const wchar_t* name;
        void (*paint)(CPainter&, const Box&, const Readout&);
    } panels[] = {
        {L"Header", PaintHeader}, {L"Alarm line", PaintAlarms}, {L"Depth", PaintDepth},
        {L"Track", PaintTrack},   {L"Heading", PaintHeading},   {L"Position", PaintPosition},
        {L"Wind", PaintWind},     {L"Motion", PaintMotion},     {L"Footer", PaintFooter},
    };
    for (const auto& panel : panels)
        m_panels.push_back(std::make_unique<CPanelWnd>(panel.name, m_session, m_looks, panel.paint));
}

void CBridge::AddDocks()
{
    const auto add = [this](const wchar_t* title, CVantWnd& guest, CDockWnd::Tell tell) {
        m_docks.push_back(std::make_unique<CDockWnd>(title, guest, m_session, m_looks, std::move(tell)));
    };
    add(L"ALARMS", Vant::alarm, [this] {
        const AlarmWatch& alarms = m_session.playback.Alarms();
        const bool isOn = std::ranges::any_of(alarmIds, [&](AlarmId id) { return alarms.IsOn(id); });
        const int open = UnacknowledgedAlarms();
        return CDockWnd::Caption{open > 0 ? std::to_wstring(open) + L" to be acknowledged"
                                          : L"none to be acknowledged",
                                 isOn       ? Lamp::Red
                                 : open > 0 ? Lamp::Amber
                                            : Lamp::Green};
    });
    add(L"CONSOLE", Vant::csl, [] { return CDockWnd::Caption{L"Logs\\Console.csv", std::nullopt}; });
    add(L"CLOCKS", Vant::status, [this] {
        const bool isSeen = m_session.playback.State(Quantity::UtcTime) == Freshness::Live;
        return CDockWnd::Caption{L"", isSeen ? Lamp::Green : Lamp::Amber};
    });
    add(L"SENTENCES", Vant::comms, [this] {
        const bool ends = m_session.playback.AtEnd();
        return CDockWnd::Caption{L"Logs\\Comms.csv", ends               ? Lamp::Red
                                                     : m_session.paused ? Lamp::Amber
                                                                        : Lamp::Green};
    });
    add(L"SET-UP", m_setup, [] { return CDockWnd::Caption{L"", std::nullopt}; });
}

bool CBridge::OpenParts()
{
    m_looks.dpi = Dpi();
    // The docks' captions tell what the consoles' own headings would.
    for (CConsole* const console :
         std::initializer_list<CConsole*>{&Vant::alarm, &Vant::csl, &Vant::status, &Vant::comms})
        console->hdrH = 0;
    const auto open = [this](const auto& part) { return part->Open(*this); };
    return std::ranges::all_of(m_panels, open) && std::ranges::all_of(m_docks, open);
}

bool CBridge::OpenViews()
{
    CRect place;
    GetWindowRect(&place);
    const PopupPlaces first = FirstPlacesOfPopups(BoxOf(place), Dpi());
    if (!m_colours.Open(*this, first.colours) || !m_chart.Open(*this, first.chart) ||
        !m_orbit.Open(*this, first.orbit) || !m_survey.Open(*this, first.survey))
        return false;
    for (CSceneWnd* const view : Views())
        m_colours.Pal().AttachWnd(view);
    return true;
}

void CBridge::LayoutWnd(int quiet)
{
    CVantWnd::LayoutWnd(quiet);
    if (!m_open)
        return;
    m_looks.dpi = Dpi();
    const CRect client = ClientRc();
    const Layout layout = Layout::Of(client.Width(), client.Height());
    m_looks.scale = layout.scale;
    const Box* const places[] = {&layout.header, &layout.alarms,  &layout.depth,
                                 &layout.track,  &layout.heading, &layout.position,
                                 &layout.wind,   &layout.motion,  &layout.footer};
    const auto place = [this](CWnd& part, const Box& box) {
        part.ShowWindow(box.Width() > 0 ? SW_SHOWNA : SW_HIDE);
        part.MoveWindow(m_looks.dpi.ToPx(RectOf(box)));
    };
    for (std::size_t i = 0; i < m_panels.size(); ++i)
        place(*m_panels[i], *places[i]);
    for (std::size_t i = 0; i < layout.docks.size(); ++i)
        place(*m_docks[i], layout.docks[i]);
    place(*m_docks.back(), layout.setup);
}

void CBridge::NotePlace()
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

void CBridge::OnMove(int toX, int toY)
{
    CVantWnd::OnMove(toX, toY);
    NotePlace();
}

void CBridge::OnSize(UINT type, int cx, int cy)
{
    CVantWnd::OnSize(type, cx, cy);
    NotePlace();
}

void CBridge::OnGetMinMaxInfo(MINMAXINFO* info)
{
    const CSize least = FrameAround(Layout::leastWidth, Layout::leastHeight, DpiThatFits(m_hWnd, Dpi()));
    info->ptMinTrackSize = {least.cx, least.cy};
}

LRESULT CBridge::OnDpiChanged(WPARAM dpi, LPARAM suggested)
{
    const int fits = DpiThatFits(m_hWnd, CDpi(HIWORD(dpi))).Dpi();
    return CVantWnd::OnDpiChanged(MAKEWPARAM(fits, fits), suggested);
}

BOOL CBridge::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(&client, m_looks.colours.back); // what lies between the parts, in every size
    return TRUE;
}

} // namespace demo
