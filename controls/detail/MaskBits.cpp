#include "controls/detail/MaskBits.h"

#include "controls/detail/BoundNumber.h"
#include "values/CEVal.h"
#include "values/detail/ValueLock.h"

#include <cstdint>

namespace vant::detail
{
namespace
{

std::uint64_t Read(const CEVal& value)
{
    return static_cast<std::uint64_t>(IntegerOf(value));
}

std::uint64_t Mask(const CEVal& value) noexcept
{
    return static_cast<std::uint32_t>(value.aux0);
}

} // namespace

MaskState Bits(const CEVal& value)
{
    if (!IsInteger(value))
        return MaskState::None;
    const std::uint64_t mask = Mask(value);
    const std::uint64_t found = Read(value) & mask;
    if (!found)
        return MaskState::None;
    return found == mask ? MaskState::All : MaskState::Some;
}

void ToggleBits(CEVal& value)
{
    const ValueLock lock(value.pMutex);
    if (!IsInteger(value) || !lock)
        return;
    const std::uint64_t mask = Mask(value);
    const std::uint64_t bits = Read(value);
    PutInteger(value, static_cast<std::int64_t>((bits & mask) ? bits & ~mask : bits | mask));
}

} // namespace vant::detail
