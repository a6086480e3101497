#pragma once

#include <string>

#include <windows.h>

namespace demo
{

/** Sees to it that only one program at a time writes to an output directory: settings and logs of two would
 * mix. Whichever way the directory is written, it is the same one. */
class CRunLock
{
public:
    CRunLock() = default;
    ~CRunLock();
    CRunLock(const CRunLock&) = delete;
    CRunLock& operator=(const CRunLock&) = delete;

    /** Takes the directory. While another program starts with it or ends, that is waited for.
     *  @return false when one runs with it; a directory that cannot be told from others is taken */
    bool Take(const std::wstring& dir);

    /** Lets the window be found by the next program that wants the directory. */
    void Mark(HWND wnd) const;

    /** The window is about to go. */
    static void Unmark(HWND wnd);

    /** Shows the window of the program that has the directory. @return what became of it, for a message */
    std::wstring ShowOther() const;

private:
    void Release();
    HWND OtherWindow() const;

    HANDLE m_mutex = nullptr;
    bool m_isHeld = false;
    ULONGLONG m_key = 0; // of the directory; 0 for none
};

} // namespace demo
