#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

/** Times the part of a round that is meant to be compared; what a round does outside of Measure() is free. */
class Stopwatch
{
public:
    template <class Work>
    void Measure(Work&& work)
    {
        const auto start = std::chrono::steady_clock::now();
        work();
        m_elapsed += std::chrono::steady_clock::now() - start;
    }
    double Seconds() const { return std::chrono::duration<double>(m_elapsed).count(); }

private:
    std::chrono::steady_clock::duration m_elapsed{};
};

/** One round of one side: prepares, measures, tidies up. A round should take a millisecond or more. */
using Round = std::function<void(Stopwatch&)>;

/** How a comparison is run and judged. */
struct CompareOptions {
    /** The largest ratio of the times, ours to the peer's, that is good enough. */
    std::optional<double> target;
    /** Measured rounds per side, after two that are not counted. */
    int rounds = 81;
};

/** Runs both sides round by round in turn, each going first as often as the other, and adds a line to the
 *  table. What slows the machine for a while thus slows both, and the ratio, taken round by round, stays
 *  honest. A name says subject and work: "list: append 100,000". */
void Compare(const std::string& name, const Round& ours, const Round& peer,
             const CompareOptions& options = {});

/** Writes the table of all comparisons so far, as Markdown that is readable as it stands. */
void WriteTable(std::ostream& out);

/** The number of comparisons so far. */
std::size_t ComparisonCount();

/** Keeps the compiler from dropping the work that led to a value. */
template <class T>
void Keep(const T& value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}
