#include "core/detail/OutOfMemory.h"

#include "platform/EUtil.h"

#include <cstdlib>
#include <limits>

namespace vant::detail
{

namespace
{

/** EUtil takes 32-bit sizes; what does not fit is a block that there is no memory for. */
unsigned Size32(LPCWSTR function, std::size_t bytes)
{
    if (bytes > std::numeric_limits<unsigned>::max()) {
        CString cause;
        cause.Format(L"%s cannot allocate %I64u bytes", function, static_cast<unsigned long long>(bytes));
        EUtil::FatalMemErr(cause);
    }
    return static_cast<unsigned>(bytes);
}

} // namespace

void* Malloc(std::size_t bytes)
{
    return EUtil::Malloc(Size32(L"Malloc", bytes));
}

void* Realloc(void* block, std::size_t bytes)
{
    return EUtil::Realloc(block, Size32(L"Realloc", bytes));
}

void Free(void* block) noexcept
{
    std::free(block);
}

} // namespace vant::detail
