#pragma once

#include "vafx/CSyncObject.h"

/** Holds a synchronisation object for as long as it lives, at most. */
class VAFX_API CSingleLock
{
public:
    /** @param pObject Must outlive the lock. @param bInitialLock TRUE: waits for it at once. */
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock();

    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    /** @copydoc CSyncObject::Lock */
    BOOL Lock(DWORD dwTimeOut = INFINITE);
    /** @return FALSE when the object was not held or could not be given back. */
    BOOL Unlock();
    /** @overload */
    BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);
    BOOL IsLocked() const { return m_bAcquired; }

private:
    CSyncObject* m_pObject;
    BOOL m_bAcquired;
};
