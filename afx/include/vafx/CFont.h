#pragma once

#include "vafx/CGdiObject.h"

class CDC;

/** A font. */
class VAFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont() noexcept;

    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const noexcept { return static_cast<HFONT>(m_hObject); }

    /** All values as in LOGFONT. @return FALSE on failure. */
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    /** @param nPointSize Tenths of a point. @param pDC Its resolution is used; null: the screen's. */
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /** The same with the height of @p lpLogFont in tenths of a point. */
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);

    int GetLogFont(LOGFONT* pLogFont) const noexcept;
};
