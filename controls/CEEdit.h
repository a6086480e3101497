#pragma once

#include "controls/CECtrl.h"

namespace vant::detail
{
enum class FieldCell;
}

/** A line of text to type into: an edit window of the system, bound to a variable.
 *
 *  Characters that no value of the bound type can have are not let in. While the text is not valid the field
 * is blue. When the field loses the focus a valid text is stored into the variable and the callbacks are
 * called; an invalid one raises alarm 40 and gives way to the stored value. Escape leaves the field without
 * storing. Enter, and two keys of one's own, move on to linked fields.
 *
 *  The field draws its frame around the system's edit window, which has room for one line in the middle: the
 * client area is that line only. */
class VANT_API CEEdit : public CECtrl
{
    DECLARE_DYNAMIC(CEEdit)

public:
    CEEdit();
    ~CEEdit() override;

    /** @name Fields */
    ///@{
    int maxChars = 0;           ///< the most characters a user may type; 0: what the system lets in
    int aux5 = 0;               ///< for the application; the library neither reads nor writes it
    int escaped = 0;            ///< non-zero: the next loss of the focus does not store
    int validNow = 1;           ///< whether the text was valid when it was last coloured
    CEEdit* prevEdit = nullptr; ///< the field that #prevChr goes to; null: none. Not owned.
    CEEdit* nextEdit = nullptr; ///< the field that #nextChr and Enter go to; null: none. Not owned.
    char prevChr = 0;           ///< ASCII character that goes to #prevEdit; 0: none
    char nextChr = 0;           ///< ASCII character that goes to #nextEdit; 0: none
    /** @} */

    /** @name What may be typed into numbers
     *  An application may change these; texts take every character and types 0 and 11 take none. @{ */
    static CString s_signedChars;   ///< char, short and int: "0123456789+-"
    static CString s_unsignedChars; ///< unsigned types: "0123456789"
    static CString s_fpChars;       ///< float and double: "0123456789+-.Ee"
    /** @} */

    /** Creates the edit window. Texts are aligned to the left; numbers are centred or, when bit 0 of the
     * style's `align` is clear, aligned to the right. Bind the variable first.
     *  @param r  place in the parent, pixels  @return always 1; its m_hWnd is null if the system refuses */
    int Create(unsigned long windowStyle, const RECT& r, CWnd* parent, unsigned int windowId) override;
    using CECtrl::Create;
    /** With WS_TABSTOP; enabled by the rule of Update(). */
    unsigned long WndStyle() const override;

    /** Links this field to others, which must outlive the link. Null: no link. */
    void SetLinks(CEEdit* prev, CEEdit* next);

    /** The keys that go to the linked fields, and select all of their text; they are never typed into the
     * field, even while there is no field to go to. 0: no key. */
    void SetLinkChrs(char prevKey, char nextKey);

    /** Disables the field if no variable is bound or #state is 0, and leaves it at that. Otherwise enables
     * it, if the value's enable condition agrees, and with a non-zero `withText` shows the value anew, over
     * what was typed. Any other #state enables deliberately, and showing and hiding are left alone. Also
     * brings font and frame in line with the style and with the window's scale. */
    void Update(int withText) override;

    /** Takes the focus and selects the text. */
    int Press() override;
    /** Changes a number; what was typed and not stored yet gives way. Its own step is a hundredth of a range
     * that was set, otherwise 1; the fine one a tenth of that, for integers 1. */
    int Jog(int notches, double step, int fine) override;
    void SetGlow(int strength) override;

    /** Copies the value's tip to `tip`, which stays as it was if there is none. */
    void GetTip(CString& tip) override;

    /** Draws frame and text as the window shows them. The window itself is painted by the system;
     * before it exists there is nothing to draw. */
    void Draw(CDC* dc) override;

    /** Colours the edit window, which asks for it whenever it paints. */
    virtual HBRUSH CtlColor(CDC* dc, UINT ctlColor);

    /** Hands Enter, Delete, Escape and whatever is pressed together with Control to the edit window at once,
     * so that no window or dialog around it takes them. */
    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnScaleChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    /** The colours that the style gives a valid or invalid text. */
    struct Colours {
        COLORREF text;
        COLORREF back;
        HBRUSH brush;
        bool operator==(const Colours&) const noexcept = default;
    };

    Colours ColoursFor(bool valid) const;
    bool Accepts(wchar_t character) const;
    bool IsInUse() const;
    bool MayType() const;
    bool IsText() const;
    CString TypedText() const;
    void FocusLinked(CEEdit* linked);
    void FocusParent();
    void Store();
    void ApplyFont();
    void ApplyLimit();
    void DrawField(CDC& dc, const CRect& r) const;
    void DrawFrame();
    void PaintGlowing();
    void RefreshFrame();
    vant::detail::FieldCell FrameCell() const;

    CFont m_scaledFont;                // empty where a unit is a pixel: the style's own font fits there
    HFONT m_fontOf = nullptr;          // the style's font that the window's was made from
    CDpi m_fontDpi;                    // the scale that it was made for
    int m_lineHeight = 0;              // of the window's font, pixels
    Colours m_shown = {0, 0, nullptr}; // the colours last given to the window
    vant::detail::FieldCell m_shownFrame{-1}; // the frame last painted, see FrameCell(); -1: none
    COLORREF m_shownBack = 0;                 // what it was painted on
};
