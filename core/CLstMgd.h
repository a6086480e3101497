#pragma once

#include "core/CLstPtr.h"
#include "core/detail/NodeChain.h"

#include <memory>
#include <utility>

/** A doubly linked list that owns its elements.
 *
 *  Elements are handed over as pointers to objects made with new; the list keeps that very object and deletes
 * it when its node goes. Positions (CVantPtr*) are nodes, and stay good while other nodes come and go. The
 * list is as small as it can be (three pointers, three more per node): there is no element count; counting,
 * indexing and searching walk from the head. A null position is allowed everywhere and does nothing, or gives
 * null; a position of another list is not detected. T may be incomplete where a list is declared, not where
 * it is used. */
template <class T>
class CLstMgd
{
public:
    /** An empty list. */
    CLstMgd() = default;
    /** A deep copy: new elements, assigned from the other's as by operator=. */
    CLstMgd(const CLstMgd& other)
        : CLstMgd()
    {
        *this = other;
    }
    /** Same as RemoveAll(). */
    virtual ~CLstMgd() { RemoveAll(); }

    /** Copies values, not pointers: elements that are here already are assigned to in place and keep their
     *  addresses, missing ones are default-constructed at the tail and assigned to, surplus ones are removed.
     *  Nodes of the source without an element are passed over. */
    CLstMgd& operator=(const CLstMgd& other)
    {
        if (this != &other)
            AssignValues(other.GetHeadPos());
        return *this;
    }
    CLstMgd& operator=(const CLstPtr<T*>& other)
    {
        AssignValues(other.GetHeadPos());
        return *this;
    }

    /** Links a new node at the head; the list owns the element from then on. @return its position */
    CVantPtr* AddHead(const T* elem) { return m_chain.AddHead(Untyped(elem)); }
    /** The same at the tail. */
    CVantPtr* AddTail(const T* elem) { return m_chain.AddTail(Untyped(elem)); }
    /** Links a new node before the position; at the head when that is null. The list owns the element from
     * then on. @return the new position */
    CVantPtr* InsertBefore(CVantPtr* pos, const T* elem) { return m_chain.InsertBefore(pos, Untyped(elem)); }
    /** Links a new node after the position; at the tail when that is null. The list owns the element from
     * then on. @return the new position */
    CVantPtr* InsertAfter(CVantPtr* pos, const T* elem) { return m_chain.InsertAfter(pos, Untyped(elem)); }

    /** Puts another element at the position. The one that was there is deliberately neither destroyed nor
     *  returned: fetch it with GetAt() before; it is the caller's. */
    void SetAt(CVantPtr* pos, const T* elem) noexcept
    {
        if (pos)
            pos->elem = Untyped(elem);
    }
    /** The element at the position, still owned by the list; null for a null position. */
    T* GetAt(const CVantPtr* pos) const noexcept { return pos ? static_cast<T*>(pos->elem) : nullptr; }
    /** The first element; null for an empty list. */
    T* GetHead() const noexcept { return GetAt(m_chain.Head()); }
    /** The last element; null for an empty list. */
    T* GetTail() const noexcept { return GetAt(m_chain.Tail()); }
    /** The first position; null for an empty list. */
    CVantPtr* GetHeadPos() const noexcept { return m_chain.Head(); }
    /** The last position; null for an empty list. */
    CVantPtr* GetTailPos() const noexcept { return m_chain.Tail(); }
    /** The element at the position, which then moves one node on; a null position gives null and stays null.
     */
    T* GetNext(CVantPtr*& pos) const noexcept { return GetAt(pos ? std::exchange(pos, pos->next) : nullptr); }
    /** The element at the position, which then moves one node back, likewise. */
    T* GetPrev(CVantPtr*& pos) const noexcept { return GetAt(pos ? std::exchange(pos, pos->prev) : nullptr); }

    /** The number of nodes, counted by walking. */
    int GetCount() const noexcept { return m_chain.Count(); }
    /** True when there is no node. */
    bool IsEmpty() const noexcept { return !m_chain.Head(); }
    /** The position of the n-th node, from 0 at the head; null when there is none. */
    CVantPtr* FindIndex(int index) const noexcept { return m_chain.At(index); }
    /** The first position from start on (from the head when null) that holds this very object, or null. */
    CVantPtr* Find(const T* elem, CVantPtr* start = nullptr) const noexcept
    {
        return m_chain.Find(elem, start);
    }
    /** The index, from 0 at the head, of a position or of the first node that holds this object; -1 for none.
     */
    int GetIndex(CVantPtr* pos) const noexcept { return m_chain.IndexOf(pos); }
    int GetIndex(const T* elem) const noexcept { return m_chain.IndexOfElem(elem); }

    /** Destroys the first element and frees its node; nothing for an empty list. */
    void RemoveHead() { RemoveAt(m_chain.Head()); }
    /** Destroys the last element and frees its node; nothing for an empty list. */
    void RemoveTail() { RemoveAt(m_chain.Tail()); }
    /** Unlinks the node, destroys its element and frees it. */
    void RemoveAt(CVantPtr* pos);
    /** Removes the node before the position. Without one (the head, or null) the tail goes, deliberately. */
    void RemoveBefore(CVantPtr* pos) { RemoveAt(pos && pos->prev ? pos->prev : m_chain.Tail()); }
    /** Removes the node after the position. Without one (the tail, or null) the head goes, deliberately. */
    void RemoveAfter(CVantPtr* pos) { RemoveAt(pos && pos->next ? pos->next : m_chain.Head()); }
    /** Destroys the element and lets the neighbours of its node (the first that holds it) pass the node by;
     * nothing when it is not in the list.
     *
     *  Deliberately less than RemoveAt(): the node stays allocated with its own links, so that a walk
     * standing on it can go on, and head and tail are not touched. A first or last node therefore stays the
     * list's head or tail, now without an element (GetHead() or GetTail() is null), and is freed with the
     * list. Any other node is the list's no longer and is never freed. Prefer RemoveAt(Find(elem)), which
     * does both. */
    void Remove(T* elem);
    /** Destroys every element and frees every node, head to tail. */
    void RemoveAll()
    {
        m_chain.Clear([](void* elem) { DestroyElem(elem); });
    }

    /** Brings the list to so many nodes: default-constructed elements are appended, or the last ones removed.
     */
    void SetSize(unsigned count);
    /** Appends so many default-constructed elements; a negative count removes that many from the tail, or as
     * many as there are. */
    void Grow(int count);

    /** Exchanges the elements of two nodes. */
    void Swap(CVantPtr* a, CVantPtr* b) noexcept
    {
        if (a && b)
            std::swap(a->elem, b->elem);
    }
    /** Moves the element one step towards the tail, exchanging it with the next node's, if there is one. */
    void ShiftUp(CVantPtr* pos) noexcept { Swap(pos, pos ? pos->next : nullptr); }
    /** Moves the element one step towards the head, exchanging it with the previous node's, if there is one.
     */
    void ShiftDn(CVantPtr* pos) noexcept { Swap(pos, pos ? pos->prev : nullptr); }
    /** Exchanges the element with the head's: the former head lands where the moved one was. Deliberately
     * unlike ShiftToTail(), which keeps the others in order. */
    void ShiftToHead(CVantPtr* pos) noexcept { Swap(pos, m_chain.Head()); }
    /** Moves the node itself behind the tail; all others keep their order. */
    void ShiftToTail(CVantPtr* pos) noexcept
    {
        if (pos && pos != m_chain.Tail())
            m_chain.MoveToTail(pos);
    }

    /** Empties the pointer list and fills it with pointers to this list's elements, head to tail. Nodes
     * without an element are passed over. */
    void FillPtrList(CLstPtr<T*>& list) const;

private:
    static void* Untyped(const T* elem) noexcept { return const_cast<T*>(elem); }
    static void DestroyElem(void* elem)
    {
        static_assert(sizeof(T) > 0, "the element's class must be complete where elements are destroyed");
        delete static_cast<T*>(elem);
    }
    T* AddDefault();
    void AssignValues(const CVantPtr* source);

    vant::detail::NodeChain m_chain;
};

template <class T>
void CLstMgd<T>::RemoveAt(CVantPtr* pos)
{
    if (!pos)
        return;
    m_chain.Unlink(pos);
    DestroyElem(pos->elem);
    delete pos;
}

template <class T>
void CLstMgd<T>::Remove(T* elem)
{
    CVantPtr* const node = m_chain.Find(elem, nullptr);
    if (!node)
        return;
    m_chain.Bypass(node);
    node->elem = nullptr;
    DestroyElem(elem);
}

template <class T>
void CLstMgd<T>::SetSize(unsigned count)
{
    CVantPtr* pos = m_chain.Head();
    unsigned have = 0;
    for (; pos; pos = pos->next)
        ++have;
    for (; have < count; ++have)
        AddDefault();
    for (; have > count; --have)
        RemoveTail();
    while (count == 0 && !IsEmpty())
        RemoveTail();
}

template <class T>
void CLstMgd<T>::Grow(int count)
{
    for (; count > 0; --count)
        AddDefault();
    for (; count < 0 && !IsEmpty(); ++count)
        RemoveTail();
}

template <class T>
void CLstMgd<T>::FillPtrList(CLstPtr<T*>& list) const
{
    list.RemoveAll();
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        if (const T* elem = GetNext(pos))
            list.AddTail(elem);
    }
}

template <class T>
T* CLstMgd<T>::AddDefault()
{
    auto elem = std::make_unique<T>();
    m_chain.AddTail(elem.get());
    return elem.release();
}

template <class T>
void CLstMgd<T>::AssignValues(const CVantPtr* source)
{
    CVantPtr* pos = m_chain.Head();
    for (; source; source = source->next) {
        const T* value = GetAt(source);
        if (!value)
            continue;
        if (!pos) {
            *AddDefault() = *value;
            continue;
        }
        if (!pos->elem)
            pos->elem = Untyped(std::make_unique<T>().release());
        *GetAt(pos) = *value;
        pos = pos->next;
    }
    if (pos == m_chain.Head())
        return RemoveAll();
    while (pos)
        RemoveAt(std::exchange(pos, pos->next));
}
