#pragma once

#include "controls/CECtrl.h"
#include "controls/CEStrip.h"
#include "controls/CETrace.h"
#include "core/VantApi.h"

#include <memory>

class CESetObj;

namespace vant::detail
{
struct ChartState;
}

/** A strip chart: values against time, in one or more strips above each other, as they come.
 *
 *  @code
 *  CEStrip* depth = chart.AddStrip(L"Depth", 0);
 *  depth->reversed = 1;
 *  const int sonar = chart.AddTrace(L"Sonar", depth)->Index();
 *  // then, in any thread:
 *  chart.Add(sonar, TmSync::GetTm(), 13.2);
 *  @endcode
 *
 *  A number that is bound to the control is a trace too, the first one unless others were added before: it
 * is recorded at every AutoUpdate(), that is whenever the application calls CECtrl::UpdateAuCtrls(), with the
 * unit, scale and decimals of the value and its `text` as the name, as they are when the window is created or
 * the first value recorded. Its mutex is taken as for every control.
 *
 *  Each trace keeps its latest samples in a ring. However many there are, drawing takes the time of the
 * pixels: where many samples share a column of pixels, the column goes from the smallest to the largest, so
 * that no spike is lost. -32768.0 and what is not finite are missing values and interrupt the line.
 *
 *  The chart redraws itself while samples come (#refresh). A strip takes a range of round numbers, from
 * Vant::markers_SI or markers_USA, in the units of EUnits::system, unless it is given one.
 *
 *  | the user | does |
 *  |----------|------|
 *  | wheel; + and - | zooms in time, about the mouse; about the end that is live, else the middle |
 *  | drag; Left, Right, Page Up, Page Down | goes back and on |
 *  | Home; End or a double click | goes to the oldest; back to live |
 *  | Space | pauses, and goes on live |
 *  | moves the mouse | reads the values at a time |
 *  | clicks a name | hides the trace, or shows it again |
 *
 *  Times are seconds, of the platform (TmSync::GetTm()) for the time of the day to be right. When the clock
 * is put back, by more than a second, what was recorded moves along and the line is interrupted.
 *
 *  All but Add() belongs to the UI thread. */
class VANT_API CEChart : public CECtrl
{
    DECLARE_DYNAMIC(CEChart)

public:
    /** Samples that a trace keeps unless told otherwise: a day at 12 per second. The memory, 18 bytes
     * each, is taken as it is used. */
    static constexpr int defaultCapacity = 1 << 20;

    /** Values of #timeLabels. */
    enum TimeLabels {
        timeRelative = 0, ///< before the newest: "-30 s"
        timeClock = 1,    ///< the time of the day, and the date where it changes
    };

    CEChart();
    ~CEChart() override;

    /** @name Fields */
    ///@{
    int timeLabels = timeRelative; ///< TimeLabels
    double joinMax = 0.0; ///< seconds without samples over which a line still goes on; 0: any time. Set it
                          ///< before another thread adds samples.
    int refresh = 40;     ///< milliseconds between redraws while samples come; 0: only Update() redraws.
                          ///< Read when the window is created.
    /** @} */

    /** @name Strips and traces
     *  Owned by the chart; pointers stay valid until RemoveAll(). @{ */
    /** Adds a strip below the others. @param unitKind  of EUnits; -1 for none */
    CEStrip* AddStrip(const CString& title, int unitKind = -1);
    /** Adds a trace to a strip of this chart; null takes the last one, which is made if there is none.
     *  @param capacity  samples that it keeps; at least 1 */
    CETrace* AddTrace(const CString& traceName, CEStrip* strip = nullptr, int capacity = defaultCapacity);
    /** How many strips there are. */
    int GetStripCount() const noexcept;
    /** Null outside 0 to GetStripCount() - 1. */
    CEStrip* GetStrip(int index) const noexcept;
    /** How many traces there are, in all strips. */
    int GetTraceCount() const noexcept;
    /** Null outside 0 to GetTraceCount() - 1. */
    CETrace* GetTrace(int index) const noexcept;
    /** Removes all strips and traces. Adding to a trace that is gone does nothing. */
    void RemoveAll();
    /** @} */

    /** @name Samples
     *  From any thread, as long as the chart exists. Times of a trace go forward; one that is up to a second
     * late counts as its newest. An unknown trace, and a time that is no number or beyond 3,000
     * years, are ignored. @{ */
    /** @param t  seconds  @param v  in the native unit of the strip */
    void Add(int trace, double t, double v);
    /** Adds many at once, which takes the lock once. */
    void Add(int trace, const double* t, const double* v, int count);
    /** Forgets all samples. */
    void Clear();
    /** @} */

    /** @name What is shown */
    ///@{
    /** Seconds from the left edge to the right one: 60 at first. */
    double GetSpan() const noexcept;
    /** @param seconds  a thousandth to 320,000,000, into which it is brought */
    void SetSpan(double seconds);
    /** Whether the chart goes with the newest sample. */
    int IsLive() const noexcept;
    /** Goes with the newest sample, or pauses where it is. Samples are kept meanwhile. */
    void SetLive(int live);
    /** The time at the right edge, seconds. */
    double GetEnd() const;
    /** The range of a strip's axis as last drawn, in the units displayed. @return 1, or 0 before */
    int GetShown(int strip, double& min, double& max) const;
    /** @} */

    /** Exchanges the span, the kind of time labels, the range of each strip and which traces are visible, in
     * items whose names begin with `key` (no blanks). A pause is not kept: a chart that starts paused would
     * look frozen. Strips and traces go by their order, and must have been added before. */
    void Settings(CESetObj& obj, const CString& key);

    /** Redraws, with what was changed in strips and traces. */
    void Update(int arg) override;
    /** Nothing: the chart does not change the bound variable. */
    void Retreive() override;
    void Draw(CDC* dc) override;
    /** Records the bound variable. @param t  seconds */
    void AutoUpdate(double t) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnSize(UINT how, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    double Bridge() const noexcept;
    bool HoldsNumber() const;
    void AddBound();
    void SyncTimes();
    bool TakeKey(UINT key);
    void Redraw();

    std::unique_ptr<vant::detail::ChartState> m_state;
};
