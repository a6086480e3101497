#pragma once

#include "core/VantApi.h"

#include <cstddef>

/** A position in a CLstMgd or a CLstPtr: one node of the list.
 *
 *  A list hands out the address of its node; a null position means "no node". A position stays good until its
 *  node is removed, whatever happens to the other nodes. The fields belong to the list: applications pass
 *  positions back to the list that they came from, and only to that one. */
struct CVantPtr final {
    /** Nodes come from a pool of their own, one at a time: programs hold very many, and walk through them. @{
     */
    VANT_API static void* operator new(std::size_t size);
    VANT_API static void operator delete(void* node) noexcept;
    /** @} */

    CVantPtr* prev = nullptr; /**< the node before, towards the head; null at the head */
    CVantPtr* next = nullptr; /**< the node after, towards the tail; null at the tail */
    void* elem = nullptr;     /**< the element; null when the node holds none */
};
