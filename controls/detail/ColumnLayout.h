#pragma once

#include <vector>

namespace vant::detail
{

/** Where the columns of a grid are, from the left edge of the first one, units. A width of 0 is a column that
 * is hidden: it is nowhere. */
class ColumnLayout
{
public:
    static constexpr int leastWidth = 16;  ///< narrower columns could not be grasped any more
    static constexpr int mostWidth = 4000; ///< wider than any screen

    /** A width that a column may have. */
    static int Fit(int width) noexcept;

    /** @param widths  0 or what Fit() gives, in order */
    void Set(const std::vector<int>& widths);

    int Count() const noexcept { return static_cast<int>(m_right.size()); }
    int Total() const noexcept { return m_right.empty() ? 0 : m_right.back(); }
    int Left(int col) const noexcept;
    int Right(int col) const noexcept;
    int Width(int col) const noexcept { return Right(col) - Left(col); }

    /** The column at a place; -1 outside. */
    int At(int x) const noexcept;
    /** The column whose right border is nearest to a place, and not farther than `reach`; -1 if none is. */
    int BorderAt(int x, int reach) const noexcept;
    /** The next column that is not hidden, in a direction of 1 or -1; -1 if there is none. */
    int Next(int col, int step) const noexcept;

private:
    std::vector<int> m_right;
};

} // namespace vant::detail
