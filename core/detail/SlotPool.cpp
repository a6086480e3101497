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
    const std::lock_guard locked(m_lock);
    if (m_withRoom == nullptr) {
        static_assert(sizeof(Block) % alignof(std::max_align_t) == 0);
        LinkWithRoom(*new (NewBlock()) Block{nullptr, nullptr, nullptr, 0, sizeof(Block)});
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
