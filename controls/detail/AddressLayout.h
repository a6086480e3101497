#pragma once

namespace vant::detail
{

/** Where the four fields of an address and the three gaps between them are in a control of a given width, in
 *  its units. A gap is a sixteenth of the width and a field three; half a gap is left at the start. */
class AddressLayout
{
public:
    static constexpr int fields = 4;
    static constexpr int gaps = fields - 1;

    struct Span {
        int left, right;
        bool operator==(const Span&) const noexcept = default;
    };

    explicit constexpr AddressLayout(int width) noexcept
        : m_gap(width / 16)
        , m_field(3 * width / 16)
    {
    }

    constexpr Span Field(int i) const noexcept
    {
        const int left = m_gap / 2 + i * (m_gap + m_field);
        return {left, left + m_field};
    }

    /** The gap behind field `i`. */
    constexpr Span Gap(int i) const noexcept
    {
        const int left = Field(i).right;
        return {left, left + m_gap};
    }

private:
    int m_gap;
    int m_field;
};

} // namespace vant::detail
