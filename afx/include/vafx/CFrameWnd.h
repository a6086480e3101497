#pragma once

#include "vafx/CWnd.h"

/** A main window. It is made with new and frees itself when its window goes. */
class VAFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    /** Stands for "where the system likes" in Create. */
    static const CRect rectDefault;

    CFrameWnd() noexcept;

    using CWnd::Create;
    /** Makes the window.
     *  @param lpszClassName Null: a plain class with the arrow cursor and the window background.
     *  @param lpszMenuName Menu resource; null: no menu. @return FALSE on failure. */
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr,
                        LPCTSTR lpszMenuName = nullptr, DWORD dwExStyle = 0,
                        CCreateContext* pContext = nullptr);

    /** Shows the window and brings it to the user. @param nCmdShow -1: as it is, restored from an icon. */
    virtual void ActivateFrame(int nCmdShow = -1);

    /** Offers commands to the window, then to the application. */
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
};
