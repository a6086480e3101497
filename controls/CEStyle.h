#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"

#include <afxwin.h>

/** A named bundle of font, pen, brush and text colour that a control selects before it draws.
 *
 *  The three objects are statics of Vant and not owned: copying a style copies the pointers. Belongs to the
 * UI thread. */
class VANT_API CEStyle
{
public:
    /** The default style: Vant::normalF, Vant::blackB, Vant::blueL, light grey text. */
    CEStyle();

    CString name;    ///< "Default"; the key of GetStyle()
    COLORREF txtCol; ///< text colour, 0xcccccc
    int align = 1;   ///< bit 0: edit fields centre numbers; clear: they align them to the right
    CFont* pFont;    ///< font; null leaves the device context's
    CBrush* pBrush;  ///< brush; null leaves the device context's
    CPen* pPen;      ///< pen; null leaves the device context's
    int greyBk = 0;  ///< non-zero: edit fields have the grey background
    int aux = -1;    ///< for the application; the library neither reads nor writes it

    /** The style that new controls and categories copy. Not in the list of AddStyle(). */
    static CEStyle s_default;

    /** Appends a copy to the process-wide list. */
    static void AddStyle(const CEStyle& style);

    /** The first style of the list with exactly this name, upper and lower case being different; null if
     * there is none. The list keeps it. */
    static CEStyle* GetStyle(const CString& name);

    /** Selects font, brush and pen into `dc`, each only if it is set and has been created, sets the text
     * colour and lets the background of text show through. */
    void Set(CDC* dc) const;

    /** Draws the outline of a rectangle with the current pen, through its right and bottom edges: (0, 0, 10,
     * 10) touches x = 10 and y = 10. */
    static void Brdr1(CDC* dc, const CRect& r);

    /** The same outline one pixel inside on the right and at the bottom: it stops at 9. */
    static void Brdr2(CDC* dc, const CRect& r);

private:
    static CLstMgd<CEStyle> s_styles;
};
