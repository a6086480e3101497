// CStringW: searching, taking apart, changing and comparing.
#include <afx.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <functional>
#include <string_view>

namespace
{

std::wstring_view View(LPCWSTR text) noexcept
{
    return text != nullptr ? text : L"";
}

std::wstring_view View(const CStringW& text) noexcept
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

constexpr int Position(std::size_t found) noexcept
{
    return found == std::wstring_view::npos ? -1 : static_cast<int>(found);
}

bool IsBlank(wchar_t c) noexcept
{
    return std::iswspace(c) != 0;
}

auto Is(wchar_t ch) noexcept
{
    return [ch](wchar_t c) { return c == ch; };
}

auto IsIn(LPCWSTR set) noexcept
{
    return [set = View(set)](wchar_t c) { return set.find(c) != std::wstring_view::npos; };
}

int LeadingUnits(const CStringW& text, auto&& belongs)
{
    const std::wstring_view view = View(text);
    return static_cast<int>(std::find_if_not(view.begin(), view.end(), belongs) - view.begin());
}

int LengthWithoutTrailing(const CStringW& text, auto&& belongs)
{
    const std::wstring_view view = View(text);
    return static_cast<int>(view.rend() - std::find_if_not(view.rbegin(), view.rend(), belongs));
}

int CompareUserLanguage(const CStringW& a, LPCWSTR b, DWORD flags) noexcept
{
    const std::wstring_view other = View(b);
    return ::CompareStringW(LOCALE_USER_DEFAULT, flags, a, a.GetLength(), other.data(),
                            static_cast<int>(other.size())) -
           CSTR_EQUAL;
}

} // namespace

int CStringW::Find(wchar_t ch, int start) const noexcept
{
    if (start < 0 || start >= GetLength())
        return -1;
    return Position(View(*this).find(ch, static_cast<std::size_t>(start)));
}

int CStringW::Find(LPCWSTR part, int start) const noexcept
{
    if (part == nullptr || start < 0 || start > GetLength())
        return -1;
    return Position(View(*this).find(part, static_cast<std::size_t>(start)));
}

int CStringW::ReverseFind(wchar_t ch) const noexcept
{
    return Position(View(*this).rfind(ch));
}

int CStringW::FindOneOf(LPCWSTR set) const noexcept
{
    return Position(View(*this).find_first_of(View(set)));
}

CStringW CStringW::Mid(int first) const
{
    return Mid(first, GetLength());
}

CStringW CStringW::Mid(int first, int count) const
{
    const int length = GetLength();
    first = std::clamp(first, 0, length);
    count = std::clamp(count, 0, length - first);
    if (count == length)
        return *this;
    return CStringW(m_text + first, count);
}

CStringW CStringW::Left(int count) const
{
    return Mid(0, count);
}

CStringW CStringW::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CStringW CStringW::SpanIncluding(LPCWSTR set) const
{
    return Left(LeadingUnits(*this, IsIn(set)));
}

CStringW CStringW::SpanExcluding(LPCWSTR set) const
{
    return Left(LeadingUnits(*this, std::not_fn(IsIn(set))));
}

CStringW CStringW::Tokenize(LPCWSTR tokens, int& start) const
{
    if (start < 0)
        AfxThrowInvalidArgException();
    const std::wstring_view view = View(*this);
    const std::wstring_view separators = View(tokens);
    const std::size_t first = view.find_first_not_of(separators, static_cast<std::size_t>(start));
    if (first == std::wstring_view::npos) {
        start = -1;
        return {};
    }
    const std::size_t end = std::min(view.find_first_of(separators, first), view.size());
    start = static_cast<int>(std::min(end + 1, view.size() + 1));
    return Mid(static_cast<int>(first), static_cast<int>(end - first));
}

CStringW& CStringW::MakeUpper()
{
    if (!IsEmpty())
        ::CharUpperBuffW(GetBuffer(), static_cast<DWORD>(GetLength()));
    return *this;
}

CStringW& CStringW::MakeLower()
{
    if (!IsEmpty())
        ::CharLowerBuffW(GetBuffer(), static_cast<DWORD>(GetLength()));
    return *this;
}

CStringW& CStringW::MakeReverse()
{
    wchar_t* const text = GetBuffer();
    std::reverse(text, text + GetLength());
    return *this;
}

CStringW& CStringW::TrimLeft()
{
    Delete(0, LeadingUnits(*this, IsBlank));
    return *this;
}

CStringW& CStringW::TrimLeft(wchar_t ch)
{
    Delete(0, LeadingUnits(*this, Is(ch)));
    return *this;
}

CStringW& CStringW::TrimLeft(LPCWSTR set)
{
    Delete(0, LeadingUnits(*this, IsIn(set)));
    return *this;
}

CStringW& CStringW::TrimRight()
{
    Truncate(LengthWithoutTrailing(*this, IsBlank));
    return *this;
}

CStringW& CStringW::TrimRight(wchar_t ch)
{
    Truncate(LengthWithoutTrailing(*this, Is(ch)));
    return *this;
}

CStringW& CStringW::TrimRight(LPCWSTR set)
{
    Truncate(LengthWithoutTrailing(*this, IsIn(set)));
    return *this;
}

CStringW& CStringW::Trim()
{
    return TrimRight().TrimLeft();
}

CStringW& CStringW::Trim(wchar_t ch)
{
    return TrimRight(ch).TrimLeft(ch);
}

CStringW& CStringW::Trim(LPCWSTR set)
{
    return TrimRight(set).TrimLeft(set);
}

int CStringW::Replace(wchar_t from, wchar_t to)
{
    const std::wstring_view view = View(*this);
    const int count = static_cast<int>(std::count(view.begin(), view.end(), from));
    if (count == 0 || from == to)
        return from == to ? 0 : count;
    wchar_t* const text = GetBuffer();
    std::replace(text, text + GetLength(), from, to);
    return count;
}

int CStringW::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring_view old = View(from);
    const std::wstring_view fresh = View(to);
    if (old.empty())
        return 0;
    const std::wstring_view view = View(*this);
    CStringW result;
    int count = 0;
    std::size_t copied = 0;
    for (std::size_t at = view.find(old); at != std::wstring_view::npos; at = view.find(old, copied)) {
        result.Append(view.data() + copied, static_cast<int>(at - copied));
        result.Append(fresh.data(), static_cast<int>(fresh.size()));
        copied = at + old.size();
        ++count;
    }
    if (count > 0) {
        result.Append(view.data() + copied, static_cast<int>(view.size() - copied));
        Swap(result);
    }
    return count;
}

int CStringW::Remove(wchar_t ch)
{
    if (Find(ch) < 0)
        return 0;
    const int old = GetLength();
    wchar_t* const text = GetBuffer();
    SetLength(static_cast<int>(std::remove(text, text + old, ch) - text));
    return old - GetLength();
}

int CStringW::Insert(int at, wchar_t ch)
{
    const wchar_t text[2] = {ch, L'\0'};
    return Insert(at, text);
}

int CStringW::Insert(int at, LPCWSTR text)
{
    const std::wstring_view added = View(text);
    if (added.empty())
        return GetLength();
    at = std::clamp(at, 0, GetLength());
    CStringW result(m_text, at);
    result.Append(added.data(), static_cast<int>(added.size()));
    result.Append(m_text + at, GetLength() - at);
    Swap(result);
    return GetLength();
}

int CStringW::Delete(int at, int count)
{
    const int length = GetLength();
    at = std::clamp(at, 0, length);
    count = std::clamp(count, 0, length - at);
    if (count == 0)
        return length;
    wchar_t* const text = GetBuffer();
    std::copy(text + at + count, text + length, text + at);
    SetLength(length - count);
    return GetLength();
}

void CStringW::Truncate(int length)
{
    if (length < 0 || length > GetLength())
        AfxThrowInvalidArgException();
    if (length == GetLength())
        return;
    if (length == 0)
        return Empty();
    Own(length);
    SetLength(length);
}

int CStringW::Compare(LPCWSTR text) const noexcept
{
    return std::wcscmp(m_text, text != nullptr ? text : L"");
}

int CStringW::CompareNoCase(LPCWSTR text) const noexcept
{
    const std::wstring_view other = View(text);
    return ::CompareStringOrdinal(m_text, GetLength(), other.data(), static_cast<int>(other.size()), TRUE) -
           CSTR_EQUAL;
}

int CStringW::Collate(LPCWSTR text) const noexcept
{
    return CompareUserLanguage(*this, text, 0);
}

int CStringW::CollateNoCase(LPCWSTR text) const noexcept
{
    return CompareUserLanguage(*this, text, NORM_IGNORECASE);
}

CStringW operator+(const CStringW& a, const CStringW& b)
{
    CStringW sum;
    sum.Preallocate(a.GetLength() + b.GetLength());
    sum.Append(a, a.GetLength());
    sum.Append(b, b.GetLength());
    return sum;
}

CStringW operator+(const CStringW& a, LPCWSTR b)
{
    CStringW sum(a);
    sum.Append(b);
    return sum;
}

CStringW operator+(LPCWSTR a, const CStringW& b)
{
    CStringW sum(a);
    sum.Append(b, b.GetLength());
    return sum;
}

CStringW operator+(const CStringW& a, wchar_t b)
{
    CStringW sum(a);
    sum.AppendChar(b);
    return sum;
}

CStringW operator+(wchar_t a, const CStringW& b)
{
    CStringW sum(a);
    sum.Append(b, b.GetLength());
    return sum;
}

bool operator==(const CStringW& a, const CStringW& b) noexcept
{
    return View(a) == View(b);
}
