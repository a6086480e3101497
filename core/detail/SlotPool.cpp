#include "core/detail/SlotPool.h"

#include <mutex>
#include <new>
#include <windows.h>

namespace vant::detail
{

namespace
{

void* NewBlock()
{
    for (;;) {
        if (void* const block =
                VirtualAlloc(nullptr, SlotPool::blockSize, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))
            return block;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr)
            throw std::bad_alloc();
        handler();
    }
}

} // namespace

void BriefLock::Wait() noexcept
{
    constexpr int looks = 100; // about as long as the lock is held
    constexpr int yields = 20; // then others of this priority go first
    constexpr DWORD pause = 1; // milliseconds; then all others
    for (int i = 0; m_taken.exchange(true, std::memory_order_acquire); ++i) {
        if (i < looks)
            YieldProcessor();
        else if (i < looks + yields)
            SwitchToThread();
        else
            Sleep(pause);
    }
}

void SlotPool::LinkWithRoom(Block& block) noexcept
{
    block.prev = nullptr;
    block.next = m_withRoom;
    if (m_withRoom != nullptr)
        m_withRoom->prev = &block;
    m_withRoom = &block;
}

void SlotPool::UnlinkWithRoom(Block& block) noexcept
{
    (block.prev != nullptr ? block.prev->next : m_withRoom) = block.next;
    if (block.next != nullptr)
        block.next->prev = block.prev;
}

void* SlotPool::Take()
{
    std::unique_lock locked(m_lock);
    while (m_withRoom == nullptr) {
        // Without the lock: a handler of exhausted memory may show a message, and that may need slots.
        locked.unlock();
        void* const memory = NewBlock();
        locked.lock();
        static_assert(sizeof(Block) % alignof(std::max_align_t) == 0);
        LinkWithRoom(*new (memory) Block{nullptr, nullptr, nullptr, 0, sizeof(Block)});
        ++m_blocks;
    }
    Block& block = *m_withRoom;
    void* slot = block.returned;
    if (slot != nullptr) {
        block.returned = block.returned->next;
    } else {
        slot = reinterpret_cast<char*>(&block) + block.fresh;
        block.fresh += m_slotSize;
    }
    ++block.used;
    if (IsFull(block))
        UnlinkWithRoom(block);
    return slot;
}

void SlotPool::Return(void* slot) noexcept
{
    if (slot == nullptr)
        return;
    Block& block = *reinterpret_cast<Block*>(reinterpret_cast<std::uintptr_t>(slot) & ~(blockSize - 1));
    const std::lock_guard locked(m_lock);
    if (IsFull(block))
        LinkWithRoom(block);
    block.returned = new (slot) Slot{block.returned};
    const bool isOnlyOneWithRoom = block.prev == nullptr && block.next == nullptr;
    if (--block.used != 0 || isOnlyOneWithRoom)
        return;
    UnlinkWithRoom(block);
    --m_blocks;
    VirtualFree(&block, 0, MEM_RELEASE);
}

} // namespace vant::detail
