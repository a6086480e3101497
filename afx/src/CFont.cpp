#include "vafx/CFont.h"

#include "detail/WndThread.h"
#include "vafx/CDC.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

CFont::CFont() noexcept = default;

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return vafx::detail::ObjectOf<CFont>(vafx::detail::ThisThread().temporary,
                                         vafx::detail::HandleKind::GdiObject, hFont,
                                         [hFont](CFont& object) { object.m_hObject = hFont; });
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return Attach(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return Attach(::CreateFontIndirectW(lpLogFont));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    ::lstrcpynW(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    constexpr int tenthsPerInch = 720;
    const HDC screen = pDC != nullptr ? nullptr : ::GetDC(nullptr);
    const HDC dc = pDC != nullptr ? pDC->m_hAttribDC : screen;
    // The height is a distance: the mapping mode may put its origin anywhere.
    POINT points[2] = {{0, 0},
                       {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), lpLogFont->lfHeight, tenthsPerInch)}};
    ::DPtoLP(dc, points, 2);
    if (screen != nullptr)
        ::ReleaseDC(nullptr, screen);
    LOGFONT font = *lpLogFont;
    // Negative: the height of the characters without the line's leading.
    font.lfHeight = -std::abs(points[1].y - points[0].y);
    return CreateFontIndirect(&font);
}

int CFont::GetLogFont(LOGFONT* pLogFont) const noexcept
{
    return GetObject(sizeof(LOGFONT), pLogFont);
}
