#pragma once

#include "core/VantApi.h"

#include <afx.h>

/** Who asks an area about a target: goes with CArea::ProcTgt(). A value without an owner; an application that
 * has more to say derives its record from this one. */
struct VANT_API CArProcTgt {
    /** Nobody asks. */
    CArProcTgt() = default;
    /** An object asks that is not owned. */
    explicit CArProcTgt(CObject* itsReceiver)
        : receiver(itsReceiver)
    {
    }

    CObject* receiver = nullptr; ///< whom the callback is a member of. Not owned.
};
