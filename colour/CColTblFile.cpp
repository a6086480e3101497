// CColTbl: tables from files.
#include "colour/CColTbl.h"

#include "colour/detail/ReadClt.h"
#include "platform/Vant.h"

#include <algorithm>
#include <memory>

using namespace vant::detail;

static_assert(CColTbl::mostEntries == cltMostEntries);

namespace
{

constexpr int longestName = 1'024; // characters
constexpr UINT mostBytes = 16U << 20;

void AlarmUnable(LPCWSTR what, const CString& name, const CString& path, LPCWSTR cause)
{
    constexpr unsigned long id = 70;
    constexpr int level = 1;
    Vant::Alarm(id, level, L"Colour Table <%s>: Unable to %s %s cause:%s", static_cast<LPCWSTR>(name), what,
                static_cast<LPCWSTR>(path), cause);
}

struct FileBytes {
    std::unique_ptr<std::byte[]> bytes;
    UINT size = 0;
};

/** @return CFileException::none, or why the file cannot be read */
int ReadBytes(const CString& path, FileBytes& read)
{
    CFile file;
    CFileException cause;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyNone | CFile::osSequentialScan, &cause))
        return cause.m_cause;
    try {
        const auto size = static_cast<UINT>(std::min<ULONGLONG>(file.GetLength(), mostBytes));
        read.bytes = std::make_unique_for_overwrite<std::byte[]>(size);
        read.size = file.Read(read.bytes.get(), size);
        return CFileException::none;
    } catch (CFileException* thrown) {
        const int reason = thrown->m_cause;
        thrown->Delete();
        return reason;
    }
}

CString HeaderName(const CltTable& table)
{
    // Enough for as many characters in every encoding, and a number that the system takes.
    constexpr std::size_t longest = std::size_t{longestName} * 4;
    const int bytes = static_cast<int>(std::min(table.name.size(), longest));
    wchar_t text[longest];
    const int length = ::MultiByteToWideChar(table.isUtf8 ? CP_UTF8 : CP_ACP, 0, table.name.data(), bytes,
                                             text, static_cast<int>(longest));
    return CString(text, std::min(length, longestName));
}

} // namespace

int CColTbl::Load(const CString& path)
{
    const CString from = path; // it may be a member of this table
    FileBytes read;
    const int cause = ReadBytes(from, read);
    if (cause != CFileException::none) {
        AlarmUnable(L"open", name, from, Vant::FileExceptionStr(cause));
        return 1;
    }
    CltTable table;
    if (!ReadClt(std::span(read.bytes.get(), read.size), table)) {
        AlarmUnable(L"read", name, from, L"The number of entries is not between 0 and 65536");
        return 1;
    }
    file = from;
    Vant::NamePart(from, name);
    if (!table.name.empty())
        name = HeaderName(table);
    cols.SetSize(static_cast<unsigned>(table.size));
    for (std::size_t i = 0; i < table.colours.size(); ++i) {
        const auto [red, green, blue] = table.colours[i];
        *cols[static_cast<unsigned>(i)] = CRgb(red, green, blue);
    }
    return 1;
}

void CColTbl::EnumColTbls(CString dir)
{
    if (dir.Right(1) != L"\\")
        dir += L"\\";
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(dir + L"*.clt", &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            continue;
        auto tbl = std::make_unique<CColTbl>();
        if (tbl->Load(dir + found.cFileName))
            s_colTbls.AddTail(tbl.release());
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
}
