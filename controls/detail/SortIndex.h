#pragma once

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace vant::detail
{

/** In which order rows are shown that stay where they are. */
class SortIndex
{
public:
    bool IsOn() const noexcept { return !m_rowAt.empty(); }

    /** The row at a place of the order, and the place of a row. @{ */
    int RowAt(int place) const noexcept;
    int PlaceOf(int row) const noexcept;
    /** @} */

    /** Back to the order of the rows. */
    void Clear();

    /** Sorts by one key to each row. Equal keys keep the order of the rows, both ways; numbers that are NaN
     * stand last, both ways. */
    template <class Key, class Less = std::less<>>
    void Sort(const std::vector<Key>& keys, bool descending, Less less = {})
    {
        m_rowAt.resize(keys.size());
        std::iota(m_rowAt.begin(), m_rowAt.end(), 0);
        const auto key = [&keys](int row) -> const Key& { return keys[static_cast<std::size_t>(row)]; };
        auto end = m_rowAt.end();
        if constexpr (std::floating_point<Key>)
            end = std::stable_partition(m_rowAt.begin(), end, [&](int row) { return !std::isnan(key(row)); });
        std::stable_sort(m_rowAt.begin(), end, [&](int a, int b) {
            return descending ? less(key(b), key(a)) : less(key(a), key(b));
        });
        FindPlaces();
    }

    /** Rows that are new stand last, until the next sort. */
    void InsertRows(int at, int count);
    /** @return the places of the rows that have gone, as first and last of each run, the last run first */
    std::vector<std::pair<int, int>> RemoveRows(int at, int count);

private:
    void FindPlaces();

    std::vector<int> m_rowAt; // empty: the rows' own order
    std::vector<int> m_placeOf;
};

} // namespace vant::detail
