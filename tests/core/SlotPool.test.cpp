#include "core/detail/SlotPool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

TEST(SlotPool, HandsOutEverySlotOnceAndReturnsItsBlocks)
{
    constexpr std::size_t slotSize = 24;
    constexpr int count = 20'000; // some eight blocks
    vant::detail::SlotPool pool(slotSize);
    std::vector<void*> slots;
    std::mt19937 random(1);
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < count; ++i) {
            slots.push_back(pool.Take());
            std::memset(slots.back(), 0xAB, slotSize);
        }
        std::sort(slots.begin(), slots.end());
        for (std::size_t i = 1; i < slots.size(); ++i)
            ASSERT_GE(static_cast<char*>(slots[i]) - static_cast<char*>(slots[i - 1]),
                      std::ptrdiff_t{slotSize});
        EXPECT_LE(pool.BlockCount(), slots.size() * slotSize / (pool.blockSize - 2 * slotSize - 32) + 2);
        std::shuffle(slots.begin(), slots.end(), random);
        for (int i = 0; i < count / 2; ++i) {
            pool.Return(slots.back());
            slots.pop_back();
        }
    }
    while (!slots.empty()) {
        pool.Return(slots.back());
        slots.pop_back();
    }
    pool.Return(nullptr);
    EXPECT_LE(pool.BlockCount(), 1U);
}
