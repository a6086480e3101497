#pragma once

#include "core/VantApi.h"

#include <afx.h>

/** Memory that is always there, and the two ways in which a process ends because it cannot go on.
 *
 *  The containers and buffers of the library grow through Malloc() and Realloc() and therefore never check
 * for null. All functions may be called from any thread. */
class VANT_API EUtil
{
public:
    EUtil() = delete;

    /** A block of `size` bytes from the run-time heap, uninitialised, to be released with free().
     *  Never null: when the heap has no room the process ends through FatalMemErr() with
     *  "Malloc cannot allocate %d bytes". A size of 0 gives a block that may be released but not used. */
    static void* Malloc(unsigned size);

    /** Changes the block `p` (null, or from Malloc() or Realloc()) to `size` bytes and keeps its contents up
     * to the smaller of both sizes. The block may move; `p` is no longer valid afterwards. Never null: when
     * the heap has no room the process ends through FatalMemErr() with "Realloc cannot allocate %d bytes". A
     * size of 0 keeps a block that may be released but not used. */
    static void* Realloc(void* p, unsigned size);

    /** Shows "<Vant::appTitle> has to exit due to insufficient memory", a line break and "Cause: <cause>" in
     * a message box, and ends the process with exit code 1. A little memory is held back for this message. */
    [[noreturn]] static void FatalMemErr(const CString& cause);

    /** Shows "<Vant::appTitle> has to exit due to an error", a line break and "Cause: <cause>" in a message
     * box, and ends the process with exit code 1. */
    [[noreturn]] static void FatalErr(const CString& cause);
};
