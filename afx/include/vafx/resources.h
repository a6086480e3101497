#pragma once

#include "vafx/api.h"

#include <windows.h>

/** @file
 *  Where resources come from. */

/** @return The program's own module. */
VAFX_API HINSTANCE AfxGetInstanceHandle();

/** @return The module that resources are looked for in first; the program's own until it is set. */
VAFX_API HINSTANCE AfxGetResourceHandle();

/** Sets the module that resources are looked for in first. */
VAFX_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/** @return The module that has the resource: that of AfxGetResourceHandle, else the program, else the former,
 *  so that looking there fails. */
VAFX_API HINSTANCE AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType);
