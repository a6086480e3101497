#pragma once

#include "core/VantApi.h"

#include <windows.h>

#include <vfw.h>

namespace vant::detail
{

/** The edge to the system's AVI library, which is loaded when it is first asked for: an application starts
 * without it, and every call then answers "module not found". */
struct AviCalls {
    void (*initLibrary)();
    void (*exitLibrary)();

    HRESULT (*openFile)(IAVIFile** file, LPCWSTR path, UINT mode);
    ULONG (*releaseFile)(IAVIFile* file);

    HRESULT (*createStream)(IAVIFile* file, IAVIStream** stream, AVISTREAMINFOW* info);
    HRESULT (*compressStream)(IAVIStream** compressed, IAVIStream* raw, AVICOMPRESSOPTIONS* options);
    HRESULT (*setFormat)(IAVIStream* stream, void* format, LONG size);
    HRESULT(*writeSample)
    (IAVIStream* stream, LONG index, void* sample, LONG size, DWORD flags, LONG* written);
    HRESULT (*streamInfo)(IAVIStream* stream, AVISTREAMINFOW* info);
    /** The format as the file has it; a null buffer asks for its size. */
    HRESULT (*readFormat)(IAVIStream* stream, void* format, LONG* size);
    ULONG (*releaseStream)(IAVIStream* stream);

    /** Lets the user choose how a stream is compressed; false if nothing was chosen. What was chosen is given
     * back with freeOptions. */
    bool (*chooseOptions)(HWND owner, IAVIStream* stream, AVICOMPRESSOPTIONS* options);
    void (*freeOptions)(AVICOMPRESSOPTIONS* options);

    /** Whether openFile tries to have frames written in one piece. */
    bool wholeFrames;

    /** Bytes that a file may have. Beyond 2 GiB the library reports success and writes to wrong places. */
    long long fileLimit;
};

/** The table in use: the system's own functions, unless something was put in their place. */
VANT_API AviCalls& Avi() noexcept;

} // namespace vant::detail
