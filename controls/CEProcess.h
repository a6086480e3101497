#pragma once

#include "controls/CECtrl.h"
#include "controls/detail/TimeLeft.h"

/** Shows how far something has come: a bar with a text, the percentage, and the time that it will still take.
 *
 *  The bound number is the progress, of any type, within the value's range (CEVal::SetRange(), 0 to 1 at
 * first; a minimum above the maximum counts down). While it is missing (-32768, NaN), nothing is bound, or
 * the range is empty, how long it takes is unknown, and stripes run over the bar. The text is `text`.
 *
 *  @code
 *  auto* const upload = new CEProcess;
 *  cat->InsCtrl(240, upload, 0);
 *  upload->Init(m_sent);
 *  upload->SetRange(0, m_size);
 *  upload->text = L"Sending the survey";
 *  @endcode
 *
 *  It looks at the variable ten times a second by itself, under the value's mutex, so that a thread may count
 * it up. A thread of windows that works without handling messages calls Update() and UpdateWindow()
 * meanwhile. It has no code among the types of controls: it is inserted as an object. */
class VANT_API CEProcess : public CECtrl
{
    DECLARE_DYNAMIC(CEProcess)

public:
    /** Values of #status. */
    enum Status {
        running, ///< going on; from the end of the range on it counts as done
        paused,  ///< waiting; this time does not count
        done,    ///< at its end
        failed,  ///< given up
    };

    CEProcess();

    /** @name Fields; what is changed shows by itself */
    ///@{
    int status = running; ///< Status
    int showPercent = 1;  ///< non-zero: the percentage, while it is known
    int showTimeLeft = 1; ///< non-zero: the time left, while it runs and can be told
    /** @} */

    /** How far it has come, 0 to 1; NaN while that is unknown. */
    double Share() const;
    /** The Status that is shown. */
    int ShownStatus() const;
    /** Forgets how fast it went. Progress that goes back to an earlier value does so too. */
    void Restart();
    /** What is shown at the right: percentage and time left. */
    CString Figures() const;

    /** Looks at the variable, and goes on as every control does. */
    void Update(int arg) override;
    /** Looks at the variable and redraws if something has changed; `t` is of no interest. */
    void AutoUpdate(double t) override;
    /** The window's text is never a value of such a control: does nothing. */
    void Retreive() override;
    void Draw(CDC* dc) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    /** What the picture depends on. */
    struct Picture {
        int status = -1;
        int pixels = -1; ///< of the bar; of stripes, how far they have run
        CString caption;
        CString figures;
        bool operator==(const Picture&) const = default;
    };

    void Look();
    Picture PictureNow() const;
    void DrawFill(CDC& dc, const CRect& bar) const;

    vant::detail::TimeLeft m_left;
    CString m_leftText;
    double m_leftAt = 0; // when the text was made
    Picture m_drawn;
};
