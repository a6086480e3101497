#pragma once

#include "core/CLstMgd.h"
#include "core/CPtrAry.h"
#include "core/VantApi.h"
#include "display/CRgb.h"

#include <afxwin.h>

class CESet;
class CESetObj;

/** A table of colours, from which data values get theirs (CPal::GetCol()), and the list of all tables that
 * were read from files.
 *
 *  An application reads a directory of table files once at its start (EnumColTbls()); its windows and
 * controls hold copies, each of which knows the table it is a copy of (#source). The tables that come with
 * the library are installed in share/VantCore/clt.
 *
 *  Tables belong to the UI thread. */
class VANT_API CColTbl
{
public:
    /** The most entries that a file may ask for. */
    static constexpr int mostEntries = 65'536;

    /** "Default Grey": 256 entries, filled by GenGrey() and therefore all black, deliberately. */
    CColTbl();
    /** Copies everything. */
    CColTbl(const CColTbl& other);
    /** Copies entries, name and file, and makes `other` the #source. #reversed deliberately stays. */
    CColTbl& operator=(const CColTbl& other);
    ~CColTbl() = default;

    /** @name Fields */
    ///@{
    CPtrAry<CRgb> cols;        ///< the entries
    CString name;              ///< display name, and the key of GetColTbl()
    CString file;              ///< path of the file that it was read from; empty without one
    CColTbl* source = nullptr; ///< the table that was assigned to this one last; null for none. Not owned.
    int reversed = 0;          ///< non-zero: strips are drawn the other way; for the application to set
    /** @} */

    /** Every table that was read by EnumColTbls(), in the order in which the search found the files. */
    static CLstMgd<CColTbl> s_colTbls;

    /** Reads a table file (.clt). A file is text, in the system's 8-bit code page or, after a byte-order
     * mark, in UTF-8 or UTF-16; its first line decides:
     *  - `COLOURTABLE 12 "Name"`: so many entries (0 is allowed), one in each line, as red, green and blue
     *    from 0 to 255. What is no three numbers is black.
     *  - `LookUpTable Name`: 256 entries, in each line an index, which is deliberately not looked at, red,
     *    green and blue. Other lines are passed over.
     *  - anything else: 64 entries, the first line being the first, as red, green and blue from 0 to 63. What
     *    is no three numbers is black.
     *
     *  Without a name in the file the table is named like the file. Names are cut to 1,024 characters.
     * Numbers out of range keep their low 8 bits. Entries that the file does not reach stay as they are, or
     * are white where the table has grown; so an empty file gives 64 entries. Of a file of more than 16 MB
     * the beginning is read.
     *
     *  @return 1, deliberately also after a failure. A file that cannot be read leaves the table as it is and
     * raises alarm 70 at level 1: "Colour Table <name>: Unable to open <path> cause:<cause>". So does one
     * that asks for less than 0 or more than #mostEntries entries, "Unable to read" taking the place of
     * "Unable to open". */
    int Load(const CString& path);

    /** Fills the table with a grey ramp from black in steps of 255 / size, which is deliberately cut to an
     * integer: a table of more than 255 entries becomes black. Nothing in an empty one. */
    void GenGrey();
    /** Does nothing, deliberately. */
    void GenBlend(const COLORREF* colours, int count);
    /** Does nothing, deliberately: a table is kept in its file. */
    void Settings(CESetObj& obj);

    /** @name Strips
     *  Fill a rectangle with the table, in bands that overlap by one unit; exactly one of `reverse` and
     * #reversed turns it round. The band of the last entry deliberately begins at the rectangle's far edge,
     * and reaches beyond it: clip where that matters. An empty table is a frame in Vant::blueL, filled with
     * Vant::blackB. @{ */
    /** From left to right. */
    void DrawH(const CRect& rc, CDC* dc, int reverse) const;
    /** From bottom to top. */
    void DrawV(const CRect& rc, CDC* dc, int reverse) const;
    /** @} */

    /** @name RGB and HSL
     *  Hue is in degrees (0 red, 120 green, 240 blue), everything else 0 to 1. @{ */
    /** The hue is deliberately not wrapped: from red to magenta it runs from 0 down to -60. */
    static void Rgb2Hsl(double r, double g, double b, double& h, double& s, double& l);
    /** Takes any hue; one that is not finite counts as 0. */
    static void Hsl2Rgb(double h, double s, double l, double& r, double& g, double& b);
    /** @} */

    /** The first table of the list with exactly this name; null if there is none. The list keeps it. */
    static CColTbl* GetColTbl(const CString& tblName);

    /** Reads every "*.clt" file of a directory into the list, behind what is there. A file that cannot be
     * read is there as "Default Grey", deliberately, after its alarm. A directory that is missing or empty
     * adds nothing.
     *  @param dir  with or without a backslash at its end */
    static void EnumColTbls(CString dir);

    /** Stores an object for every table in the collection "Colour Tables", named like the table, of the type
     * "ColTbl" and without items. */
    static void SaveSet(CESet& set);
    /** Goes through that collection. The list deliberately stays as it is: tables come from files alone. A
     * name that is not in it gets, if `create` is not 0, a default table of that name to give its settings
     * to, which does not outlive the call. */
    static void LoadSet(CESet& set, int create);
};
