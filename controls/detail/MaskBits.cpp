#include "controls/detail/MaskBits.h"

#include "core/detail/ToInteger.h"
#include "values/detail/ValueType.h"

#include <cstdint>

namespace vant::detail
{
namespace
{

// GetVal() does not read 64-bit integers, and gives every other one exactly.
std::uint64_t Read(const CEVal& value)
{
    const std::int64_t bits =
        TypeOf(value.type) == ValueType::Int64 ? static_cast<__int64>(value) : ToInt64(value.GetVal());
    return static_cast<std::uint64_t>(bits);
}

void Write(CEVal& value, std::uint64_t bits)
{
    if (TypeOf(value.type) == ValueType::Int64)
        value = static_cast<__int64>(bits);
    else
        value.SetVal(static_cast<double>(static_cast<std::uint32_t>(bits)));
}

std::uint64_t Mask(const CEVal& value) noexcept
{
    return static_cast<std::uint32_t>(value.aux0);
}

} // namespace

bool IsInteger(const CEVal& value) noexcept
{
    return value.pVal && IsIntegerType(TypeOf(value.type));
}

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
    CMutex* const mutex = value.pMutex;
    if (!IsInteger(value) || (mutex && !mutex->Lock()))
        return;
    const std::uint64_t mask = Mask(value);
    const std::uint64_t bits = Read(value);
    Write(value, (bits & mask) ? bits & ~mask : bits | mask);
    if (mutex)
        mutex->Unlock();
}

} // namespace vant::detail
