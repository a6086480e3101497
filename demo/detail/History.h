#pragma once

#include <cstddef>
#include <vector>

namespace demo
{

/** The last `capacity` elements of a series, oldest first. Memory is taken as it fills and never grows
 * beyond. */
template <typename T>
class History
{
public:
    explicit History(std::size_t capacity)
        : m_capacity(capacity > 0 ? capacity : 1)
    {
    }

    void Add(const T& value)
    {
        ++m_added;
        if (m_items.size() < m_capacity) {
            m_items.push_back(value);
            return;
        }
        m_items[m_first] = value;
        m_first = (m_first + 1) % m_capacity;
    }

    void Clear() noexcept
    {
        m_items.clear();
        m_first = 0;
        m_added = 0;
    }

    std::size_t Size() const noexcept { return m_items.size(); }
    bool IsEmpty() const noexcept { return m_items.empty(); }

    /** How many elements have come since the beginning, those that made way for others too. */
    std::size_t Added() const noexcept { return m_added; }

    /** Element `index` counted from the oldest, which is 0. */
    const T& operator[](std::size_t index) const noexcept
    {
        return m_items[(m_first + index) % m_items.size()];
    }

    /** The newest element; there must be one. */
    const T& Last() const noexcept { return (*this)[m_items.size() - 1]; }

private:
    std::size_t m_capacity;
    std::size_t m_first = 0;
    std::size_t m_added = 0;
    std::vector<T> m_items;
};

} // namespace demo
