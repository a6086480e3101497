#pragma once

#include <filesystem>
#include <string>

#include <windows.h>

/** A file, or a place for one, among the temporary files; deleted with this object. */
class TempFile
{
public:
    explicit TempFile(const std::wstring& name)
        : m_path(std::filesystem::temp_directory_path() /
                 (L"vant-bench-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + name))
    {
        std::filesystem::remove(m_path);
    }
    ~TempFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    unsigned long long Size() const { return std::filesystem::file_size(m_path); }

private:
    std::filesystem::path m_path;
};
