#include "settings/detail/AtomicFile.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cwchar>
#include <utility>

namespace vant::detail
{

const FileOps systemFileOps = {&::CreateFileW, &::WriteFile,   &::FlushFileBuffers,
                               &::CloseHandle, &::MoveFileExW, &::DeleteFileW};

namespace
{

constexpr int hexDigits = 8;
constexpr wchar_t extension[] = L".tmp";
constexpr std::size_t extensionSize = std::size(extension) - 1;
constexpr std::size_t suffixSize = 1 + hexDigits + 1 + hexDigits + extensionSize;

std::wstring Hex(std::uint32_t number)
{
    std::wstring text(hexDigits, L'0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, number >>= 4)
        *digit = L"0123456789abcdef"[number & 0xF];
    return text;
}

std::wstring Suffix(std::uint32_t number)
{
    return L"." + Hex(GetCurrentProcessId()) + L"-" + Hex(number) + extension;
}

/** The number of the process that made a file of our naming, or 0 for any other file. */
DWORD MakerOf(const std::wstring& name)
{
    if (name.size() <= suffixSize)
        return 0;
    const std::wstring suffix = name.substr(name.size() - suffixSize);
    const auto isHex = [&](std::size_t first) {
        return suffix.find_first_not_of(L"0123456789abcdef", first) >= first + hexDigits;
    };
    if (suffix[0] != L'.' || !isHex(1) || suffix[1 + hexDigits] != L'-' || !isHex(2 + hexDigits) ||
        suffix.substr(suffixSize - extensionSize) != extension)
        return 0;
    return std::wcstoul(suffix.substr(1, hexDigits).c_str(), nullptr, 16);
}

bool IsRunning(DWORD process)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, process);
    if (handle == nullptr)
        return GetLastError() != ERROR_INVALID_PARAMETER; // what Windows answers for a number nobody bears
    const bool running = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    CloseHandle(handle);
    return running;
}

} // namespace

AtomicFile::AtomicFile(std::wstring target, const FileOps& ops)
    : m_ops(ops)
    , m_target(std::move(target))
{
}

AtomicFile::~AtomicFile()
{
    Close();
    if (!m_beside.empty())
        m_ops.remove(m_beside.c_str());
}

bool AtomicFile::Open()
{
    bool isDevice = false;
    const bool opened = OpenTarget(isDevice) && (isDevice || OpenBeside());
    m_failed = !opened;
    return opened;
}

bool AtomicFile::OpenTarget(bool& isDevice)
{
    // Asks for what writing in place would need, so that a target that is locked or protected is refused.
    const HANDLE handle =
        m_ops.create(m_target.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                     nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    isDevice = GetFileType(handle) != FILE_TYPE_DISK;
    if (isDevice)
        m_handle = handle;
    else
        m_ops.close(handle);
    return true;
}

bool AtomicFile::OpenBeside()
{
    static std::atomic<std::uint32_t> s_number{0};
    constexpr int attempts = 1'000; // only names that a former process of the same number left can be taken
    for (int i = 0; i < attempts; ++i) {
        std::wstring name = m_target + Suffix(++s_number);
        m_handle =
            m_ops.create(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (m_handle != INVALID_HANDLE_VALUE) {
            m_beside = std::move(name);
            return true;
        }
        if (GetLastError() != ERROR_FILE_EXISTS && GetLastError() != ERROR_ALREADY_EXISTS)
            return false;
    }
    return false;
}

void AtomicFile::Write(const char* bytes, std::size_t count)
{
    constexpr std::size_t mostAtOnce = std::size_t{1} << 30;
    while (count != 0 && !m_failed) {
        const auto part = static_cast<DWORD>(std::min(count, mostAtOnce));
        DWORD written = 0;
        if (!m_ops.write(m_handle, bytes, part, &written, nullptr) || written == 0) {
            m_failed = true;
            return;
        }
        bytes += written;
        count -= written;
    }
}

bool AtomicFile::Commit()
{
    if (m_handle == INVALID_HANDLE_VALUE)
        return false;
    const bool isDevice = m_beside.empty();
    if (!isDevice && !m_failed)
        m_failed = !m_ops.flush(m_handle);
    const bool closed = Close();
    if (m_failed || !closed)
        return false;
    if (isDevice)
        return true;
    if (!Replace())
        return false;
    m_beside.clear();
    RemoveStale();
    return true;
}

bool AtomicFile::Close()
{
    if (m_handle == INVALID_HANDLE_VALUE)
        return true;
    return m_ops.close(std::exchange(m_handle, INVALID_HANDLE_VALUE)) != FALSE;
}

bool AtomicFile::Replace()
{
    // Virus scanners and indexers open a file for a moment whenever it changes; a real lock lasts longer.
    constexpr int attempts = 5;
    constexpr DWORD pause = 10; // milliseconds
    for (int i = 0; i < attempts; ++i) {
        if (i != 0)
            Sleep(pause);
        if (m_ops.move(m_beside.c_str(), m_target.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION)
            break;
    }
    return false;
}

void AtomicFile::RemoveStale() const
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((m_target + L".*" + extension).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    const std::wstring directory = m_target.substr(0, m_target.find_last_of(L"\\/:") + 1);
    do {
        const DWORD maker = MakerOf(found.cFileName);
        if (maker != 0 && !IsRunning(maker))
            m_ops.remove((directory + found.cFileName).c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

} // namespace vant::detail
