#pragma once

#include <atomic>
#include <cstddef>
#include <cstdlib>

#include <windows.h>

namespace vafx::detail
{

/** Keeps a few released blocks of short texts for the next ones, which the heap need not be asked for then.
 *
 *  A slot holds one block or none, and is filled and emptied by one atomic exchange: a block belongs to its
 *  slot or to whoever took it, whichever threads gave and took it, and a thread that ends leaves nothing of
 *  its own behind. Threads begin at slots of different lanes, so that they seldom meet. What is kept is
 *  bounded by `bytesMax`. Static objects may use the cache before it is constructed and after Close(). */
class BlockCache
{
public:
    static constexpr std::size_t grain = 16;    ///< sizes of blocks are multiples of this
    static constexpr std::size_t largest = 128; ///< larger blocks are not kept
    static constexpr std::size_t lanes = 8;
    static constexpr std::size_t depth = 4; ///< blocks of one size in one lane
    static constexpr std::size_t sizes = largest / grain;
    static constexpr std::size_t bytesMax = lanes * depth * grain * sizes * (sizes + 1) / 2;

    /** A kept block of exactly @p bytes, a multiple of the grain; null when there is none. */
    void* Take(std::size_t bytes) noexcept
    {
        if (bytes > largest)
            return nullptr;
        for (Slot& slot : Slots(bytes)) {
            if (slot.load(std::memory_order_relaxed) == nullptr)
                continue;
            if (void* const block = slot.exchange(nullptr, std::memory_order_acquire))
                return block;
        }
        return nullptr;
    }

    /** Keeps a block of the heap, or releases it when there is no room. */
    void Give(void* block, std::size_t bytes) noexcept
    {
        if (bytes <= largest && !m_closed.load(std::memory_order_relaxed)) {
            for (Slot& slot : Slots(bytes)) {
                void* none = nullptr;
                if (slot.load(std::memory_order_relaxed) == nullptr &&
                    slot.compare_exchange_strong(none, block, std::memory_order_release,
                                                 std::memory_order_relaxed))
                    return;
            }
        }
        std::free(block);
    }

    /** Releases all that is kept, and from now on keeps nothing. For the module's end, when no other thread
     *  uses it any more. */
    void Close() noexcept
    {
        m_closed = true;
        for (Lane& lane : m_lanes) {
            for (auto& slots : lane.slots) {
                for (Slot& slot : slots)
                    std::free(slot.exchange(nullptr));
            }
        }
    }

private:
    using Slot = std::atomic<void*>;
    static constexpr std::size_t cacheLine = 64;
    struct alignas(cacheLine) Lane {
        Slot slots[sizes][depth] = {};
    };

    Slot (&Slots(std::size_t bytes) noexcept)[depth]
    {
        constexpr unsigned idStep = 4; // the system numbers its threads in fours
        return m_lanes[::GetCurrentThreadId() / idStep % lanes].slots[bytes / grain - 1];
    }

    Lane m_lanes[lanes];
    std::atomic<bool> m_closed = false;
};

} // namespace vafx::detail
