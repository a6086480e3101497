#include "controls/CEGridCol.h"

#include "values/detail/ValueType.h"

#include <windows.h>

using vant::detail::TypeOf;
using vant::detail::ValueType;

bool CEGridCol::IsNumber() const noexcept
{
    const ValueType kind = TypeOf(type);
    return kind == ValueType::Float || kind == ValueType::Double || vant::detail::IsIntegerType(kind);
}

unsigned CEGridCol::DrawAlign() const noexcept
{
    switch (align) {
    case alignLeft:
        return DT_LEFT;
    case alignCentre:
        return DT_CENTER;
    case alignRight:
        return DT_RIGHT;
    default:
        return IsNumber() ? DT_RIGHT : DT_LEFT;
    }
}

void CEGridCol::SetArray(void* first, std::size_t stride)
{
    m_first = first;
    m_stride = stride;
    InitVal(first);
}

void* CEGridCol::AddressOf(int row) const noexcept
{
    return m_first ? static_cast<std::byte*>(m_first) + static_cast<std::size_t>(row) * m_stride : nullptr;
}
