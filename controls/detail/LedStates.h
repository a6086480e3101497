#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vant::detail
{

/** What the values of an indicator lamp mean, in plain C++. */
class LedStates
{
public:
    struct State {
        std::int64_t value;
        int colour;
        int mode;
        std::wstring text;
    };

    /** Gives a value its state, in place of what it had. */
    void Set(State state);
    void Clear() noexcept { m_states.clear(); }
    /** The state of a value; null if it has none. Valid until the next Set(). */
    const State* Find(std::int64_t value) const noexcept;

private:
    std::vector<State> m_states; // sorted by value
};

/** Whether blinking lamps are lit at a time, all of them alike: in the first half of every second.
 *  @param t  seconds, of any sign; lit where it is not finite */
bool IsLitAt(double t) noexcept;

} // namespace vant::detail
