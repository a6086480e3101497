#pragma once

#include "vafx/api.h"

#include <windows.h>

/** @file
 *  ASSERT, VERIFY, TRACE and their companions. They act when `_DEBUG` is defined; without it ASSERT and TRACE
 *  leave nothing behind and VERIFY keeps its expression. */

/** @return TRUE when @p p is not null. Memory is not probed: a probe can disarm another thread's guard page.
 */
inline BOOL AfxIsValidAddress(const void* p, UINT_PTR, BOOL = TRUE) noexcept
{
    return p != nullptr ? TRUE : FALSE;
}

/** @return TRUE when @p text is not null; @see AfxIsValidAddress. */
inline BOOL AfxIsValidString(LPCWSTR text, int = -1) noexcept
{
    return text != nullptr ? TRUE : FALSE;
}

/** @overload */
inline BOOL AfxIsValidString(LPCSTR text, int = -1) noexcept
{
    return text != nullptr ? TRUE : FALSE;
}

/** Writes a printf-style text to the debugger. @p format follows the rules of CString::Format. */
VAFX_API void AfxTrace(LPCWSTR format, ...);

/** Reports a failed assertion to the debugger. @return TRUE: the caller is to break into it. */
VAFX_API BOOL AfxAssertFailedLine(LPCSTR fileName, int line);

#ifdef _DEBUG
#define ASSERT(f)                                                                                            \
    do {                                                                                                     \
        if (!(f) && ::AfxAssertFailedLine(__FILE__, __LINE__))                                               \
            ::DebugBreak();                                                                                  \
    } while (false)
#define VERIFY(f) ASSERT(f)
#define TRACE ::AfxTrace
#define ASSERT_VALID(pOb)                                                                                    \
    do {                                                                                                     \
        ASSERT((pOb) != nullptr);                                                                            \
        (pOb)->AssertValid();                                                                                \
    } while (false)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define TRACE(...) ((void)0)
#define ASSERT_VALID(pOb) ((void)0)
#endif

#define DEBUG_NEW new
