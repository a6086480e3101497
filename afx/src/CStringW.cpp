#include <afx.h>

#include "detail/BlockCache.h"
#include "detail/CodePage.h"
#include "detail/NewHandler.h"
#include "detail/WideFormat.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <functional>
#include <new>

constinit CStringW::EmptyBlock CStringW::s_empty = {{0, 0, 0}, {L'\0'}};

namespace
{

constinit vafx::detail::BlockCache g_blocks;

/** Empties the cache when the module ends. */
struct CacheEnd {
    ~CacheEnd() { g_blocks.Close(); }
} const g_cacheEnd;

constexpr int maxLength = (INT_MAX - 64) / static_cast<int>(sizeof(wchar_t));

int LengthOf(LPCWSTR text)
{
    if (text == nullptr)
        return 0;
    const std::size_t length = std::wcslen(text);
    if (length > static_cast<std::size_t>(maxLength))
        AfxThrowMemoryException();
    return static_cast<int>(length);
}

void CopyUnits(wchar_t* to, LPCWSTR from, int count) noexcept
{
    std::memmove(to, from, static_cast<std::size_t>(count) * sizeof(wchar_t));
}

void DecodeNarrow(const char* text, std::size_t length, vafx::detail::FormatSink& out)
{
    const std::wstring wide = vafx::detail::Widen(text, length);
    out.Add(wide.data(), wide.size());
}

/** Runs a formatting that may find no memory. */
void FormatTo(vafx::detail::FormatSink& sink, LPCWSTR format, va_list args)
{
    try {
        vafx::detail::FormatWide(sink, format, args, DecodeNarrow);
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
}

} // namespace

CStringW::Block* CStringW::NewBlock(int capacity)
{
    if (capacity < 0 || capacity > maxLength)
        AfxThrowMemoryException();
    // Rounded up to the heap's grain, so that short appends often find room.
    constexpr std::size_t grain = vafx::detail::BlockCache::grain;
    const std::size_t bytes = sizeof(Block) + (static_cast<std::size_t>(capacity) + 1) * sizeof(wchar_t);
    const std::size_t rounded = (bytes + grain - 1) / grain * grain;
    void* memory = g_blocks.Take(rounded);
    if (memory == nullptr)
        memory = vafx::detail::Allocate(rounded);
    return new (memory) Block{1, 0, static_cast<int>((rounded - sizeof(Block)) / sizeof(wchar_t)) - 1};
}

void CStringW::FreeBlock(Block* block) noexcept
{
    const auto units = static_cast<std::size_t>(block->capacity) + 1;
    g_blocks.Give(block, sizeof(Block) + units * sizeof(wchar_t));
}

void CStringW::SetLength(int length) noexcept
{
    Head()->length = length;
    m_text[length] = L'\0';
}

/** Makes the block this text's alone, with room for @p capacity units, and keeps the contents. */
wchar_t* CStringW::Own(int capacity)
{
    const int length = GetLength();
    if (!IsShared() && GetAllocLength() >= capacity)
        return m_text;
    CStringW own(NewBlock(std::max(capacity, length)));
    CopyUnits(own.m_text, m_text, length);
    own.SetLength(length);
    Swap(own);
    return m_text;
}

CStringW::CStringW(LPCWSTR text)
    : CStringW()
{
    if (text != nullptr && IS_INTRESOURCE(text))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
    else
        SetString(text, LengthOf(text));
}

CStringW::CStringW(LPCSTR text)
    : CStringW()
{
    if (text != nullptr && IS_INTRESOURCE(text))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
    else
        *this = text;
}

CStringW::CStringW(const CStringA& text)
    : CStringW(text.GetString(), text.GetLength())
{
}

CStringW::CStringW(wchar_t ch, int repeat)
    : CStringW()
{
    if (repeat <= 0)
        return;
    std::fill_n(Own(repeat), repeat, ch);
    SetLength(repeat);
}

CStringW::CStringW(LPCWSTR text, int length)
    : CStringW()
{
    SetString(text, length);
}

CStringW::CStringW(LPCSTR text, int length)
    : CStringW()
{
    Assign(text, length);
}

void CStringW::Assign(const char* text, int length)
{
    if (text == nullptr || length <= 0)
        return Empty();
    try {
        const std::wstring wide = vafx::detail::Widen(text, static_cast<std::size_t>(length));
        SetString(wide.data(), static_cast<int>(wide.size()));
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
}

CStringW& CStringW::operator=(LPCWSTR text)
{
    SetString(text, LengthOf(text));
    return *this;
}

CStringW& CStringW::operator=(LPCSTR text)
{
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length > static_cast<std::size_t>(maxLength))
        AfxThrowMemoryException();
    Assign(text, static_cast<int>(length));
    return *this;
}

CStringW& CStringW::operator=(wchar_t ch)
{
    SetString(&ch, 1);
    return *this;
}

void CStringW::Empty() noexcept
{
    Release();
    m_text = EmptyText();
}

void CStringW::SetAt(int i, wchar_t ch)
{
    ASSERT(i >= 0 && i < GetLength());
    if (i < 0 || i >= GetLength())
        AfxThrowInvalidArgException();
    Own(GetLength())[i] = ch;
}

void CStringW::SetString(LPCWSTR text)
{
    SetString(text, LengthOf(text));
}

void CStringW::SetString(LPCWSTR text, int length)
{
    if (text == nullptr || length <= 0)
        return Empty();
    if (!IsShared() && GetAllocLength() >= length) {
        CopyUnits(m_text, text, length);
        SetLength(length);
        return;
    }
    CStringW own(NewBlock(length));
    CopyUnits(own.m_text, text, length);
    own.SetLength(length);
    Swap(own);
}

void CStringW::Append(LPCWSTR text)
{
    Append(text, LengthOf(text));
}

void CStringW::Append(LPCWSTR text, int length)
{
    if (text == nullptr || length <= 0)
        return;
    const int old = GetLength();
    if (length > maxLength - old)
        AfxThrowMemoryException();
    const int needed = old + length;
    const std::less_equal<> atMost;
    const bool inside = atMost(static_cast<LPCWSTR>(m_text), text) && atMost(text, m_text + old);
    const std::ptrdiff_t offset = inside ? text - m_text : 0;
    // Half as much again, so that a loop of appends costs linear time.
    Own(needed <= GetAllocLength() ? needed
                                   : std::max(needed, old <= maxLength / 3 * 2 ? old + old / 2 : needed));
    CopyUnits(m_text + old, inside ? m_text + offset : text, length);
    SetLength(needed);
}

void CStringW::AppendChar(wchar_t ch)
{
    Append(&ch, 1);
}

CStringW& CStringW::operator+=(const CStringW& text)
{
    Append(text, text.GetLength());
    return *this;
}

CStringW& CStringW::operator+=(LPCWSTR text)
{
    Append(text);
    return *this;
}

CStringW& CStringW::operator+=(LPCSTR text)
{
    return *this += CStringW(text);
}

CStringW& CStringW::operator+=(wchar_t ch)
{
    AppendChar(ch);
    return *this;
}

void CStringW::FormatV(LPCWSTR format, va_list args)
{
    if (format == nullptr)
        AfxThrowInvalidArgException();
    vafx::detail::FormatSink sink;
    FormatTo(sink, format, args);
    SetString(sink.Data(), static_cast<int>(sink.Size()));
}

void CStringW::AppendFormatV(LPCWSTR format, va_list args)
{
    if (format == nullptr)
        AfxThrowInvalidArgException();
    vafx::detail::FormatSink sink;
    FormatTo(sink, format, args);
    Append(sink.Data(), static_cast<int>(sink.Size()));
}

void CStringW::Format(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CStringW::Format(UINT formatId, ...)
{
    CStringW format;
    if (!format.LoadString(formatId))
        AfxThrowInvalidArgException();
    va_list args;
    va_start(args, formatId);
    FormatV(format, args);
    va_end(args);
}

void CStringW::AppendFormat(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    AppendFormatV(format, args);
    va_end(args);
}

LPWSTR CStringW::GetBuffer(int minLength)
{
    return Own(std::max(minLength, GetLength()));
}

LPWSTR CStringW::GetBuffer()
{
    return Own(GetLength());
}

LPWSTR CStringW::GetBufferSetLength(int length)
{
    GetBuffer(length);
    SetLength(std::max(length, 0));
    return m_text;
}

void CStringW::ReleaseBuffer(int newLength)
{
    if (newLength < 0) {
        const int capacity = GetAllocLength();
        newLength = static_cast<int>(std::find(m_text, m_text + capacity, L'\0') - m_text);
    }
    ReleaseBufferSetLength(newLength);
}

void CStringW::ReleaseBufferSetLength(int newLength)
{
    if (newLength < 0 || newLength > GetAllocLength())
        AfxThrowInvalidArgException();
    if (newLength == 0)
        return Empty();
    Own(newLength);
    SetLength(newLength);
}

void CStringW::Preallocate(int length)
{
    Own(std::max(length, GetLength()));
}

void CStringW::FreeExtra()
{
    CStringW exact(m_text, GetLength());
    if (exact.GetAllocLength() < GetAllocLength())
        Swap(exact);
}

BOOL CStringW::LoadString(UINT id)
{
    // String tables come in bundles of 16, numbered from 1.
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id / 16 + 1), RT_STRING);
    return LoadString(module, id);
}

BOOL CStringW::LoadString(HINSTANCE module, UINT id)
{
    // With a buffer length of 0 the call answers where the text lies in the module.
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0)
        return FALSE;
    SetString(text, length);
    return TRUE;
}
