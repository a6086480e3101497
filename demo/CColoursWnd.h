#pragma once

#include "colour/CPal.h"
#include "colour/CPalBar.h"
#include "demo/PopupFrame.h"

namespace demo
{

/** The colours of the depths: the palette, in which the user chooses table and range and turns the table, and
 * a bar beside it that tells which colour is which depth, in the unit system that is on. */
class CColoursWnd : public CVantWnd
{
    DECLARE_DYNAMIC(CColoursWnd)

public:
    explicit CColoursWnd(Session& session);

    /** Makes the window, hidden. @param first  see PopupFrame::Open() */
    bool Open(CWnd& owner, const Box& first);
    PopupFrame& Frame() noexcept { return m_frame; }

    /** The palette. Windows that draw with it attach themselves (CVantWnd::AttachWnd()). */
    CPal& Pal() noexcept { return m_pal; }
    const CPal& Pal() const noexcept { return m_pal; }

    void SetupCtrls() override;
    void OnInfoMsg(int msg, void* data) override;
    void OnNfyWnd(CVantWnd* sender, int msg, void* data) override;
    using CVantWnd::LayoutWnd;
    void LayoutWnd(int quiet) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnMove(int toX, int toY);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    PopupFrame m_frame;
    CPal m_pal;
    CPalBar* m_bar = nullptr; // its category's
};

} // namespace demo
