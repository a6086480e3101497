#pragma once

/** @file
 *  Marks what leaves VantAfx.dll: classes as a whole, so that their tables and type information go along
 *  and an exception thrown in one module is caught in another. */

#ifdef VANTAFX_BUILDING_DLL
#define VAFX_API __declspec(dllexport)
#else
#define VAFX_API __declspec(dllimport)
#endif
