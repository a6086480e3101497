#pragma once

#include <windows.h>

namespace vant::detail
{

/** One file handle of the system (what CreateFile answers), closed when it goes. */
class FileHandle
{
public:
    explicit FileHandle(HANDLE handle) noexcept
        : m_handle(handle)
    {
    }
    ~FileHandle()
    {
        if (IsOpen())
            ::CloseHandle(m_handle);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const noexcept { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const noexcept { return m_handle; }

private:
    HANDLE m_handle;
};

} // namespace vant::detail
