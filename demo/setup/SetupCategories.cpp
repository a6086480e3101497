// The controls of the set-up window, category by category.
#include "demo/setup/CSetupWnd.h"

#include "controls/CEAddr.h"
#include "controls/CEBtn.h"
#include "controls/CERadius.h"
#include "controls/CEText.h"
#include "demo/detail/Options.h"

namespace demo
{
namespace
{

constexpr int captionWidth = 124; // units, as all lengths here
constexpr int fieldWidth = 70;
constexpr int unitWidth = 60;
constexpr int rowWidth = captionWidth + fieldWidth + unitWidth;
constexpr int wideField = fieldWidth + unitWidth;
constexpr int addressWidth = 184; // leaves room for three digits in each of its fields
constexpr int buttonWidth = 62;
constexpr int dialSize = 120;
constexpr int lineHeight = 25;

constexpr double degreesPerRadian = 1.0 / degree;
constexpr double fullTurn = 360.0; // degrees
constexpr double straightDown = Mounting::upright * degreesPerRadian;

} // namespace

CCtrlCat& CSetupWnd::Category(const wchar_t* title)
{
    CCtrlCat& category = *GetCat(title, CCtrlCat::kindStacked, 1, 0);
    category.hdrH = lineHeight;
    return category;
}

CECtrl& CSetupWnd::Field(CECtrl& control, const wchar_t* tip)
{
    control.tip = tip;
    control.SetCallback(this, static_cast<CEVal::CbNone>(&CSetupWnd::OnChange));
    return control;
}

template <class T>
CECtrl& CSetupWnd::Edit(CCtrlCat& category, const wchar_t* caption, T& variable, const wchar_t* tip,
                        int width)
{
    category.InsText(captionWidth, caption);
    return Field(*category.InsCtrl(width, CECtrl::typeEdit, variable), tip);
}

void CSetupWnd::Check(CCtrlCat& category, const wchar_t* caption, int& variable, const wchar_t* tip)
{
    CECtrl& check = Field(*category.InsCtrl(rowWidth, CECtrl::typeCheck, variable), tip);
    check.text = caption;
    category.NewLn();
}

void CSetupWnd::AddAlarmLimits()
{
    CCtrlCat& category = Category(L"Alarm limits");
    DemoSettings& settings = m_session.settings;

    CECtrl& limit = Edit(
        category, L"Shallow below", settings.shallowLimit,
        L"The least safe depth. Less water under the surface raises the alarm; 0 never does.", fieldWidth);
    limit.units = lengthUnit;
    limit.decimals = 1;
    limit.SetRange(0.0, DemoSettings::mostLimit);
    m_limitUnit = category.InsText(unitWidth, L"");
    category.NewLn();

    CECtrl& search =
        Edit(category, L"Fix lost after", settings.lostFix,
             L"How long the receiver may be without a position before the alarm is raised.", fieldWidth);
    search.SetRange(DemoSettings::leastLostFix, DemoSettings::mostLostFix);
    category.InsText(unitWidth, L"s");
    category.NewLn();

    Check(category, L"Alarms are heard", settings.sound, L"Plays a sound when an alarm begins.");
}

void CSetupWnd::AddDisplay()
{
    CCtrlCat& category = Category(L"Display");
    DemoSettings& settings = m_session.settings;
    Check(category, L"Heading up", settings.headingUp,
          L"The compass card turns under the bow. Otherwise north stays at the top. Key: H");
    Check(category, L"US customary units", settings.units,
          L"Shows feet and degrees Fahrenheit instead of metres and degrees Celsius. Key: U");

    const auto window = [&](const wchar_t* caption, int& open, const wchar_t* tip) {
        CECtrl& check = Field(*category.InsCtrl(rowWidth / 2, CECtrl::typeCheck, open), tip);
        check.text = caption;
    };
    window(L"Chart", settings.chart.open, L"Shows the window with the chart. Key: C");
    window(L"Orbit", settings.orbit.open, L"Shows the window with the boat. Key: O");
    category.NewLn();
    window(L"Colours", settings.colours.open, L"Shows the window with the colours of the depths. Key: P");
    window(L"Survey", settings.survey.open,
           L"Shows the window with the strip charts and the waypoints. Key: M");
    category.NewLn();

    CECtrl& span = Edit(category, L"Depth graph", settings.depthSpan,
                        L"How much of the past the depth graph shows. Key: D", fieldWidth);
    span.SetRange(DemoSettings::leastSpan, DemoSettings::mostSpan);
    category.InsText(unitWidth, L"s");
    category.NewLn();
}

void CSetupWnd::AddPlayback()
{
    CCtrlCat& category = Category(L"Playback");
    category.InsText(captionWidth, L"Played");
    m_progress = category.InsCtrl(wideField, CECtrl::typeText, m_progressText);
    m_progress->tip = L"How much of the recorded log has been played.";
    category.NewLn();

    CECtrl& rate = Edit(category, L"Speed", m_session.rate,
                        L"Seconds of the log that are played in each second. Keys: + and -", fieldWidth);
    rate.SetRange(Options::minRate, Options::maxRate);
    category.InsText(unitWidth, L"times");
    category.NewLn();

    Check(category, L"Pause", m_session.paused, L"Lets the log stand still. Key: space bar");

    const struct {
        const wchar_t* text;
        ChildId id;
        void (CSetupWnd::*handler)();
        const wchar_t* tip;
    } buttons[] = {
        {L"Slower", idSlower, &CSetupWnd::OnSlower, L"The next lower speed. Key: -"},
        {L"Faster", idFaster, &CSetupWnd::OnFaster, L"The next higher speed. Key: +"},
        {L"Restart", idRestart, &CSetupWnd::OnRestart, L"Plays the log from its beginning. Key: R"},
        {L"Picture", idPicture, &CSetupWnd::OnPicture, L"Saves a picture of the whole window. Key: S"},
    };
    for (const auto& button : buttons)
        category
            .InsBtn(buttonWidth, button.text, button.id, this, static_cast<CEVal::CbNone>(button.handler))
            ->tip = button.tip;
    category.NewLn();
}

void CSetupWnd::AddSensor()
{
    CCtrlCat& category = Category(L"Sensor");
    DemoSettings& settings = m_session.settings;
    Edit(category, L"Name", settings.sensor, L"The name of the instrument, as the header shows it.",
         wideField);
    category.NewLn();

    category.InsText(rowWidth - addressWidth, L"Address");
    CEAddr* const address = new CEAddr; // the category's from here on
    address->Init(settings.address);
    category.InsCtrl(addressWidth, address, idAddress);
    Field(*address, L"Where the instrument is in the network. A point goes on to the next number.");
    category.NewLn();

    CECtrl& port = Edit(category, L"Port", settings.port,
                        L"The port at which the instrument sends. 10110 is that of NMEA 0183.", fieldWidth);
    port.SetRange(1.0, DemoSettings::mostPort);
    category.NewLn();
}

void CSetupWnd::AddMounting()
{
    CCtrlCat& category = Category(L"Sounder mounting");
    Mounting& mounting = m_session.settings.mounting;
    const int top = category.curY;
    const int height = category.ctrlH;

    m_dial = new CERadius; // the category's from here on
    category.ctrlH = dialSize;
    category.InsCtrl(dialSize, m_dial, idDial);
    category.ctrlH = height;
    m_dial->tip = L"Where the beam points: its bearing from the bow, and in the middle straight down.";
    m_dial->SetCallback(this, static_cast<CEVal::CbNone>(&CSetupWnd::OnDial));

    const int left = category.leftM;
    const int beside = left + dialSize + 16;
    const int narrowCaption = 56;
    const auto edit = [&](int lineY, const wchar_t* caption, double& angle, double most, const wchar_t* tip) {
        category.SetPos(beside, lineY);
        category.InsText(narrowCaption, caption);
        CECtrl& control = Field(*category.InsCtrl(fieldWidth - 12, CECtrl::typeEdit, angle), tip);
        control.scale = degreesPerRadian;
        control.decimals = 0;
        control.SetRange(0.0, most);
        category.InsText(12, L"\u00B0");
    };
    const int middle = top + dialSize / 2 - lineHeight / 2;
    edit(middle - lineHeight, L"Bearing", mounting.bearing, fullTurn,
         L"Bearing of the beam, clockwise from the bow.");
    edit(middle, L"Slope", mounting.slope, straightDown,
         L"Slope of the beam below the horizontal; 90 is straight down.");
    category.SetPos(beside, middle + lineHeight);
    category.InsCtrl(rowWidth - (beside - left), CECtrl::typeText, m_mountingText);
    category.SetPos(left, top + dialSize + 4);
}

} // namespace demo
