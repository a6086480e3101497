#pragma once

#include <windows.h>

namespace vant::test
{

/** While it lives, one module of the process gets no block of 1 MB or more from the run-time heap, as when
 * memory is exhausted; smaller blocks are there. Only the module's own calls fail. One at a time. */
class NoLargeBlocks
{
public:
    /** @p module is the file name of a loaded DLL. */
    explicit NoLargeBlocks(LPCWSTR module);
    ~NoLargeBlocks() { Release(); }
    NoLargeBlocks(const NoLargeBlocks&) = delete;
    NoLargeBlocks& operator=(const NoLargeBlocks&) = delete;

    /** @return Whether the module allocates in a way that can be made to fail. */
    bool IsActive() const noexcept { return m_import != nullptr; }

    /** Gives the memory back. */
    void Release() noexcept;

private:
    ULONG_PTR* m_import = nullptr;
};

} // namespace vant::test
