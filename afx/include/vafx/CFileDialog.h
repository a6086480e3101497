#pragma once

#include "vafx/CDialog.h"
#include "vafx/types.h"

#include <commdlg.h>
#include <memory>

/** Base of the system's own dialogs. */
class VAFX_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);
};

/** The system's dialog for choosing files to open or a file to save to. */
class VAFX_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

private:
    struct State;
    std::unique_ptr<State> m_state;

public:
    /** @param bOpenFileDialog TRUE: open, FALSE: save as.
     *  @param lpszDefExt Appended to a name without extension. @param lpszFileName Initial name.
     *  @param dwFlags OFN_ flags.
     *  @param lpszFilter "Text (*.txt)|*.txt|All (*.*)|*.*||".
     *  @param dwSize, bVistaStyle Have no effect: the structure has its current size. */
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;

    /** May be changed before DoModal; lpstrFile must stay, or be replaced by a larger one. */
    OPENFILENAME& m_ofn;

    /** @return IDOK or IDCANCEL; CommDlgExtendedError tells a failure from a cancellation. */
    INT_PTR DoModal() override;
    const OPENFILENAME& GetOFN() const noexcept { return m_ofn; }
    OPENFILENAME& GetOFN() noexcept { return m_ofn; }

    /** @name The chosen file, after IDOK */
    ///@{
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const noexcept;
    ///@}

    /** @name The chosen files, with OFN_ALLOWMULTISELECT */
    ///@{
    POSITION GetStartPosition() const noexcept;
    /** @return The file at @p pos, which is moved on and is null behind the last. */
    CString GetNextPathName(POSITION& pos) const;
    ///@}
};
