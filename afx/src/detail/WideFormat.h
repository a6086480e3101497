#pragma once

#include <cstdarg>
#include <cstddef>
#include <memory>

namespace vafx::detail
{

/** Collects the result of a formatting; short ones need no memory of the heap. */
class FormatSink
{
public:
    void Add(wchar_t unit)
    {
        if (m_size == m_capacity)
            Grow(1);
        m_data[m_size++] = unit;
    }
    void Add(const wchar_t* units, std::size_t count);
    void Add(const char* ascii, std::size_t count);
    void Fill(wchar_t unit, std::size_t count);

    const wchar_t* Data() const noexcept { return m_data; }
    std::size_t Size() const noexcept { return m_size; }

private:
    void Grow(std::size_t more);

    static constexpr std::size_t smallSize = 256;

    wchar_t m_small[smallSize];
    std::unique_ptr<wchar_t[]> m_heap;
    wchar_t* m_data = m_small;
    std::size_t m_size = 0;
    std::size_t m_capacity = smallSize;
};

/** Turns narrow text of the program's code page into wide text at the end of the sink. */
using NarrowDecoder = void (*)(const char* text, std::size_t length, FormatSink& out);

/** A field's width or precision above this is taken as this, so that a format cannot ask for all memory. */
constexpr int maxField = 1'000'000;

/** Formats like printf in the Microsoft dialect of wide formats: s and c take wide, S, hs, C and hc narrow
 *  text. It never looks at the locale, so that a number's point is a point everywhere. n writes nothing; an
 *  unknown conversion stands for its own letter. */
void FormatWide(FormatSink& out, const wchar_t* format, std::va_list args, NarrowDecoder decode);

} // namespace vafx::detail
