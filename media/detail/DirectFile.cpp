#include "media/detail/DirectFile.h"

#include <atomic>
#include <string>

namespace vant::detail
{

namespace
{

constexpr FOURCC procedure = mmioFOURCC('V', 'N', 'T', ' ');
constexpr LRESULT failed = -1;

/** What is being opened on this thread. */
struct Opening {
    LPCWSTR path;
    HMMIO file;
};
thread_local Opening* opening = nullptr;

std::atomic<bool> isOfUse = true; // until the library turns out not to ask

HANDLE FileOf(const MMIOINFO& info)
{
    return reinterpret_cast<HANDLE>(
        static_cast<UINT_PTR>(info.adwInfo[0])); // handles have 32 bits that count
}

LRESULT Open(MMIOINFO& info)
{
    const HANDLE file = opening ? ::CreateFileW(opening->path, GENERIC_READ | GENERIC_WRITE,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                                                FILE_ATTRIBUTE_NORMAL, nullptr)
                                : INVALID_HANDLE_VALUE;
    if (file == INVALID_HANDLE_VALUE)
        return MMIOERR_CANNOTOPEN;
    info.adwInfo[0] = static_cast<DWORD>(reinterpret_cast<UINT_PTR>(file));
    info.lDiskOffset = 0;
    opening->file = info.hmmio;
    return MMSYSERR_NOERROR;
}

LRESULT Seek(MMIOINFO& info, LONG distance, int origin)
{
    LARGE_INTEGER move{};
    LARGE_INTEGER place{};
    move.QuadPart = distance;
    if (!::SetFilePointerEx(FileOf(info), move, &place, static_cast<DWORD>(origin)) ||
        place.QuadPart > LONG_MAX)
        return failed;
    return info.lDiskOffset = static_cast<LONG>(place.QuadPart);
}

/** How the multimedia system reaches the file, as documented for its I/O procedures. */
LRESULT CALLBACK FileProc(LPSTR data, UINT message, LPARAM first, LPARAM second)
{
    auto& info = *reinterpret_cast<MMIOINFO*>(data);
    DWORD done = 0;
    switch (message) {
    case MMIOM_OPEN:
        return Open(info);
    case MMIOM_CLOSE:
        ::CloseHandle(FileOf(info));
        return MMSYSERR_NOERROR;
    case MMIOM_READ:
        if (!::ReadFile(FileOf(info), reinterpret_cast<void*>(first), static_cast<DWORD>(second), &done,
                        nullptr))
            return failed;
        break;
    case MMIOM_WRITE:
    case MMIOM_WRITEFLUSH:
        if (!::WriteFile(FileOf(info), reinterpret_cast<const void*>(first), static_cast<DWORD>(second),
                         &done, nullptr))
            return failed;
        break;
    case MMIOM_SEEK:
        return Seek(info, static_cast<LONG>(first), static_cast<int>(second));
    default:
        return MMSYSERR_NOERROR;
    }
    info.lDiskOffset += static_cast<LONG>(done);
    return static_cast<LRESULT>(done);
}

/** A name that leads to FileProc(). Should the library take it for that of a file, it is one without harm. */
std::wstring NameOfOurKind()
{
    wchar_t folder[MAX_PATH + 1]{};
    ::GetTempPathW(MAX_PATH + 1, folder);
    return folder + (L"video" + std::to_wstring(::GetCurrentProcessId())) + L".vnt+direct.avi";
}

} // namespace

IAVIFile* OpenDirect(HRESULT (*open)(IAVIFile**, LPCWSTR, UINT), ULONG (*release)(IAVIFile*), LPCWSTR path,
                     UINT mode)
{
    if (!isOfUse || !::mmioInstallIOProcW(procedure, &FileProc, MMIO_INSTALLPROC))
        return nullptr;
    const std::wstring name = NameOfOurKind();
    Opening current{path, nullptr};
    opening = &current;
    IAVIFile* file = nullptr;
    const HRESULT result = open(&file, name.c_str(), mode);
    opening = nullptr;
    ::mmioInstallIOProcW(procedure, nullptr, MMIO_REMOVEPROC);
    if (FAILED(result))
        return nullptr;
    if (current.file) {
        ::mmioSetBuffer(current.file, nullptr, 0, 0);
        return file;
    }
    isOfUse = false;
    release(file);
    ::DeleteFileW(name.c_str());
    return nullptr;
}

} // namespace vant::detail
