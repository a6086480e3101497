#pragma once

#include "demo/CAlarmLog.h"
#include "demo/CBackBuffer.h"
#include "demo/CRunLog.h"
#include "demo/DemoSettings.h"
#include "demo/FontSet.h"
#include "demo/Palette.h"
#include "demo/ShownValues.h"
#include "demo/detail/Playback.h"
#include "demo/detail/Tape.h"

#include <afxwin.h>

#include <chrono>
#include <string>

namespace demo
{

/** What a run is made of. Everything outlives the window. */
struct Session {
    const Tape& tape;
    Playback& playback;
    DemoSettings& settings;
    CRunLog& log;
    CAlarmLog& alarms;
    std::wstring source;  ///< name of the log, as it is shown
    double seconds = 0.0; ///< how long the window stays open; 0 until it is closed
    double rate = 1.0;    ///< seconds of the tape in a second
    CString picture;      ///< where the last picture goes
    CString pictures;     ///< beginning of the names of pictures that the user takes
    std::size_t frames = 0;
    bool pictureSaved = false;
};

/** The window with the instruments. A timer moves the tape on, WM_PAINT draws what is known at that moment.
 */
class CMainWnd : public CFrameWnd
{
public:
    explicit CMainWnd(Session& session);

    /** Makes and shows the window where it was left, or in the middle of the screen. */
    bool Open();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeats, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    using Clock = std::chrono::steady_clock;

    void Draw(CPaintDC& dc, const CRect& client);
    void NotePlace();
    void ReportEvents();
    void StepRate(int direction);
    void StepDepthSpan();
    void TakePicture();
    void Finish();

    Session& m_session;
    Palette m_palette;
    FontSet m_fonts;
    CBackBuffer m_buffer;
    ShownValues m_values;
    Clock::time_point m_last;
    double m_elapsed = 0.0;
    bool m_open = false; // its place may be noted
    bool m_paused = false;
    bool m_atEnd = false;
    bool m_finished = false;
};

} // namespace demo
