#pragma once

namespace vant::detail
{

/** Which rows of a list are in view, and where the thumb of its scroll bar is; of a window that scrolls
 * smoothly a row is one unit. The first row in view always lies within 0 and MaxFirst(), whatever is set. */
class RowScroll
{
public:
    /** A piece of the scroll bar, from its beginning. */
    struct Span {
        int from = 0;
        int length = 0;
        bool operator==(const Span&) const = default;
    };

    bool operator==(const RowScroll&) const = default;

    int Rows() const noexcept { return m_rows; }
    int Page() const noexcept { return m_page; }
    int First() const noexcept { return m_first; }
    /** The first row that leaves no row out behind the last one in view. */
    int MaxFirst() const noexcept { return m_rows > m_page ? m_rows - m_page : 0; }
    bool AtEnd() const noexcept { return m_first == MaxFirst(); }

    void SetRows(int rows) noexcept;
    /** @param rows  that fit completely; at least one is assumed to */
    void SetPage(int rows) noexcept;
    void ScrollTo(int first) noexcept;
    /** Scrolls as little as is needed to have a row in view. */
    void Show(int row) noexcept;

    /** The thumb of a bar of `length`, at least `least` long as far as there is room; empty if all rows fit.
     */
    Span Thumb(int length, int least) const noexcept;
    /** The first row in view that puts the thumb nearest to `from`. */
    int FirstAt(int from, int length, int least) const noexcept;

private:
    int m_rows = 0;
    int m_page = 1;
    int m_first = 0;
};

} // namespace vant::detail
