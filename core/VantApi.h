#pragma once

/** @file
 *  Marks what leaves the DLL. Static data members need the import side as much as functions do, so every
 *  exported class carries the macro in its declaration. */

#ifdef VANT_BUILDING_DLL
#define VANT_API __declspec(dllexport)
#else
/** Stands before what leaves the library: exported from it, imported by applications. */
#define VANT_API __declspec(dllimport)
#endif
