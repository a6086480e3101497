#include "controls/detail/PaintBuffer.h"

namespace vant::detail
{

PaintBuffer::PaintBuffer(CDC& target, CSize size, CDpi dpi, COLORREF back)
    : m_target(target)
    , m_size(size)
{
    if (!MakeBitmap())
        m_saved = m_target.SaveDC();
    Dc().FillSolidRect(0, 0, m_size.cx, m_size.cy, back);
    dpi.Apply(Dc());
}

PaintBuffer::~PaintBuffer()
{
    if (m_before)
        ::SelectObject(m_memory, m_before);
    if (m_saved)
        m_target.RestoreDC(m_saved);
}

bool PaintBuffer::MakeBitmap()
{
    if (!m_memory.CreateCompatibleDC(nullptr) ||
        !m_bitmap.CreateDiscardableBitmap(&m_target, m_size.cx, m_size.cy))
        return false;
    m_before = ::SelectObject(m_memory, m_bitmap);
    return true;
}

void PaintBuffer::Show()
{
    if (!m_before)
        return;
    m_memory.SetMapMode(MM_TEXT);
    m_target.BitBlt(0, 0, m_size.cx, m_size.cy, &m_memory, 0, 0, SRCCOPY);
}

} // namespace vant::detail
