#include "demo/session/Commands.h"

#include "controls/CVantWnd.h"
#include "platform/Vant.h"

#include <algorithm>
#include <iterator>

namespace demo
{
namespace
{

constexpr double rates[] = {0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0};
constexpr double depthSpans[] = {60.0, 120.0, 300.0};

void StepRate(double& rate, int direction) noexcept
{
    const auto* const above = std::ranges::upper_bound(rates, rate);
    const auto* const from = std::ranges::lower_bound(rates, rate);
    if (direction > 0 && above != std::end(rates))
        rate = *above;
    if (direction < 0 && from != std::begin(rates))
        rate = *(from - 1);
}

void StepDepthSpan(double& span) noexcept
{
    const auto* const next = std::ranges::upper_bound(depthSpans, span);
    span = next != std::end(depthSpans) ? *next : depthSpans[0];
}

void TakePicture(Session& session)
{
    CString name;
    name.Format(L"picture-%03d.png", Vant::imgInd);
    if (SavePicture(session, name))
        ++Vant::imgInd;
}

} // namespace

std::optional<Command> CommandOf(wchar_t character) noexcept
{
    switch (character) {
    case L' ':
        return Command::Pause;
    case L'+':
        return Command::Faster;
    case L'-':
        return Command::Slower;
    case L'r':
    case L'R':
        return Command::Restart;
    case L'h':
    case L'H':
        return Command::HeadingUp;
    case L'd':
    case L'D':
        return Command::DepthSpan;
    case L'u':
    case L'U':
        return Command::Units;
    case L'c':
    case L'C':
        return Command::Chart;
    case L'o':
    case L'O':
        return Command::Orbit;
    case L'p':
    case L'P':
        return Command::Colours;
    case L'm':
    case L'M':
        return Command::Survey;
    case L'v':
    case L'V':
        return Command::Video;
    case L's':
    case L'S':
        return Command::Picture;
    default:
        return std::nullopt;
    }
}

void Carry(Command command, Session& session)
{
    DemoSettings& settings = session.settings;
    switch (command) {
    case Command::Pause:
        session.paused = !session.paused;
        break;
    case Command::Faster:
        StepRate(session.rate, +1);
        break;
    case Command::Slower:
        StepRate(session.rate, -1);
        break;
    case Command::Restart:
        session.playback.Rewind();
        session.log.Line(L"restarted");
        break;
    case Command::HeadingUp:
        settings.headingUp = !settings.headingUp;
        break;
    case Command::DepthSpan:
        StepDepthSpan(settings.depthSpan);
        break;
    case Command::Units:
        settings.units = !settings.units;
        break;
    case Command::Chart:
        settings.chart.open = !settings.chart.open;
        break;
    case Command::Orbit:
        settings.orbit.open = !settings.orbit.open;
        break;
    case Command::Colours:
        settings.colours.open = !settings.colours.open;
        break;
    case Command::Survey:
        settings.survey.open = !settings.survey.open;
        break;
    case Command::Video:
        session.recording = !session.recording;
        break;
    case Command::Picture:
        TakePicture(session);
        break;
    }
    session.Apply();
    CVantWnd::InfoMsg(sessionInfo, &session);
}

bool SavePicture(Session& session, const CString& name)
{
    const CString path = session.outDir + name;
    if (CWnd* const main = ::AfxGetMainWnd())
        main->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const bool saved = Vant::PrintScn(path) != 0;
    session.log.Line((saved ? L"picture saved to " : L"no picture could be saved to ") +
                     std::wstring(static_cast<LPCWSTR>(path)));
    return saved;
}

} // namespace demo
