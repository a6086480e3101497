#include "controls/detail/BoundNumber.h"

#include "core/detail/ToInteger.h"
#include "values/CEVal.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace vant::detail
{
namespace
{

constexpr double missing = -32768.0; // marks missing data in a floating number

bool IsFloating(const CEVal& value) noexcept
{
    return TypeOf(value.type) == ValueType::Float || TypeOf(value.type) == ValueType::Double;
}

template <class Number>
constexpr NumberLimits LimitsOfType() noexcept
{
    return {static_cast<double>(std::numeric_limits<Number>::lowest()),
            static_cast<double>(std::numeric_limits<Number>::max())};
}

} // namespace

bool IsInteger(const CEVal& value) noexcept
{
    return value.pVal && IsIntegerType(TypeOf(value.type));
}

bool IsNumber(const CEVal& value) noexcept
{
    return value.pVal && (IsFloating(value) || IsIntegerType(TypeOf(value.type)));
}

std::int64_t IntegerOf(const CEVal& value)
{
    if (!IsInteger(value))
        return 0;
    // GetVal() does not read 64-bit integers, and gives every other one exactly.
    return TypeOf(value.type) == ValueType::Int64 ? static_cast<__int64>(value) : ToInt64(value.GetVal());
}

void PutInteger(CEVal& value, std::int64_t number)
{
    if (!IsInteger(value))
        return;
    if (TypeOf(value.type) == ValueType::Int64)
        value = static_cast<__int64>(number);
    else
        value.SetVal(static_cast<double>(LowBits<std::uint32_t>(number)));
}

std::int64_t AsHeld(const CEVal& value, std::int64_t number) noexcept
{
    switch (TypeOf(value.type)) {
    case ValueType::Char:
        return LowBits<std::int8_t>(number);
    case ValueType::UChar:
        return LowBits<std::uint8_t>(number);
    case ValueType::Short:
        return LowBits<std::int16_t>(number);
    case ValueType::UShort:
        return LowBits<std::uint16_t>(number);
    case ValueType::Int:
        return LowBits<std::int32_t>(number);
    case ValueType::UInt:
    case ValueType::ULong:
        return LowBits<std::uint32_t>(number);
    default:
        return number;
    }
}

double NumberOf(const CEVal& value)
{
    if (IsInteger(value))
        return static_cast<double>(IntegerOf(value));
    const double number = IsFloating(value) && value.pVal ? value.GetVal() : missing;
    return number == missing ? std::numeric_limits<double>::quiet_NaN() : number;
}

void PutNumber(CEVal& value, double number)
{
    if (!IsInteger(value)) {
        if (IsNumber(value))
            value.SetVal(number);
        return;
    }
    if (std::isnan(number))
        return;
    const auto [least, most] = LimitsOf(value);
    const double nearest = std::floor(number + 0.5);
    // The largest 64-bit integer is no double: the nearest one is beyond it.
    if (nearest >= most && TypeOf(value.type) == ValueType::Int64)
        PutInteger(value, std::numeric_limits<std::int64_t>::max());
    else
        PutInteger(value, ToInt64(std::clamp(nearest, least, most)));
}

std::uint64_t SnapshotOf(const CEVal& value)
{
    if (IsInteger(value))
        return static_cast<std::uint64_t>(IntegerOf(value));
    return IsNumber(value) ? std::bit_cast<std::uint64_t>(value.GetVal()) : 0;
}

void PutBack(CEVal& value, std::uint64_t snapshot)
{
    if (IsInteger(value))
        PutInteger(value, static_cast<std::int64_t>(snapshot));
    else if (IsNumber(value))
        value.SetVal(std::bit_cast<double>(snapshot));
}

NumberLimits LimitsOf(const CEVal& value) noexcept
{
    switch (TypeOf(value.type)) {
    case ValueType::Char:
        return LimitsOfType<std::int8_t>();
    case ValueType::UChar:
        return LimitsOfType<std::uint8_t>();
    case ValueType::Short:
        return LimitsOfType<std::int16_t>();
    case ValueType::UShort:
        return LimitsOfType<std::uint16_t>();
    case ValueType::Int:
        return LimitsOfType<std::int32_t>();
    case ValueType::UInt:
    case ValueType::ULong:
        return LimitsOfType<std::uint32_t>();
    case ValueType::Int64:
        return LimitsOfType<std::int64_t>();
    case ValueType::Float:
        return LimitsOfType<float>();
    default:
        return LimitsOfType<double>();
    }
}

} // namespace vant::detail
