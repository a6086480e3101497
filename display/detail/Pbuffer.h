#pragma once

#include "core/VantApi.h"

#include <memory>
#include <windows.h>

namespace vant::detail
{

/** A handle of WGL's pixel buffers. */
using PbufferHandle = void*;

/** The extensions' entry points, as their documents name them. Looked up once and kept for the process; null
 *  until then, and where the driver lacks one. */
struct PbufferCalls {
    const char*(WINAPI* getExtensionsString)(HDC);
    PbufferHandle(WINAPI* createPbuffer)(HDC, int format, int width, int height, const int* attributes);
    HDC(WINAPI* getPbufferDC)(PbufferHandle);
    int(WINAPI* releasePbufferDC)(PbufferHandle, HDC);
    BOOL(WINAPI* destroyPbuffer)(PbufferHandle);
    BOOL(WINAPI* queryPbuffer)(PbufferHandle, int attribute, int* value);
    BOOL(WINAPI* choosePixelFormat)
    (HDC, const int* integers, const FLOAT* floats, UINT maxFormats, int* formats, UINT* count);
};

/** The entry points that have been looked up. Cleared, they are looked up again. */
VANT_API PbufferCalls& Pbuffers() noexcept;

/** A picture's memory at the driver, its device context and its rendering context. Given back in the reverse
 * order by the destructor; the context must not be current then. */
class Pbuffer
{
public:
    /** Makes one; every extension must have been looked up, and a context of the driver be current.
     *  @return null after an alarm if that fails, or if the size is not granted */
    static std::unique_ptr<Pbuffer> Create(HDC dc, int width, int height);
    ~Pbuffer();
    Pbuffer(const Pbuffer&) = delete;
    Pbuffer& operator=(const Pbuffer&) = delete;

    HDC Dc() const noexcept { return m_dc; }
    HGLRC Rc() const noexcept { return m_rc; }

private:
    explicit Pbuffer(PbufferHandle handle);

    const PbufferHandle m_handle;
    const HDC m_dc;
    const HGLRC m_rc;
};

/** Looks the extensions up; a context must be current on `dc`. @return false after an alarm if the driver
 * lacks one
 */
bool LookUpPbuffers(HDC dc);

} // namespace vant::detail
