#include "settings/detail/TreeBuilder.h"

#include "core/detail/TextView.h"
#include "settings/detail/CodePage.h"
#include "settings/detail/Percent.h"

#include <cstring>
#include <memory>
#include <string>

namespace vant::detail
{

std::size_t TextCache::Slot(std::string_view key) noexcept
{
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    if (key.size() >= sizeof first) {
        std::memcpy(&first, key.data(), sizeof first);
        std::memcpy(&last, key.data() + key.size() - sizeof last, sizeof last);
    } else {
        std::memcpy(&first, key.data(), key.size());
    }
    constexpr std::uint64_t golden = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
    const std::uint64_t mixed = (first ^ (last << 1) ^ (last >> 63) ^ key.size()) * golden;
    return static_cast<std::size_t>(mixed >> 32) % entries;
}

const CString& TextCache::Find(std::string_view key, const wchar_t* wide)
{
    Entry& entry = m_entries[Slot(key)];
    if (entry.size != key.size() || std::memcmp(entry.key.data(), key.data(), key.size()) != 0) {
        entry.text = ToCString({wide, key.size()});
        key.copy(entry.key.data(), key.size());
        entry.size = static_cast<std::uint8_t>(key.size());
    }
    return entry.text;
}

void TreeBuilder::Add(std::string_view line)
{
    const LineMeaning meaning = m_reader.Read(line);
    switch (meaning.kind) {
    case LineKind::Nothing:
        break;
    case LineKind::Collection:
        m_collection = m_set.AddCol(Name(meaning.name));
        break;
    case LineKind::Object: {
        const CString name = Name(meaning.name);
        m_object = m_collection->AddObj(name, Name(meaning.text));
        break;
    }
    case LineKind::Item: {
        const CString name = Name(meaning.name);
        auto item = std::make_unique<CESetItm>(name, Value(meaning.text));
        m_object->AddTail(item.get());
        item.release();
        break;
    }
    case LineKind::Data: {
        auto data = std::make_unique<CString>(Text(meaning.text));
        m_object->m_data.AddTail(data.get());
        data.release();
        break;
    }
    }
}

bool TreeBuilder::Widen(std::string_view field) noexcept
{
    if (field.size() >= fieldSize)
        return false;
    unsigned char all = 0;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const auto byte = static_cast<unsigned char>(field[i]);
        all |= byte;
        m_wide[i] = byte;
    }
    return all < 0x80;
}

const CString& TreeBuilder::Name(std::string_view field)
{
    if (TextCache::Takes(field) && Widen(field))
        return m_names.Find(field, m_wide.data());
    return Text(field);
}

const CString& TreeBuilder::Value(std::string_view field)
{
    if (field.find('%') == field.npos)
        return Name(field);
    m_text = ToCString(ExpandWithoutArguments(std::wstring_view(DecodeAcp(field))));
    return m_text;
}

const CString& TreeBuilder::Text(std::string_view field)
{
    if (Widen(field))
        m_text = ToCString({m_wide.data(), field.size()});
    else
        m_text = ToCString(DecodeAcp(field));
    return m_text;
}

} // namespace vant::detail
