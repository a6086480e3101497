// CESlider: its drawing.
#include "controls/CESlider.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/CtrlLook.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "values/EUnits.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <cmath>

namespace skin = vant::skins::slider;
using vant::detail::SliderLayout;
using vant::detail::SliderScale;
using vant::skins::Look;

namespace
{

constexpr int uprightReadout = 20;   // height, units
constexpr int uprightLabelRoom = 24; // width that numbers beside an upright slider want at least, units
constexpr int labelGap = 8;          // between two numbers, units
constexpr int uprightLabelGap = 16;  // from one number's middle to the next one's, units
constexpr int markGap = 8;           // from one mark to the next, units

CFont& LabelFont()
{
    return Vant::smallF.m_hObject ? Vant::smallF : Vant::normalF;
}

/** The decimal places that tell round values apart; -1 where they are too large or small to be written out.
 */
int DecimalsOf(const std::vector<double>& values)
{
    constexpr double longest = 1e9;
    constexpr int most = 6;
    if (values.size() < 2 || std::max(std::fabs(values.front()), std::fabs(values.back())) >= longest)
        return -1;
    constexpr double slack = 1e-9;
    const int places = -static_cast<int>(std::floor(std::log10(values[1] - values[0]) + slack));
    return places > most ? -1 : std::max(places, 0);
}

/** Device pixels of a length in units; may be negative. */
int DevicePx(CDC& dc, double units)
{
    CPoint scale[] = {{0, 0}, {CDpi::base, 0}};
    dc.LPtoDP(scale, 2);
    return static_cast<int>(std::floor(units * (scale[1].x - scale[0].x) / CDpi::base + 0.5));
}

} // namespace

CRect CESlider::Place::Bar(int from, int length) const
{
    const int low = layout.Across();
    const int high = low + SliderLayout::across;
    if (upright)
        return {low, client.bottom - from - length, high, client.bottom - from};
    return {from, low, from + length, high};
}

CESlider::Place CESlider::PlaceNow() const
{
    const CRect client = ClientRc();
    const bool upright = vertical != 0;
    const int length = upright ? client.Height() : client.Width();
    const int breadth = upright ? client.Width() : client.Height();
    const int room = SliderLayout::across + (upright ? uprightLabelRoom : SliderLayout::labelRoom);
    const bool labelled = ticks == ticksNumbers && breadth >= room;
    const int behind = readout <= 0 ? 0 : upright ? uprightReadout : readout;
    return {client, upright, labelled, SliderLayout(length, breadth, labelled, behind)};
}

double CESlider::Displayed(double value) const
{
    double displayed = scale * value;
    EUnits::N2D(units, displayed);
    return displayed;
}

/** The text of a number that the variable does not have. */
CString CESlider::DisplayText(double value) const
{
    CEVal shown(*this);
    shown.pMutex = nullptr;
    shown.Init(value);
    if (vant::detail::IsInteger(*this) && scale == 1.0 && units == -1)
        shown.decimals = 0;
    return shown.GetText(1);
}

/** Round values with their texts, as many as there is room for. */
std::vector<CESlider::Tick> CESlider::Ticks(CDC& dc, const Place& place) const
{
    const SliderScale range = Scale();
    const double from = Displayed(range.From());
    const double length = Displayed(range.To()) - from;
    int gap = !place.labelled ? markGap : place.upright ? uprightLabelGap : labelGap;
    if (!range.IsMovable())
        return {};
    std::vector<Tick> found;
    // Wide numbers need more room, and leave room for fewer.
    for (int tries = 0; tries < 3; ++tries) {
        const auto most = static_cast<std::size_t>(place.layout.Travel() / gap) + 1;
        found.clear();
        int widest = 0;
        const std::vector<double> values = vant::detail::RoundTicks(from, from + length, most);
        for (double value : values) {
            CEVal shown;
            shown.Init(value);
            shown.decimals = DecimalsOf(values);
            found.push_back({(value - from) / length, shown.GetText(0)});
            widest = std::max<int>(widest, dc.GetTextExtent(found.back().text).cx);
        }
        if (!place.labelled || place.upright || gap >= widest + labelGap)
            break;
        gap = widest + labelGap;
    }
    return found;
}

void CESlider::DrawTicks(CDC& dc, const Place& place) const
{
    const int saved = dc.SaveDC();
    dc.SelectObject(&LabelFont());
    dc.SelectObject(IsEnabled() ? &Vant::medL : &Vant::darkL);
    dc.SetTextColor(IsEnabled() ? style.txtCol : vant::detail::disabledText);
    const CRect& client = place.client;
    for (const Tick& tick : Ticks(dc, place)) {
        const int along =
            place.layout.Start() + static_cast<int>(std::floor(tick.share * place.layout.Travel() + 0.5));
        const CRect bar = place.Bar(along, 0);
        constexpr int from = SliderLayout::tickEnd - SliderLayout::tickLength;
        if (place.upright) {
            dc.MoveTo(bar.left + from, bar.top);
            dc.LineTo(bar.left + SliderLayout::tickEnd, bar.top);
        } else {
            dc.MoveTo(bar.left, bar.top + from);
            dc.LineTo(bar.left, bar.top + SliderLayout::tickEnd);
        }
        if (!place.labelled)
            continue;
        if (place.upright) {
            constexpr int half = uprightLabelGap / 2;
            CRect label(bar.right + 2, bar.top - half, client.right, bar.top + half);
            label.OffsetRect(0, std::clamp<int>(0, client.top - label.top, client.bottom - label.bottom));
            vant::detail::DrawLine(dc, tick.text, label, DT_LEFT);
        } else {
            const int width = dc.GetTextExtent(tick.text).cx + 2;
            const int most = std::max(place.layout.Bar() - width, 0);
            const int left = std::clamp(static_cast<int>(bar.left) - width / 2, 0, most);
            vant::detail::DrawLine(dc, tick.text,
                                   {left, bar.bottom, left + width, bar.bottom + SliderLayout::labelRoom},
                                   DT_CENTER);
        }
    }
    dc.RestoreDC(saved);
}

void CESlider::DrawBar(CDC& dc, const Place& place, double share) const
{
    const CRect bar = place.Bar(0, place.layout.Bar());
    if (!vant::detail::DrawPiece(dc, bar, Vant::slider, place.upright ? skin::trackV : skin::track, 0,
                                 BackCol())) {
        CRect groove = bar;
        constexpr int slim = 8;
        groove.DeflateRect(place.upright ? slim : 0, place.upright ? 0 : slim);
        CEStyle::Brdr2(&dc, groove);
    }
    if (!IsEnabled() || std::isnan(share))
        return;
    // From 0, where that is inside the range.
    const SliderScale range = Scale();
    const bool fromZero = (range.From() < 0) != (range.To() < 0) && range.IsMovable();
    const double other = fromZero ? range.ShareOf(0) : 0.0;
    const auto along = [&place](double at) {
        // At the first end the whole rounded end of the bar belongs to it.
        return at == 0
                   ? 0
                   : place.layout.Start() + static_cast<int>(std::floor(at * place.layout.Travel() + 0.5));
    };
    // By value: the list's form gives no references to what goes at once.
    const auto [low, high] = std::minmax({along(share), along(other)});
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(place.Bar(low, high - low));
    vant::detail::DrawPiece(dc, bar, Vant::slider, place.upright ? skin::filledV : skin::filled, 0,
                            BackCol());
    dc.RestoreDC(saved);
}

void CESlider::DrawThumb(CDC& dc, const Place& place, double share) const
{
    const double along = share * place.layout.Travel();
    // On a scaled screen it moves by pixels, not by units.
    const double whole = std::floor(along);
    const int rest = DevicePx(dc, along - whole);
    const CPoint origin = dc.OffsetViewportOrg(place.upright ? 0 : rest, place.upright ? -rest : 0);
    const CRect box = place.Bar(static_cast<int>(whole), SliderLayout::thumb);
    const Look drawn = vant::detail::LookOf(*this);
    if (!vant::detail::DrawPiece(dc, box, Vant::slider, place.upright ? skin::thumbV : skin::thumb, drawn,
                                 BackCol()))
        dc.FillSolidRect(box, IsEnabled() ? Vant::cyan : Vant::dark);
    dc.SetViewportOrg(origin);
}

void CESlider::DrawReadout(CDC& dc, const Place& place) const
{
    const CRect& client = place.client;
    CRect box(place.layout.Bar() + SliderLayout::readoutGap, place.layout.Across(), client.right,
              place.layout.Across() + SliderLayout::across);
    if (place.upright)
        box = CRect(client.left, client.top, client.right, client.top + uprightReadout);
    if (!vant::detail::DrawPiece(dc, box, Vant::txt, vant::skins::txt::readout, 0, BackCol()))
        CEStyle::Brdr2(&dc, box);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(IsEnabled() ? style.txtCol : vant::detail::disabledText);
    // The texts of values pass 64-bit integers by.
    const bool own =
        (dragging && !live && m_moved) || vant::detail::TypeOf(type) == vant::detail::ValueType::Int64;
    constexpr int frame = 3;
    box.DeflateRect(frame, 0);
    vant::detail::DrawLine(dc, own ? DisplayText(Shown()) : GetText(1), box, DT_CENTER);
}

void CESlider::Draw(CDC* dc)
{
    const Place place = PlaceNow();
    const double value = Shown();
    const double share = std::isnan(value) ? value : Scale().ShareOf(value);
    DrawBack(dc);
    style.Set(dc);
    DrawBar(*dc, place, share);
    if (ticks != ticksNone)
        DrawTicks(*dc, place);
    if (!std::isnan(share))
        DrawThumb(*dc, place, share);
    else if (vant::detail::HasFocus(*this))
        vant::detail::DrawFocus(*dc, place.Bar(0, place.layout.Bar()));
    if (readout > 0)
        DrawReadout(*dc, place);
}
