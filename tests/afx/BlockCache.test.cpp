#include <afx.h>

#include "afx/src/detail/BlockCache.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <cstring>
#include <malloc.h>
#include <memory>
#include <thread>
#include <vector>

namespace
{

using vafx::detail::BlockCache;

/** A cache that ends as the module's does. */
struct ClosedAtEnd : BlockCache {
    ~ClosedAtEnd() { Close(); }
};

constexpr std::size_t small = 32;

/** The number of busy blocks of the run-time library's heap. */
std::size_t BusyBlocks()
{
    const auto heap = reinterpret_cast<HANDLE>(::_get_heap_handle());
    PROCESS_HEAP_ENTRY entry = {};
    std::size_t count = 0;
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
            ++count;
    }
    ::HeapUnlock(heap);
    return count;
}

} // namespace

TEST(BlockCache, GivesABlockOnlyOnceAndOnlyInItsSize)
{
    ClosedAtEnd cache;
    void* const block = std::malloc(small);
    cache.Give(block, small);
    EXPECT_EQ(nullptr, cache.Take(small + BlockCache::grain));
    EXPECT_EQ(nullptr, cache.Take(small - BlockCache::grain));
    EXPECT_EQ(block, cache.Take(small));
    EXPECT_EQ(nullptr, cache.Take(small));
    cache.Give(block, small);

    const std::size_t large = BlockCache::largest + BlockCache::grain;
    cache.Give(std::malloc(large), large);
    EXPECT_EQ(nullptr, cache.Take(large));
}

TEST(BlockCache, KeepsFewAndNoneAfterItsEnd)
{
    const std::size_t before = BusyBlocks();
    {
        ClosedAtEnd cache;
        for (std::size_t size = BlockCache::grain; size <= BlockCache::largest; size += BlockCache::grain) {
            for (int i = 0; i < 1'000; ++i)
                cache.Give(std::malloc(size), size);
        }
        EXPECT_LE(BusyBlocks(), before + BlockCache::sizes * BlockCache::depth);
        for (std::size_t i = 0; i < BlockCache::depth; ++i) {
            void* const block = cache.Take(small);
            EXPECT_NE(nullptr, block);
            std::free(block);
        }
        EXPECT_EQ(nullptr, cache.Take(small));
        cache.Close();
        cache.Give(std::malloc(small), small);
        EXPECT_EQ(nullptr, cache.Take(small));
    }
    EXPECT_LE(BusyBlocks(), before);
}

TEST(BlockCache, GivesABlockToOneThreadAtATime)
{
    ClosedAtEnd cache;
    std::atomic<int> shared = 0;
    std::vector<std::thread> threads;
    constexpr int more = 2 * static_cast<int>(BlockCache::lanes); // so that some meet in each lane
    for (int id = 1; id <= more; ++id) {
        threads.emplace_back([&cache, &shared, id] {
            for (int i = 0; i < 20'000; ++i) {
                void* block = cache.Take(small);
                if (block == nullptr)
                    block = std::malloc(small);
                std::memset(block, id, small);
                const auto* const bytes = static_cast<const unsigned char*>(block);
                for (std::size_t b = 0; b < small; ++b)
                    shared += bytes[b] != id ? 1 : 0;
                cache.Give(block, small);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(0, shared);
}

TEST(BlockCache, TextsOutliveTheThreadThatMadeThem)
{
    for (int round = 0; round < 20; ++round) {
        std::vector<CString> texts;
        std::thread([&texts] {
            for (int i = 0; i < 500; ++i)
                texts.emplace_back().Format(L"text %d", i);
        }).join();
        std::vector<CString> copies;
        std::thread([&texts, &copies] {
            copies = texts;
            for (CString& text : texts)
                text += L"!"; // frees nothing yet: the copies hold the blocks
            texts.clear();
        }).join();
        for (int i = 0; i < 500; ++i) {
            CString expected;
            expected.Format(L"text %d", i);
            ASSERT_EQ(expected, copies[static_cast<std::size_t>(i)]);
        }
    }
}

TEST(BlockCache, GoesWithItsModule)
{
    const vant::test::TempDir dir;
    wchar_t path[MAX_PATH + 1] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(L"VantAfx.dll"), path, MAX_PATH);
    // Another name makes it another module, with a cache of its own.
    const CString copy = dir.Path(L"AnotherAfx.dll");
    ASSERT_TRUE(::CopyFileW(path, copy, TRUE));
    using Construct = void (*)(void*, LPCWSTR, int);
    using Empty = void (*)(void*);
    const auto visit = [&copy] {
        const HMODULE module = ::LoadLibraryW(copy);
        ASSERT_NE(nullptr, module);
        const auto construct = reinterpret_cast<Construct>(
            reinterpret_cast<void*>(::GetProcAddress(module, "_ZN8CStringWC1EPKwi")));
        const auto empty = reinterpret_cast<Empty>(
            reinterpret_cast<void*>(::GetProcAddress(module, "_ZN8CStringW5EmptyEv")));
        ASSERT_TRUE(construct != nullptr && empty != nullptr);
        void* text = nullptr;
        for (int length = 1; length < 50; ++length) {
            construct(&text, L"some text that is taken in every length up to fifty", length);
            empty(&text);
        }
        ::FreeLibrary(module);
    };
    visit(); // what the system keeps of a module, it keeps once
    const std::size_t before = BusyBlocks();
    constexpr int visits = 20;
    for (int i = 0; i < visits; ++i)
        visit();
    // The module's C++ run-time library leaves a block of its own behind, and the cache had one of every
    // size.
    EXPECT_LT(BusyBlocks(), before + 2 * visits);
}
