#pragma once

#include "vafx/CWnd.h"

/** A dialog box from a template, modal (construct with the template, DoModal) or not (construct without,
 *  Create). A modal dialog object may be run again. */
class VAFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() noexcept;
    /** Names the template of a modal dialog. @param pParentWnd Null: the application's main window. */
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    /** @overload */
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /** @name Not modal
     *  @return FALSE when the dialog could not be made. */
    ///@{
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    ///@}

    /** @name Modal
     *  DoModal disables the owner, runs the dialog and returns what EndDialog was given; -1 when the dialog
     *  could not be made. A template given to InitModalIndirect stays the caller's. */
    ///@{
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);
    ///@}

    void MapDialogRect(LPRECT lpRect) const;
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;

    /** Called before the dialog is shown. @return TRUE: the system sets the focus. */
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    /** Offers commands to the dialog, then to its owner, then to the application. */
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /** The buttons IDOK and IDCANCEL, Enter and Escape: end the dialog with that result. A dialog that is not
     *  modal is hidden only; such a class overrides both and calls DestroyWindow. */
    virtual void OnOK();
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFrom(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE module);
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    void EndModalOrHide(int result);

    LPCTSTR m_templateName;    ///< Resource name or identifier of a modal dialog.
    LPCDLGTEMPLATE m_template; ///< The template itself, instead.
    CWnd* m_parent;            ///< The parent of a modal dialog.
};
