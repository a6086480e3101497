#pragma once

#include <cstddef>
#include <string>
#include <windows.h>

namespace vant::detail
{

/** What writing a file asks of the system, so that each step can be made to fail. */
struct FileOps {
    decltype(&::CreateFileW) create;
    decltype(&::WriteFile) write;
    decltype(&::FlushFileBuffers) flush;
    decltype(&::CloseHandle) close;
    decltype(&::MoveFileExW) move;
    decltype(&::DeleteFileW) remove;
};

/** The system's own functions. */
extern const FileOps systemFileOps;

/** Gives a file new contents, all or nothing: they are written to a file of their own beside it, which takes
 *  its place only when every byte has reached the disk. Whatever fails or interrupts this, the previous file
 *  stays whole.
 *
 *  The file beside it bears the target's name, the process's number and a running number:
 *  "VantApp.xml.000001c4-00000001.tmp". One that a killed process left behind is removed by the next
 *  success. A target that is not a file on a disk (NUL, a pipe) has nothing to preserve and is written
 *  to directly. Attributes and access rights of the target are not carried over: the new file has those that
 *  its directory gives. */
class AtomicFile
{
public:
    explicit AtomicFile(std::wstring target, const FileOps& ops = systemFileOps);
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    /** Gives up, unless Commit succeeded: the target is as it was, and nothing lies beside it. */
    ~AtomicFile();

    /** False when the target could not be opened for writing, or its directory takes no file. */
    bool Open();

    /** After a failure, Commit fails too. */
    void Write(const char* bytes, std::size_t count);

    /** Puts what was written in the target's place. False when anything failed; the target is then as it was.
     */
    bool Commit();

private:
    bool OpenTarget(bool& isDevice);
    bool OpenBeside();
    bool Close();
    bool Replace();
    void RemoveStale() const;

    const FileOps& m_ops;
    const std::wstring m_target;
    std::wstring m_beside; // empty while there is no such file
    HANDLE m_handle = INVALID_HANDLE_VALUE;
    bool m_failed = false;
};

} // namespace vant::detail
