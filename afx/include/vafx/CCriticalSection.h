#pragma once

#include "vafx/CSyncObject.h"

/** A fast lock between the threads of this process; a thread may take it several times. */
class VAFX_API CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;

    operator CRITICAL_SECTION*() { return &m_sect; }

    BOOL Lock();
    /** Waits without limit: a critical section knows no time-out. */
    BOOL Lock(DWORD dwTimeout) override;
    BOOL Unlock() override;
    using CSyncObject::Unlock;

    CRITICAL_SECTION m_sect;
};
