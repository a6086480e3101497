#include "demo/CAlarmLog.h"

#include "demo/ShownValues.h"
#include "demo/Utf8.h"
#include "demo/detail/Text.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

#include <cmath>
#include <filesystem>

namespace demo
{
namespace
{

std::wstring TextOf(const AlarmEvent& event, double limit)
{
    if (event.id == AlarmId::ShallowWater)
        return event.begins ? ShallowText(event.value, limit)
                            : L"Deep enough again: " + DepthText(event.value);
    return event.begins ? LostFixText(event.value)
                        : L"Position back after " + FixedText(event.value, 1) + L" s";
}

std::wstring DateAndTime()
{
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    CString text;
    text.Format(L"%04d-%02d-%02d %02d:%02d:%02d", now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
                now.wSecond);
    return static_cast<LPCWSTR>(text);
}

} // namespace

bool CAlarmLog::Open(const std::wstring& dir)
{
    const std::wstring logs = dir + L"Logs\\";
    std::error_code error;
    std::filesystem::create_directories(logs, error);
    m_path = logs + L"Alarms.csv";
    m_file.open(std::filesystem::path(m_path), std::ios::binary | std::ios::app);
    return m_file.good();
}

std::wstring CAlarmLog::Record(const AlarmEvent& event, double limit)
{
    const std::wstring text = TextOf(event, limit);
    const auto id = static_cast<unsigned long>(event.id);
    const int level = event.begins ? beginLevel : endLevel;
    m_count += event.begins ? 1 : 0;
    Vant::Alarm(id, level, L"%s", text.c_str());
    // Written at once: the file shall tell what happened up to a crash, too.
    m_file << Utf8(DateAndTime() + L',' + std::to_wstring(id) + L',' + std::to_wstring(level) + L",\"" +
                   text + L"\"\r\n")
           << std::flush;
    return text;
}

std::wstring DepthText(double metres)
{
    return static_cast<LPCWSTR>(EUnits::Get(lengthUnit, metres, L"%0.1lf", 1));
}

std::wstring ShallowText(double depth, double limit)
{
    return L"Shallow water: " + DepthText(depth) + L", limit " + DepthText(limit);
}

std::wstring LostFixText(double seconds)
{
    return L"No position for " + FixedText(std::floor(seconds), 0) + L" s";
}

} // namespace demo
