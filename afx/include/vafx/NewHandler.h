#pragma once

#include "vafx/api.h"

#include <cstddef>
#include <new.h>

/** @file
 *  What happens when memory runs out. */

/** Installs the function that is called when an allocation of this library, that of a string included, finds
 * no memory. Its argument is the number of bytes asked for, 0 where that is not known. If it returns a value
 * other than 0 the allocation is tried again; after 0, or without a handler (null, as at first), it fails
 * with an exception. @return The handler until now. */
VAFX_API _PNH AfxSetNewHandler(_PNH pfnNewHandler);

/** @return The function that AfxSetNewHandler has installed; null if there is none. */
VAFX_API _PNH AfxGetNewHandler();
