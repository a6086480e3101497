#pragma once

#include "colour/CPal.h"
#include "colour/CPalBar.h"
#include "demo/CPopup.h"

namespace demo
{

/** The colours of the depths: the palette, in which the user chooses table and range and turns the table, and
 * a bar beside it that tells which colour is which depth, in the unit system that is on. */
class CColoursWnd : public CPopup<CVantWnd>
{
    DECLARE_DYNAMIC(CColoursWnd)

public:
    explicit CColoursWnd(Session& session);

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
    DECLARE_MESSAGE_MAP()

private:
    CPal m_pal;
    CPalBar* m_bar = nullptr; // its category's
};

} // namespace demo
