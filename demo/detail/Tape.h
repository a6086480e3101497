#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace demo
{

/** A recorded log, ready to be played: its lines, and for each the second at which it is due.
 *
 *  Only GGA and RMC carry a time. A change of their UTC field moves the tape's clock; the lines from one such
 *  change up to the next are spread evenly between the two times, as they came off the wire. Lines before the
 * first time are due at 0, lines after the last follow at the spacing of the lines before it. A log without
 * any time plays at ten lines a second. Midnight is passed; a clock that is set back stands still for one
 * step; a pause longer than maxPause, be it in the recording or in the clock, is cut to maxPause. */
class Tape
{
public:
    static constexpr double maxPause = 60.0;      ///< seconds
    static constexpr double defaultSpacing = 0.1; ///< seconds a line, where nothing tells the time
    static constexpr std::size_t maxBytes = 256U * 1024U * 1024U; ///< longer logs are played up to here

    /** The bytes of a log, `most` of them; nothing when the file cannot be read. */
    static std::optional<std::string> BytesOf(const std::filesystem::path& file, std::size_t most = maxBytes);

    /** Takes the bytes of a log. Empty lines are no lines of the tape. */
    explicit Tape(std::string bytes);

    Tape(const Tape&) = delete;
    Tape& operator=(const Tape&) = delete;

    std::size_t Size() const noexcept { return m_lines.size(); }

    /** How many lines hold readings that an instrument can use. */
    std::size_t Accepted() const noexcept { return m_accepted; }

    /** Line `index` without its line end, damaged ones too. */
    std::string_view Line(std::size_t index) const noexcept;

    /** Seconds after the tape's beginning, never less than that of the line before. */
    double Time(std::size_t index) const noexcept { return m_lines[index].time; }

    /** Time of the last line. */
    double Duration() const noexcept { return m_lines.empty() ? 0.0 : m_lines.back().time; }

private:
    struct Entry {
        std::size_t offset;
        std::size_t length;
        double time;
    };

    void SplitLines();
    void FindTimes();
    void Spread(std::size_t first, std::size_t last, double start, double spacing) noexcept;

    std::string m_bytes;
    std::vector<Entry> m_lines;
    std::size_t m_accepted = 0;
};

} // namespace demo
