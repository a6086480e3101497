#include "settings/CESetObj.h"

#include "core/CMat.h"
#include "core/CV3.h"
#include "core/detail/NumberText.h"
#include "settings/CESetCol.h"
#include "settings/detail/CodePage.h"
#include "settings/detail/Search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdarg>
#include <cstddef>
#include <memory>
#include <string_view>

namespace
{

using vant::detail::Scanned;

void AppendItem(CESetObj& obj, const CString& name, const CString& value)
{
    auto item = std::make_unique<CESetItm>(name, value);
    obj.AddTail(item.get());
    item.release();
}

// What any item with numbers fits into: a matrix has the most.
constexpr std::size_t mostNumbers = 12;
constexpr std::size_t numbersTextMax = vant::detail::DoublesTextMax(mostNumbers);
static_assert(numbersTextMax >= vant::detail::integerTextMax);

/** One body for both directions: `write` puts the variable at a position and returns the end, `read` takes it
 *  from a text. */
template <class Write, class Read>
void Exchange(CESetObj& obj, const CString& name, Write write, Read read)
{
    if (obj.IsStoring()) {
        std::array<wchar_t, numbersTextMax> text;
        const wchar_t* const end = write(text.data());
        AppendItem(obj, name, CString(text.data(), static_cast<int>(end - text.data())));
        return;
    }
    CString value;
    if (obj.GetItm(name, value))
        read(std::wstring_view(value.GetString()));
}

/** The read patterns of single numbers end in "%c": one character behind the number, a blank included, spoils
 *  it. */
template <class Number, class T>
void AssignIfWhole(const Scanned<Number>& found, std::size_t textSize, T& v) noexcept
{
    if (found && found.used == textSize)
        v = static_cast<T>(found.value);
}

/** As AssignIfWhole(), for a number that its type can hold. */
template <class Float>
void AssignIfFinite(const Scanned<Float>& found, std::size_t textSize, Float& v) noexcept
{
    if (std::isfinite(found.value))
        AssignIfWhole(found, textSize, v);
}

template <class Small>
void ExchangeSigned(CESetObj& obj, const CString& name, Small& v)
{
    Exchange(
        obj, name, [&](wchar_t* out) { return vant::detail::WriteInt(out, v); },
        [&](std::wstring_view text) { AssignIfWhole(vant::detail::ScanInt(text), text.size(), v); });
}

template <class Small>
void ExchangeUnsigned(CESetObj& obj, const CString& name, Small& v)
{
    Exchange(
        obj, name, [&](wchar_t* out) { return vant::detail::WriteUnsigned(out, v); },
        [&](std::wstring_view text) { AssignIfWhole(vant::detail::ScanUnsigned(text), text.size(), v); });
}

/** Several doubles as one item; `set` is called when all of them could be read. */
template <std::size_t Count, class Set>
void ExchangeAll(CESetObj& obj, const CString& name, std::array<double, Count> values, Set set)
{
    static_assert(Count <= mostNumbers);
    Exchange(
        obj, name, [&](wchar_t* out) { return vant::detail::WriteDoubles(out, values); },
        [&](std::wstring_view text) {
            if (vant::detail::ScanDoubles(text, values) == Count)
                set(values);
        });
}

} // namespace

CESetObj::CESetObj(const CESetObj& other)
    : CLstMgd<CESetItm>(other)
    , m_name(other.m_name)
    , m_type(other.m_type)
    , m_col(other.m_col)
    , m_data(other.m_data)
{
}

CESetObj& CESetObj::operator=(const CESetObj& other)
{
    Rewound() = other;
    m_name = other.m_name;
    m_type = other.m_type;
    m_data = other.m_data;
    return *this;
}

int CESetObj::IsStoring() const noexcept
{
    return m_col != nullptr ? m_col->IsStoring() : 0;
}

void CESetObj::Add(const CString& name, CString fmt, ...)
{
    CString value;
    std::va_list args;
    va_start(args, fmt);
    value.FormatV(fmt, args);
    va_end(args);
    AppendItem(*this, name, value);
}

void CESetObj::Data(CString fmt, ...)
{
    auto line = std::make_unique<CString>();
    std::va_list args;
    va_start(args, fmt);
    line->FormatV(fmt, args);
    va_end(args);
    m_data.AddTail(line.get());
    line.release();
}

int CESetObj::GetItm(const CString& name, CString& value)
{
    const CESetItm* const item = vant::detail::FindFromCursor(
        *this, m_cursor, [&](const CESetItm& each) { return each.m_name == name; });
    if (item == nullptr)
        return 0;
    value = item->m_value;
    return 1;
}

void CESetObj::Item(const CString& name, unsigned char& v)
{
    ExchangeUnsigned(*this, name, v);
}

void CESetObj::Item(const CString& name, char& v)
{
    if (IsStoring()) {
        const wchar_t wide = vant::detail::WideChar(v);
        AppendItem(*this, name, CString(&wide, wide != 0 ? 1 : 0));
        return;
    }
    CString value;
    if (GetItm(name, value) && value.GetLength() == 1)
        static_cast<void>(vant::detail::NarrowChar(value[0], v));
}

void CESetObj::Item(const CString& name, unsigned long& v)
{
    constexpr std::wstring_view prefix = L"0x";
    Exchange(
        *this, name,
        [&](wchar_t* out) {
            out = std::copy(prefix.begin(), prefix.end(), out);
            return vant::detail::WriteHex(out, v);
        },
        [&](std::wstring_view text) {
            // The pattern's prefix is literal: lower case, and with no white space before it.
            if (!text.starts_with(prefix))
                return;
            text.remove_prefix(prefix.size());
            AssignIfWhole(vant::detail::ScanHex(text), text.size(), v);
        });
}

void CESetObj::Item(const CString& name, short& v)
{
    ExchangeSigned(*this, name, v);
}

void CESetObj::Item(const CString& name, unsigned short& v)
{
    ExchangeUnsigned(*this, name, v);
}

void CESetObj::Item(const CString& name, int& v)
{
    ExchangeSigned(*this, name, v);
}

void CESetObj::Item(const CString& name, unsigned int& v)
{
    ExchangeUnsigned(*this, name, v);
}

void CESetObj::Item(const CString& name, float& v)
{
    Exchange(
        *this, name, [&](wchar_t* out) { return vant::detail::WriteGeneral(out, double{v}); },
        [&](std::wstring_view text) { AssignIfFinite(vant::detail::ScanFloat(text), text.size(), v); });
}

void CESetObj::Item(const CString& name, double& v)
{
    Exchange(
        *this, name, [&](wchar_t* out) { return vant::detail::WriteGeneral(out, v); },
        [&](std::wstring_view text) { AssignIfFinite(vant::detail::ScanDouble(text), text.size(), v); });
}

void CESetObj::Item(const CString& name, CString& v)
{
    if (IsStoring())
        AppendItem(*this, name, v);
    else
        GetItm(name, v);
}

void CESetObj::Item(const CString& name, CV3& v)
{
    ExchangeAll<3>(*this, name, {v.x, v.y, v.z}, [&](const auto& values) {
        v = {values[0], values[1], values[2]};
    });
}

void CESetObj::Item(const CString& name, CMat& v)
{
    constexpr std::size_t rows = 3;
    constexpr std::size_t columns = 4;
    std::array<double, rows * columns> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = v.m[i / columns][i % columns];
    ExchangeAll(*this, name, values, [&](const auto& read) {
        for (std::size_t i = 0; i < read.size(); ++i)
            v.m[i / columns][i % columns] = read[i];
    });
}
