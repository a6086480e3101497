#pragma once

#include "vafx/CObject.h"
#include "vafx/MessageMap.h"

/** An object that receives commands and notifications through a message map: windows, threads, the
 *  application. */
class VAFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /** Finds the handler of a command or notification and calls it.
     *  @param nID Identifier of the command or control.
     *  @param nCode CN_COMMAND, a notification code, or MAKELONG(code, WM_NOTIFY).
     *  @param pExtra An AFX_NOTIFY for WM_NOTIFY, else unused.
     *  @param pHandlerInfo When not null the handler is not called: the structure tells whose it is.
     *  @return TRUE when there is a handler and it did not pass the message on. */
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /** @name The hourglass: calls nest, and the last EndWaitCursor brings the old cursor back. */
    ///@{
    void BeginWaitCursor();
    void EndWaitCursor();
    /** Shows the hourglass again after something else (a message box) changed the cursor. */
    void RestoreWaitCursor();
    ///@}

    DECLARE_MESSAGE_MAP()
};

/** The hourglass for as long as the object lives. */
class VAFX_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();

    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    /** @copydoc CCmdTarget::RestoreWaitCursor */
    void Restore();
};
