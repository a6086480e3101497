#pragma once

#include "vafx/CSyncObject.h"

/** A lock that one thread at a time owns, and may take several times; with a name it works across processes.
 */
class VAFX_API CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)

public:
    /** @param bInitiallyOwn TRUE: the calling thread owns it at once.
     *  @param lpszName The mutex of that name is opened when it exists. Throws CResourceException on failure.
     */
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCWSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    ~CMutex() override;

    /** @return FALSE when the calling thread is not the owner. */
    BOOL Unlock() override;
    using CSyncObject::Unlock;
};
