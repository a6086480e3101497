#include "demo/DemoSettings.h"

#include "platform/Vant.h"
#include "settings/CESet.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr const wchar_t* collection = L"VantDemo";
constexpr const wchar_t* ownObject = L"Display";
constexpr const wchar_t* vantObject = L"Vant";
constexpr int leastSpan = 10; // seconds
constexpr int mostSpan = 3600;
constexpr double mostLimit = 1000.0; // metres
constexpr int mostRuns = 1000000;

} // namespace

void DemoSettings::Settings(CESetObj& obj)
{
    obj.Item(L"Runs", runs);
    obj.Item(L"Left", window.left);
    obj.Item(L"Top", window.top);
    obj.Item(L"Right", window.right);
    obj.Item(L"Bottom", window.bottom);
    obj.Item(L"Maximised", maximised);
    obj.Item(L"HeadingUp", headingUp);
    obj.Item(L"DepthSpan", depthSpan);
    obj.Item(L"Units", units);
    obj.Item(L"ShallowLimit", shallowLimit);
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
    // A settings file is input: what cannot be shown gives way to the default.
    if (depthSpan < leastSpan || depthSpan > mostSpan)
        depthSpan = DemoSettings().depthSpan;
    if (units != 0 && units != 1)
        units = DemoSettings().units;
    if (!(shallowLimit >= 0.0 && shallowLimit <= mostLimit))
        shallowLimit = DemoSettings().shallowLimit;
    runs = std::clamp(runs, 0, mostRuns);
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
    return set.Save(file) != 0;
}

} // namespace demo
