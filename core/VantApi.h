#pragma once

/** @file
 *  Marks what leaves the DLL. Static data members need the import side as much as functions do, so every
 *  exported class carries the macro in its declaration.
 *
 *  A static constexpr member of an exported class is defined once more in the class's source, without its
 *  value ("constexpr int CPal::changedMsg;"). The language asks for it no longer, but compilers put only what
 *  has such a definition into the DLL, and a client that binds a reference to the member, as std::max does,
 *  takes it from there. */

#ifdef VANT_BUILDING_DLL
#define VANT_API __declspec(dllexport)
#else
/** Stands before what leaves the library: exported from it, imported by applications. */
#define VANT_API __declspec(dllimport)
#endif
