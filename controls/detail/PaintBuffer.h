#pragma once

#include "controls/CDpi.h"
#include "core/VantApi.h"

#include <afxwin.h>

namespace vant::detail
{

/** A picture that is drawn in memory, in units, and then copied to its place in one step, so that nobody sees
 * it grow. Where there is no memory for it the drawing goes to its place at once. */
class VANT_API PaintBuffer
{
public:
    /** @param target  where the picture goes to, in pixels; it must outlive this
     *  @param size  pixels, from the target's origin
     *  @param back  what the picture is filled with at first */
    PaintBuffer(CDC& target, CSize size, CDpi dpi, COLORREF back);
    /** Frees the memory. Nothing is copied. */
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    /** What is to be drawn into; it takes units. */
    CDC& Dc() noexcept { return m_bitmap.m_hObject ? m_memory : m_target; }

    /** Copies the picture to its place. */
    void Show();

private:
    bool MakeBitmap();

    CDC& m_target;
    const CSize m_size;
    CDC m_memory;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
    int m_saved = 0; ///< state of the target, while it is drawn into itself
};

} // namespace vant::detail
