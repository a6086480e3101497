#include "time/CTmFnSteady.h"

#include "time/TmSync.h"
#include "time/detail/SteadyLine.h"

#include <algorithm>

namespace
{

using vant::detail::SteadyLine;

SteadyLine Record(double hours)
{
    constexpr double shortest = 600.0; // seconds
    constexpr double longest = 86'400.0;
    constexpr double leastSpan = 60.0;
    const double record = std::clamp(hours * 3600.0, shortest, longest);
    const double span = std::max(leastSpan, record / static_cast<double>(SteadyLine::maxPoints));
    return {span, static_cast<std::size_t>(record / span + 0.5)};
}

double Middle(double from, double to)
{
    return (from + to) * 0.5;
}

} // namespace

CTmFnSteady::CTmFnSteady(CTmFn& source, double hours)
    : m_source(source)
    , m_line(std::make_unique<SteadyLine>(Record(hours)))
{
    name = source.name + L" steady";
}

CTmFnSteady::~CTmFnSteady() = default;

int CTmFnSteady::PollTm(double& value)
{
    const double before = TmSync::GetTm();
    const int ok = m_source.PollTm(value);
    if (ok)
        m_line->Add(value, Middle(before, TmSync::GetTm()));
    // As of the middle of this call, which is when the caller takes it to be.
    if (m_line->IsThere())
        value = m_line->At(Middle(before, TmSync::GetTm()));
    return ok;
}
