// CVantWnd: option strings and persistence.
#include "controls/CVantWnd.h"

#include "controls/CECheck.h"
#include "core/detail/NumberText.h"
#include "settings/CESet.h"

#include <string_view>

namespace
{

constexpr std::size_t optionMax = 2048; // characters of a name or a value
constexpr LPCWSTR collection = L"VantWnds";
constexpr std::wstring_view whiteSpace = L" \t\n\v\f\r";

std::wstring_view View(const CString& text)
{
    return {static_cast<LPCWSTR>(text), static_cast<std::size_t>(text.GetLength())};
}

std::wstring_view Trimmed(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

CString Text(std::wstring_view text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

bool ScanInt(const CString& text, int& value)
{
    const auto scanned = vant::detail::ScanInt(View(text));
    if (scanned)
        value = scanned.value;
    return static_cast<bool>(scanned);
}

} // namespace

void CVantWnd::ParseOptions(const CString& options, int direct)
{
    std::wstring_view rest = View(options);
    while (!rest.empty()) {
        const std::size_t comma = rest.find(L',');
        const std::wstring_view piece = rest.substr(0, comma);
        rest = comma == std::wstring_view::npos ? std::wstring_view() : rest.substr(comma + 1);

        const std::size_t equals = piece.find(L'=');
        if (equals == std::wstring_view::npos || equals > optionMax)
            continue;
        const std::wstring_view option = Trimmed(piece.substr(0, equals));
        const std::wstring_view value = Trimmed(piece.substr(equals + 1, optionMax));
        if (option.empty() || value.empty())
            continue;
        if (direct)
            CVantWnd::SetOption(Text(option), Text(value));
        else
            SetOption(Text(option), Text(value));
    }
}

void CVantWnd::SetOption(const CString& option, const CString& value)
{
    if (option == L"Name")
        name = value;
    else if (option == L"Topic")
        topic = value;
    else if (option == L"Level")
        ScanInt(value, level);
    else if (option == L"Fixed" && ScanInt(value, fixed))
        isFixed = 1;
}

void CVantWnd::Settings(CESetObj& obj)
{
    obj.Item(L"Level", level);
    CtrlSettings(obj);
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;) {
        CCtrlCat* const cat = m_cats.GetNext(pos);
        cat->Settings(obj);
        if (obj.IsLoading() && cat->m_hdrCheck)
            cat->m_hdrCheck->Update(1);
    }
    if (obj.IsLoading() && m_hWnd)
        LayoutWnd();
}

void CVantWnd::SaveSet(CESet& set)
{
    CESetCol* const col = set.AddCol(collection);
    for (CVantPtr* pos = s_wnds.GetHeadPos(); pos;) {
        CVantWnd* const wnd = s_wnds.GetNext(pos);
        const CString type(wnd->GetRuntimeClass()->m_lpszClassName);
        wnd->Settings(*col->AddObj(wnd->name, type));
    }
}

void CVantWnd::LoadSet(CESet& set)
{
    CESetCol* const col = set.GetCol(collection);
    if (!col)
        return;
    for (CVantPtr* pos = col->GetHeadPos(); pos;) {
        CESetObj* const obj = col->GetNext(pos);
        if (CVantWnd* const wnd = GetWnd(obj->m_name))
            wnd->Settings(*obj);
    }
}
