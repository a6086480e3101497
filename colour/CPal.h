#pragma once

#include "colour/CColTbl.h"
#include "controls/CVantWnd.h"

#include <span>

/** A palette: a window in which the user chooses a colour table and the range of values that it colours, and
 * which other windows ask for the colour of a value.
 *
 *  Palettes have names (CVantWnd::name), by which GetPal(), CPalCb and the settings find them. A window that
 * draws with a palette attaches itself (CVantWnd::AttachWnd()) and is told of every change by
 * OnNfyWnd(palette, #changedMsg, palette).
 *
 *  Below the controls the window shows the table as a bar, with the values that its colours stand for.
 * Dragging in the bar turns the table: the colour that was taken hold of follows the mouse, and #offset with
 * it. The left and right arrow keys turn it by an entry. An offset in use is from 0 up to the size of the
 * table.
 *
 *  The window sets its own defaults (SetDefaults()) when it is created: settings and options are for later.
 * Colours may be asked for without a window, too. Palettes belong to the UI thread. */
class VANT_API CPal : public CVantWnd
{
    DECLARE_DYNCREATE(CPal)

public:
    static constexpr int changedMsg = 217; ///< what attached windows are told; its data is the palette
    static constexpr LPCWSTR typeName = L"Palette"; ///< type of the palettes' objects in the settings
    static constexpr unsigned int unlisted = 1;     ///< for the constructor: stay out of #s_pals

    /** The table "Depths", if it has been loaded, becomes the source of the master table; the table itself
     * is deliberately the default one until it is chosen. */
    CPal();
    /** @param flags  with bit #unlisted it is not appended to #s_pals */
    explicit CPal(unsigned int flags);
    ~CPal() override;

    /** @name Fields
     *  After a change call UpdatePal(). @{ */
    double start = 0.0; ///< value of the first entry; persistent as "Start"
    double end = 255.0; ///< value one step beyond the last entry; persistent as "End"
    int wrap = 0;       ///< non-zero: values beyond the range begin the table anew; persistent as "Wrap"
    int offset = 0;     ///< entries by which the table is turned; persistent as "Offset"
    CRgb fallback;      ///< colour of values that have none, white; see GetCol()
    CString tblName;    ///< name that the option "Load" gave
    CColTbl master;     ///< the table that was chosen; its name is persistent as "ColTbl"
    CColTbl working;    ///< the master table, turned by the offset: the colours of the values
    CRect barRc;        ///< where the bar is, units; empty before there is a window
    int dragging = 0;   ///< non-zero while the user turns the table in the bar
    /** @} */

    /** Every palette that was not constructed as #unlisted, in the order of construction. Not owned. */
    static CLstPtr<CPal*> s_pals;

    /** @name Colours of values
     *  The range is spread over the entries and one step more, and rounded: #end itself is deliberately one
     * step beyond the last entry. A value beyond the range has the first or last entry's colour, or with
     * #wrap that of the table begun anew, so that #end has the first entry's. There is no colour, but
     * #fallback, where start and end are the same, the table is empty, or the arithmetic has no result: for
     * NaN, and with #wrap for an infinite value. @{ */
    /** The colour of a value, into `colour`. */
    void GetCol(double value, CRgb& colour) const;
    /** The colour as a COLORREF. */
    COLORREF GetCol(double value) const;
    /** The colours of many values, exactly as one by one: `colours[i]` is that of `values[i]`, for as many as
     * there are of both. Costs a copy of the table and then a third of the single calls, so use it from some
     * hundred values on. */
    void GetCols(std::span<const double> values, std::span<CRgb> colours) const;
    /** @} */

    /** Turns the table: entry i of the master table becomes entry (by + i) mod size of the working one.
     * Stores the offset as it is given, tells the attached windows and redraws. A negative offset turns
     * backwards. */
    void Scroll(int by);
    /** Brings everything in line with the fields: turns the table by #offset and updates the controls. Every
     * control of the window calls it back. */
    void UpdatePal();
    /** Lets the user choose a table file and loads it. On Cancel nothing happens. */
    void Browse();

    /** The first listed palette with exactly this window name; null if there is none. */
    static CPal* GetPal(const CString& palName);

    /** @name The listed palettes in the settings, in the collection "Palettes" */
    ///@{
    /** Stores the settings of every palette in an object named like it, of the type #typeName. */
    static void SaveSet(CESet& set);
    /** Gives every object, in the order of the file, to the first palette of its name. Palettes are windows
     * of the application: none is made for an object without one, whatever `create` says. */
    static void LoadSet(CESet& set, int create);
    /** @} */

    /** The window's options, and "Load": chooses the loaded table of that name. Without such a table nothing
     * happens. */
    void SetOption(const CString& option, const CString& value) override;
    /** 0 to 255, no wrap, no offset. */
    void SetDefaults() override;
    /** Range and table: two fields and a list of the tables. */
    void SetupCtrls() override;
    /** The window's settings, range, wrap, offset and the name of the table. Loading chooses the loaded table
     * of that name; the master table stays without one. */
    void Settings(CESetObj& obj) override;
    /** Background and bar. */
    void Draw(CDC* dc) override;
    using CVantWnd::LayoutWnd; ///< the one without an argument, too
    /** Places the bar, too. */
    void LayoutWnd(int quiet) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    bool Choose(const CString& colTbl);
    void PlaceBar();
    void TurnTo(long long by);

    int m_barTop = 0;     // below the controls, units
    int m_dragX = 0;      // where the drag began, pixels
    int m_dragOffset = 0; // the offset there
};
