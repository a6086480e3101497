#pragma once

#include <afxmt.h>

namespace vant::detail
{

/** Holds a value's mutex, if it has one. The mutex is recursive: what it guards may be read and written by
 * single accesses meanwhile. */
class ValueLock
{
public:
    /** Waits for the mutex, without a time limit. @param mutex  null: nothing is to be held */
    explicit ValueLock(CMutex* mutex)
        : m_mutex(mutex)
        , m_granted(!mutex || mutex->Lock())
    {
    }
    ~ValueLock()
    {
        if (m_mutex && m_granted)
            m_mutex->Unlock();
    }
    ValueLock(const ValueLock&) = delete;
    ValueLock& operator=(const ValueLock&) = delete;

    /** Whether the variable may be touched. */
    explicit operator bool() const noexcept { return m_granted; }

private:
    CMutex* m_mutex;
    bool m_granted;
};

} // namespace vant::detail
