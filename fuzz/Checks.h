#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

/** Ends the program, which the fuzzer reports as a finding, if something does not hold.
 *  @param what  it in words; where it is left out the line in the target's source tells */
inline void Require(bool holds, const char* what = "", int line = __builtin_LINE())
{
    if (holds)
        return;
    std::fprintf(stderr, "line %d does not hold: %s\n", line, what);
    std::abort();
}

/** Measures the processor time of each input, and tells the longest at the end, where ./run-fuzz looks for
 * it. */
class Slowest
{
public:
    /** @param limit  what no input may take, ms, with the sanitizers at work */
    explicit Slowest(double limit)
        : m_limit(limit)
    {
    }
    ~Slowest() { std::fprintf(stderr, "slowest input: %.1f ms\n", m_longest); }

    void Note(std::clock_t begin)
    {
        const double taken = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        m_longest = std::max(m_longest, taken);
        Require(taken < m_limit, "an input in its time");
    }

private:
    double m_limit;
    double m_longest = 0;
};
