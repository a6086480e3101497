// What is drawn: the dial, and a control that its window draws.
#include "Rows.h"

#include <cmath>

namespace
{

constexpr double noData = -32768.0;

/** A dial on which a direction is picked. */
CECtrl* Dial(CCtrlCat& cat, int width, State state)
{
    static PerState<double> bearings(ML::D2R(50), ML::D2R(50));
    CECtrl* const dial = cat.InsCtrl(width, CECtrl::typeRadius, bearings[state]);
    dial->SetCallback(&counter, CCounter::Member());
    return dial;
}

/** A control that the window draws: CVantWnd::DrawEWnd() of the gallery calls DrawRoll(). */
CECtrl* Drawn(CCtrlCat& cat, int width, State state)
{
    static PerState<double> rolls(ML::D2R(12), noData);
    auto* const drawn = static_cast<CEWnd*>(cat.InsCtrl(width, CECtrl::typeWnd, rolls[state]));
    drawn->SetTarget(cat.pParent);
    return drawn;
}

} // namespace

void DrawRoll(const CEWnd& ctrl, CDC& dc, const CRect& place)
{
    const double roll = ctrl.GetVal();
    const bool isHot = (ctrl.look & CECtrl::lookHover) != 0;
    dc.FillSolidRect(place, Vant::back);
    dc.SelectObject(isHot ? &Vant::cyanL : &Vant::medL);
    CEStyle::Brdr2(&dc, place);
    dc.SetBkMode(TRANSPARENT);
    dc.SelectObject(&Vant::smallF);
    dc.SetTextColor(ctrl.IsEnabled() ? Vant::light : RGB(140, 150, 160));
    CRect text = place;
    if (roll == noData) {
        dc.DrawText(L"No data", text, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        return;
    }
    // The hull, seen from astern, and the water.
    constexpr double halfBeam = 26;
    constexpr double depth = 14;
    const CPoint centre(place.CenterPoint().x, place.top + place.Height() * 2 / 5);
    const double c = std::cos(roll);
    const double s = std::sin(roll);
    const auto turned = [&](double x, double y) {
        return CPoint(centre.x + static_cast<int>(std::lround(x * c - y * s)),
                      centre.y + static_cast<int>(std::lround(x * s + y * c)));
    };
    POINT hull[] = {turned(-halfBeam, -depth / 2), turned(halfBeam, -depth / 2),
                    turned(halfBeam * 0.6, depth / 2), turned(0, depth), turned(-halfBeam * 0.6, depth / 2)};
    dc.SelectObject(ctrl.IsEnabled() ? &Vant::cyanB : &Vant::greyB);
    dc.Polygon(hull, static_cast<int>(std::size(hull)));
    dc.MoveTo(place.left + 8, centre.y + 4);
    dc.LineTo(place.right - 8, centre.y + 4);
    CString figures;
    figures.Format(L"Roll %.0f\u00B0", ML::R2D(roll));
    text.bottom -= 3;
    dc.DrawText(figures, text, DT_CENTER | DT_BOTTOM | DT_SINGLELINE);
}

Section DrawnRows()
{
    constexpr int dialH = 100;
    constexpr int drawnH = 68;
    return {L"Drawn",
            stateCount,
            {{L"CERadius", CECtrl::typeRadius, dialH, shownOnly | Has(stFocused), Dial},
             {L"CEWnd", CECtrl::typeWnd, drawnH, shownOnly | Has(stHot) | Has(stInvalid), Drawn}}};
}
