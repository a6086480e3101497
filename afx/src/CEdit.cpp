#include "vafx/CEdit.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() noexcept = default;

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(L"EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_CANUNDO, 0, 0));
}

BOOL CEdit::Undo()
{
    return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_UNDO, 0, 0));
}

void CEdit::EmptyUndoBuffer()
{
    ::SendMessageW(m_hWnd, EM_EMPTYUNDOBUFFER, 0, 0);
}

BOOL CEdit::GetModify() const
{
    return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_GETMODIFY, 0, 0));
}

void CEdit::SetModify(BOOL bModified)
{
    ::SendMessageW(m_hWnd, EM_SETMODIFY, static_cast<WPARAM>(bModified), 0);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return static_cast<BOOL>(::SendMessageW(m_hWnd, EM_SETREADONLY, static_cast<WPARAM>(bReadOnly), 0));
}

TCHAR CEdit::GetPasswordChar() const
{
    return static_cast<TCHAR>(::SendMessageW(m_hWnd, EM_GETPASSWORDCHAR, 0, 0));
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    ::SendMessageW(m_hWnd, EM_SETPASSWORDCHAR, ch, 0);
}

void CEdit::SetLimitText(UINT nMax)
{
    ::SendMessageW(m_hWnd, EM_SETLIMITTEXT, nMax, 0);
}

UINT CEdit::GetLimitText() const
{
    return static_cast<UINT>(::SendMessageW(m_hWnd, EM_GETLIMITTEXT, 0, 0));
}

DWORD CEdit::GetSel() const
{
    return static_cast<DWORD>(::SendMessageW(m_hWnd, EM_GETSEL, 0, 0));
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    ::SendMessageW(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&nStartChar),
                   reinterpret_cast<LPARAM>(&nEndChar));
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    // Low and high word are signed: (0, -1) is everything.
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    ::SendMessageW(m_hWnd, EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
        ::SendMessageW(m_hWnd, EM_SCROLLCARET, 0, 0);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    ::SendMessageW(m_hWnd, EM_REPLACESEL, static_cast<WPARAM>(bCanUndo),
                   reinterpret_cast<LPARAM>(lpszNewText));
}

void CEdit::Clear()
{
    ::SendMessageW(m_hWnd, WM_CLEAR, 0, 0);
}

void CEdit::Copy()
{
    ::SendMessageW(m_hWnd, WM_COPY, 0, 0);
}

void CEdit::Cut()
{
    ::SendMessageW(m_hWnd, WM_CUT, 0, 0);
}

void CEdit::Paste()
{
    ::SendMessageW(m_hWnd, WM_PASTE, 0, 0);
}

int CEdit::GetLineCount() const
{
    return static_cast<int>(::SendMessageW(m_hWnd, EM_GETLINECOUNT, 0, 0));
}

int CEdit::LineFromChar(int nIndex) const
{
    return static_cast<int>(::SendMessageW(m_hWnd, EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex), 0));
}

int CEdit::LineIndex(int nLine) const
{
    return static_cast<int>(::SendMessageW(m_hWnd, EM_LINEINDEX, static_cast<WPARAM>(nLine), 0));
}

int CEdit::LineLength(int nLine) const
{
    return static_cast<int>(::SendMessageW(m_hWnd, EM_LINELENGTH, static_cast<WPARAM>(nLine), 0));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    // The message expects the size in the buffer itself.
    if (nMaxLength <= 0)
        return 0;
    lpszBuffer[0] = static_cast<TCHAR>(nMaxLength);
    return static_cast<int>(::SendMessageW(m_hWnd, EM_GETLINE, static_cast<WPARAM>(nIndex),
                                           reinterpret_cast<LPARAM>(lpszBuffer)));
}

void CEdit::LineScroll(int nLines, int nChars)
{
    ::SendMessageW(m_hWnd, EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
}

int CEdit::GetFirstVisibleLine() const
{
    return static_cast<int>(::SendMessageW(m_hWnd, EM_GETFIRSTVISIBLELINE, 0, 0));
}
