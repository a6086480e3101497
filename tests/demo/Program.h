#pragma once

#include "demo/Files.h"

#include <gtest/gtest.h>

#include <charconv>
#include <iterator>
#include <string>

#include <windows.h>

/** @file
 *  VantDemo.exe as a user starts it, and what it leaves. */

/** Where the tests' programs stand. */
inline fs::path TestDir()
{
    wchar_t self[1024];
    const DWORD length = ::GetModuleFileNameW(nullptr, self, static_cast<DWORD>(std::size(self)));
    return fs::path(std::wstring(self, length)).parent_path();
}

inline constexpr DWORD patience = 100000; // milliseconds until a run counts as hanging

/** A started VantDemo whose output goes to files. */
class Program
{
public:
    /** @param dir  its working directory, where its output goes too  @param bin  where it stands
     *  @param name  of the files of its output */
    Program(const fs::path& dir, const std::wstring& arguments, const fs::path& bin = TestDir(),
            const std::string& name = "std")
        : m_out(dir / (name + "out.txt"))
        , m_err(dir / (name + "err.txt"))
    {
        const fs::path exe = bin / "VantDemo.exe";
        std::wstring line = L"\"" + exe.wstring() + L"\" " + arguments;

        const HANDLE out = Create(m_out);
        const HANDLE err = Create(m_err);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = out;
        start.hStdError = err;
        if (!::CreateProcessW(exe.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, dir.c_str(),
                              &start, &m_process))
            ADD_FAILURE() << "VantDemo.exe does not start: " << ::GetLastError();
        ::CloseHandle(out);
        ::CloseHandle(err);
    }

    ~Program()
    {
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    int ExitCode()
    {
        if (::WaitForSingleObject(m_process.hProcess, patience) != WAIT_OBJECT_0) {
            ::TerminateProcess(m_process.hProcess, 99);
            ::WaitForSingleObject(m_process.hProcess, patience);
        }
        DWORD code = 98;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return static_cast<int>(code);
    }

    std::string Out() const { return Contents(m_out); }
    std::string Err() const { return Contents(m_err); }

    /** Its main window, once it is visible. */
    HWND Window() const
    {
        for (DWORD waited = 0; waited < patience; waited += 20) {
            Search search{m_process.dwProcessId, nullptr};
            ::EnumWindows(
                [](HWND wnd, LPARAM param) -> BOOL {
                    auto& s = *reinterpret_cast<Search*>(param);
                    DWORD process = 0;
                    ::GetWindowThreadProcessId(wnd, &process);
                    if (process == s.process && ::IsWindowVisible(wnd) && !::GetWindow(wnd, GW_OWNER))
                        s.wnd = wnd;
                    return s.wnd == nullptr;
                },
                reinterpret_cast<LPARAM>(&search));
            if (search.wnd)
                return search.wnd;
            ::Sleep(20);
        }
        return nullptr;
    }

private:
    struct Search {
        DWORD process;
        HWND wnd;
    };

    static HANDLE Create(const fs::path& path)
    {
        SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
        return ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS, 0,
                             nullptr);
    }

    fs::path m_out;
    fs::path m_err;
    PROCESS_INFORMATION m_process{};
};

/** The text of an item in a settings file. */
inline std::string Item(const std::string& settings, const std::string& name)
{
    const std::string begin = std::string("<") + name + " val=\"";
    const std::size_t at = settings.find(begin);
    if (at == std::string::npos)
        return "no " + name;
    const std::size_t from = at + begin.size();
    return settings.substr(from, settings.find('"', from) - from);
}

inline int Number(const std::string& settings, const std::string& name)
{
    const std::string text = Item(settings, name);
    int value = -12345;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}
