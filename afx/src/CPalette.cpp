#include "vafx/CPalette.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"
#include "vafx/CDC.h"

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

CPalette::CPalette() noexcept = default;

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette)
{
    return vafx::detail::ObjectOf<CPalette>(vafx::detail::ThisThread().temporary,
                                            vafx::detail::HandleKind::GdiObject, hPalette,
                                            [hPalette](CPalette& object) { object.m_hObject = hPalette; });
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette)
{
    return Attach(::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC)
{
    return Attach(::CreateHalftonePalette(vafx::detail::HandleOf(pDC)));
}

int CPalette::GetEntryCount() const noexcept
{
    WORD count = 0;
    GetObject(sizeof count, &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) const noexcept
{
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) noexcept
{
    return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}
