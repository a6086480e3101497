#include "controls/CEAttempt.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/BtnFace.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "values/detail/ValueLock.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace skin = vant::skins::process;
using vant::skins::Look;

IMPLEMENT_DYNAMIC(CEAttempt, CECtrl)

BEGIN_MESSAGE_MAP(CEAttempt, vant::detail::ClickCtrl)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

namespace
{

constexpr int succeededSound = 1;
constexpr int failedSound = 4;

constexpr int markSize = 20;                  // units
constexpr int wheelSteps = skin::wheel.cells; // a turn of the wheel, which takes a second
constexpr int timeSteps = 64;                 // of the line that shows how much of the time has passed

// Cells of the lamps.
constexpr int greenLamp = 0;
constexpr int amberLamp = 1;
constexpr int redLamp = 2;

int WheelStep(const vant::detail::PhaseClock& clock) noexcept
{
    return static_cast<int>(std::fmod(clock.Passed(), 1.0) * wheelSteps);
}

} // namespace

CEAttempt::CEAttempt()
{
    ctrlType = typeAttempt;
    s_auCtrls.AddTail(this);
}

unsigned long CEAttempt::WndStyle() const
{
    return ClickCtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

void CEAttempt::SetEnd(CObject* target, CbInt fn)
{
    m_endObj = target;
    m_end = fn;
}

int CEAttempt::Now() const
{
    if (!vant::detail::IsInteger(*this))
        return m_phase;
    const std::int64_t bound = vant::detail::IntegerOf(*this);
    return bound >= idle && bound <= cancelled ? static_cast<int>(bound) : int{idle};
}

void CEAttempt::Enter(int phase)
{
    m_phase = phase;
    m_clock.Restart();
    if (phase == pending) {
        ++m_number;
        m_begun = ::GetTickCount64();
        m_reason.Empty();
    }
    if (m_hWnd)
        Invalidate(FALSE);
}

/** Changes the bound variable, unless another thread was quicker. */
bool CEAttempt::Swap(int from, int to)
{
    const vant::detail::ValueLock lock(pMutex);
    if (!lock || Now() != from)
        return false;
    vant::detail::PutInteger(*this, to);
    return true;
}

int CEAttempt::Begin()
{
    const int now = Now();
    if (now == pending || !Swap(now, pending))
        return 0;
    Enter(pending);
    const int number = m_number;
    Execute();
    return number;
}

void CEAttempt::End(int phase, const CString& reason)
{
    Enter(phase);
    m_reason = reason;
    if (phase == succeeded)
        Vant::Snd(succeededSound);
    else if (phase != cancelled)
        Vant::Snd(failedSound);
    if (m_endObj && m_end)
        (m_endObj->*m_end)(phase);
}

void CEAttempt::Finish(int phase, const CString& reason)
{
    if (Swap(pending, phase))
        End(phase, reason);
}

void CEAttempt::Succeed()
{
    Finish(succeeded, CString());
}

void CEAttempt::Fail(const CString& reason)
{
    Finish(failed, reason);
}

void CEAttempt::Cancel()
{
    Finish(cancelled, CString());
}

void CEAttempt::Report(int attempt, bool ok, const CString& reason)
{
    const std::lock_guard lock(m_guard);
    if (!m_reported || m_reported->attempt < attempt)
        m_reported = Reported{attempt, ok, reason};
}

void CEAttempt::TakeReport()
{
    std::optional<Reported> taken;
    {
        const std::lock_guard lock(m_guard);
        taken = std::exchange(m_reported, std::nullopt);
    }
    if (taken && taken->attempt == m_number)
        Finish(taken->ok ? succeeded : failed, taken->reason);
}

/** Acts on what others have written into the bound variable. */
void CEAttempt::TakeVariable()
{
    const int now = Now();
    if (now == m_phase)
        return;
    if (m_phase == pending && now != idle)
        End(now, CString());
    else
        Enter(now);
}

void CEAttempt::Expire()
{
    const double passed = m_clock.Passed();
    if (m_phase == pending && timeOut > 0 && passed >= timeOut)
        Finish(timedOut, CString());
    else if ((m_phase == succeeded || m_phase == cancelled) && showFor > 0 && passed >= showFor &&
             Swap(m_phase, idle))
        Enter(idle);
}

void CEAttempt::AutoUpdate(double t)
{
    TakeReport();
    TakeVariable();
    m_clock.Look(t);
    Expire();
    ClickCtrl::AutoUpdate(t);
}

void CEAttempt::GetTip(CString& tipText)
{
    tipText = tip;
    if (m_reason.IsEmpty())
        return;
    if (!tipText.IsEmpty())
        tipText += L"\n";
    tipText += m_reason;
}

void CEAttempt::OnClick()
{
    if (Now() != pending)
        Begin();
    else if (mayCancel && ::GetTickCount64() - m_begun > ::GetDoubleClickTime())
        Cancel();
}

void CEAttempt::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key == VK_ESCAPE && mayCancel && Now() == pending && !(look & lookPressed))
        Cancel();
    else
        ClickCtrl::OnKeyDown(key, repeat, flags);
}

CString CEAttempt::Caption() const
{
    const auto orText = [this](const CString& caption) { return caption.IsEmpty() ? text : caption; };
    switch (Now()) {
    case pending:
        return orText(pendingText);
    case succeeded:
        return orText(succeededText);
    case failed:
        return m_reason.IsEmpty() ? orText(failedText) : m_reason;
    case timedOut:
        return orText(timedOutText);
    case cancelled:
        return orText(cancelledText);
    default:
        return text;
    }
}

int CEAttempt::ShownState() const
{
    const int now = Now();
    if (now != pending)
        return now;
    const double share = timeOut > 0 ? std::min(m_clock.Passed() / timeOut, 1.0) : 0.0;
    return now + (cancelled + 1) * (WheelStep(m_clock) + wheelSteps * static_cast<int>(share * timeSteps));
}

void CEAttempt::DrawMark(CDC& dc, const CRect& box) const
{
    const int now = Now();
    if (now == pending && IsEnabled()) {
        vant::detail::DrawPiece(dc, box, Vant::process, skin::wheel, WheelStep(m_clock), BackCol());
        return;
    }
    const bool lit = IsEnabled() && (now == succeeded || now == failed || now == timedOut);
    const int colour = now == succeeded ? greenLamp : now == failed ? redLamp : amberLamp;
    vant::detail::DrawPiece(dc, box, Vant::leds, lit ? vant::skins::leds::lit : vant::skins::leds::none,
                            lit ? colour : 0, BackCol());
}

void CEAttempt::Draw(CDC* dc)
{
    CRect r = ClientRc();
    const vant::detail::BtnFace face{DrawnLook(), false, (look & lookHover) != 0};
    DrawBack(dc);
    style.Set(dc);
    const int top = r.top + (r.Height() - markSize) / 2;
    DrawMark(*dc, {r.left, top, r.left + markSize, top + markSize});
    constexpr int gap = 2;
    r.left += markSize + gap;
    vant::detail::DrawBtnFace(*dc, r, face, BackCol());
    if (Now() == pending && timeOut > 0 && face.drawn != Look::Disabled) {
        constexpr int frame = 2;
        CRect line(r.left + frame, r.bottom - 2 * frame, r.right - frame, r.bottom - frame);
        line.right = line.left + static_cast<int>(line.Width() * std::min(m_clock.Passed() / timeOut, 1.0));
        if (!line.IsRectEmpty())
            dc->FillSolidRect(line, Vant::cyan);
    }
    vant::detail::DrawBtnCaption(*dc, Caption(), r, face, style.txtCol);
    NoteShown();
}
