#include "time/detail/TickReport.h"

#include "platform/Vant.h"
#include "time/TmSync.h"

#include <cmath>
#include <iterator>
#include <time.h>

namespace vant::detail
{

namespace
{

constexpr unsigned long clockId = 4000;
constexpr unsigned long baseId = 4001;
constexpr unsigned long elapsedId = 4002;
constexpr unsigned long firstSourceId = 4100;
constexpr int sourceLevel = 2;
constexpr int clockLevel = 1;

/** Writes a time, in seconds since 1970. The text of the run-time library ends in a line break, which
 *  deliberately stays. */
void WriteTime(unsigned long id, const wchar_t* format, double seconds)
{
    const auto ms = static_cast<long long>(std::floor(seconds * 1000.0 + 0.5));
    const auto whole = static_cast<__time64_t>(ms / 1000);
    wchar_t text[26] = L"";
    std::tm parts{};
    if (_localtime64_s(&parts, &whole) == 0)
        _wasctime_s(text, std::size(text), &parts);
    Vant::Status(id, clockLevel, format, text, static_cast<int>(ms % 1000));
}

} // namespace

void WriteStatus(const TickReport& report)
{
    unsigned long id = firstSourceId;
    for (const TickReport::Source& source : report.sources)
        Vant::Status(id++, sourceLevel, L"%s %1.4lf %1.10lf %1.5lf", source.name.GetString(), source.off,
                     source.m, source.c);
    WriteTime(clockId, L"Clk Time: %s (%03d)", report.clock);
    WriteTime(baseId, L"Sys Time: %s (%03d)", report.base + static_cast<double>(TmSync::base80));
    Vant::Status(elapsedId, clockLevel, L"Elpsd:%1.1lfmin Err:%1.2lfms (%1.2lfms) %I64d %1.6lf %1.6lf",
                 report.elapsed / 60.0, report.err, report.advance, report.scale, report.slowest,
                 report.took);
}

} // namespace vant::detail
