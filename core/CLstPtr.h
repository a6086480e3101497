#pragma once

#include "core/detail/NodeChain.h"

#include <type_traits>
#include <utility>

/** A doubly linked list of pointers that it does not own: CLstPtr<T*>.
 *
 *  The same shape as CLstMgd, and nodes are all that it allocates and frees: no operation ever destroys an
 * object that is pointed to. There is no element count; counting, indexing and searching walk from the head.
 * A null position is allowed everywhere and does nothing; a position of another list is not detected. */
template <class P>
class CLstPtr
{
    static_assert(std::is_pointer_v<P>, "write CLstPtr<T*>");

public:
    using T = std::remove_pointer_t<P>; /**< what the pointers point to */

    /** An empty list. */
    CLstPtr() = default;
    /** A list with the other's pointers in order. */
    CLstPtr(const CLstPtr& other) { *this = other; }
    /** Same as RemoveAll(). */
    ~CLstPtr() { RemoveAll(); }
    /** Empties the list, then appends the other's pointers in order. */
    CLstPtr& operator=(const CLstPtr& other);

    /** Links a new node with the pointer at the head. @return its position */
    CVantPtr* AddHead(const T* elem) { return m_chain.AddHead(Untyped(elem)); }
    /** The same at the tail. */
    CVantPtr* AddTail(const T* elem) { return m_chain.AddTail(Untyped(elem)); }
    /** Links a new node before the position; at the head when that is null. @return the new position */
    CVantPtr* InsertBefore(CVantPtr* pos, const T* elem) { return m_chain.InsertBefore(pos, Untyped(elem)); }
    /** Links a new node after the position; at the tail when that is null. @return the new position */
    CVantPtr* InsertAfter(CVantPtr* pos, const T* elem) { return m_chain.InsertAfter(pos, Untyped(elem)); }

    /** The pointer at the position; null for a null position. */
    P GetAt(const CVantPtr* pos) const noexcept { return pos ? static_cast<P>(pos->elem) : nullptr; }
    /** Replaces the pointer at the position. */
    void SetAt(CVantPtr*& pos, T* elem) noexcept
    {
        if (pos)
            pos->elem = Untyped(elem);
    }
    /** The first pointer; null for an empty list. */
    P GetHead() const noexcept { return GetAt(m_chain.Head()); }
    /** The last pointer; null for an empty list. */
    P GetTail() const noexcept { return GetAt(m_chain.Tail()); }
    /** The first position; null for an empty list. */
    CVantPtr* GetHeadPos() const noexcept { return m_chain.Head(); }
    /** The last position; null for an empty list. */
    CVantPtr* GetTailPos() const noexcept { return m_chain.Tail(); }
    /** The pointer at the position, which then moves one node on; a null position gives null and stays null.
     */
    P GetNext(CVantPtr*& pos) const noexcept { return GetAt(pos ? std::exchange(pos, pos->next) : nullptr); }
    /** The pointer at the position, which then moves one node back, likewise. */
    P GetPrev(CVantPtr*& pos) const noexcept { return GetAt(pos ? std::exchange(pos, pos->prev) : nullptr); }

    /** The number of nodes, counted by walking. */
    int GetCount() const noexcept { return m_chain.Count(); }
    /** True when there is no node. */
    bool IsEmpty() const noexcept { return !m_chain.Head(); }
    /** The position of the n-th node, from 0 at the head; null when there is none. */
    CVantPtr* FindIndex(int index) const noexcept { return m_chain.At(index); }
    /** The first position from start on (from the head when null) that holds this very pointer, or null. */
    CVantPtr* Find(const T* elem, CVantPtr* start = nullptr) const noexcept
    {
        return m_chain.Find(elem, start);
    }
    /** The index, from 0 at the head, of a position or of the first node that holds the pointer; -1 for none.
     */
    int GetIndex(CVantPtr* pos) const noexcept { return m_chain.IndexOf(pos); }
    int GetIndex(const T* elem) const noexcept { return m_chain.IndexOfElem(elem); }

    /** Frees the first node. @return the pointer that it held; null for an empty list */
    P RemoveHead() noexcept { return Take(m_chain.Head()); }
    /** Frees the last node, likewise. */
    P RemoveTail() noexcept { return Take(m_chain.Tail()); }
    /** Unlinks and frees the node. */
    void RemoveAt(CVantPtr* pos) noexcept { Take(pos); }
    /** Lets the neighbours of the first node that holds the pointer pass it by; nothing when there is none.
     *
     *  Deliberately less than RemoveAt(): the node stays allocated and keeps its own links and pointer, and
     * head and tail are not touched. A first or last node therefore stays the list's head or tail, and is
     * freed with the list; any other is the list's no longer and never freed. Prefer RemoveAt(Find(elem)). */
    void Remove(const T* elem) noexcept
    {
        if (const CVantPtr* node = m_chain.Find(elem, nullptr))
            m_chain.Bypass(node);
    }
    /** Frees every node; the list is empty. */
    void RemoveAll() noexcept
    {
        m_chain.Clear([](void*) {});
    }

    /** Exchanges the pointer with the next node's. @return the next position, where the pointer now is; the
     *  position itself when it is null or the tail */
    CVantPtr* MoveUp(CVantPtr* pos) noexcept { return MoveTo(pos, pos ? pos->next : nullptr); }
    /** Exchanges the pointer with the previous node's. @return the previous position, where the pointer now
     * is; the position itself when it is null or the head */
    CVantPtr* MoveDown(CVantPtr* pos) noexcept { return MoveTo(pos, pos ? pos->prev : nullptr); }

private:
    static void* Untyped(const T* elem) noexcept { return const_cast<std::remove_const_t<T>*>(elem); }

    P Take(CVantPtr* pos) noexcept
    {
        const P elem = GetAt(pos);
        if (pos) {
            m_chain.Unlink(pos);
            delete pos;
        }
        return elem;
    }
    static CVantPtr* MoveTo(CVantPtr* pos, CVantPtr* neighbour) noexcept
    {
        if (!neighbour)
            return pos;
        std::swap(pos->elem, neighbour->elem);
        return neighbour;
    }

    vant::detail::NodeChain m_chain;
};

template <class P>
CLstPtr<P>& CLstPtr<P>::operator=(const CLstPtr& other)
{
    if (this == &other)
        return *this;
    RemoveAll();
    for (const CVantPtr* node = other.GetHeadPos(); node; node = node->next)
        m_chain.AddTail(node->elem);
    return *this;
}
