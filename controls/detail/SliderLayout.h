#pragma once

namespace vant::detail
{

/** Where the parts of a slider are, in units along it (from the end where its scale begins: left, or bottom)
 * and across it (from the left or top). The thumb is 14 long and 20 across, as the skin has it. */
class SliderLayout
{
public:
    static constexpr int thumb = 14;
    static constexpr int across = 20;
    static constexpr int tickEnd = 19; ///< of the ticks, across
    static constexpr int tickLength = 4;
    static constexpr int labelRoom = 14; ///< across, for the numbers of a horizontal scale
    static constexpr int readoutGap = 4; ///< from the bar to the read-out

    /** @param length, breadth  of the control  @param labelled  with room for numbers beside the ticks
     *  @param readout  length that the read-out takes from the far end; 0: none */
    constexpr SliderLayout(int length, int breadth, bool labelled, int readout) noexcept
        : m_bar(length - (readout > 0 ? readout + readoutGap : 0))
        , m_across(labelled ? 0 : (breadth - across) / 2)
    {
    }

    /** Length of the bar. */
    constexpr int Bar() const noexcept { return m_bar; }
    /** Where the middle of the thumb is at the first end. */
    constexpr int Start() const noexcept { return thumb / 2; }
    /** How far the middle of the thumb travels; 0 where there is no room. */
    constexpr int Travel() const noexcept { return m_bar > thumb ? m_bar - thumb : 0; }
    /** Where the bar begins, across. */
    constexpr int Across() const noexcept { return m_across; }

private:
    int m_bar;
    int m_across;
};

} // namespace vant::detail
