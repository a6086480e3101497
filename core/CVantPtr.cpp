#include "core/CVantPtr.h"

#include "core/detail/SlotPool.h"

namespace
{

constinit vant::detail::SlotPool nodePool(sizeof(CVantPtr));

} // namespace

void* CVantPtr::operator new(std::size_t)
{
    return nodePool.Take();
}

void CVantPtr::operator delete(void* node) noexcept
{
    nodePool.Return(node);
}
