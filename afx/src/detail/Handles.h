#pragma once

#include "vafx/CDC.h"
#include "vafx/CGdiObject.h"
#include "vafx/CWnd.h"

namespace vafx::detail
{

/** @name The handle of an object that may be missing: null then. */
///@{
inline HWND HandleOf(const CWnd* window) noexcept
{
    return window != nullptr ? window->m_hWnd : nullptr;
}
inline HDC HandleOf(const CDC* dc) noexcept
{
    return dc != nullptr ? dc->m_hDC : nullptr;
}
inline HGDIOBJ HandleOf(const CGdiObject* object) noexcept
{
    return object != nullptr ? object->m_hObject : nullptr;
}
///@}

} // namespace vafx::detail
