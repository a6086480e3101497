#pragma once

/** @file
 *  The calling convention of the library's functions and the opaque position of an iteration. */

#ifndef AFXAPI
#define AFXAPI __stdcall
#endif

struct __POSITION;
using POSITION = __POSITION*;
