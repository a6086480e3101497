#include "controls/CEProcess.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "controls/detail/SliderScale.h"
#include "platform/Vant.h"

#include <chrono>
#include <cmath>
#include <limits>
#include <string>

namespace skin = vant::skins::process;

IMPLEMENT_DYNAMIC(CEProcess, CECtrl)

BEGIN_MESSAGE_MAP(CEProcess, CECtrl)
    ON_WM_CREATE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

namespace
{

constexpr UINT_PTR timerId = 1;
constexpr UINT timerPeriod = 100;  // milliseconds
constexpr double stripeSpeed = 20; // units per second
constexpr double textPeriod = 1;   // seconds for which a time left stands still
constexpr int trackEnd = 2;        // units from the end of the bar to what fills it
constexpr int stripeEnd = 4;       // the same to the stripes

double Now()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

/** How far the stripes have run, units. */
int StripeShift()
{
    return static_cast<int>(std::fmod(Now() * stripeSpeed, skin::busy.w));
}

} // namespace

CEProcess::CEProcess() = default;

double CEProcess::Share() const
{
    const vant::detail::SliderScale range(rangeMin, rangeMax, 0);
    const double value = vant::detail::NumberOf(*this);
    return range.IsMovable() && !std::isnan(value) ? range.ShareOf(value)
                                                   : std::numeric_limits<double>::quiet_NaN();
}

int CEProcess::ShownStatus() const
{
    return status == running && Share() == 1.0 ? int{done} : status;
}

void CEProcess::Restart()
{
    m_left.Restart();
    m_leftText.Empty();
    m_leftAt = 0;
}

void CEProcess::Look()
{
    const double now = Now();
    m_left.Look(now, Share(), status == running);
    const auto left = m_left.Seconds();
    if (!left || now - m_leftAt >= textPeriod) {
        m_leftText = left ? vant::detail::TimeLeftText(*left).c_str() : L"";
        m_leftAt = now;
    }
}

CString CEProcess::Figures() const
{
    const double share = Share();
    const int shown = ShownStatus();
    CString figures;
    if (showPercent && !std::isnan(share)) {
        // Not 100 % before it is all of it; but 57 % of 0.57, which is a little less in binary.
        constexpr double percent = 100;
        constexpr double slack = 1e-9;
        figures = std::to_wstring(static_cast<int>(std::floor(share * percent + slack))).c_str();
        figures += L" %";
    }
    if (showTimeLeft && shown == running && !m_leftText.IsEmpty())
        figures += (figures.IsEmpty() ? L"" : L"   ") + m_leftText;
    return figures;
}

void CEProcess::Update(int arg)
{
    Look();
    CECtrl::Update(arg);
}

void CEProcess::AutoUpdate(double)
{
    Look();
    if (m_hWnd && !(PictureNow() == m_drawn))
        Invalidate(FALSE);
}

void CEProcess::Retreive() {}

int CEProcess::OnCreate(LPCREATESTRUCT create)
{
    SetTimer(timerId, timerPeriod, nullptr);
    return CECtrl::OnCreate(create);
}

void CEProcess::OnTimer(UINT_PTR timer)
{
    if (timer == timerId)
        AutoUpdate(0);
    else
        CECtrl::OnTimer(timer);
}

CEProcess::Picture CEProcess::PictureNow() const
{
    const double share = Share();
    const CRect client = Dpi().ToPx(ClientRc());
    const int shown = ShownStatus();
    const int pixels = !std::isnan(share) ? static_cast<int>(share * client.Width())
                       : shown == running ? StripeShift()
                                          : -1;
    return {IsEnabled() ? shown : -1, pixels, text, Figures()};
}

void CEProcess::DrawFill(CDC& dc, const CRect& bar) const
{
    const double share = Share();
    const int shown = ShownStatus();
    const int saved = dc.SaveDC();
    if (std::isnan(share) && shown == running) {
        dc.IntersectClipRect(bar.left + stripeEnd, bar.top, bar.right - stripeEnd, bar.bottom);
        for (int x = bar.left + StripeShift() - skin::busy.w; x < bar.right; x += skin::busy.w)
            vant::detail::DrawPiece(dc, {x, bar.top, x + skin::busy.w, bar.bottom}, Vant::process, skin::busy,
                                    0, BackCol());
    } else {
        // What has ended without a measure of it has a full bar.
        const double part = std::isnan(share) ? 1.0 : share;
        const double length = part * (bar.Width() - 2 * trackEnd);
        dc.IntersectClipRect(bar.left, bar.top, bar.left + trackEnd + static_cast<int>(std::ceil(length)),
                             bar.bottom);
        const auto& fill = shown == done     ? skin::done
                           : shown == failed ? skin::failed
                           : shown == paused ? skin::paused
                                             : skin::running;
        if (part > 0 && !vant::detail::DrawPiece(dc, bar, Vant::process, fill, 0, BackCol()))
            dc.FillSolidRect(bar, Vant::teal);
    }
    dc.RestoreDC(saved);
}

void CEProcess::Draw(CDC* dc)
{
    CRect r = ClientRc();
    DrawBack(dc);
    style.Set(dc);
    // The skin leaves room above and below, which the text needs.
    constexpr int skinRoom = 2;
    CRect bar = r;
    bar.InflateRect(0, skinRoom);
    if (!vant::detail::DrawPiece(*dc, bar, Vant::process, skin::track, 0, BackCol()))
        CEStyle::Brdr2(dc, r);
    if (IsEnabled())
        DrawFill(*dc, bar);
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(IsEnabled() ? vant::detail::litText : vant::detail::disabledText);
    constexpr int inset = 8;
    r.DeflateRect(inset, 0);
    m_drawn = PictureNow();
    vant::detail::DrawLine(*dc, m_drawn.figures, r, DT_RIGHT);
    if (!m_drawn.figures.IsEmpty())
        r.right -= dc->GetTextExtent(m_drawn.figures).cx + inset;
    vant::detail::DrawLine(*dc, text, r, DT_LEFT);
}
