#pragma once

#include "vafx/CSyncObject.h"

/** A signal between threads. An automatic event lets one waiting thread through and resets itself; a manual
 * one stays signalled until Reset. */
class VAFX_API CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)

public:
    /** @param bInitiallyOwn TRUE: signalled from the beginning.
     *  @param lpszName The event of that name is opened when it exists. Throws CResourceException on failure.
     */
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCWSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    ~CEvent() override;

    BOOL SetEvent();
    BOOL PulseEvent();
    BOOL ResetEvent();
    /** Does nothing: who waited for an event does not own it. @return TRUE. */
    BOOL Unlock() override;
    using CSyncObject::Unlock;
};
