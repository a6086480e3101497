#pragma once

#include "colour/CPal.h"
#include "colour/CPalBar.h"
#include "demo/screen/CPopup.h"

namespace demo
{

/** The colours of the depths: the palette, in which the user chooses table and range and turns the table, and
 * a bar beside it that tells which colour is which depth, in the unit system that is on. Columns below tell
 * how often each depth was sounded so far. */
class CColoursWnd : public CPopup<CVantWnd>
{
    DECLARE_DYNAMIC(CColoursWnd)

public:
    explicit CColoursWnd(Session& session);

    /** The palette. Windows that draw with it attach themselves (CVantWnd::AttachWnd()). */
    CPal& Pal() noexcept { return m_pal; }
    const CPal& Pal() const noexcept { return m_pal; }

    void SetupCtrls() override;
    void OnPoll(double t) override;
    void OnInfoMsg(int msg, void* data) override;
    void OnNfyWnd(CVantWnd* sender, int msg, void* data) override;
    using CVantWnd::LayoutWnd;
    void LayoutWnd(int quiet) override;
    void Draw(CDC* dc) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CRect ColumnsRc() const;

    const Playback& m_playback;
    CPal m_pal;
    CPalBar* m_bar = nullptr; // its category's
    std::size_t m_drawn = 0;  // soundings that the columns show
};

} // namespace demo
