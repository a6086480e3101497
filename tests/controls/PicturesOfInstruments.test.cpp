#include "controls/CEAttempt.h"
#include "controls/CEBtnList.h"
#include "controls/CELed.h"
#include "controls/CEProcess.h"
#include "controls/CERadio.h"
#include "controls/CESlider.h"
#include "controls/PictureSheet.h"

#include <limits>

namespace
{

int mode = 1;
int states[] = {0, 1, 2, 3, 4, 5, 77};
int phases[] = {CEAttempt::idle, CEAttempt::pending, CEAttempt::succeeded, CEAttempt::failed,
                CEAttempt::timedOut};
double gain = 24, noGain = -32768.0, depth = 61.3;
double shares[] = {0.37, 1, 0.62, 0.8, std::numeric_limits<double>::quiet_NaN()};
Listener listener;

template <class T>
std::unique_ptr<T> Make(const wchar_t* text, int width = 140, int height = 20)
{
    auto ctrl = std::make_unique<T>();
    ctrl->rc = CRect(0, 0, width, height);
    ctrl->text = text;
    return ctrl;
}

std::unique_ptr<CERadio> Radio(const wchar_t* text, int value)
{
    auto radio = Make<CERadio>(text);
    radio->Init(mode);
    radio->aux0 = value;
    return radio;
}

std::unique_ptr<CELed> Led(const wchar_t* text, int& value, bool clickable = false)
{
    auto led = Make<CELed>(text);
    led->Init(value);
    led->SetState(5, CELed::blue);
    if (clickable)
        led->SetCallback(&listener, Listener::Member());
    return led;
}

std::unique_ptr<CEBtnList> Row(const wchar_t* captions, bool withOneOff)
{
    auto row = Make<CEBtnList>(L"", 140, 24);
    row->Init(mode);
    row->AddBtns(captions);
    if (withOneOff)
        row->EnableBtn(2, false);
    return row;
}

std::unique_ptr<CESlider> Slider(double& value, int height, int ticks, int readout)
{
    auto slider = Make<CESlider>(L"", 140, height);
    slider->Init(value);
    slider->SetRange(0, 60);
    slider->ticks = ticks;
    slider->readout = readout;
    return slider;
}

std::unique_ptr<CESlider> Upright(int ticks, int readout)
{
    auto slider = Slider(depth, 130, ticks, readout);
    slider->rc.right = 64;
    slider->vertical = 1;
    slider->units = 0;
    slider->decimals = 1;
    slider->SetRange(100, -20);
    return slider;
}

std::unique_ptr<CEAttempt> Attempt(int& phase, bool blank)
{
    auto attempt = Make<CEAttempt>(blank ? L"" : L"Connect", 140, 24);
    if (blank)
        attempt->failedText = attempt->timedOutText = L"";
    attempt->Init(phase);
    // So that the phase has been going on for a while.
    attempt->AutoUpdate(0);
    attempt->AutoUpdate(4.3);
    return attempt;
}

std::unique_ptr<CEProcess> Process(const wchar_t* text, double& share, int status, bool blank)
{
    auto process = Make<CEProcess>(blank ? L"" : text);
    process->Init(share);
    process->status = status;
    process->showPercent = !blank;
    return process;
}

} // namespace

TEST_F(PicturesTest, EveryStateOfInstrumentsIsSeenAtEveryScale)
{
    std::vector<PicturesTest::Row> rows = {
        {"clear radio", [] { return Radio(L"North up, gypsy", 0); }},
        {"chosen radio", [] { return Radio(L"Heading up", 1); }},
        {"clickable lamp", [] { return Led(L"Shallow water", states[3], true); }},
        {"row of buttons", [] { return ::Row(L"Off|Survey|Jig", false); }, true, true,
         [] { return ::Row(L"||", false); }},
        {"row with one off", [] { return ::Row(L"10|20|50|100", true); }, true, true,
         [] { return ::Row(L"|||", true); }},
        {"slider", [] { return Slider(gain, 20, CESlider::ticksNone, 0); }, true, false},
        {"slider with marks", [] { return Slider(gain, 20, CESlider::ticksMarks, 40); }, true, false},
        {"slider with numbers", [] { return Slider(gain, 34, CESlider::ticksNumbers, 40); }, true, false},
        {"upright slider", [] { return Upright(CESlider::ticksNumbers, 1); }, true, false},
    };
    const wchar_t* const lamps[] = {L"Off",   L"RTK fixed, gypsy", L"Weak signal", L"No signal",
                                    L"Alarm", L"Remote",           L"Unknown"};
    for (std::size_t i = 0; i < std::size(states); ++i)
        rows.push_back({"lamp", [=] { return Led(lamps[i], states[i]); }, false});
    rows.push_back({"slider without data", [] { return Slider(noGain, 20, CESlider::ticksMarks, 60); },
                    std::nullopt, false});
    for (int& phase : phases)
        rows.push_back({"attempt", [&phase] { return Attempt(phase, false); }, true, true,
                        [&phase] { return Attempt(phase, true); }});
    const int status[] = {CEProcess::running, CEProcess::running, CEProcess::paused, CEProcess::failed};
    for (std::size_t i = 0; i < std::size(status); ++i)
        rows.push_back({"process", [=] { return Process(L"Sending gypsy", shares[i], status[i], false); },
                        false, true, [=] { return Process(L"", shares[i], status[i], true); }});
    for (const int dpi : {96, 144, 192})
        DrawSheet(rows, dpi, L"instruments");
}
