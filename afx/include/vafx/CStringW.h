#pragma once

#include "vafx/api.h"

#include <atomic>
#include <cstdarg>
#include <windows.h>

class CStringA;

/** A wide text of any length, one pointer in size. Copies share one block, which counts its users atomically;
 *  the first change of a shared text makes a copy of its own. The empty text needs no block. Different
 * objects may be used from different threads even when they share a block; one object may not be changed by
 * two.
 *
 *  Positions count from 0 and are in 16-bit units; a position outside the text is moved to its nearer end.
 *  Exhausted memory throws CMemoryException. Narrow text is in the system's 8-bit code page. */
class VAFX_API CStringW
{
public:
    using XCHAR = wchar_t;
    using YCHAR = char;
    using PXSTR = LPWSTR;
    using PCXSTR = LPCWSTR;

    CStringW() noexcept
        : m_text(EmptyText())
    {
    }
    CStringW(const CStringW& other) noexcept
        : m_text(other.m_text)
    {
        AddRef();
    }
    CStringW(CStringW&& other) noexcept
        : m_text(other.m_text)
    {
        other.m_text = EmptyText();
    }
    /** A null pointer makes an empty text; one whose high word is 0 is a resource id (MAKEINTRESOURCE). */
    CStringW(LPCWSTR text);
    CStringW(LPCSTR text);
    CStringW(const CStringA& text);
    explicit CStringW(wchar_t ch, int repeat = 1);
    /** The first @p length units of @p text, which may hold zeros. */
    CStringW(LPCWSTR text, int length);
    CStringW(LPCSTR text, int length);
    ~CStringW() { Release(); }

    CStringW& operator=(const CStringW& other) noexcept
    {
        CStringW(other).Swap(*this);
        return *this;
    }
    CStringW& operator=(CStringW&& other) noexcept
    {
        Swap(other);
        return *this;
    }
    CStringW& operator=(LPCWSTR text);
    CStringW& operator=(LPCSTR text);
    CStringW& operator=(wchar_t ch);

    operator LPCWSTR() const noexcept { return m_text; }
    /** The text's address, for handing it through a "..." to a formatting function. */
    LPCWSTR GetString() const noexcept { return m_text; }
    int GetLength() const noexcept { return Head()->length; }
    bool IsEmpty() const noexcept { return Head()->length == 0; }
    /** Makes the text empty and frees its block. */
    void Empty() noexcept;
    /** @return The unit at @p i; 0 at the end. @p i must lie within 0 to the length. */
    wchar_t GetAt(int i) const noexcept { return m_text[i]; }
    wchar_t operator[](int i) const noexcept { return m_text[i]; }
    /** Replaces one unit; @p i must lie within the text. */
    void SetAt(int i, wchar_t ch);
    /** Replaces the text; @p text may point into this one. */
    void SetString(LPCWSTR text);
    void SetString(LPCWSTR text, int length);

    void Append(LPCWSTR text);
    void Append(LPCWSTR text, int length);
    void AppendChar(wchar_t ch);
    CStringW& operator+=(const CStringW& text);
    CStringW& operator+=(LPCWSTR text);
    CStringW& operator+=(LPCSTR text);
    CStringW& operator+=(wchar_t ch);

    /** @name Formatting
     *  printf-style in the Microsoft dialect of wide formats: %%s and %%c take wide text, %%S, %%hs, %%C and
     *  %%hc narrow; I, I32, I64, h, l, ll, w, z, t and j are the sizes. Numbers always have a decimal point,
     *  exponents at least two digits. The result may be of any length. Arguments may point into this text. */
    ///@{
    void Format(LPCWSTR format, ...);
    void Format(UINT formatId, ...);
    void AppendFormat(LPCWSTR format, ...);
    void FormatV(LPCWSTR format, va_list args);
    void AppendFormatV(LPCWSTR format, va_list args);
    ///@}

    /** @name Searching
     *  @return The position, or -1 when nothing was found. */
    ///@{
    int Find(wchar_t ch, int start = 0) const noexcept;
    int Find(LPCWSTR part, int start = 0) const noexcept;
    int ReverseFind(wchar_t ch) const noexcept;
    int FindOneOf(LPCWSTR set) const noexcept;
    ///@}

    /** @name Parts */
    ///@{
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;
    CStringW Left(int count) const;
    CStringW Right(int count) const;
    /** The longest beginning that consists only of units in @p set. */
    CStringW SpanIncluding(LPCWSTR set) const;
    /** The longest beginning that holds no unit of @p set. */
    CStringW SpanExcluding(LPCWSTR set) const;
    /** The next piece between any of @p tokens, skipping leading ones.
     *  @param start Where to begin, first 0; is set behind the piece, to -1 when there is none. */
    CStringW Tokenize(LPCWSTR tokens, int& start) const;
    ///@}

    /** @name Changing */
    ///@{
    CStringW& MakeUpper();
    CStringW& MakeLower();
    CStringW& MakeReverse();
    CStringW& Trim();
    CStringW& Trim(wchar_t ch);
    CStringW& Trim(LPCWSTR set);
    CStringW& TrimLeft();
    CStringW& TrimLeft(wchar_t ch);
    CStringW& TrimLeft(LPCWSTR set);
    CStringW& TrimRight();
    CStringW& TrimRight(wchar_t ch);
    CStringW& TrimRight(LPCWSTR set);
    /** @return The number of replacements. */
    int Replace(wchar_t from, wchar_t to);
    int Replace(LPCWSTR from, LPCWSTR to);
    /** Removes every @p ch. @return How many there were. */
    int Remove(wchar_t ch);
    /** Inserts before position @p at. @return The new length. */
    int Insert(int at, wchar_t ch);
    int Insert(int at, LPCWSTR text);
    /** Removes @p count units from @p at on. @return The new length. */
    int Delete(int at, int count = 1);
    /** Cuts the text off; @p length must not exceed GetLength. */
    void Truncate(int length);
    ///@}

    /** @name Comparing
     *  @return Below 0, 0 or above 0, as this text comes before, equals or comes after @p text. */
    ///@{
    int Compare(LPCWSTR text) const noexcept;
    int CompareNoCase(LPCWSTR text) const noexcept;
    /** In the order of the user's language. */
    int Collate(LPCWSTR text) const noexcept;
    int CollateNoCase(LPCWSTR text) const noexcept;
    ///@}

    /** @name The text as a buffer
     *  The pointer is good until the next call on this text other than ReleaseBuffer. */
    ///@{
    /** A buffer of at least @p minLength units and a final 0, holding the text. */
    LPWSTR GetBuffer(int minLength);
    LPWSTR GetBuffer();
    /** Like GetBuffer, with the text's length set at once to @p length. */
    LPWSTR GetBufferSetLength(int length);
    /** Ends the use of a buffer. @param newLength The new length; -1: up to the first 0. */
    void ReleaseBuffer(int newLength = -1);
    void ReleaseBufferSetLength(int newLength);
    /** Provides for a text of @p length units. */
    void Preallocate(int length);
    /** @return How many units fit without a new block. */
    int GetAllocLength() const noexcept { return Head()->capacity; }
    void FreeExtra();
    ///@}

    /** Loads a text from the resources (AfxFindResourceHandle). @return FALSE: there is none; the text keeps.
     */
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);

private:
    struct Block {
        std::atomic<int> users; // 0: the common empty text, which is never freed
        int length;
        int capacity;
    };
    struct EmptyBlock {
        Block head;
        wchar_t text[1];
    };

    explicit CStringW(Block* block) noexcept
        : m_text(reinterpret_cast<wchar_t*>(block + 1))
    {
    }

    static wchar_t* EmptyText() noexcept { return s_empty.text; }
    Block* Head() const noexcept { return reinterpret_cast<Block*>(m_text) - 1; }
    void AddRef() const noexcept
    {
        if (m_text != EmptyText())
            Head()->users.fetch_add(1, std::memory_order_relaxed);
    }
    void Release() const noexcept
    {
        Block* const head = Head();
        if (m_text != EmptyText() && head->users.fetch_sub(1, std::memory_order_acq_rel) == 1)
            FreeBlock(head);
    }
    void Swap(CStringW& other) noexcept
    {
        wchar_t* const mine = m_text;
        m_text = other.m_text;
        other.m_text = mine;
    }
    bool IsShared() const noexcept { return Head()->users.load(std::memory_order_acquire) != 1; }

    static Block* NewBlock(int capacity);
    static void FreeBlock(Block* block) noexcept;
    void SetLength(int length) noexcept;
    wchar_t* Own(int capacity);
    void Assign(const char* text, int length);

    static EmptyBlock s_empty;

    wchar_t* m_text;
};

VAFX_API CStringW operator+(const CStringW& a, const CStringW& b);
VAFX_API CStringW operator+(const CStringW& a, LPCWSTR b);
VAFX_API CStringW operator+(LPCWSTR a, const CStringW& b);
VAFX_API CStringW operator+(const CStringW& a, wchar_t b);
VAFX_API CStringW operator+(wchar_t a, const CStringW& b);

VAFX_API bool operator==(const CStringW& a, const CStringW& b) noexcept;
inline bool operator==(const CStringW& a, LPCWSTR b) noexcept
{
    return a.Compare(b) == 0;
}
inline bool operator!=(const CStringW& a, const CStringW& b) noexcept
{
    return !(a == b);
}
inline bool operator!=(const CStringW& a, LPCWSTR b) noexcept
{
    return a.Compare(b) != 0;
}
inline bool operator==(LPCWSTR a, const CStringW& b) noexcept
{
    return b.Compare(a) == 0;
}
inline bool operator!=(LPCWSTR a, const CStringW& b) noexcept
{
    return b.Compare(a) != 0;
}
inline bool operator<(const CStringW& a, const CStringW& b) noexcept
{
    return a.Compare(b) < 0;
}
inline bool operator<(const CStringW& a, LPCWSTR b) noexcept
{
    return a.Compare(b) < 0;
}
inline bool operator<(LPCWSTR a, const CStringW& b) noexcept
{
    return b.Compare(a) > 0;
}
inline bool operator>(const CStringW& a, const CStringW& b) noexcept
{
    return a.Compare(b) > 0;
}
inline bool operator>(const CStringW& a, LPCWSTR b) noexcept
{
    return a.Compare(b) > 0;
}
inline bool operator>(LPCWSTR a, const CStringW& b) noexcept
{
    return b.Compare(a) < 0;
}
inline bool operator<=(const CStringW& a, const CStringW& b) noexcept
{
    return a.Compare(b) <= 0;
}
inline bool operator<=(const CStringW& a, LPCWSTR b) noexcept
{
    return a.Compare(b) <= 0;
}
inline bool operator<=(LPCWSTR a, const CStringW& b) noexcept
{
    return b.Compare(a) >= 0;
}
inline bool operator>=(const CStringW& a, const CStringW& b) noexcept
{
    return a.Compare(b) >= 0;
}
inline bool operator>=(const CStringW& a, LPCWSTR b) noexcept
{
    return a.Compare(b) >= 0;
}
inline bool operator>=(LPCWSTR a, const CStringW& b) noexcept
{
    return b.Compare(a) <= 0;
}

/** The text type of this build: UNICODE is always defined. */
using CString = CStringW;
