#pragma once

#include "vafx/CGdiObject.h"

class CDC;

/** A logical palette. */
class VAFX_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette() noexcept;

    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    operator HPALETTE() const noexcept { return static_cast<HPALETTE>(m_hObject); }

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    BOOL CreateHalftonePalette(CDC* pDC);

    int GetEntryCount() const noexcept;
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const noexcept;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) noexcept;
};
