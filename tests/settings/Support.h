#pragma once

#include "settings/CESet.h"
#include "tests/support/TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <windows.h>

namespace support
{

inline std::string Narrow(std::wstring_view text)
{
    std::string narrow;
    for (const wchar_t c : text) {
        if (c < 0x80) {
            narrow += static_cast<char>(c);
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(c));
            narrow += escape;
        }
    }
    return narrow;
}

inline std::string Narrow(const CString& text)
{
    return Narrow(std::wstring_view(text.GetString(), static_cast<std::size_t>(text.GetLength())));
}

inline std::string Narrow(const wchar_t* text)
{
    return Narrow(std::wstring_view(text));
}

/** Names the file that most tests need. */
class TempDir : public vant::test::TempDir
{
public:
    CString File(const wchar_t* name = L"VantApp.xml") const { return Path(name); }
};

inline void WriteBytes(const CString& file, std::string_view bytes)
{
    const HANDLE handle =
        CreateFileW(file, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(handle);
    ASSERT_EQ(written, bytes.size());
}

/** "" when there is no such file. */
inline std::string ReadBytes(const CString& file)
{
    const HANDLE handle =
        CreateFileW(file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    std::string bytes(GetFileSize(handle, nullptr), '\0');
    DWORD count = 0;
    ReadFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
    CloseHandle(handle);
    bytes.resize(count);
    return bytes;
}

/** The whole tree on one line: Col{Obj:Type{item=value;*data line;}} */
inline std::string Dump(const CESet& set)
{
    std::ostringstream out;
    for (CVantPtr* c = set.GetHeadPos(); c != nullptr;) {
        const CESetCol& col = *set.GetNext(c);
        out << Narrow(col.m_name) << '{';
        for (CVantPtr* o = col.GetHeadPos(); o != nullptr;) {
            const CESetObj& obj = *col.GetNext(o);
            out << Narrow(obj.m_name) << ':' << Narrow(obj.m_type) << '{';
            for (CVantPtr* i = obj.GetHeadPos(); i != nullptr;) {
                const CESetItm& item = *obj.GetNext(i);
                out << Narrow(item.m_name) << '=' << Narrow(item.m_value) << ';';
            }
            for (CVantPtr* d = obj.m_data.GetHeadPos(); d != nullptr;)
                out << '*' << Narrow(*obj.m_data.GetNext(d)) << ';';
            out << '}';
        }
        out << '}';
    }
    return out.str();
}

/** The tree that a file of these bytes gives. */
inline std::string DumpOfFile(std::string_view bytes)
{
    const TempDir dir;
    WriteBytes(dir.File(), bytes);
    CESet set(0);
    EXPECT_NE(set.Load(dir.File()), 0);
    return Dump(set);
}

/** A path that exists on the systems these tests usually run on (Wine on Linux) and can stand for a condition
 * that is hard to make elsewhere; tests skip where it does not exist. @{ */
inline const wchar_t* const fullDevice = L"Z:\\dev\\full";
inline const wchar_t* const readOnlyDirectory = L"Z:\\sys";
/** @} */

/** Devices have no attributes to ask for, so this opens. */
inline bool Exists(const wchar_t* path)
{
    const HANDLE handle = CreateFileW(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return handle != INVALID_HANDLE_VALUE && CloseHandle(handle);
}

} // namespace support
