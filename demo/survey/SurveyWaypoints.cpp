// The waypoints of the survey, as the boat sees them.
#include "demo/survey/CSurveyWnd.h"

#include "controls/CEGrid.h"
#include "demo/detail/Text.h"

#include <cmath>
#include <numbers>

namespace demo
{
namespace
{

constexpr double rowInterval = 0.5; // seconds, of the distances and bearings

enum WaypointCol { colPoint, colDistance, colBearing, colLeg };

} // namespace

void CSurveyWnd::ShowWaypoints(double t)
{
    const int count = static_cast<int>(m_scene.Route().Points().size());
    if (count != m_waypoints->Rows()) {
        m_waypoints->SetRange(0, count > 0 ? count - 1 : 0);
        m_waypoints->SetRows(count);
    }
    if (t < m_nextRows && m_nextRows - t <= rowInterval) // else the clock was put back
        return;
    m_nextRows = t + rowInterval;
    if (IsWindowVisible())
        m_waypoints->Update(0);
}

void CSurveyWnd::OnCell(CEGridCell& cell)
{
    const std::vector<PlanPoint>& points = m_scene.Route().Points();
    const auto index = static_cast<std::size_t>(cell.row);
    if (index >= points.size())
        return; // the route is about to change
    const GroundPoint& place = points[index].place;
    const CV3& boat = m_scene.Boat().Now().place;
    const bool knowsBoat = m_scene.Boat().visible != 0;
    const double east = place.east - boat.x;
    const double north = place.north - boat.y;
    switch (cell.col) {
    case colPoint:
        cell.num = cell.row + 1;
        break;
    case colDistance:
        if (knowsBoat)
            cell.num = std::hypot(east, north);
        break;
    case colBearing: {
        const double bearing = std::atan2(east, north);
        cell.text =
            knowsBoat
                ? (BearingText(bearing < 0 ? bearing + 2 * std::numbers::pi : bearing) + L"\u00B0").c_str()
                : L"---";
        break;
    }
    case colLeg:
        cell.num = 0;
        if (index > 0)
            cell.num = std::hypot(place.east - points[index - 1].place.east,
                                  place.north - points[index - 1].place.north);
        break;
    default:
        break;
    }
}

void CSurveyWnd::OnWaypoint()
{
    const std::vector<PlanPoint>& points = m_scene.Route().Points();
    if (m_row < 0 || static_cast<std::size_t>(m_row) >= points.size())
        return;
    const GroundPoint& place = points[static_cast<std::size_t>(m_row)].place;
    m_chart.FollowBoat(false);
    m_chart.SetViewOrg({place.east, place.north, 0});
}

/** Enter or a double click in the grid, whose row need not change then. */
BOOL CSurveyWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (m_waypoints && HIWORD(wParam) == LBN_DBLCLK && reinterpret_cast<HWND>(lParam) == m_waypoints->m_hWnd)
        OnWaypoint();
    return CVantWnd::OnCommand(wParam, lParam);
}

void CSurveyWnd::OnWholeRoute()
{
    m_chart.ShowRoute();
}

} // namespace demo
