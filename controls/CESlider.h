#pragma once

#include "controls/CECtrl.h"
#include "controls/detail/SliderLayout.h"
#include "controls/detail/SliderScale.h"
#include "controls/detail/WheelTurn.h"

#include <cstdint>
#include <vector>

/** A slider, lying or upright, by which a number is set within a range.
 *
 *  It is bound to a number of any type. The ends of its scale are the value's range (CEVal::SetRange(), 0 to
 * 1 at first): the minimum is at the left, or at the bottom; a minimum above the maximum turns the direction
 * around. A value outside the range, which only the application can store, stands at the nearer end and stays
 * as it is. Missing data (-32768, NaN) has no thumb. An integer takes whole numbers, and none that its type
 * does not hold.
 *
 *  @code
 *  auto* const gain = static_cast<CESlider*>(cat->InsCtrl(160, CECtrl::typeSlider, m_gain));
 *  gain->SetRange(0, 60);
 *  gain->step = 0.5;
 *  gain->ticks = CESlider::ticksNumbers; // ctrlH of 34 or more has room for the numbers
 *  gain->readout = 50;
 *  gain->SetCallback(this, static_cast<CEVal::CbDouble>(&CSonarWnd::OnGain)); // while it moves
 *  gain->SetRelease(this, static_cast<CEVal::CbDouble>(&CSonarWnd::SendGain)); // once it has been set
 *  @endcode
 *
 *  **Mouse.** The thumb is dragged; a click beside it brings it under the mouse, from where it is dragged on.
 *  While #live the variable follows, and every change calls the callbacks; otherwise the variable is written
 *  when the button is released. Escape ends the drag and brings back the value as it was, calling the
 * callbacks if they heard of another one. When the mouse is taken away (by another window, by being disabled
 * or hidden), a live slider keeps the value that it has reached, and any other one forgets the drag.
 *
 *  **A value that changes meanwhile.** The thumb of a live slider shows the variable: a value that a callback
 * corrects, or that the application stores during a drag, is shown and stays until the mouse moves on. A
 * value that the application stored between two moves is what Escape brings back. The variable is only
 * written when the mouse has come to another place.
 *
 *  **Keys.** Right and Up move towards the maximum, Left and Down towards the minimum, by a #step or a
 * hundredth of the range, with Shift by a tenth of that; Page Up and Page Down move by about a tenth of the
 * range, Home and End go to its ends. Keys read, change and write the value in one step under its mutex.
 *  **Wheel.** While the slider has the focus and the mouse is over it a notch is a key press; otherwise the
 * wheel scrolls the window.
 *
 *  A drag, a key from press to release, and a turn of the wheel each end with the call of the release
 * callback, if they changed the value; one that is cut short by the loss of mouse or focus, with the next
 * messages that are handled. Callbacks may destroy the window, but not delete the control. */
class VANT_API CESlider : public CECtrl
{
    DECLARE_DYNAMIC(CESlider)

public:
    /** Values of #ticks. */
    enum TickKind {
        ticksNone,    ///< the groove alone
        ticksMarks,   ///< marks at round numbers
        ticksNumbers, ///< the numbers, too
    };

    CESlider();

    /** @name Fields */
    ///@{
    int vertical = 0; ///< non-zero: upright
    double step = 0;  ///< between two values, in the variable's unit; 0: as fine as pixels and type allow
    int ticks =
        ticksNone;    ///< marks at round values as they are displayed, and their numbers where there is room
    int readout = 0;  ///< width of the display text behind the slider, units; above an upright one any
                      ///< width but 0 takes its whole breadth; 0: none
    int live = 1;     ///< non-zero: the variable follows a drag
    int dragging = 0; ///< non-zero while the user drags
    /** @} */

    /** Registers who is called, with the value, when the user has set it. The target must outlive its
     * registration; null ends it. It is independent of the target of the other callbacks. */
    void SetRelease(CObject* target, CbDouble fn);

    /** The window's text is never a value of such a control: does nothing. */
    void Retreive() override;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

    /** Takes the focus. */
    int Press() override;
    /** Moves the thumb as the keys do: more is towards the maximum, by #step or a hundredth of the range,
     * with `fine` by a tenth of that; a step of the caller's is made whole steps. Not during a drag. */
    int Jog(int notches, double step, int fine) override;

    /** The number that the thumb shows: the variable's, or while the drag of a slider that is not #live the
     * one it is dragged to. NaN where there is no thumb. */
    double Shown() const;

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* to);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSize(UINT how, int width, int height);
    afx_msg LRESULT OnReleased(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    /** Where its parts are now. */
    struct Place {
        CRect client; ///< units
        bool upright;
        bool labelled; ///< with numbers at the ticks
        vant::detail::SliderLayout layout;

        /** A piece of the bar, units: where it begins along the slider, and how long it is. */
        CRect Bar(int from, int length) const;
    };
    struct Tick {
        double share;
        CString text;
    };

    Place PlaceNow() const;
    vant::detail::SliderScale Scale() const;

    int Along(CPoint px) const;
    int ThumbAt(double value) const;
    void BeginDrag(CPoint px);
    void DragTo(CPoint px);
    void EndDrag();
    void Cancel();
    void TakeForeignChange();
    void Store(double value);
    void Adjust(double by, bool toEnd = false);
    bool KeyAdjust(UINT key);
    void Changed();
    void Released();
    void ReleaseLater();

    std::vector<Tick> Ticks(CDC& dc, const Place& place) const;
    void DrawBar(CDC& dc, const Place& place, double share) const;
    void DrawTicks(CDC& dc, const Place& place) const;
    void DrawThumb(CDC& dc, const Place& place, double share) const;
    void DrawReadout(CDC& dc, const Place& place) const;
    double Displayed(double value) const;
    CString DisplayText(double value) const;

    CObject* m_releaseObj = nullptr; // not owned
    CbDouble m_release = nullptr;
    std::uint64_t m_before = 0;  // snapshot that Escape brings back
    std::uint64_t m_written = 0; // snapshot after the drag last wrote the variable
    double m_pending = 0;        // of a drag that does not write yet: where it is
    int m_grip = 0;              // from the middle of the thumb to the mouse, pixels
    int m_at = 0;                // where the drag has the thumb, pixels along the slider
    vant::detail::WheelTurn m_wheel;
    bool m_moved = false;   // since the drag began
    bool m_changed = false; // the value, since the adjustment began
};
