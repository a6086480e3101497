#pragma once

#include <afx.h>

/** A directory of its own for one test, which goes with everything in it. */
class TempDir
{
public:
    TempDir()
    {
        wchar_t base[MAX_PATH + 1] = {};
        ::GetTempPathW(MAX_PATH, base);
        static int count = 0;
        m_path.Format(L"%svant-%lu-%d", base, ::GetCurrentProcessId(), ++count);
        ::CreateDirectoryW(m_path, nullptr);
    }
    ~TempDir() { Clear(m_path); }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    CString Path(LPCWSTR name) const { return m_path + L'\\' + name; }

private:
    static void Clear(const CString& directory)
    {
        WIN32_FIND_DATAW entry = {};
        const HANDLE search = ::FindFirstFileW(directory + L"\\*", &entry);
        if (search != INVALID_HANDLE_VALUE) {
            do {
                const CString path = directory + L'\\' + entry.cFileName;
                if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
                    ::DeleteFileW(path);
                else if (entry.cFileName[0] != L'.')
                    Clear(path);
            } while (::FindNextFileW(search, &entry));
            ::FindClose(search);
        }
        ::RemoveDirectoryW(directory);
    }

    CString m_path;
};
