#include "settings/CESetItm.h"

#include "core/detail/SlotPool.h"

#include <new>

namespace
{

constinit vant::detail::SlotPool itemPool(sizeof(CESetItm));

} // namespace

void* CESetItm::operator new(std::size_t size)
{
    return size == sizeof(CESetItm) ? itemPool.Take() : ::operator new(size); // a derived class may be larger
}

void CESetItm::operator delete(void* memory, std::size_t size) noexcept
{
    if (size == sizeof(CESetItm))
        itemPool.Return(memory);
    else
        ::operator delete(memory);
}
