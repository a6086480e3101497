#include "demo/run/CRunLog.h"

#include "demo/detail/Text.h"
#include "demo/run/Utf8.h"
#include "platform/Vant.h"

#include <filesystem>
#include <string>

namespace demo
{
namespace
{

std::wstring TimeOfDay()
{
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return ClockText(now.wHour * 3600.0 + now.wMinute * 60.0 + now.wSecond);
}

} // namespace

bool CRunLog::Open(const wchar_t* path)
{
    m_file.open(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
    return m_file.good();
}

void CRunLog::Line(std::wstring_view text)
{
    const std::wstring line(text);
    Vant::Console(0, L"%s", line.c_str());
    // Written at once: the file shall tell what happened up to a crash, too.
    m_file << Utf8(TimeOfDay() + L"  " + line + L"\r\n") << std::flush;
}

void CRunLog::Event(const SensorEvent& event)
{
    const std::string name = SensorName(event.sensor);
    const std::wstring wide(name.begin(), name.end());
    const std::wstring at = L"at " + DurationText(event.time) + L" of the log: " + wide;
    Line(event.lost ? at + L" lost" : at + L" back after " + FixedText(event.outage, 1) + L" s");
}

void CRunLog::Alarm(const AlarmEvent& event, std::wstring_view text)
{
    Line(L"at " + DurationText(event.time) + L" of the log: " +
         (event.begins ? L"alarm: " : L"alarm ends: ") + std::wstring(text));
}

} // namespace demo
