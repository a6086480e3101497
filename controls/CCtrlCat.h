#pragma once

#include "controls/CECtrl.h"
#include "controls/CEFlex.h"

#include <memory>
#include <vector>

class CEBtn;
class CECheck;
class CEGrid;
class CELabel;
class CESetObj;
class CEText;
class CVantWnd;

/** A named group of controls in a platform window, with a layout cursor of its own.
 *
 *  Controls are inserted in reading order: each is placed at the cursor, which moves on to the right; NewLn()
 *  goes to the next line, and belongs behind the last line too: only it makes that line count for the height
 * of the category. A category is either stacked, a section of the window's column that its header opens and
 * closes, or anchored to one of nine places of the client area. Every CVantWnd is a category itself, named
 * "ROOT", and owns more (CVantWnd::GetCat).
 *
 *  @code
 *  CCtrlCat* sonar = wnd.GetCat(L"Sonar", CCtrlCat::kindStacked, 1, 0);
 *  sonar->InsText(80, L"Range");
 *  sonar->InsCtrl(60, CECtrl::typeEdit, m_range);
 *  sonar->NewLn();
 *  @endcode
 *
 *  Controls are inserted before the window is created, or later and then followed by CreateCtrls() and the
 * window's LayoutWnd(). All lengths are units (see CDpi). The order of insertion is the order of updates and
 * of the Tab key. Belongs to the UI thread. */
class VANT_API CCtrlCat
{
public:
    /** Values of #kind. Any other kind of category keeps the place that its owner gives it. */
    enum Kind {
        kindRoot = 0,               ///< a block at the top left that only its own position moves
        kindStacked = 1,            ///< a section of the window, below the one before
        anchorTopLeft = 4356,       ///< a block that keeps to the top left corner of the window
        anchorTopCentre = 4612,     ///< likewise to the middle of the upper edge
        anchorTopRight = 5124,      ///< to the top right corner
        anchorMiddleLeft = 8452,    ///< to the middle of the left edge
        anchorCentre = 8708,        ///< to the middle of the window
        anchorMiddleRight = 9220,   ///< to the middle of the right edge
        anchorBottomLeft = 16644,   ///< to the bottom left corner
        anchorBottomCentre = 16900, ///< to the middle of the lower edge
        anchorBottomRight = 17412,  ///< to the bottom right corner
    };

    CCtrlCat();
    CCtrlCat(const CCtrlCat&) = delete;
    CCtrlCat& operator=(const CCtrlCat&) = delete;

    /** @name Fields */
    ///@{
    CString catName;             ///< "ROOT"; the key of CVantWnd::GetCat() and of the settings
    CVantWnd* pParent = nullptr; ///< the window that it is in; null until GetCat() sets it; a window's own
                                 ///< category has the window itself. Not owned.
    int expanded = 2;            ///< non-zero: a stacked category shows its controls; persistent
    int hasHdr = 0;              ///< non-zero: the category has a header above its controls
    int kind = 0;                ///< Kind
    int lvlMask = 1;             ///< user levels whose controls are shown
    int x = 0;                   ///< where the block starts in the window, from its left edge
    int y = 0;                   ///< likewise, from its upper edge
    int hdrH = 24;               ///< height of the header and of a line
    int ctrlH = 20;              ///< height of a control
    int gap = 2;                 ///< between controls side by side
    int curX = 10;               ///< the cursor: how far it is to the right
    int curY = 10;               ///< the cursor: how far it is down
    int leftM = 10;              ///< left margin, where lines start
    int maxX = -1;               ///< right-most place reached: the width of the block
    int maxY = -1;               ///< bottom-most place reached: the height of the block
    CEStyle catStyle;            ///< copied into every new control
    CLstPtr<CECtrl*> ctrls;      ///< in order of insertion; DestroyCtrls() deletes them
    /** @} */

    /** @name Operations of the category, in this order */
    ///@{
    /** Exchanges #expanded, under the category's name with every blank as an underscore, and the values of
     * the controls that have a name for them (CECtrl::Settings()). */
    virtual void Settings(CESetObj& obj);
    /** Updates every control, with its text. */
    virtual void UpdCtrls();
    /** Empties the list of controls and starts the cursor anew, without deleting anything. */
    virtual void ClearCtrls();
    /** Adds levels to, or takes them from, #lvlMask, and shows or hides the controls whose level is exactly
     * `levelBits`: a control that was inserted at level 3 is deliberately not switched by level 2. What a
     * level has hidden stays hidden, whatever the layout does, until the same level is shown; a closed
     * category shows nothing before it is opened. */
    virtual void ShowLevel(int levelBits, int show);
    /** Moves header and controls to their places, and shows the controls or, in a closed category, hides
     * them. A control whose CECtrl::state lacks stShown is not shown. Nothing before the window exists.
     *  @param client  the window's client rectangle, units */
    virtual void LayoutCtrls(const CRect& client);
    /** Creates the windows of header and controls that have none yet, at their places. */
    virtual void CreateCtrls();
    /** Destroys the windows of the controls, deletes them and starts the cursor anew. Not to be called by a
     * handler of one of these controls. */
    virtual void DestroyCtrls();
    /** @} */

    /** Deletes the controls. */
    virtual ~CCtrlCat();

    /** @name Cursor
     *  Every move makes the place reached count for width or height. @{ */
    /** The place of a control `width` wide at the cursor; with `advance` the cursor moves behind it. */
    void CalcRect(CRect& r, int width, int advance);
    /** Starts the next line, #hdrH below. */
    void NewLn();
    /** Moves the cursor to the right by `dx`, which may be negative. */
    void ShiftX(int dx);
    /** Moves the cursor down by `dy`, and to `toX` unless that is negative. */
    void ShiftY(int dy, int toX = -1);
    /** Puts the cursor to a place of the line it is in. */
    void SetX(int toX);
    /** Puts the cursor up or down; it stays as far to the right as it is. */
    void SetY(int toY);
    /** Puts the cursor to a place of the block. */
    void SetPos(int toX, int toY);
    /** Starts a line at `toY`: the cursor goes to the left margin. */
    void SetCtrlY(int toY);
    /** @} */

    /** @name Size of the block of controls
     *  Each that sets replaces what the insertions reached; they may enlarge it again. @{ */
    void SetWidth(int width);
    void SetHeight(int height);
    void SetExtents(int width, int height);
    /** #maxX: -1 for a category without controls. */
    int GetCtrlWidth() const;
    /** Height of the category: of a stacked one its header, and its block too while it is expanded; of any
     * other one its block (-1 without controls). */
    int GetCtrlHeight() const;
    /** Both at once: GetCtrlWidth() and GetCtrlHeight(). */
    CSize GetCtrlExtents() const;
    /** @} */

    /** @name Insertion
     *  The control belongs to the category from now on, and gets the category's style and level and, if the
     * window has one, the window's mutex; with `flex` it follows the window's size. Returned pointers stay
     * valid until DestroyCtrls(). @{ */
    /** Creates a control by the code of its class (CECtrl::TypeCode); null for a code without a class. */
    CECtrl* NewCtrl(int width, int typeCode, CEFlex* flex = nullptr);
    /** The same, bound to a variable, which must outlive it: whatever CEVal::Init() takes. A wide character
     * buffer or pointer is copied as a fixed text. */
    template <class T>
    CECtrl* InsCtrl(int width, int typeCode, T& variable, CEFlex* flex = nullptr)
    {
        CECtrl* const ctrl = NewCtrl(width, typeCode, flex);
        if (ctrl)
            ctrl->Init(variable);
        return ctrl;
    }
    /** The same, bound to a pointer of the application. */
    CECtrl* InsCtrl(int width, int typeCode, void** variable, CEFlex* flex = nullptr);
    CECtrl* InsCtrl(int width, int typeCode, void*& variable, CEFlex* flex = nullptr)
    {
        return InsCtrl(width, typeCode, &variable, flex);
    }
    /** Inserts a control that the caller made with new; it keeps its own style. */
    CECtrl* InsCtrl(int width, CECtrl* control, int id, CEFlex* flex = nullptr);
    /** A push button that calls `handler` of `target`. */
    CEBtn* InsBtn(int width, const CString& text, int id, CObject* target, CEVal::CbNone handler,
                  CEFlex* flex = nullptr);
    /** A grid, `height` high instead of a control's height, for which the category gets room; the cursor
     * stays on the line of its upper edge. Columns and rows are yet to be added.
     *  @param text  name under which the settings keep its columns (its `aux1`); empty: they do not */
    CEGrid* InsGrid(int width, const CString& text, int id, int height, CEFlex* flex = nullptr);
    /** A fixed text. @param style  copied; null: the category's  @param align  DT_LEFT, DT_CENTER or DT_RIGHT
     */
    CEText* InsText(int width, const CString& text, const CEStyle* style = nullptr, int align = DT_LEFT,
                    CEFlex* flex = nullptr);
    /** A caption line of its own, in the style that is registered as "Tag" (CEStyle::AddStyle) or else in
     * small light blue. The next line starts at x = 10, deliberately also in a stacked category, and lines
     * are 4 higher than controls from then on. */
    CEText* InsTag(const CString& text);
    /** @} */

    /** Gives the category a header with a title, and for a stacked one the box that opens and closes it. */
    void SetHeader(const CString& title);

private:
    friend class CVantWnd;

    CECtrl* Insert(int width, CECtrl* ctrl, int id, const CEFlex* flex);
    CPoint Origin(const CRect& client);
    CPoint HeaderPlace(const CRect& client) const;
    bool IsAnchored() const noexcept;
    bool KeepsHidden(const CECtrl& ctrl) const noexcept;
    void CtrlSettings(CESetObj& obj);
    int Bottom() const noexcept;

    std::unique_ptr<CECheck> m_hdrCheck; // of a stacked category
    std::unique_ptr<CELabel> m_hdrLabel; // refers to the box, and goes first
    std::vector<int> m_hiddenLevels;     // levels that ShowLevel() hid, as they were given
};
