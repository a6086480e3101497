#pragma once

#include "controls/detail/ClickCtrl.h"
#include "controls/detail/PhaseClock.h"
#include "core/VantApi.h"

#include <mutex>
#include <optional>

/** A button for an action that takes time and may fail: connecting, calibrating, sending a set-up.
 *
 *  A click begins an attempt: the button shows that it is pending and calls the callbacks, where the
 * application starts the action. The application then reports what has become of it; without a report within
 *  #timeOut seconds the attempt has failed. While one is pending another click, or Escape, cancels it; a
 * second click that comes so soon that it belongs to a double click does not. A lamp before the
 *  button shows a success for #showFor seconds, and a failure until the next attempt; the reason is part of
 *  the tool tip.
 *
 *  @code
 *  auto* const connect = static_cast<CEAttempt*>(cat->NewCtrl(120, CECtrl::typeAttempt));
 *  connect->text = L"Connect";
 *  connect->pendingText = L"Connecting";
 *  connect->SetCallback(this, static_cast<CEVal::CbNone>(&CSonarWnd::StartConnecting));
 *  connect->SetEnd(this, static_cast<CEVal::CbInt>(&CSonarWnd::OnConnectEnded)); // a Phase
 *  // in the thread that StartConnecting() has started, with the number that Begin() or Number() gave:
 *  connect->Report(number, socket.IsOpen(), L"No route to the sonar");
 *  @endcode
 *
 *  **Reports.** Succeed(), Fail() and Cancel() act at once and belong to the UI thread. Report() may be
 * called by any thread, as long as the control lives, and is taken at the next AutoUpdate(), which the
 * application drives from its poll (CECtrl::UpdateAuCtrls()); a report on an attempt that is no longer
 * pending is dropped, so that the late answer to an attempt that timed out is not taken for the next one's.
 * The time-out counts the seconds of AutoUpdate()'s clock too: without it an attempt never times out.
 *
 *  **Bound variable.** An integer that is bound has the Phase: the button writes it, and takes over what
 * others write, under the value's mutex and seen at the next AutoUpdate(). So a thread may end an attempt,
 * and the application show one that it has begun by itself, by writing the variable; and a lamp (CELed) may
 * show the same. Any other value counts as idle. */
class VANT_API CEAttempt : public vant::detail::ClickCtrl
{
    DECLARE_DYNAMIC(CEAttempt)

public:
    /** What is going on; the numbers are those of the bound variable. */
    enum Phase {
        idle,      ///< nothing to show: before the first attempt, and some time after the last
        pending,   ///< an attempt is going on
        succeeded, ///< the last one has succeeded
        failed,    ///< it has failed
        timedOut,  ///< it has taken longer than #timeOut
        cancelled, ///< the user or Cancel() ended it
    };

    CEAttempt();

    /** @name Fields */
    ///@{
    double timeOut = 10; ///< seconds that an attempt may take; 0: any time
    double showFor = 5; ///< seconds for which a success or a cancellation is shown; 0: until the next attempt
    int mayCancel = 1;  ///< non-zero: the user may cancel an attempt
    CString pendingText;                  ///< caption of a phase; empty: `text`
    CString succeededText;                ///< likewise, after a success
    CString failedText = L"Failed";       ///< where no reason is given
    CString timedOutText = L"Timed out";  ///< where it took longer than #timeOut
    CString cancelledText = L"Cancelled"; ///< where the user or Cancel() ended it
    /** @} */

    /** @name Course of an attempt; UI thread */
    ///@{
    /** Begins one as a click does, also while the button is disabled.
     *  @return its number, above 0; 0 if one is pending already */
    int Begin();
    /** Ends the one that is pending with a success; nothing if none is. */
    void Succeed();
    /** Ends the one that is pending as failed. @param reason  shown in place of #failedText */
    void Fail(const CString& reason = CString());
    /** Ends the one that is pending as cancelled, as the user may. */
    void Cancel();
    /** What is going on, as the bound variable has it. */
    int Now() const;
    /** Number of the last attempt; 0 before the first. */
    int Number() const noexcept { return m_number; }
    /** Why the last attempt failed; empty if it did not, or nobody said. */
    const CString& Reason() const noexcept { return m_reason; }
    /** Who is told, with the Phase, that an attempt has ended, in whichever way. The target must outlive its
     * registration; null ends it. It is independent of the target of the other callbacks. */
    void SetEnd(CObject* target, CbInt fn);
    /** @} */

    /** Reports how an attempt has ended; any thread. Of several reports on one attempt the first counts.
     *  @param attempt  its number  @param ok  whether it succeeded  @param reason  why not */
    void Report(int attempt, bool ok, const CString& reason = CString());

    /** Takes what was reported and written, and ends what has taken too long. @param t  seconds */
    void AutoUpdate(double t) override;
    /** The tip, and on a line of its own why the last attempt failed. */
    void GetTip(CString& tip) override;
    using CECtrl::GetTip;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

protected:
    void OnClick() override;
    int ShownState() const override;
    CString Caption() const override;
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    struct Reported {
        int attempt;
        bool ok;
        CString reason;
    };

    void Enter(int phase);
    void End(int phase, const CString& reason);
    bool Swap(int from, int to);
    void Finish(int phase, const CString& reason);
    void TakeReport();
    void TakeVariable();
    void Expire();
    void DrawMark(CDC& dc, const CRect& box) const;

    CObject* m_endObj = nullptr; // not owned
    CbInt m_end = nullptr;
    int m_phase = idle; // that the button has acted on
    int m_number = 0;
    ULONGLONG m_begun = 0; // tick count of the last attempt's beginning
    CString m_reason;
    vant::detail::PhaseClock m_clock; // of the phase
    std::mutex m_guard;               // of what other threads write
    std::optional<Reported> m_reported;
};
