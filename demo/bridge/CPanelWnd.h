#pragma once

#include "controls/CVantWnd.h"
#include "demo/draw/CBackBuffer.h"
#include "demo/draw/CPainter.h"
#include "demo/session/Session.h"

#include <functional>

namespace demo
{

/** How all panels of the bridge are drawn. */
struct Looks {
    ColourSet colours{};
    FontSet fonts;
    double scale = 1.0; ///< of the readings in the panels, see Layout
    CDpi dpi;
};

/** A part of the bridge that somebody paints: an instrument, a bar. It paints itself anew at every poll.
 *
 *  Smooth shapes are drawn on pixels, so it paints in pixels, whatever the monitor's dots per inch. */
class CPanelWnd : public CVantWnd
{
    DECLARE_DYNAMIC(CPanelWnd)

public:
    using Paint = std::function<void(CPainter&, const Box&, const Readout&)>;

    CPanelWnd(const wchar_t* panelName, Session& session, Looks& looks, Paint paint);

    /** Makes the window, without a size, in the bridge. */
    bool Open(CWnd& parent);

    void OnPoll(double t) override;

protected:
    /** Where the panel paints; all of it. */
    Box Client() const;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    Session& m_session;
    Looks& m_looks;
    Paint m_paint;
    CBackBuffer m_buffer;
};

} // namespace demo
