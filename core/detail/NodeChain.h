#pragma once

#include "core/CVantPtr.h"

namespace vant::detail
{

/** The links of a list, without knowledge of what its nodes hold: head and tail, and no count.
 *
 *  Bypass() takes a node out by its neighbours' links alone, as the lists' Remove() does: head and tail keep
 *  pointing at it and its own links stay. At the head, the node before the rest then is found by next links
 * only; at the tail, by prev links only. Every other operation therefore asks Before() and After(), which see
 * across such a one-sided link, so that no node of the chain ever keeps the address of one that was freed. In
 * a chain that never saw Bypass() both cost one comparison.
 *
 *  One-sided links at the front (next only) always precede those at the back (prev only), because Bypass()
 * makes them only at an end or beside another one and everything else links both ways. Hence every node is
 * reached either from the head by next or from the tail by prev. */
class NodeChain
{
public:
    CVantPtr* Head() const noexcept { return m_head; }
    CVantPtr* Tail() const noexcept { return m_tail; }

    /** Links a new node that holds elem between two neighbours; null for an end. */
    CVantPtr* Insert(CVantPtr* before, void* elem, CVantPtr* after)
    {
        auto* node = new CVantPtr{before, after, elem};
        Join(before, node);
        Join(node, after);
        return node;
    }
    CVantPtr* AddHead(void* elem) { return Insert(nullptr, elem, m_head); }
    CVantPtr* AddTail(void* elem) { return Insert(m_tail, elem, nullptr); }
    CVantPtr* InsertBefore(CVantPtr* pos, void* elem)
    {
        return !pos || pos == m_head ? AddHead(elem) : Insert(Before(pos), elem, pos);
    }
    CVantPtr* InsertAfter(CVantPtr* pos, void* elem)
    {
        return !pos || pos == m_tail ? AddTail(elem) : Insert(pos, elem, After(pos));
    }

    /** Takes a node out of the chain, updating head and tail; the caller frees it. */
    void Unlink(const CVantPtr* node) noexcept { Join(Before(node), After(node)); }

    /** Lets the neighbours pass a node by, and nothing else: see the class. */
    static void Bypass(const CVantPtr* node) noexcept
    {
        if (node->prev)
            node->prev->next = node->next;
        if (node->next)
            node->next->prev = node->prev;
    }

    /** Moves a node behind the tail. */
    void MoveToTail(CVantPtr* node) noexcept
    {
        Unlink(node);
        node->prev = m_tail;
        node->next = nullptr;
        Join(m_tail, node);
        m_tail = node;
    }

    /** Frees every node, head to tail, after release(elem) for each. The chain is empty from the start, so
     * that an element's destructor that looks at its list finds it in order. */
    template <class Release>
    void Clear(Release release)
    {
        CVantPtr* node = m_head;
        CVantPtr* const tail = m_tail;
        m_head = m_tail = nullptr;
        while (node) {
            if (!node->next && node != tail)
                LinkForward(tail, node);
            CVantPtr* const next = node->next;
            release(node->elem);
            delete node;
            node = next;
        }
    }

    int Count() const noexcept
    {
        int count = 0;
        for (const CVantPtr* node = m_head; node; node = node->next)
            ++count;
        return count;
    }
    CVantPtr* At(int index) const noexcept
    {
        if (index < 0)
            return nullptr;
        CVantPtr* node = m_head;
        while (node && index-- > 0)
            node = node->next;
        return node;
    }
    int IndexOf(const CVantPtr* pos) const noexcept
    {
        return IndexWhere([pos](const CVantPtr* node) { return node == pos; });
    }
    int IndexOfElem(const void* elem) const noexcept
    {
        return IndexWhere([elem](const CVantPtr* node) { return node->elem == elem; });
    }
    CVantPtr* Find(const void* elem, CVantPtr* start) const noexcept
    {
        CVantPtr* node = start ? start : m_head;
        while (node && node->elem != elem)
            node = node->next;
        return node;
    }

private:
    CVantPtr* Before(const CVantPtr* node) const noexcept
    {
        if (node->prev || node == m_head)
            return node->prev;
        CVantPtr* found = m_head;
        while (found && found->next != node)
            found = found->next;
        return found;
    }
    CVantPtr* After(const CVantPtr* node) const noexcept
    {
        if (node->next || node == m_tail)
            return node->next;
        CVantPtr* found = m_tail;
        while (found && found->prev != node)
            found = found->prev;
        return found;
    }

    /** Links two neighbours both ways; where one is null the other becomes the end. */
    void Join(CVantPtr* before, CVantPtr* after) noexcept
    {
        (before ? before->next : m_head) = after;
        (after ? after->prev : m_tail) = before;
    }

    /** Gives the prev-only links between a node and the tail their next links back. */
    static void LinkForward(CVantPtr* tail, const CVantPtr* node) noexcept
    {
        for (CVantPtr* after = tail; after && after != node; after = after->prev) {
            if (after->prev)
                after->prev->next = after;
        }
    }

    template <class Match>
    int IndexWhere(Match match) const noexcept
    {
        int index = 0;
        for (const CVantPtr* node = m_head; node; node = node->next, ++index) {
            if (match(node))
                return index;
        }
        return -1;
    }

    CVantPtr* m_head = nullptr;
    CVantPtr* m_tail = nullptr;
};

} // namespace vant::detail
