#pragma once

#include <windows.h>

#include <vfw.h>

namespace vant::detail
{

/** Opens an AVI file for writing so that a frame reaches the file in one piece. By itself the library may go
 * through a buffer of a few kilobytes, with a seek before each, which takes three times as long as the bytes
 * do.
 *
 *  It is given the name of a file of our own kind, for which the multimedia system asks FileProc() instead of
 * opening a file (a name with '+' behind the extension that a procedure is installed for), and the buffer is
 * taken away. A library that does not work through the multimedia system is found out the first time.
 *
 *  @param open,release  the library's own  @param path  the real one
 *  @return null if it cannot be done this way; nothing is left behind then */
IAVIFile* OpenDirect(HRESULT (*open)(IAVIFile**, LPCWSTR, UINT), ULONG (*release)(IAVIFile*), LPCWSTR path,
                     UINT mode);

} // namespace vant::detail
