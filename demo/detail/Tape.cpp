#include "demo/detail/Tape.h"

#include "demo/detail/NmeaReadings.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

namespace demo
{
namespace
{

/** Seconds from one time of the day to the next, midnight between them or not; 0 for a clock that was set
 * back. */
double ClockStep(double from, double to) noexcept
{
    double step = to - from;
    if (step < -secondsPerDay / 2.0)
        step += secondsPerDay;
    return std::clamp(step, 0.0, Tape::maxPause);
}

} // namespace

std::optional<std::string> Tape::BytesOf(const std::filesystem::path& file, std::size_t most)
{
    std::error_code error;
    std::ifstream stream(file, std::ios::binary);
    if (!std::filesystem::is_regular_file(file, error) || !stream)
        return std::nullopt;
    constexpr std::size_t piece = 1 << 20; // a log that still grows is read up to where it ends then
    std::string bytes;
    while (stream && bytes.size() < most) {
        const std::size_t begin = bytes.size();
        bytes.resize(std::min(begin + piece, most));
        stream.read(bytes.data() + begin, static_cast<std::streamsize>(bytes.size() - begin));
        bytes.resize(begin + static_cast<std::size_t>(stream.gcount()));
    }
    return bytes;
}

Tape::Tape(std::string bytes)
    : m_bytes(std::move(bytes))
{
    if (m_bytes.size() > maxBytes)
        m_bytes.resize(maxBytes);
    SplitLines();
    FindTimes();
}

std::string_view Tape::Line(std::size_t index) const noexcept
{
    const Entry& entry = m_lines[index];
    return std::string_view(m_bytes).substr(entry.offset, entry.length);
}

void Tape::SplitLines()
{
    std::string_view rest = m_bytes;
    while (!rest.empty()) {
        const std::string_view line = TakeLine(rest);
        if (!line.empty())
            m_lines.push_back({static_cast<std::size_t>(line.data() - m_bytes.data()), line.size(), 0.0});
    }
}

void Tape::FindTimes()
{
    NmeaReadings readings;
    double clock = missing;
    double time = 0.0;
    double spacing = defaultSpacing;
    std::size_t mark = 0; // where the clock was last seen to change

    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        if (readings.Read(Line(i)) != Verdict::Accepted)
            continue;
        ++m_accepted;
        const double now = readings.Value(Quantity::UtcTime);
        if (IsMissing(now) || now == clock)
            continue;
        if (!IsMissing(clock)) {
            const double step = ClockStep(clock, now);
            spacing = step / static_cast<double>(i - mark);
            Spread(mark, i, time, spacing);
            time += step;
        }
        mark = i;
        clock = now;
    }
    Spread(mark, m_lines.size(), time, spacing);
}

void Tape::Spread(std::size_t first, std::size_t last, double start, double spacing) noexcept
{
    for (std::size_t i = first; i < last; ++i)
        m_lines[i].time = start + static_cast<double>(i - first) * spacing;
}

} // namespace demo
