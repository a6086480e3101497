#pragma once

#include "vafx/CObject.h"

/** Base of the objects that threads wait for. */
class VAFX_API CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)

public:
    /** @param pstrName Unused: the derived class names the object it makes. */
    explicit CSyncObject(LPCWSTR pstrName);
    ~CSyncObject() override;

    operator HANDLE() const { return m_hObject; }

    /** Waits for the object and takes it. @param dwTimeout In milliseconds, or INFINITE.
     *  @return FALSE when the time ran out or the wait failed. */
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    /** Gives the object back. @return FALSE on failure. */
    virtual BOOL Unlock() = 0;
    /** Gives the object back @p lCount times, where it has a count. @param lpPrevCount Receives the old one.
     */
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);

    HANDLE m_hObject; ///< Closed by the destructor; null for what has no handle.
};
