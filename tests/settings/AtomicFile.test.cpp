// A save that fails or is interrupted leaves the previous file as it was, and nothing beside it.

#include "tests/settings/Support.h"

#include "settings/detail/AtomicFile.h"
#include "tests/settings/SaverTrees.h"

#include <algorithm>
#include <memory>
#include <random>
#include <thread>

namespace
{

using support::ReadBytes;
using support::TempDir;
using support::WriteBytes;
using vant::detail::AtomicFile;
using vant::detail::FileOps;
using vant::detail::systemFileOps;

/** The system's functions, of which one call fails. */
struct Faulty {
    enum Step { create, write, flush, close, move, steps };

    static bool Fails(Step step)
    {
        if (step != s_step || s_calls-- != 0)
            return false;
        SetLastError(ERROR_DISK_FULL);
        return true;
    }

    static HANDLE WINAPI Create(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                                DWORD how, DWORD flags, HANDLE model)
    {
        return Fails(create) ? INVALID_HANDLE_VALUE
                             : CreateFileW(name, access, share, security, how, flags, model);
    }
    static BOOL WINAPI Write(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, LPOVERLAPPED overlapped)
    {
        if (Fails(write)) { // a disk that fills up takes a part
            WriteFile(file, bytes, size / 2, written, overlapped);
            SetLastError(ERROR_DISK_FULL);
            return FALSE;
        }
        return WriteFile(file, bytes, size, written, overlapped);
    }
    static BOOL WINAPI Flush(HANDLE file) { return !Fails(flush) && FlushFileBuffers(file); }
    static BOOL WINAPI Close(HANDLE file)
    {
        const bool fails = Fails(close);
        return CloseHandle(file) && !fails;
    }
    static BOOL WINAPI Move(LPCWSTR from, LPCWSTR to, DWORD flags)
    {
        return !Fails(move) && MoveFileExW(from, to, flags);
    }

    static inline Step s_step = steps;
    static inline int s_calls = 0; // before the one that fails
    static constexpr FileOps ops = {&Create, &Write, &Flush, &Close, &Move, &DeleteFileW};
};

bool Replace(const CString& file, const std::string& bytes, const FileOps& ops = systemFileOps)
{
    AtomicFile target(file.GetString(), ops);
    if (!target.Open())
        return false;
    const std::size_t half = bytes.size() / 2;
    target.Write(bytes.data(), half);
    target.Write(bytes.data() + half, bytes.size() - half);
    return target.Commit();
}

int SaveSmallTree(const CString& file)
{
    CESet set(1);
    set.AddCol(L"c");
    return set.Save(file);
}

/** The file without its date, which changes from save to save. */
std::string Body(const std::string& bytes)
{
    const std::size_t body = bytes.find("\r\n\t");
    return body == bytes.npos ? bytes : bytes.substr(body);
}

} // namespace

TEST(AtomicFile, ReplacesAndCreates)
{
    const TempDir dir;
    EXPECT_TRUE(Replace(dir.File(), "new"));
    EXPECT_EQ(ReadBytes(dir.File()), "new");
    EXPECT_TRUE(Replace(dir.File(), ""));
    EXPECT_EQ(ReadBytes(dir.File()), "");
    EXPECT_TRUE(Replace(dir.File(), std::string(1'000'000, 'x')));
    EXPECT_EQ(ReadBytes(dir.File()).size(), 1'000'000U);
    EXPECT_EQ(dir.Files().size(), 1U);
}

TEST(AtomicFile, KeepsTheOldFileWhicheverStepFails)
{
    const struct {
        Faulty::Step step;
        int calls;
    } faults[] = {{Faulty::create, 0}, {Faulty::create, 1}, {Faulty::write, 0}, {Faulty::write, 1},
                  {Faulty::flush, 0},  {Faulty::close, 1},  {Faulty::move, 0}};
    for (const auto& fault : faults) {
        for (const bool exists : {true, false}) {
            if (!exists && (fault.step == Faulty::close || fault.calls == 1))
                continue; // without a target there is one call less
            const TempDir dir;
            if (exists)
                WriteBytes(dir.File(), "old");
            Faulty::s_step = fault.step;
            Faulty::s_calls = fault.calls;
            EXPECT_FALSE(Replace(dir.File(), "new contents", Faulty::ops))
                << fault.step << ' ' << fault.calls;
            EXPECT_LT(Faulty::s_calls, 0) << "the step was not reached";
            EXPECT_EQ(ReadBytes(dir.File()), exists ? "old" : "");
            EXPECT_EQ(dir.Files().size(), exists ? 1U : 0U) << fault.step << ' ' << fault.calls;
        }
    }
}

TEST(AtomicFile, GivesUpWithoutCommit)
{
    const TempDir dir;
    WriteBytes(dir.File(), "old");
    {
        AtomicFile target(dir.File().GetString());
        ASSERT_TRUE(target.Open());
        target.Write("new", 3);
        EXPECT_EQ(dir.Files().size(), 2U);
    }
    EXPECT_EQ(ReadBytes(dir.File()), "old");
    EXPECT_EQ(dir.Files().size(), 1U);
}

TEST(AtomicFile, RemovesOnlyWhatKilledProcessesLeft)
{
    const TempDir dir;
    const CString strangers[] = {dir.File(L"VantApp.xml.tmp"), dir.File(L"VantApp.xml.0000000x-00000001.tmp"),
                                 dir.File(L"Other.xml.00fffff8-00000001.tmp")};
    for (const CString& stranger : strangers)
        WriteBytes(stranger, "a user's");
    wchar_t own[64];
    _snwprintf(own, 63, L"VantApp.xml.%08x-7fffffff.tmp", static_cast<unsigned>(GetCurrentProcessId()));
    WriteBytes(dir.File(own), "of a process that runs");
    WriteBytes(dir.File(L"VantApp.xml.00fffff8-00000001.tmp"), "of one that does not");
    ASSERT_TRUE(Replace(dir.File(), "new"));
    EXPECT_EQ(dir.Files().size(), 5U);
    EXPECT_EQ(ReadBytes(dir.File(L"VantApp.xml.00fffff8-00000001.tmp")), "");
    EXPECT_EQ(ReadBytes(dir.File(own)), "of a process that runs");
}

TEST(CESetSave, FailsWithoutADirectory)
{
    const TempDir dir;
    EXPECT_EQ(SaveSmallTree(dir.File(L"missing\\VantApp.xml")), 0);
    EXPECT_EQ(SaveSmallTree(dir.File(L"")), 0);
    EXPECT_EQ(SaveSmallTree(L""), 0);
    EXPECT_TRUE(dir.Files().empty());
}

TEST(CESetSave, LeavesALockedFileAlone)
{
    const TempDir dir;
    for (const DWORD share : {DWORD{0}, DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
        WriteBytes(dir.File(), "old");
        const HANDLE lock = CreateFileW(dir.File(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        EXPECT_EQ(SaveSmallTree(dir.File()), 0) << share;
        CloseHandle(lock);
        EXPECT_EQ(ReadBytes(dir.File()), "old");
        EXPECT_EQ(dir.Files().size(), 1U);
    }
    EXPECT_NE(SaveSmallTree(dir.File()), 0);
}

TEST(CESetSave, ReportsAFullDisk)
{
    if (!support::Exists(support::fullDevice))
        GTEST_SKIP() << "this system has no device that is always full";
    EXPECT_EQ(SaveSmallTree(support::fullDevice), 0);
    EXPECT_TRUE(support::Exists(support::fullDevice)) << "the device was replaced by a file";
}

TEST(CESetSave, WritesToADeviceDirectly)
{
    EXPECT_NE(SaveSmallTree(L"NUL"), 0);
}

TEST(CESetSave, ReportsADirectoryThatTakesNoFiles)
{
    if (!support::Exists(support::readOnlyDirectory))
        GTEST_SKIP() << "this system has no directory that nobody may write to";
    EXPECT_EQ(SaveSmallTree(CString(support::readOnlyDirectory) + L"\\VantApp.xml"), 0);
}

namespace
{

/** Starts the saver on a file of its own and kills it at a random moment, over and over. */
class Killer
{
public:
    Killer(const TempDir& dir, int number)
        : m_dir(dir)
        , m_random(static_cast<unsigned>(number))
    {
        m_name = L"Killed" + std::to_wstring(number) + L".xml";
        const std::wstring ready = L"VantSaver" + std::to_wstring(GetCurrentProcessId()) + m_name;
        m_started = CreateEventW(nullptr, FALSE, FALSE, ready.c_str());
        wchar_t program[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, program, MAX_PATH);
        *(std::wcsrchr(program, L'\\') + 1) = L'\0';
        m_command.Format(L"\"%ssettings_saver.exe\" \"%s\" %s", program, File().GetString(), ready.c_str());
        for (const int which : {0, 1}) {
            EXPECT_NE(SaverTree(which).Save(File()), 0);
            m_bodies[which] = Body(ReadBytes(File()));
        }
        EXPECT_NE(m_bodies[0], m_bodies[1]);
    }
    ~Killer() { CloseHandle(m_started); }

    void Run(int kills)
    {
        while (kills-- > 0 && damaged.empty() && !failed) {
            Kill();
            const std::string body = Body(ReadBytes(File()));
            if (body != m_bodies[0] && body != m_bodies[1])
                damaged = body.empty() ? "(no file)" : body;
            ++seen[body == m_bodies[1]];
            interrupted += FilesOfMine() > 1;
        }
    }

    CString File() const { return m_dir.File(m_name.c_str()); }

    std::ptrdiff_t FilesOfMine() const
    {
        const std::vector<std::wstring> files = m_dir.Files();
        return std::count_if(files.begin(), files.end(),
                             [&](const auto& file) { return file.find(m_name) == 0; });
    }

    std::string damaged;
    bool failed = false;
    int interrupted = 0; // kills that fell into a save
    int seen[2] = {};

private:
    void Kill()
    {
        constexpr unsigned longestLife = 12; // milliseconds behind the first save, some four saves
        constexpr unsigned longestSpin = 200'000;
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process = {};
        CString line = m_command;
        if (!CreateProcessW(nullptr, line.GetBuffer(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &process)) {
            failed = true;
            return;
        }
        const HANDLE either[] = {m_started, process.hProcess};
        failed = WaitForMultipleObjects(2, either, FALSE, 60'000) != WAIT_OBJECT_0;
        Sleep(static_cast<DWORD>(m_random() % longestLife));
        for (auto spin = m_random() % longestSpin; spin > 0; --spin)
            YieldProcessor();
        TerminateProcess(process.hProcess, 1);
        WaitForSingleObject(process.hProcess, INFINITE);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }

    const TempDir& m_dir;
    std::mt19937 m_random;
    std::wstring m_name;
    HANDLE m_started = nullptr;
    CString m_command;
    std::string m_bodies[2];
};

} // namespace

TEST(CESetSave, SurvivesFiveHundredKills)
{
    constexpr int atOnce = 4; // most of a process's life is its start
    constexpr int kills = 500;
    const TempDir dir;
    int interrupted = 0;
    int seen[2] = {};
    {
        std::vector<std::unique_ptr<Killer>> killers;
        std::vector<std::thread> threads;
        for (int i = 0; i < atOnce; ++i) {
            killers.push_back(std::make_unique<Killer>(dir, i));
            threads.emplace_back([&killer = *killers.back()] { killer.Run(kills / atOnce); });
        }
        for (std::thread& thread : threads)
            thread.join();
        for (const auto& killer : killers) {
            EXPECT_FALSE(killer->failed) << "the saver did not start, or could not save";
            EXPECT_EQ(killer->damaged, "");
            interrupted += killer->interrupted;
            seen[0] += killer->seen[0];
            seen[1] += killer->seen[1];
            EXPECT_NE(SaverTree(0).Save(killer->File()), 0);
            EXPECT_EQ(killer->FilesOfMine(), 1) << "what the killed ones left is still there";
        }
    }
    EXPECT_EQ(seen[0] + seen[1], kills);
    EXPECT_GT(seen[0], 0);
    EXPECT_GT(seen[1], 0);
    EXPECT_GT(interrupted, 0) << "no kill fell into a save";
    RecordProperty("interrupted", interrupted);
}
