#pragma once

#include "core/detail/OutOfMemory.h"

#include <afx.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

/** An array of pointers to elements that it owns, exactly as long as its count: there never is spare
 * capacity.
 *
 *  Elements are made with new, by the array or by the caller of Append(), and deleted by the array. When
 * memory runs out the process ends through EUtil::FatalMemErr with "Realloc cannot allocate %d bytes". */
template <class T>
class CPtrAry
{
public:
    /** An empty array. */
    CPtrAry() = default;
    /** Copies the elements' values into new elements. */
    CPtrAry(const CPtrAry& other) { *this = other; }
    /** Destroys the elements. */
    ~CPtrAry() { Truncate(0); }
    /** Takes the other's size and assigns its elements by value, slot by slot; elements that are here already
     * keep their addresses. */
    CPtrAry& operator=(const CPtrAry& other);

    /** The number of slots. */
    unsigned GetSize() const noexcept { return m_count; }
    /** True for 0 to count - 1. */
    bool ValidIndex(int index) const noexcept { return index >= 0 && static_cast<unsigned>(index) < m_count; }
    /** The element in a slot. The index is deliberately not checked. */
    T* GetAt(unsigned index) const noexcept { return m_slots[index]; }
    /** The same as GetAt(). */
    T* operator[](unsigned index) const noexcept { return m_slots[index]; }
    /** The first element; null for an empty array. */
    T* GetHead() const noexcept { return m_count ? m_slots[0] : nullptr; }
    /** The last element; null for an empty array. */
    T* GetTail() const noexcept { return m_count ? m_slots[m_count - 1] : nullptr; }
    /** The index of the first slot that holds this very object, or -1. */
    int GetIndex(const T* elem) const noexcept;

    /** Lengthens the array by one slot for an element that it owns from then on. */
    void Append(T* elem);
    /** Brings the array to so many elements: surplus ones are destroyed, missing ones default-constructed. */
    void SetSize(unsigned count);
    /** SetSize() to the count and so many more. */
    void Grow(unsigned count) { SetSize(m_count + count); }
    /** Exchanges two slots. The indices are deliberately not checked. */
    void Swap(unsigned a, unsigned b) noexcept { std::swap(m_slots[a], m_slots[b]); }
    /** Stores the count (32 bits) and then lets each element store itself; or loads likewise, into elements
     * that are here already as far as they go. A stored count is not believed before the elements are there:
     * the array grows with what has been read, and a damaged file cannot exhaust memory before the archive
     * finds its end. */
    void Serialize(CArchive& ar);

private:
    void Truncate(unsigned count);
    void Resize(unsigned slots)
    {
        m_slots = static_cast<T**>(vant::detail::Realloc(m_slots, std::size_t{slots} * sizeof(T*)));
    }

    unsigned m_count = 0;
    T** m_slots = nullptr;
};

template <class T>
CPtrAry<T>& CPtrAry<T>::operator=(const CPtrAry& other)
{
    if (this == &other)
        return *this;
    SetSize(other.m_count);
    for (unsigned i = 0; i < m_count; ++i) {
        if (m_slots[i] && other.m_slots[i])
            *m_slots[i] = *other.m_slots[i];
    }
    return *this;
}

template <class T>
int CPtrAry<T>::GetIndex(const T* elem) const noexcept
{
    T** const end = m_slots + m_count;
    T** const found = std::find(m_slots, end, elem);
    return found == end ? -1 : static_cast<int>(found - m_slots);
}

template <class T>
void CPtrAry<T>::Append(T* elem)
{
    Resize(m_count + 1);
    m_slots[m_count++] = elem;
}

template <class T>
void CPtrAry<T>::SetSize(unsigned count)
{
    if (count < m_count)
        return Truncate(count);
    if (count == m_count)
        return;
    Resize(count);
    while (m_count < count) {
        m_slots[m_count] = std::make_unique<T>().release();
        ++m_count;
    }
}

template <class T>
void CPtrAry<T>::Truncate(unsigned count)
{
    static_assert(sizeof(T) > 0, "the element's class must be complete where elements are destroyed");
    const unsigned had = std::exchange(m_count, count);
    for (unsigned i = count; i < had; ++i)
        delete m_slots[i];
    if (count > 0)
        Resize(count);
    else
        vant::detail::Free(std::exchange(m_slots, nullptr));
}

template <class T>
void CPtrAry<T>::Serialize(CArchive& ar)
{
    if (ar.IsStoring()) {
        ar << m_count;
        std::for_each(m_slots, m_slots + m_count, [&](T* elem) { elem->Serialize(ar); });
        return;
    }
    constexpr unsigned firstBatch = 4096;
    unsigned count = 0;
    ar >> count;
    if (count <= m_count)
        SetSize(count);
    for (unsigned i = 0; i < count; ++i) {
        if (i == m_count)
            SetSize(i + std::min(count - i, std::max(i, firstBatch)));
        m_slots[i]->Serialize(ar);
    }
}
