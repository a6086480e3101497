#pragma once

#include "demo/bridge/CDockWnd.h"
#include "demo/run/SentenceFeed.h"
#include "demo/script/CActor.h"
#include "demo/script/CInput.h"
#include "demo/setup/CSetupWnd.h"
#include "demo/survey/CSurveyWnd.h"
#include "demo/views/CChartWnd.h"
#include "demo/views/CColoursWnd.h"
#include "demo/views/COrbitWnd.h"
#include "demo/views/CViewVideo.h"

#include <array>
#include <chrono>
#include <memory>
#include <vector>

namespace demo
{

/** The main window: places the instruments, the set-up and the consoles, moves the tape on, and takes the
 * keys that no control wants. */
class CBridge : public CVantWnd
{
    DECLARE_DYNAMIC(CBridge)

public:
    explicit CBridge(Session& session);
    ~CBridge() override;

    /** Makes and shows the window where it was left, or in the middle of the screen. */
    bool Open();

    /** Whether the chart and the orbit view show something. */
    bool CanDrawViews() const { return m_chart.CanDraw() && m_orbit.CanDraw(); }

    BOOL PreTranslateMessage(MSG* message) override;
    void OnInfoMsg(int msg, void* data) override;
    /** Places the parts. */
    void LayoutWnd(int quiet) override;

protected:
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnMove(int toX, int toY);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg LRESULT OnDpiChanged(WPARAM dpi, LPARAM suggested);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    DECLARE_MESSAGE_MAP()

private:
    using Clock = std::chrono::steady_clock;

    void AddPanels();
    void AddDocks();
    bool OpenParts();
    void NotePlace();
    bool TakeKey(UINT key);
    bool TakeCharacter(wchar_t character);
    void GoToNextWindow();
    bool OpenViews();
    std::unique_ptr<CActor> Actor();
    std::array<CSceneWnd*, 2> Views() { return {&m_chart, &m_orbit}; }
    std::array<CVantWnd*, 4> Popups() { return {&m_chart, &m_orbit, &m_colours, &m_survey}; }
    CVantWnd* FocusedPopup(); // which has the keyboard, or null
    CVantWnd* FocusedGuest(); // the docked window that has the keyboard, or null
    void Tick(double step);
    void ReportEvents();
    void RecordVideo();
    void SavePictures();
    void Finish();

    Session& m_session;
    Looks m_looks;
    std::vector<std::unique_ptr<CPanelWnd>> m_panels; // in the order of Layout
    CSetupWnd m_setup;
    std::vector<std::unique_ptr<CDockWnd>> m_docks; // the consoles, then the set-up
    CColoursWnd m_colours;
    Scene m_scene;
    CChartWnd m_chart;
    COrbitWnd m_orbit;
    CSurveyWnd m_survey;
    CViewVideo m_video{m_orbit};
    CInput m_hands;
    std::unique_ptr<CActor> m_actor; // in its user's place; null for none
    SentenceFeed m_feed;
    Clock::time_point m_last;
    double m_elapsed = 0.0;
    double m_nextTrigger = 0.0;
    HWND m_focus = nullptr; // had the keyboard when the window was left
    bool m_open = false;    // its place may be noted
    bool m_atEnd = false;
    bool m_warned = false; // of shallow water, with a message box
    bool m_finished = false;
};

} // namespace demo
