#include "demo/run/CRunLock.h"

#include "demo/run/Terminal.h"

namespace demo
{
namespace
{

constexpr const wchar_t* property = L"VantDemo.Directory";
constexpr ULONGLONG patience = 10000; // milliseconds that a program may take to start or to end
constexpr ULONGLONG quiet = 500;      // of them without a word
constexpr DWORD step = 50;

/** A number that the directory has under all of its names; 0 when it cannot be asked. */
ULONGLONG KeyOf(const std::wstring& dir)
{
    const HANDLE handle =
        ::CreateFileW(dir.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return 0;
    BY_HANDLE_FILE_INFORMATION info{};
    const BOOL known = ::GetFileInformationByHandle(handle, &info);
    ::CloseHandle(handle);
    if (!known)
        return 0;
    constexpr ULONGLONG mix = 0x9E3779B97F4A7C15; // odd: no two numbers of a volume become one
    const ULONGLONG number = (ULONGLONG{info.nFileIndexHigh} << 32) | info.nFileIndexLow;
    return number * mix + info.dwVolumeSerialNumber;
}

} // namespace

CRunLock::~CRunLock()
{
    Release();
}

void CRunLock::Release()
{
    if (m_isHeld)
        ::ReleaseMutex(m_mutex);
    if (m_mutex)
        ::CloseHandle(m_mutex);
    m_isHeld = false;
    m_mutex = nullptr;
}

bool CRunLock::Take(const std::wstring& dir)
{
    Release();
    m_key = KeyOf(dir);
    if (m_key == 0)
        return true;
    wchar_t name[64];
    ::wsprintfW(name, L"Global\\VantDemo.%08x%08x", static_cast<unsigned>(m_key >> 32),
                static_cast<unsigned>(m_key));
    m_mutex = ::CreateMutexW(nullptr, FALSE, name);
    if (!m_mutex)
        return ::GetLastError() != ERROR_ACCESS_DENIED; // which means another user's
    const ULONGLONG start = ::GetTickCount64();
    for (bool told = false;;) {
        const DWORD answer = ::WaitForSingleObject(m_mutex, step);
        m_isHeld = answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
        const ULONGLONG waited = ::GetTickCount64() - start;
        if (m_isHeld || OtherWindow() || waited >= patience)
            return m_isHeld;
        if (waited >= quiet && !told) {
            Say(L"waiting for the VantDemo that uses the directory to end");
            told = true;
        }
    }
}

void CRunLock::Mark(HWND wnd) const
{
    if (m_key != 0)
        ::SetPropW(wnd, property, reinterpret_cast<HANDLE>(m_key));
}

void CRunLock::Unmark(HWND wnd)
{
    ::RemovePropW(wnd, property);
}

HWND CRunLock::OtherWindow() const
{
    struct Search {
        HANDLE key;
        HWND found = nullptr;
    } search{reinterpret_cast<HANDLE>(m_key)};
    ::EnumWindows(
        [](HWND wnd, LPARAM param) -> BOOL {
            auto& s = *reinterpret_cast<Search*>(param);
            if (::GetPropW(wnd, property) == s.key)
                s.found = wnd;
            return s.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::wstring CRunLock::ShowOther() const
{
    const HWND wnd = OtherWindow();
    if (!wnd)
        return L"it has no window here";
    if (::IsHungAppWindow(wnd))
        return L"it does not answer";
    // Not waited for: the other one may be busy.
    if (::IsIconic(wnd))
        ::ShowWindowAsync(wnd, SW_RESTORE);
    ::SetForegroundWindow(::GetLastActivePopup(wnd));
    return L"its window is in front now";
}

} // namespace demo
