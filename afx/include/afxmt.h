#pragma once

/** @file
 *  Synchronisation of threads. */

#include <afx.h>

#include "vafx/CCriticalSection.h"
#include "vafx/CEvent.h"
#include "vafx/CMutex.h"
#include "vafx/CSingleLock.h"
#include "vafx/CSyncObject.h"
