#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/** @file
 *  Writes a settings file as bytes. */

namespace vant::detail
{

/** Puts the lines of the file together in a buffer, and hands it on whenever it is full.
 *
 *  Nothing is escaped: names and values go out as they are. Line ends, also those inside a value, become
 *  carriage return and line feed, as in any file written as text. A field ends at a NUL.
 *
 *  `Encode` turns a field with characters beyond ASCII into bytes of the code page:
 *  `std::string(std::basic_string_view<Char>)`. `Drain` takes `(const char*, std::size_t)`. */
template <class Char, class Encode, class Drain>
class SetWriter
{
public:
    using Text = std::basic_string_view<Char>;

    static constexpr std::size_t usualSize = std::size_t{1} << 18;

    /** @param bufferSize  in bytes; every piece of the file that is no field must fit into it */
    SetWriter(Encode encode, Drain drain, std::size_t bufferSize = usualSize)
        : m_encode(std::move(encode))
        , m_drain(std::move(drain))
        , m_buffer(bufferSize)
    {
    }

    void Begin(Text date)
    {
        Put("<?xml version=\"1.0\" ?>\r\n<Corvane date=\"");
        Put(date);
        Put("\">\r\n");
    }

    void BeginCollection(Text name)
    {
        Put("\t<Collection name=\"");
        Put(name);
        Put("\">\r\n");
    }

    void BeginObject(Text name, Text type)
    {
        Put("\t\t<Object name=\"");
        Put(name);
        Put("\" type=\"");
        Put(type);
        Put("\">\r\n");
    }

    void Item(Text name, Text value)
    {
        if (PutPlainItem(name, value))
            return;
        Put(itemStart);
        Put(name);
        Put(itemMiddle);
        Put(value);
        Put(itemEnd);
    }

    void Data(Text text)
    {
        Put("\t\t\t<Data>");
        Put(text);
        Put("</Data>\r\n");
    }

    void EndObject() { Put("\t\t</Object>\r\n"); }
    void EndCollection() { Put("\t</Collection>\r\n"); }

    /** Closes the root element and hands on what is left. */
    void End()
    {
        Put("</Corvane>\r\n");
        Flush();
    }

private:
    static constexpr std::string_view itemStart = "\t\t\t<";
    static constexpr std::string_view itemMiddle = " val=\"";
    static constexpr std::string_view itemEnd = "\"/>\r\n";

    /** An item as nearly all are: one that fits the buffer, of characters that go out as they are. False, and
     *  nothing put, for any other. */
    bool PutPlainItem(Text name, Text value)
    {
        const std::size_t size =
            itemStart.size() + name.size() + itemMiddle.size() + value.size() + itemEnd.size();
        if (m_buffer.size() - m_size < size)
            Flush();
        if (m_buffer.size() < size)
            return false;
        char* const out = m_buffer.data() + m_size;
        char* const middle = out + itemStart.size() + name.size();
        char* const end = middle + itemMiddle.size() + value.size();
        if (!Narrow(name, out + itemStart.size()) || !Narrow(value, middle + itemMiddle.size()))
            return false;
        std::memcpy(out, itemStart.data(), itemStart.size());
        std::memcpy(middle, itemMiddle.data(), itemMiddle.size());
        std::memcpy(end, itemEnd.data(), itemEnd.size());
        m_size += size;
        return true;
    }

    /** Narrows a text of plain characters; false when there is another one in it. Takes four at a time: a
     *  settings file is mostly that. */
    static bool Narrow(Text text, char* out) noexcept
    {
        const Char* const in = text.data();
        if constexpr (sizeof(Char) == sizeof(std::uint16_t)) {
            constexpr std::size_t step = sizeof(std::uint64_t) / sizeof(Char);
            if (text.size() >= step) {
                const std::size_t last = text.size() - step; // may overlap the step before
                for (std::size_t i = 0; i < last; i += step) {
                    if (!NarrowFour(in + i, out + i))
                        return false;
                }
                return NarrowFour(in + last, out + last);
            }
        }
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!IsPlain(in[i]))
                return false;
            out[i] = static_cast<char>(in[i]);
        }
        return true;
    }

    static bool NarrowFour(const Char* in, char* out) noexcept
    {
        constexpr std::uint64_t lanes = 0x0001'0001'0001'0001U;
        std::uint64_t word = 0;
        std::memcpy(&word, in, sizeof word);
        const bool ascii = (word & lanes * 0xFF80U) == 0;
        // A carry into a lane's bit 7 tells characters from the blank on.
        if (!ascii || ((word + lanes * (0x80U - ' ')) & lanes * 0x80U) != lanes * 0x80U)
            return false;
        word = (word | word >> 8) & 0x0000'FFFF'0000'FFFFU;
        const auto bytes = static_cast<std::uint32_t>(word | word >> 16);
        std::memcpy(out, &bytes, sizeof bytes);
        return true;
    }

    void Flush()
    {
        m_drain(m_buffer.data(), m_size);
        m_size = 0;
    }

    void Put(std::string_view text)
    {
        if (m_buffer.size() - m_size < text.size())
            Flush();
        text.copy(m_buffer.data() + m_size, text.size());
        m_size += text.size();
    }

    void Put(Text text)
    {
        if (m_buffer.size() - m_size < text.size()) {
            Flush();
            if (text.size() > m_buffer.size())
                return PutEncoded(text.substr(0, text.find(Char(0))));
        }
        char* out = m_buffer.data() + m_size;
        for (const Char c : text) {
            if (!IsPlain(c))
                return PutEncoded(text.substr(0, text.find(Char(0))));
            *out++ = static_cast<char>(c);
        }
        m_size += text.size();
    }

    static constexpr bool IsPlain(Char c) noexcept
    {
        return static_cast<unsigned>(c) - ' ' < 0x80U - ' ' || c == Char('\t');
    }

    void PutEncoded(Text text)
    {
        const std::string bytes = m_encode(text);
        for (std::string_view rest = bytes; !rest.empty();) {
            const std::size_t run = rest.find('\n');
            PutAnySize(rest.substr(0, run));
            if (run == rest.npos)
                break;
            Put("\r\n");
            rest.remove_prefix(run + 1);
        }
    }

    void PutAnySize(std::string_view text)
    {
        for (; text.size() > m_buffer.size(); text.remove_prefix(m_buffer.size()))
            Put(text.substr(0, m_buffer.size()));
        Put(text);
    }

    Encode m_encode;
    Drain m_drain;
    std::vector<char> m_buffer;
    std::size_t m_size = 0;
};

} // namespace vant::detail
