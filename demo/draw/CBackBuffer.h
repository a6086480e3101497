#pragma once

#include "demo/detail/Canvas.h"

#include <afxwin.h>

namespace demo
{

/** A picture in memory that a window is drawn into before it is shown, so that nothing flickers. GDI draws
 * through Dc(), smooth shapes through Surface(); call ::GdiFlush() between the one and the other. */
class CBackBuffer
{
public:
    CBackBuffer() = default;
    ~CBackBuffer();

    CBackBuffer(const CBackBuffer&) = delete;
    CBackBuffer& operator=(const CBackBuffer&) = delete;

    /** Makes the picture fit; its contents are undefined afterwards. @return false when there is no memory
     * for it, the buffer being empty then */
    bool Resize(int width, int height);

    CDC& Dc() noexcept { return m_dc; }
    Canvas Surface() noexcept { return {m_pixels, m_width, m_height}; }

private:
    void Free();

    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr; // what the context held before the bitmap
    std::uint32_t* m_pixels = nullptr;
    int m_width = 0;
    int m_height = 0;
};

} // namespace demo
