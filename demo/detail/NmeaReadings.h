#pragma once

#include "demo/detail/NmeaSentence.h"
#include "demo/detail/Quantities.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace demo
{

/** What became of a line. */
enum class Verdict {
    Accepted, ///< readings were taken from it
    Ignored,  ///< a sound sentence of a type that no instrument here needs
    Rejected  ///< damaged, or too short for its type
};

/** One value out of a sentence; demo::missing when its field is empty, malformed or out of range. */
struct Reading {
    Quantity quantity = Quantity::Count;
    double value = missing;
};

/** The readings of one sentence, in the sentence's order. */
class NmeaReadings
{
public:
    /** Reads a line without its line end. Known are GGA, RMC, HDT, ROT, DBT, DPT, MWV, MTW and VHW of any
     * talker. A sensor that has nothing to say sends empty fields, or the flag for "not valid": the readings
     * are then there, and missing. */
    Verdict Read(std::string_view line) noexcept;

    std::span<const Reading> Items() const noexcept { return {m_items.data(), m_count}; }

    /** The reading of a quantity; missing when the sentence has none. */
    double Value(Quantity quantity) const noexcept;

    /** Adds a reading; used while a sentence is read. */
    void Add(Quantity quantity, double value) noexcept;

private:
    std::array<Reading, 8> m_items{};
    std::size_t m_count = 0;
};

} // namespace demo
