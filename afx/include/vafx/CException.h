#pragma once

#include "vafx/CObject.h"

/** Base of the exceptions that this library throws. They are thrown as pointers; who catches one and does not
 *  throw it on calls Delete. */
class VAFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    /** The exception is on the heap. */
    CException();
    /** @param bAutoDelete FALSE for an exception that Delete must leave alone: a local or static object. */
    explicit CException(BOOL bAutoDelete);

    /** Frees an exception that is on the heap. */
    void Delete();

    /** Describes the exception.
     *  @param lpszError Receives the text, cut to @p nMaxError units with the final 0.
     *  @param pnHelpContext Receives 0: there are no help topics.
     *  @return FALSE, and an empty text, when there is nothing to tell. */
    virtual BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;

    /** Shows the description in a message box.
     *  @param nType Its style. @param nMessageID The string resource to show when there is no description.
     *  @return The message box's answer. */
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_bAutoDelete;
};

/** Throws an exception object by its pointer. */
#define THROW(e) throw e
