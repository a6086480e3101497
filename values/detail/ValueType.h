#pragma once

namespace vant::detail
{

/** The type codes of a value; their numbers are part of the interface. */
enum class ValueType : unsigned char {
    Pointer = 0,
    Text = 1,
    Char = 2,
    Short = 3,
    Int = 4,
    UChar = 5,
    UShort = 6,
    UInt = 7,
    Float = 8,
    Double = 9,
    ULong = 10,
    Int64 = 11,
};

/** Higher bytes of a type are not looked at. */
constexpr ValueType TypeOf(int type) noexcept
{
    return static_cast<ValueType>(static_cast<unsigned>(type) & 0xFFu);
}

/** Whether a variable of the type is an integer, of whatever size and sign. */
constexpr bool IsIntegerType(ValueType type) noexcept
{
    switch (type) {
    case ValueType::Char:
    case ValueType::Short:
    case ValueType::Int:
    case ValueType::UChar:
    case ValueType::UShort:
    case ValueType::UInt:
    case ValueType::ULong:
    case ValueType::Int64:
        return true;
    default:
        return false;
    }
}

} // namespace vant::detail
