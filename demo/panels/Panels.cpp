#include "demo/panels/Panels.h"

#include "demo/detail/Scale.h"
#include "demo/detail/Text.h"

#include <cmath>

namespace demo
{

Shown Show(const Readout& readout, Quantity quantity)
{
    return {readout.values.Text(quantity), readout.playback.State(quantity), readout.values.Unit(quantity)};
}

Shown ShowBearing(const Playback& playback, Quantity quantity)
{
    const Freshness state = playback.State(quantity);
    return {BearingText(state == Freshness::None ? missing : playback.Value(quantity)), state, L"\u00B0"};
}

Shown ShowFromBow(const Playback& playback, Quantity quantity)
{
    Shown shown = ShowBearing(playback, quantity);
    if (shown.state != Freshness::None)
        shown.text = FixedText(std::abs(TurnBetween(0.0, playback.Value(quantity))) / degree, 0);
    shown.unit = SideText(playback, quantity);
    return shown;
}

std::wstring_view SideText(const Playback& playback, Quantity quantity) noexcept
{
    if (playback.State(quantity) == Freshness::None)
        return L"\u00B0";
    return TurnBetween(0.0, playback.Value(quantity)) < 0.0 ? L"\u00B0 port" : L"\u00B0 stbd";
}

} // namespace demo
