#include <afxmt.h>

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock)
    : m_pObject(pObject)
    , m_bAcquired(FALSE)
{
    if (bInitialLock)
        Lock();
}

CSingleLock::~CSingleLock()
{
    Unlock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut)
{
    // A second Lock must not take the object twice: Unlock gives it back once.
    if (!m_bAcquired)
        m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock()
{
    if (!m_bAcquired)
        return FALSE;
    m_bAcquired = !m_pObject->Unlock();
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lpPrevCount)
{
    if (!m_bAcquired)
        return FALSE;
    m_bAcquired = !m_pObject->Unlock(lCount, lpPrevCount);
    return !m_bAcquired;
}
