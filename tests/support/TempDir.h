#pragma once

#include <afx.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace vant::test
{

/** A directory of its own for one test, which goes with everything in it. */
class TempDir
{
public:
    TempDir()
    {
        static int count = 0;
        m_path = std::filesystem::temp_directory_path() /
                 (L"vant-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count));
        std::filesystem::create_directories(m_path);
    }
    ~TempDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    /** The path of a file in it; with an empty name its own, ending in a backslash. */
    CString Path(LPCWSTR name) const { return (m_path / name).c_str(); }

    /** The names of the files in it, without those of directories. */
    std::vector<std::wstring> Files() const
    {
        std::vector<std::wstring> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path)) {
            if (std::error_code ignored; !entry.is_directory(ignored))
                names.push_back(entry.path().filename().wstring());
        }
        return names;
    }

private:
    std::filesystem::path m_path;
};

} // namespace vant::test
