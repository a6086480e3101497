#pragma once

#include "display/CGLWnd.h"

/** The display view. So far what all views of a process have in common: the lists. */
class VANT_API CDsp : public CGLWnd
{
    DECLARE_DYNCREATE(CDsp)

public:
    /** The context that all 3D windows share their lists and textures with, so that these outlive each single
     * window; null until the first one is created. Owned by the class. */
    static HGLRC s_sharedRC;

    /** Makes the shared context, unless it is there: called by every 3D window that is created.
     *  @param hdc  of a window, which thereby gets the pixel format of 3D windows. It may go before the
     * context. */
    static void InitLists(HDC hdc);

    /** Deletes the shared context, and with it every list and texture that was made in any 3D window: for the
     * end of an application, after its last 3D window. Without this they go with the process. A window that
     * is created afterwards begins anew. */
    static void ReleaseLists();
};
