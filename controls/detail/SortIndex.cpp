#include "controls/detail/SortIndex.h"

namespace vant::detail
{

int SortIndex::RowAt(int place) const noexcept
{
    const auto at = static_cast<std::size_t>(place);
    return place >= 0 && at < m_rowAt.size() ? m_rowAt[at] : place;
}

int SortIndex::PlaceOf(int row) const noexcept
{
    const auto at = static_cast<std::size_t>(row);
    return row >= 0 && at < m_placeOf.size() ? m_placeOf[at] : row;
}

void SortIndex::Clear()
{
    m_rowAt.clear();
    m_placeOf.clear();
}

void SortIndex::FindPlaces()
{
    m_placeOf.resize(m_rowAt.size());
    int place = 0;
    for (const int row : m_rowAt)
        m_placeOf[static_cast<std::size_t>(row)] = place++;
}

void SortIndex::InsertRows(int at, int count)
{
    if (!IsOn())
        return;
    for (int& row : m_rowAt) {
        if (row >= at)
            row += count;
    }
    for (int row = at; row < at + count; ++row)
        m_rowAt.push_back(row);
    FindPlaces();
}

std::vector<std::pair<int, int>> SortIndex::RemoveRows(int at, int count)
{
    if (!IsOn())
        return {{at, at + count - 1}};
    std::vector<std::pair<int, int>> gone;
    std::vector<int> rest;
    rest.reserve(m_rowAt.size());
    int place = 0;
    for (const int row : m_rowAt) {
        const bool goes = row >= at && row < at + count;
        if (!goes)
            rest.push_back(row < at ? row : row - count);
        else if (!gone.empty() && gone.back().second == place - 1)
            gone.back().second = place;
        else
            gone.emplace_back(place, place);
        ++place;
    }
    m_rowAt = std::move(rest);
    FindPlaces();
    std::reverse(gone.begin(), gone.end());
    return gone;
}

} // namespace vant::detail
