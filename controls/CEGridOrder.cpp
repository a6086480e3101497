// CEGrid: sorting, persistence, and the text of what is selected.
#include "controls/CEGrid.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/TabText.h"
#include "platform/Vant.h"
#include "settings/CESetObj.h"
#include "values/EUnits.h"
#include "values/detail/ValueType.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

using vant::detail::TypeOf;

namespace
{

constexpr int alarmCopy = 41;

/** What orders texts as the user's language does, upper and lower case being the same. */
std::string SortKeyOf(const CString& text)
{
    constexpr DWORD how = LCMAP_SORTKEY | NORM_IGNORECASE;
    const auto length = ::LCMapStringW(LOCALE_USER_DEFAULT, how, text, text.GetLength(), nullptr, 0);
    if (length <= 0)
        return {};
    std::string key(static_cast<std::size_t>(length), '\0');
    // Of a sort key the system counts bytes, although it takes them as characters.
    ::LCMapStringW(LOCALE_USER_DEFAULT, how, text, text.GetLength(), reinterpret_cast<LPWSTR>(key.data()),
                   length);
    return key;
}

/** A name as the settings can keep it. */
CString ItemName(const CString& name)
{
    CString item;
    for (int i = 0; i < name.GetLength(); ++i) {
        const wchar_t c = name[i];
        const bool keeps = (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
        item += keeps ? c : L'_';
    }
    return item;
}

/** Gives the clipboard to a text. */
bool PutOnClipboard(CWnd& owner, std::wstring_view text)
{
    // Programs that watch the clipboard have it for a moment after every change.
    constexpr int attempts = 5;
    constexpr DWORD pause = 10; // milliseconds
    int attempt = 1;
    while (!owner.OpenClipboard()) {
        if (attempt++ == attempts)
            return false;
        ::Sleep(pause);
    }
    ::EmptyClipboard();
    const std::size_t bytes = text.size() * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes + sizeof(wchar_t));
    auto* const to = memory ? static_cast<char*>(::GlobalLock(memory)) : nullptr;
    if (to) {
        std::memcpy(to, text.data(), bytes);
        std::memset(to + bytes, 0, sizeof(wchar_t));
        ::GlobalUnlock(memory);
    }
    const bool taken = to && ::SetClipboardData(CF_UNICODETEXT, memory);
    // The system owns what it has taken.
    if (memory && !taken)
        ::GlobalFree(memory);
    ::CloseClipboard();
    return taken;
}

} // namespace

bool CEGrid::IsSortedBySource(int col) const noexcept
{
    const CEGridCol* const column = GetCol(col);
    return column && !column->m_first && m_source && m_sort;
}

int CEGrid::Sort(int col, int dir)
{
    const bool sorts = dir != sortNone && GetCol(col);
    if (dir != sortNone && !sorts)
        return 0;
    const bool bySource = sorts && IsSortedBySource(col);
    const bool wasBySource = IsSortedBySource(m_sortCol);
    // Under the field there would be another row, and would get what is being typed.
    if (m_editing && (bySource || wasBySource))
        return 0;
    const int row = CurRow();
    if (bySource && !(m_source->*m_sort)(col, dir))
        return 0;
    if (wasBySource && !bySource)
        (m_source->*m_sort)(m_sortCol, sortNone);
    const bool byValues = sorts && !bySource;
    m_sortCol = sorts ? col : -1;
    m_sortDir = sorts ? (dir < 0 ? sortDown : sortUp) : sortNone;
    const Cell before = m_sel.Current();
    m_order.Clear();
    if (byValues)
        SortByValues(col, dir < 0);
    // What the source has put in order is at other places, which it alone knows.
    m_sel.Go({bySource || wasBySource ? before.row : PlaceOf(row), before.col});
    ShowPlace(m_sel.Current().row, m_sel.Current().col);
    Refresh();
    return 1;
}

void CEGrid::SortByValues(int col, bool descending)
{
    const auto rows = static_cast<std::size_t>(m_rows);
    const auto keysOf = [this, rows, col](auto none, auto keyOf) {
        std::vector<decltype(none)> keys(rows, none);
        int row = 0;
        for (auto& key : keys) {
            if (const CEVal* const val = ValueAt(row++, col))
                key = keyOf(*val);
        }
        return keys;
    };
    const CEGridCol& column = *GetCol(col);
    bool hasOwn = false;
    for (const auto& [place, val] : m_cells)
        hasOwn = hasOwn || place.second == col;
    if (!column.IsNumber())
        m_order.Sort(keysOf(std::string(), [](const CEVal& val) { return SortKeyOf(val.GetText(0)); }),
                     descending);
    else if (vant::detail::IsIntegerType(TypeOf(column.type)) && !hasOwn)
        m_order.Sort(keysOf(std::int64_t{0}, vant::detail::IntegerOf), descending);
    else
        m_order.Sort(keysOf(std::numeric_limits<double>::quiet_NaN(), vant::detail::NumberOf), descending);
}

CString CEGrid::HeadingText(int col) const
{
    const CEGridCol& column = *GetCol(col);
    const CString unit = EUnits::Get(column.units);
    return unit.IsEmpty() ? column.heading : column.heading + L" " + unit;
}

std::wstring CEGrid::TabTextOf(bool withHeadings)
{
    vant::detail::TabText rows;
    const std::vector<bool> used = m_sel.Columns();
    const auto addRow = [&](auto textOf) {
        for (int col = 0; col < ColCount(); ++col) {
            if (used[static_cast<std::size_t>(col)] && !GetCol(col)->hidden) {
                const CString cell = textOf(col);
                rows.AddCell({static_cast<LPCWSTR>(cell), static_cast<std::size_t>(cell.GetLength())});
            }
        }
        rows.EndRow();
    };
    const auto spans = m_sel.RowSpans();
    if (withHeadings && !spans.empty())
        addRow([this](int col) { return HeadingText(col); });
    for (const auto& [first, last] : spans) {
        for (int place = first; place <= last; ++place)
            addRow([this, place](int col) {
                return m_sel.Has(place, col) ? CellText(RowAt(place), col) : CString();
            });
    }
    return rows.Text();
}

CString CEGrid::SelText(bool withHeadings)
{
    return TabTextOf(withHeadings).c_str();
}

int CEGrid::Copy(bool withHeadings)
{
    if (PutOnClipboard(*this, TabTextOf(withHeadings)))
        return 1;
    Vant::Alarm(alarmCopy, 1, L"Unable to copy");
    return 0;
}

void CEGrid::Settings(CESetObj& obj)
{
    if (aux1.IsEmpty())
        return;
    const CString prefix = ItemName(aux1);
    for (const auto& col : m_cols) {
        int width = col->width;
        obj.Item(prefix + L"_Width_" + ItemName(col->name), width);
        if (obj.IsLoading())
            col->width = vant::detail::ColumnLayout::Fit(width);
    }
    const CString none = L"-";
    CString by = m_sortCol >= 0 ? ItemName(GetCol(m_sortCol)->name) : none;
    int dir = m_sortDir;
    obj.Item(prefix + L"_SortBy", by);
    obj.Item(prefix + L"_SortOrder", dir);
    if (!obj.IsLoading())
        return;
    int found = -1;
    for (int col = ColCount() - 1; col >= 0; --col) {
        if (ItemName(GetCol(col)->name) == by)
            found = col;
    }
    if (found != m_sortCol || dir != m_sortDir)
        Sort(found, found < 0 ? static_cast<int>(sortNone) : dir);
    Refresh();
}
