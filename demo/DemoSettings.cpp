#include "demo/DemoSettings.h"

#include "controls/CVantWnd.h"
#include "platform/Vant.h"
#include "settings/CESet.h"

#include <algorithm>
#include <numbers>

namespace demo
{
namespace
{

constexpr const wchar_t* collection = L"VantDemo";
constexpr const wchar_t* ownObject = L"Display";
constexpr const wchar_t* vantObject = L"Vant";
constexpr int mostRuns = 1000000;

void Exchange(CESetObj& obj, const CString& prefix, ViewPlace& place)
{
    obj.Item(prefix + L"Open", place.open);
    obj.Item(prefix + L"Left", place.box.left);
    obj.Item(prefix + L"Top", place.box.top);
    obj.Item(prefix + L"Right", place.box.right);
    obj.Item(prefix + L"Bottom", place.box.bottom);
}

template <typename T>
void KeepWithin(T& value, T least, T most, T otherwise)
{
    if (!(value >= least && value <= most))
        value = otherwise;
}

} // namespace

void DemoSettings::Settings(CESetObj& obj)
{
    obj.Item(L"Runs", runs);
    obj.Item(L"Left", window.left);
    obj.Item(L"Top", window.top);
    obj.Item(L"Right", window.right);
    obj.Item(L"Bottom", window.bottom);
    obj.Item(L"Maximised", maximised);
    Exchange(obj, L"Chart", chart);
    Exchange(obj, L"Orbit", orbit);
    Exchange(obj, L"Colours", colours);
    Exchange(obj, L"Survey", survey);
    obj.Item(L"HeadingUp", headingUp);
    obj.Item(L"DepthSpan", depthSpan);
    obj.Item(L"Gain", gain);
    obj.Item(L"Units", units);
    obj.Item(L"ShallowLimit", shallowLimit);
    obj.Item(L"LostFix", lostFix);
    obj.Item(L"Sound", sound);
    obj.Item(L"Sensor", sensor);
    obj.Item(L"Address", address);
    obj.Item(L"Port", port);
    obj.Item(L"BeamBearing", mounting.bearing);
    obj.Item(L"BeamSlope", mounting.slope);
}

void DemoSettings::Mend()
{
    const DemoSettings usual;
    runs = std::clamp(runs, 0, mostRuns);
    KeepWithin(depthSpan, leastSpan, mostSpan, usual.depthSpan);
    KeepWithin(gain, leastGain, mostGain, usual.gain);
    KeepWithin(units, 0, 1, usual.units);
    KeepWithin(shallowLimit, 0.0, mostLimit, usual.shallowLimit);
    KeepWithin(lostFix, leastLostFix, mostLostFix, usual.lostFix);
    KeepWithin(port, 1, mostPort, usual.port);
    KeepWithin(mounting.bearing, 0.0, 2.0 * std::numbers::pi, usual.mounting.bearing);
    KeepWithin(mounting.slope, 0.0, Mounting::upright, usual.mounting.slope);
    sound = sound != 0;
    chart.open = chart.open != 0;
    orbit.open = orbit.open != 0;
    colours.open = colours.open != 0;
    survey.open = survey.open != 0;
}

bool DemoSettings::Load(const CString& file)
{
    CESet set(0);
    if (!set.Load(file))
        return false;
    const CESetCol* const col = set.GetCol(collection);
    if (!col)
        return true;
    if (CESetObj* const obj = col->GetObj(ownObject))
        Settings(*obj);
    Mend();
    if (CESetObj* const obj = col->GetObj(vantObject))
        Vant::Settings(*obj);
    return true;
}

bool DemoSettings::Save(const CString& file)
{
    CESet set(1);
    CESetCol* const col = set.AddCol(collection);
    Settings(*col->AddObj(ownObject, L"DemoSettings"));
    Vant::Settings(*col->AddObj(vantObject, L"Vant"));
    CVantWnd::SaveSet(set);
    return set.Save(file) != 0;
}

void LoadWindows(const CString& file)
{
    CESet set(0);
    if (set.Load(file))
        CVantWnd::LoadSet(set);
}

CString PlainName(const CString& name)
{
    CString plain = name;
    plain.Remove(L'"');
    plain.Remove(L'%');
    plain.Trim();
    return plain;
}

} // namespace demo
