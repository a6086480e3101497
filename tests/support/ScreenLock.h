#pragma once

#include <windows.h>

/** Keeps other test processes off the screen and the mouse, which all of them share. */
class ScreenLock
{
public:
    ScreenLock() { ::WaitForSingleObject(m_mutex, INFINITE); }
    ~ScreenLock()
    {
        ::ReleaseMutex(m_mutex);
        ::CloseHandle(m_mutex);
    }
    ScreenLock(const ScreenLock&) = delete;
    ScreenLock& operator=(const ScreenLock&) = delete;

private:
    const HANDLE m_mutex = ::CreateMutexW(nullptr, FALSE, L"vant-test-screen");
};
