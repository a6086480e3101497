#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace vant::detail
{

/** A lock that is held for a few instructions: one atomic operation takes it and a plain store releases it.
 *  Whoever finds it taken looks again, and soon gives way: a thread of high priority must not keep the one
 * that holds the lock from going on. */
class BriefLock
{
public:
    void lock() noexcept
    {
        if (m_taken.exchange(true, std::memory_order_acquire))
            Wait();
    }
    void unlock() noexcept { m_taken.store(false, std::memory_order_release); }

private:
    void Wait() noexcept;

    std::atomic<bool> m_taken = false;
};

/** Memory for very many small objects of one size, at a fraction of what the heap takes in time and space; a
 *  settings tree holds hundreds of thousands of items and of nodes. May be used by several threads at a time.
 *
 *  Slots come out of blocks that are aligned to their own size, so that a slot's address tells its block. A
 *  block without used slots goes back to the system, but for one that is kept in reserve. A pool that ends
 * does not look at its blocks: it is meant to be static, and objects in it may outlive it. */
class SlotPool
{
public:
    /** @param slotSize  in bytes, a multiple of 8 */
    constexpr explicit SlotPool(std::uint32_t slotSize) noexcept
        : m_slotSize(slotSize)
    {
    }
    SlotPool(const SlotPool&) = delete;
    SlotPool& operator=(const SlotPool&) = delete;

    /** Like operator new: never null; calls the new-handler when memory is exhausted. */
    void* Take();
    /** Gives a slot of this pool back; null is allowed. */
    void Return(void* slot) noexcept;

    /** The number of blocks that are held from the system. */
    std::size_t BlockCount() const noexcept { return m_blocks; }

    /** What the system hands out in one piece anyway, and aligns to. */
    static constexpr std::size_t blockSize = 0x10000;

private:
    struct Slot {
        Slot* next;
    };
    struct Block {
        Block* prev; // among the blocks with room
        Block* next;
        Slot* returned;
        std::uint32_t used;
        std::uint32_t fresh; // offset of the first slot that was never used
    };

    bool IsFull(const Block& block) const noexcept
    {
        return block.returned == nullptr && block.fresh + m_slotSize > blockSize;
    }
    void LinkWithRoom(Block& block) noexcept;
    void UnlinkWithRoom(Block& block) noexcept;

    const std::uint32_t m_slotSize;
    BriefLock m_lock;
    Block* m_withRoom = nullptr;
    std::size_t m_blocks = 0;
};

} // namespace vant::detail
