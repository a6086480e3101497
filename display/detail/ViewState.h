#pragma once

#include "core/CV3.h"
#include "display/CDspCam.h"
#include "display/detail/ViewGeometry.h"

#include <afxwin.h>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class CEMenu;

namespace vant::detail
{

/** A text of CDsp::Label() that waits for the scene to be complete. */
struct PendingLabel {
    CV3 pt;
    CString text;
    COLORREF colour;
    double dx;
    double dy;
    int align;
};

/** What goes on between the press of a button and its release. */
struct ViewDrag {
    int mode;       ///< CDsp::MouseMode: what the drag does
    UINT button;    ///< MK_LBUTTON, MK_MBUTTON or MK_RBUTTON
    CPoint start;   ///< pixels
    CPoint last;    ///< likewise
    CDspCam before; ///< to put back
    int upBefore;   ///< CDsp::Up, likewise
    Point3 grabbed; ///< what a pan took hold of
    bool isLevel;   ///< whether that is in the horizontal plane
    bool hasMoved;  ///< far enough not to be a click
};

/** What a view remembers for itself. */
struct ViewState {
    std::optional<ViewGeometry> scene; ///< while it is being drawn
    bool isPicking = false;
    bool isBoxKnown = false;
    std::optional<ViewBox> box; ///< of everything that is shown; none if that is not known
    std::vector<PendingLabel> labels;
    std::optional<ViewDrag> drag;
    /** Of the drawables that a pick has hit, by their numbers: each is asked once for all of its parts. */
    std::map<unsigned, CString> hitNames;
    std::weak_ptr<CEMenu> menu; ///< that is open
};

} // namespace vant::detail
