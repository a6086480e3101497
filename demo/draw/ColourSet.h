#pragma once

#include "demo/detail/Canvas.h"

#include <afxwin.h>

namespace demo
{

/** The display's colours, all made from the scheme in Vant, so that they follow an application's own scheme.
 */
struct ColourSet {
    COLORREF back;   ///< behind everything
    COLORREF panel;  ///< behind an instrument
    COLORREF deep;   ///< behind a graph
    COLORREF frame;  ///< around panels
    COLORREF grid;   ///< lines that must not be in the way
    COLORREF rim;    ///< rings of dials and their lesser ticks
    COLORREF text;   ///< values
    COLORREF label;  ///< names and units
    COLORREF stale;  ///< values of a silent sensor
    COLORREF accent; ///< what moves: needles, the track, the sea bed
    COLORREF port;   ///< also a limit in a graph
    COLORREF starboard;
    COLORREF alarm; ///< behind an alarm's text

    /** From the scheme as it is now. */
    static ColourSet FromScheme() noexcept;
};

/** A colour between two: `weight` 0 gives `a`, 1 gives `b`. */
COLORREF Mix(COLORREF a, COLORREF b, double weight) noexcept;

/** A GDI colour for the canvas. */
constexpr Ink InkOf(COLORREF colour, double strength = 1.0) noexcept
{
    return {static_cast<std::uint8_t>(colour), static_cast<std::uint8_t>(colour >> 8),
            static_cast<std::uint8_t>(colour >> 16), strength};
}

} // namespace demo
