#pragma once

#include "settings/CESet.h"
#include "settings/detail/SetReader.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vant::detail
{

/** Texts that were met lately, so that the same name in a thousand objects is one text in memory. */
class TextCache
{
public:
    /** The text of a short ASCII field. @param wide  its characters, `key.size()` of them */
    const CString& Find(std::string_view key, const wchar_t* wide);

    static bool Takes(std::string_view key) noexcept { return key.size() <= longestKey; }

private:
    static constexpr std::size_t longestKey = 23;
    static constexpr std::size_t entries = 512; // a power of two

    struct Entry {
        std::array<char, longestKey> key;
        std::uint8_t size = 0;
        CString text;
    };

    static std::size_t Slot(std::string_view key) noexcept;

    std::vector<Entry> m_entries = std::vector<Entry>(entries);
};

/** Turns the lines of a settings file into the tree. */
class TreeBuilder
{
public:
    explicit TreeBuilder(CESet& set) noexcept
        : m_set(set)
    {
    }

    void Add(std::string_view line);

private:
    const CString& Name(std::string_view field);
    const CString& Value(std::string_view field);
    const CString& Text(std::string_view field);

    /** Spreads a field into m_wide. False when it is too long, or holds more than ASCII. */
    bool Widen(std::string_view field) noexcept;

    CESet& m_set;
    LineReader m_reader;
    CESetCol* m_collection = nullptr;
    CESetObj* m_object = nullptr;
    TextCache m_names;
    CString m_text; // what Text and Value gave last
    std::array<wchar_t, fieldSize> m_wide;
};

} // namespace vant::detail
