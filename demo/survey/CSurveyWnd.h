#pragma once

#include "controls/CRcMgr.h"
#include "demo/views/CSceneWnd.h"

#include <cstddef>

class CEChart;
class CEGrid;
class CESlider;
struct CEGridCell;

namespace demo
{

/** The survey: depth and speed as they come, on strip charts over the log's time; lamps; the gain with which
 *  the sea bed shows; and the waypoints of the planned route, as the boat sees them. A waypoint that is
 *  selected comes into the middle of the chart; Enter or a double click brings it there again.
 *
 *  The log of the boat tells nothing of an engine: three lamps tell whether a sensor is live, silent or gone,
 *  the fourth whether the boat makes way through the water. Nor does the log hold echoes to amplify: the gain
 *  is that of the sea bed's colours, in decibels.
 *
 *  A controller (Remote()) steps through the gain, the waypoints and the button below them. */
class CSurveyWnd : public CPopup<CVantWnd>
{
    DECLARE_DYNAMIC(CSurveyWnd)

public:
    /** All outlive it. @param chart  shows the waypoints */
    CSurveyWnd(Session& session, Scene& scene, CSceneWnd& chart);

    /** @name Its controls; null before it is open @{ */
    const CEChart* Strips() const noexcept { return m_strips; }
    CESlider* Gain() const noexcept { return m_gain; }
    CEGrid* Waypoints() const noexcept { return m_waypoints; }
    CECtrl* WholeRoute() const noexcept { return m_wholeRoute; }
    /** @} */
    const CRcMgr& Remote() const noexcept { return m_remote; }

    void SetupCtrls() override;
    void OnPoll(double t) override;
    void OnInfoMsg(int msg, void* data) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t lampCount = 3;
    static const Sensor lampSensors[lampCount]; // what the lamps before the last one tell of

    /** @name Its controls, see SurveyControls.cpp @{ */
    void AddLamps();
    void AddGain();
    void AddStrips();
    void AddWaypoints();
    /** @} */
    void Record();
    void ShowLamps();
    void OnGain();
    /** @name The waypoints, see SurveyWaypoints.cpp @{ */
    void ShowWaypoints(double t);
    void OnCell(CEGridCell& cell);
    void OnWaypoint();
    void OnWholeRoute();
    /** @} */

    Session& m_session;
    Scene& m_scene;
    CSceneWnd& m_chart;
    CEChart* m_strips = nullptr; // its category's, as the other controls
    CESlider* m_gain = nullptr;
    CEGrid* m_waypoints = nullptr;
    CECtrl* m_wholeRoute = nullptr;
    int m_depth = 0; // traces
    int m_speed = 0;
    int m_lamps[lampCount] = {}; // Freshness of the sensors
    int m_underWay = 0;
    int m_row = -1;          // waypoint that is selected
    double m_taken = 0.0;    // time of the tape that the strips have reached
    double m_nextRows = 0.0; // when the waypoints are shown anew
    CRcMgr m_remote;
};

} // namespace demo
