#pragma once

#include "vafx/CWnd.h"

/** The system's edit control. */
class VAFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit() noexcept;

    using CWnd::Create;
    /** Makes the control. @param dwStyle WS_ and ES_ styles. */
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR ch);
    /** @param nMax Characters a user may enter; 0 is the system's largest number. */
    void SetLimitText(UINT nMax);
    UINT GetLimitText() const;

    /** The selection's ends: low word start, high word end. */
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    /** 0 to -1 selects everything; unless @p bNoScroll the caret is scrolled into view. */
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    int GetLineCount() const;
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    /** Copies a line without a final zero. @return Characters copied. */
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    void LineScroll(int nLines, int nChars = 0);
    int GetFirstVisibleLine() const;
};
