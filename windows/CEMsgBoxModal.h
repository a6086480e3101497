#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

#include <array>
#include <memory>
#include <vector>

namespace vant::detail
{
class MsgBtn;
}

/** The modal message box: DisplayMsg() gives it its message, DoModal() asks the user.
 *
 *  The type bits choose icon and buttons: OK, or Yes and No with Vant::msgYesNo, and a Cancel button too with
 *  Vant::msgCancel. DoModal() returns IDOK, IDCANCEL, IDYES (6) or IDNO (7), or -1 if there is no window.
 * Meanwhile the main window takes no input. The box is larger where the text needs it.
 *
 *  Keys: Tab and the arrow keys go from button to button, Enter and Space press one. Y and N answer a
 * question. Escape is Cancel, or No where there is no Cancel, or else OK. Belongs to the UI thread. */
class VANT_API CEMsgBoxModal : public CDialog
{
    DECLARE_DYNAMIC(CEMsgBoxModal)

public:
    /** @param parent  the window that takes no input meanwhile; null: the application's main window */
    explicit CEMsgBoxModal(CWnd* parent = nullptr);
    ~CEMsgBoxModal() override;

    /** @name Fields */
    ///@{
    int msgType = 0;              ///< type bits of the message, see Vant::MsgBox()
    std::array<CString, 4> lines; ///< the message, cut at its line feeds; the last has what is left
    /** @} */

    /** Sets the message of the next DoModal(). */
    void DisplayMsg(int type, const CString& text);

    /** The window of the box that was opened last and is still open; null if there is none. */
    static HWND TopWnd() noexcept;

    /** Asks the user. The focus goes back to where it was. */
    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    /** Escape, and the Cancel button. */
    void OnCancel() override;
    afx_msg void OnYes();
    afx_msg void OnNo();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnDpiChanged(WPARAM dpi, LPARAM suggested);
    DECLARE_MESSAGE_MAP()

private:
    void CreateButtons();
    void Arrange(HWND over);

    static CEMsgBoxModal* s_top;

    CEMsgBoxModal* m_below = nullptr;                          // was open when this one came
    std::vector<std::unique_ptr<vant::detail::MsgBtn>> m_btns; // from left to right
    CSize m_size;                                              // units
};
