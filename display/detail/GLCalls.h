#pragma once

#include "core/VantApi.h"

#include <windows.h>

namespace vant::detail
{

/** The 3D display's edge to the driver: what differs from one to the next, or refuses where a test cannot
 * make it refuse. */
struct GLCalls {
    /** The entry point of an extension; null if the driver has none. A context must be current. */
    void* (*lookUp)(LPCSTR name);

    HGLRC (*createContext)(HDC dc);
    BOOL (*deleteContext)(HGLRC rc);
    BOOL (*makeCurrent)(HDC dc, HGLRC rc);

    /** Lets the second context use the lists and textures of the first. */
    BOOL (*shareLists)(HGLRC from, HGLRC to);

    /** Makes lists of `count` glyphs of the font in `dc`, as filled polygons an em high. */
    BOOL (*fontOutlines)(HDC dc, DWORD first, DWORD count, DWORD lists, GLYPHMETRICSFLOAT* metrics);

    BOOL (*swapBuffers)(HDC dc);

    /** Whether the driver takes a texture of this size. A context must be current. */
    bool (*acceptsTexture)(int width, int height);

    /** The name of a new texture; 0 if there is none. A context must be current. */
    unsigned (*newTexture)();
};

/** The table in use: the system's own functions, unless something was put in their place. */
VANT_API GLCalls& GL() noexcept;

} // namespace vant::detail
