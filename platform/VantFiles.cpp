#include "platform/Vant.h"

#include "core/detail/FileHandle.h"
#include "core/detail/TextView.h"
#include "platform/detail/Append.h"
#include "platform/detail/Paths.h"

#include <mutex>
#include <string>
#include <string_view>

using namespace vant::detail;

namespace
{

constexpr unsigned long appendAlarm = 6010;
constexpr unsigned long directoryAlarm = 0;

bool IsDirectory(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsMissingDrive(std::wstring_view component)
{
    if (component.size() != 2 || component[1] != L':')
        return false;
    const wchar_t letter = static_cast<wchar_t>(component[0] | 0x20);
    return letter >= L'a' && letter <= L'z' && (GetLogicalDrives() >> (letter - L'a') & 1) == 0;
}

// With the right to append and none to write, the system itself finds the end, whoever else appends.
HANDLE OpenForAppending(const CString& file)
{
    return CreateFileW(file, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/** Text in the system's 8-bit code page; short texts need no memory of their own. */
class CCodePageText
{
public:
    explicit CCodePageText(const CString& text)
    {
        // Four bytes per character suffice for every code page of Windows.
        constexpr int most = static_cast<int>(sizeof m_short / 4);
        const int length = text.GetLength();
        if (length <= most) {
            m_size = Convert(text, length, m_short, static_cast<int>(sizeof m_short));
            return;
        }
        m_long.resize(Convert(text, length, nullptr, 0));
        m_data = m_long.data();
        m_size = Convert(text, length, m_long.data(), static_cast<int>(m_long.size()));
    }
    CCodePageText(const CCodePageText&) = delete;
    CCodePageText& operator=(const CCodePageText&) = delete;

    std::string_view Bytes() const noexcept { return {m_data, m_size}; }

private:
    static DWORD Convert(const CString& text, int length, char* target, int room)
    {
        const int bytes =
            length > 0 ? WideCharToMultiByte(CP_ACP, 0, text, length, target, room, nullptr, nullptr) : 0;
        return static_cast<DWORD>(bytes);
    }

    char m_short[1024];
    std::string m_long;
    const char* m_data = m_short;
    DWORD m_size = 0;
};

// Not every file system finds the end of a file and writes there in one step.
std::mutex appending;

/** True while this thread reports a failure. The line of that alarm may fail for the same reason, and must
 * not be reported in turn without end. */
thread_local bool reporting = false;

bool Report(unsigned long id, const CString& text)
{
    if (reporting)
        return false;
    const CString format(L"%s");
    reporting = true;
    Vant::Alarm(id, 1, format, text.GetString());
    reporting = false;
    return true;
}

/** Vant::CreateDirPath(), which tells of a failure with an alarm or not. */
bool MakeDirectories(const CString& path, bool tells)
{
    const std::wstring_view whole = View(path);
    if (IsDirectory(std::wstring(whole)))
        return true;
    for (const std::size_t end : DirectoryEnds(whole)) {
        const std::wstring part(whole.substr(0, end));
        if (IsDirectory(part) || CreateDirectoryW(part.c_str(), nullptr))
            continue;
        DWORD error = GetLastError();
        // Another thread or process may have made it in between.
        if (error == ERROR_ALREADY_EXISTS && IsDirectory(part))
            continue;
        if (IsMissingDrive(part))
            error = ERROR_INVALID_DRIVE;
        if (tells && error == ERROR_INVALID_DRIVE)
            Report(directoryAlarm, L"Cannot create directory Invalid Drive");
        else if (tells)
            Report(directoryAlarm, L"Cannot create directory, Err=" + Vant::ErrorString(error));
        return false;
    }
    return true;
}

// Junctions and links are not followed: what they lead to belongs to somebody else.
void ClearDirectory(const std::wstring& dir, std::wstring_view pattern)
{
    WIN32_FIND_DATAW entry = {};
    const HANDLE find = FindFirstFileW((dir + L"*").c_str(), &entry);
    if (find == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::wstring_view name = entry.cFileName;
        if (name == L"." || name == L"..")
            continue;
        const std::wstring path = dir + entry.cFileName;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            if (MatchesPattern(name, pattern))
                DeleteFileW(path.c_str());
        } else if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
            ClearDirectory(path + L"\\", pattern);
            RemoveDirectoryW(path.c_str());
        }
    } while (FindNextFileW(find, &entry));
    FindClose(find);
}

} // namespace

namespace vant::detail
{

std::string CodePageBytes(const CString& text)
{
    return std::string(CCodePageText(text).Bytes());
}

Appended Append(const CString& file, std::string_view bytes, const CString* text)
{
    // The directory is there for every line but the first, so it is made only when opening says that it is
    // missing.
    HANDLE handle = OpenForAppending(file);
    if (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_PATH_NOT_FOUND &&
        MakeDirectories(file.Left(static_cast<int>(NameStart(View(file)))), text != nullptr))
        handle = OpenForAppending(file);
    const FileHandle owner(handle);
    const auto fail = [&](std::size_t written, const CString& cause) {
        const bool told = text && Report(appendAlarm, L"Append To File: Could not open file <" + file +
                                                          L"> to log string <" + *text + L">" + cause);
        return Appended{written, false, told};
    };
    if (!owner.IsOpen())
        return fail(0, L"");
    DWORD written = 0;
    bool failed = false;
    LONG error = ERROR_DISK_FULL; // what a short write means
    {
        const std::lock_guard oneAtATime(appending);
        failed = !WriteFile(owner.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        if (failed)
            error = static_cast<LONG>(GetLastError());
    }
    if (failed || written < bytes.size())
        return fail(written, L" cause:" + Vant::FileExceptionStr(CFileException::OsErrorToException(error)));
    return {written, true, false};
}

} // namespace vant::detail

void Vant::AppendToFile(CString file, CString text)
{
    if (!file.IsEmpty())
        Append(file, CCodePageText(text).Bytes(), &text);
}

int Vant::CreateDirPath(CString path)
{
    return MakeDirectories(path, true) ? 1 : 0;
}

void Vant::ClearDirOfFiles(CString dir, CString pattern)
{
    if (dir.IsEmpty())
        return;
    std::wstring start(View(dir));
    if (start.back() != L'\\' && start.back() != L'/')
        start += L'\\';
    ClearDirectory(start, View(pattern));
}

int Vant::NamePart(const CString& path, CString& name)
{
    const std::size_t start = NameStart(View(path));
    // The result may be the argument itself.
    name = path.Mid(static_cast<int>(start));
    return start > 0 ? 1 : 0;
}

CString Vant::ErrorString(unsigned long err)
{
    wchar_t* buffer = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        err, LANG_USER_DEFAULT, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    CString text;
    if (length > 0)
        text = CString(buffer, static_cast<int>(length));
    else
        text.Format(L"Error %lu", err);
    LocalFree(buffer);
    // The system ends its messages with a line break, which would break the lines of a log.
    text.TrimRight();
    return text;
}

CString Vant::FileExceptionStr(int cause)
{
    switch (cause) {
    case CFileException::none:
        return L"No Error";
    case CFileException::genericException:
        return L"An unspecified error occurred.";
    case CFileException::fileNotFound:
        return L"The file could not be located";
    case CFileException::badPath:
        return L"All or part of the path is invalid.";
    case CFileException::tooManyOpenFiles:
        return L"The permitted number of open files was exceeded.";
    case CFileException::accessDenied:
        return L"The file could not be accessed.";
    case CFileException::invalidFile:
        return L"There was an attempt to use an invalid file handle.";
    case CFileException::removeCurrentDir:
        return L"The current working directory cannot be removed.";
    case CFileException::directoryFull:
        return L"There are no more directory entries.";
    case CFileException::badSeek:
        return L"There was an error trying to set the file pointer.";
    case CFileException::hardIO:
        return L"There was a hardware error.";
    case CFileException::sharingViolation:
        return L"SHARE.EXE was not loaded, or a shared region was locked.";
    case CFileException::lockViolation:
        return L"There was an attempt to lock a region that was already locked.";
    case CFileException::diskFull:
        return L"The disk is full.";
    case CFileException::endOfFile:
        return L"The end of file was reached.";
    default:
        return L"Unknown Error";
    }
}
