#include "demo/session/DemoSettings.h"

#include "controls/CVantWnd.h"
#include "demo/detail/SettingsText.h"
#include "demo/detail/Text.h"
#include "platform/Vant.h"
#include "settings/CESet.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <numbers>
#include <optional>

namespace demo
{
namespace
{

constexpr const wchar_t* collection = L"VantDemo";
constexpr const wchar_t* ownObject = L"Display";
constexpr const wchar_t* vantObject = L"Vant";
constexpr int mostRuns = 1000000;

namespace fs = std::filesystem;

/** Judges a file; nothing when it is there and cannot be read. */
std::optional<FileState> Judged(const fs::path& path)
{
    constexpr std::streamoff piece = 4096; // the root element's ends lie within it
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? static_cast<std::streamoff>(file.tellg()) : -1;
    if (size < 0)
        return std::nullopt;
    const auto read = [&](std::streamoff from) {
        std::string bytes(static_cast<std::size_t>(std::min(size, piece)), '\0');
        file.seekg(from);
        file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return bytes;
    };
    const std::string begin = read(0);
    const std::string end = read(size - std::min(size, piece));
    return file ? std::optional(Judge(begin, end)) : std::nullopt;
}

/** Copies a file beside itself, "VantDemo.xml" to "VantDemo.damaged.xml", or "VantDemo.damaged-2.xml" when
 * there is such a file. @return the copy; empty if none could be made */
fs::path CopyBeside(const fs::path& path, const std::wstring& why)
{
    constexpr int mostCopies = 99;
    for (int i = 1; i <= mostCopies; ++i) {
        const std::wstring number = i == 1 ? L"" : L"-" + std::to_wstring(i);
        fs::path copy = path;
        copy.replace_extension(why + number + path.extension().wstring());
        if (::CopyFileW(path.c_str(), copy.c_str(), TRUE))
            return copy;
        if (::GetLastError() != ERROR_FILE_EXISTS && ::GetLastError() != ERROR_ALREADY_EXISTS)
            break;
    }
    return {};
}

void Exchange(CESetObj& obj, const CString& prefix, Box& box)
{
    obj.Item(prefix + L"Left", box.left);
    obj.Item(prefix + L"Top", box.top);
    obj.Item(prefix + L"Right", box.right);
    obj.Item(prefix + L"Bottom", box.bottom);
}

void Exchange(CESetObj& obj, const CString& prefix, PopupPlace& place)
{
    obj.Item(prefix + L"Open", place.open);
    Exchange(obj, prefix, place.box);
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
    int written = obj.IsStoring() ? ownFormat : format;
    obj.Item(L"Format", written);
    if (!obj.IsStoring())
        format = written;
    obj.Item(L"Runs", runs);
    Exchange(obj, L"", window);
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

SettingsFound DemoSettings::Load(const CString& file)
{
    const fs::path path(file.GetString());
    const std::wstring name = L"the settings " + Quoted(path.wstring());
    std::error_code error;
    if (!fs::exists(path, error) && !error)
        return {};
    CESet set(0);
    const std::optional<FileState> state = Judged(path);
    if (!state || !set.Load(file)) {
        m_mayReplace = false;
        return {true, L"", name + L" cannot be read; they are left as they are"};
    }
    if (const CESetCol* const col = set.GetCol(collection)) {
        if (CESetObj* const obj = col->GetObj(ownObject))
            Settings(*obj);
        Mend();
        if (CESetObj* const obj = col->GetObj(vantObject))
            Vant::Settings(*obj);
    }
    const bool isNewer = format > ownFormat;
    if (state != FileState::Damaged && !isNewer)
        return {state == FileState::Whole, L"", L""};
    const fs::path copy = CopyBeside(path, isNewer ? L"newer" : L"damaged");
    m_mayReplace = !copy.empty();
    return {true, copy.wstring(),
            name + (isNewer ? L" are a newer program's" : L" are damaged") +
                L"; what this program can read of them is used, and they are kept " +
                (m_mayReplace ? L"as " + Quoted(copy.wstring()) : std::wstring(L"as they are"))};
}

bool DemoSettings::Save(const CString& file)
{
    if (!m_mayReplace)
        return true;
    CESet set(1);
    CESetCol* const col = set.AddCol(collection);
    Settings(*col->AddObj(ownObject, L"DemoSettings"));
    Vant::Settings(*col->AddObj(vantObject, L"Vant"));
    CVantWnd::SaveSet(set);
    return set.Save(file) != 0;
}

void LoadWindows(const CString& file, bool keeps)
{
    CESet set(0);
    if (set.Load(file))
        CVantWnd::LoadSet(set);
    for (CConsole* const console :
         std::initializer_list<CConsole*>{&Vant::csl, &Vant::comms, &Vant::status, &Vant::alarm})
        console->logTo = keeps ? console->logTo : 0;
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
