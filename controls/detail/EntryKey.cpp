#include "controls/detail/EntryKey.h"

#include "controls/CELEnt.h"
#include "core/detail/ToInteger.h"

#include <cmath>
#include <cstdint>

namespace vant::detail
{
namespace
{

void* ItemOf(const CELEnt& ent) noexcept
{
    return ent.kind == CELEnt::kindItem ? ent.item : nullptr;
}

double NumOf(const CELEnt& ent) noexcept
{
    return ent.kind == CELEnt::kindNum ? ent.value : ent.Index();
}

} // namespace

EntryKey::EntryKey(const CEVal& val)
    : m_type(TypeOf(val.type))
{
    switch (m_type) {
    case ValueType::Pointer:
        m_item = static_cast<void*>(val);
        break;
    case ValueType::Text:
        m_text = static_cast<CString>(val);
        break;
    case ValueType::Int64:
        // GetVal() does not read it.
        m_num = static_cast<double>(static_cast<__int64>(val));
        break;
    default:
        m_num = val.GetVal();
        break;
    }
}

bool EntryKey::Fits(const CELEnt& ent) const
{
    switch (m_type) {
    case ValueType::Pointer:
        return ItemOf(ent) == m_item;
    case ValueType::Text:
        return ent.text == m_text;
    case ValueType::Float:
        return static_cast<double>(static_cast<float>(NumOf(ent))) == m_num;
    case ValueType::Double:
        return NumOf(ent) == m_num;
    default:
        return std::floor(NumOf(ent) + 0.5) == m_num;
    }
}

void StoreEntry(CEVal& val, const CELEnt& ent)
{
    switch (TypeOf(val.type)) {
    case ValueType::Pointer:
        val = static_cast<__int64>(reinterpret_cast<std::intptr_t>(ItemOf(ent)));
        break;
    case ValueType::Text:
        val = ent.text;
        break;
    case ValueType::Int64:
        val = static_cast<__int64>(RoundToInt64(NumOf(ent)));
        break;
    default:
        val.SetVal(NumOf(ent));
        break;
    }
}

} // namespace vant::detail
