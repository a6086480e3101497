#pragma once

#include "resources/Ids.h"

/** @file
 *  Where the pieces of each skin are. A skin is one bitmap that holds all looks of a control; a control
 * copies the piece it needs. README.md repeats the regions as tables, which the script `render` writes from
 * this file.
 *
 *  Cells that differ only in the control's state stand side by side in the order of `Look`. Frames, such as
 * the face of a button, are drawn in any size by copying their corners unscaled and stretching what is
 * between. */

namespace vant::skins
{

/** State of a control, and the number of the cell that shows it. */
enum class Look { Normal, Hover, Pressed, Focused, Disabled };

/** Number of cells of a region that shows every `Look`. */
inline constexpr int kLooks = 5;

/** Margins, in pixels of the skin, that are copied unscaled; all zero for a region that is copied whole. */
struct Edges {
    int left = 0, top = 0, right = 0, bottom = 0;
};

/** A rectangle of a skin, in pixels from the top left, or a row of equal ones. */
struct Region {
    int x, y, w, h;
    int cells; ///< How many rectangles of w x h stand side by side.
    Edges edges;

    /** Left edge of a cell; the first one is 0. */
    [[nodiscard]] constexpr int left(int cell) const noexcept { return x + cell * w; }

    /** Left edge of the cell for a control's state. */
    [[nodiscard]] constexpr int left(Look look) const noexcept { return left(static_cast<int>(look)); }
};

/** A bitmap: its resource number and size in pixels. */
struct Skin {
    int id, width, height;

    /** A region of this skin. One that is not inside the bitmap, or whose margins overlap, does not compile.
     */
    consteval Region region(int x, int y, int w, int h, int cells = 1, Edges edges = {}) const
    {
        if (x < 0 || y < 0 || w <= 0 || h <= 0 || cells <= 0 || x + w * cells > width || y + h > height ||
            edges.left + edges.right >= w || edges.top + edges.bottom >= h)
            throw "region outside its skin";
        return {x, y, w, h, cells, edges};
    }
};

/** Button that opens a list, at the right end of a combo box. */
namespace dwnAr
{
inline constexpr Skin skin{VANT_IDB_DWNAR, 100, 20};
inline constexpr Region button = skin.region(0, 0, 20, 20, 5); ///< Each look.
} // namespace dwnAr

/** Indicator lamps, in the order green, amber, red, blue, white. A blinking lamp alternates `lit` and `dark`.
 */
namespace leds
{
inline constexpr Skin skin{VANT_IDB_LEDS, 220, 20};
inline constexpr Region lit = skin.region(0, 0, 20, 20, 5);    ///< Shining, with a halo.
inline constexpr Region dark = skin.region(100, 0, 20, 20, 5); ///< The same lamps switched off.
inline constexpr Region none = skin.region(200, 0, 20, 20);    ///< Lamp without a meaning, or disabled.
} // namespace leds

/** Neutral grey bars for what is inactive; stretch freely between the margins. */
namespace grGrad
{
inline constexpr Skin skin{VANT_IDB_GRGRAD, 96, 24};
inline constexpr Region bar = skin.region(0, 0, 32, 24, 2, {0, 1, 0, 1});   ///< Normal, hover.
inline constexpr Region flat = skin.region(64, 0, 32, 24, 1, {0, 1, 0, 1}); ///< Disabled.
} // namespace grGrad

/** Face of a push button. */
namespace grad1
{
inline constexpr Skin skin{VANT_IDB_GRAD1, 320, 24};
inline constexpr Region face = skin.region(0, 0, 32, 24, 5, {4, 4, 4, 4});      ///< Each look.
inline constexpr Region latched = skin.region(160, 0, 32, 24, 5, {4, 4, 4, 4}); ///< Switched on: each look.
} // namespace grad1

/** Bars: captions, column headings, headers of categories. */
namespace grad2
{
inline constexpr Skin skin{VANT_IDB_GRAD2, 224, 24};
inline constexpr Region caption = skin.region(0, 0, 32, 24, 2, {0, 1, 0, 1}); ///< Active, inactive.
inline constexpr Region heading =
    skin.region(64, 0, 32, 24, 3, {1, 4, 1, 4}); ///< Normal, hover, pressed; with
                                                 ///< the edges between columns.
inline constexpr Region category = skin.region(160, 0, 32, 24, 2, {3, 1, 0, 1}); ///< Normal, hover; with a
                                                                                 ///< coloured left end.
} // namespace grad2

/** Check boxes, radio buttons, and the arrows that open and close a branch. */
namespace check
{
inline constexpr Skin skin{VANT_IDB_CHECK, 700, 20};
inline constexpr Region off = skin.region(0, 0, 20, 20, 5);        ///< Check box, clear: each look.
inline constexpr Region on = skin.region(100, 0, 20, 20, 5);       ///< Check box, set: each look.
inline constexpr Region mixed = skin.region(200, 0, 20, 20, 5);    ///< Check box, partly set: each look.
inline constexpr Region radioOff = skin.region(300, 0, 20, 20, 5); ///< Radio button, clear: each look.
inline constexpr Region radioOn = skin.region(400, 0, 20, 20, 5);  ///< Radio button, set: each look.
inline constexpr Region closed = skin.region(500, 0, 20, 20, 5);   ///< Branch closed: each look.
inline constexpr Region open = skin.region(600, 0, 20, 20, 5);     ///< Branch open: each look.
} // namespace check

/** Frames of text fields, in the order normal, hover, focused, invalid, disabled, and of read-outs. */
namespace txt
{
inline constexpr Skin skin{VANT_IDB_TXT, 384, 20};
inline constexpr Region black = skin.region(0, 0, 32, 20, 5, {3, 3, 3, 3});  ///< Black field.
inline constexpr Region grey = skin.region(160, 0, 32, 20, 5, {3, 3, 3, 3}); ///< Grey field.
inline constexpr Region readout =
    skin.region(320, 0, 32, 20, 2, {3, 3, 3, 3}); ///< Shown value: normal, alarm.
} // namespace txt

/** Sliding switch. */
namespace toggle
{
inline constexpr Skin skin{VANT_IDB_TOGGLE, 400, 20};
inline constexpr Region off = skin.region(0, 0, 40, 20, 5);  ///< Off: each look.
inline constexpr Region on = skin.region(200, 0, 40, 20, 5); ///< On: each look.
} // namespace toggle

/** Direction dial; the unit circle is the rim. The first cell is what the dial control copies. */
namespace dial
{
inline constexpr Skin skin{VANT_IDB_DIAL, 200, 100};
inline constexpr Region face =
    skin.region(0, 0, 100, 100, 2); ///< Normal, hover. Rings at slopes of 30 and 60 degrees.
} // namespace dial

/** Arrow button to the left. */
namespace left
{
inline constexpr Skin skin{VANT_IDB_LEFT, 100, 20};
inline constexpr Region button = skin.region(0, 0, 20, 20, 5); ///< Each look.
} // namespace left

/** Arrow button to the right. */
namespace right
{
inline constexpr Skin skin{VANT_IDB_RIGHT, 100, 20};
inline constexpr Region button = skin.region(0, 0, 20, 20, 5); ///< Each look.
} // namespace right

/** Slider: draw the groove over the whole length, the filled groove clipped to the value, then the thumb. */
namespace slider
{
inline constexpr Skin skin{VANT_IDB_SLIDER, 258, 20};
inline constexpr Region track = skin.region(0, 0, 24, 20, 1, {6, 0, 6, 0});    ///< Groove, horizontal.
inline constexpr Region filled = skin.region(24, 0, 24, 20, 1, {6, 0, 6, 0});  ///< Filled groove, horizontal.
inline constexpr Region trackV = skin.region(48, 0, 20, 20, 1, {0, 6, 0, 6});  ///< Groove, vertical.
inline constexpr Region filledV = skin.region(68, 0, 20, 20, 1, {0, 6, 0, 6}); ///< Filled groove, vertical.
inline constexpr Region thumb = skin.region(88, 0, 14, 20, 5);   ///< Thumb, horizontal: each look.
inline constexpr Region thumbV = skin.region(158, 0, 20, 14, 5); ///< Thumb, vertical: each look.
} // namespace slider

/** Background of a message box; the box has this size. `icon`, `text`, `title` and the buttons are places on
 * it. */
namespace msgBack
{
inline constexpr Skin skin{VANT_IDB_MSGBACK, 350, 250};
inline constexpr Region all = skin.region(0, 0, 350, 250);     ///< The whole background.
inline constexpr Region title = skin.region(10, 4, 330, 27);   ///< Place of the title.
inline constexpr Region icon = skin.region(16, 52, 64, 64);    ///< Place of the icon.
inline constexpr Region text = skin.region(104, 52, 224, 124); ///< Place of the four lines, 31 apart.
inline constexpr Region button1 =
    skin.region(235, 200, 101, 36); ///< Place of the right button, which closes.
inline constexpr Region button2 = skin.region(125, 200, 101, 36); ///< Place of a second button.
inline constexpr Region button3 = skin.region(15, 200, 101, 36);  ///< Place of a third button.
} // namespace msgBack

/** Icon of a message that something must stop. */
namespace msgStop
{
inline constexpr Skin skin{VANT_IDB_MSGSTOP, 64, 64};
inline constexpr Region icon = skin.region(0, 0, 64, 64); ///< The icon, on the background of a message box.
} // namespace msgStop

/** Icon of a warning. */
namespace msgWarn
{
inline constexpr Skin skin{VANT_IDB_MSGWARN, 64, 64};
inline constexpr Region icon = skin.region(0, 0, 64, 64); ///< The icon, on the background of a message box.
} // namespace msgWarn

/** Icon of an information. */
namespace msgInfo
{
inline constexpr Skin skin{VANT_IDB_MSGINFO, 64, 64};
inline constexpr Region icon = skin.region(0, 0, 64, 64); ///< The icon, on the background of a message box.
} // namespace msgInfo

/** Yes button of a message, with its caption. */
namespace msgYesBtn
{
inline constexpr Skin skin{VANT_IDB_MSGYESBTN, 505, 36};
inline constexpr Region button = skin.region(0, 0, 101, 36, 5); ///< Each look.
} // namespace msgYesBtn

/** No button of a message, with its caption. */
namespace msgNoBtn
{
inline constexpr Skin skin{VANT_IDB_MSGNOBTN, 505, 36};
inline constexpr Region button = skin.region(0, 0, 101, 36, 5); ///< Each look.
} // namespace msgNoBtn

/** Button of a message whose caption the box draws; one pixel lower while pressed. */
namespace msgBlankBtn
{
inline constexpr Skin skin{VANT_IDB_MSGBLANKBTN, 505, 36};
inline constexpr Region button = skin.region(0, 0, 101, 36, 5, {5, 5, 5, 5}); ///< Each look.
} // namespace msgBlankBtn

/** Menus, with rows of 24 pixels. The marks fill the row's height and stand on its background, in the order
 *  normal, hot, disabled. */
namespace menu
{
inline constexpr Skin skin{VANT_IDB_MENU, 468, 24};
inline constexpr Region panel =
    skin.region(0, 0, 24, 24, 1, {2, 2, 2, 2}); ///< Frame and background of a menu.
inline constexpr Region row = skin.region(24, 0, 24, 24, 2, {0, 1, 0, 1}); ///< Entry: normal, hot.
inline constexpr Region separator = skin.region(72, 8, 24, 8); ///< Line between entries; stretch sideways.
inline constexpr Region bar =
    skin.region(96, 0, 24, 24, 3, {1, 1, 1, 1}); ///< Entry of a menu bar: normal, hot, open.
inline constexpr Region checkMark = skin.region(168, 0, 20, 24, 3); ///< Check mark.
inline constexpr Region bullet = skin.region(228, 0, 20, 24, 3);    ///< Mark of one choice out of several.
inline constexpr Region subMenu = skin.region(288, 0, 20, 24, 3);   ///< Arrow of an entry with a sub-menu.
inline constexpr Region up = skin.region(348, 0, 20, 24, 3);        ///< Scroll up.
inline constexpr Region down = skin.region(408, 0, 20, 24, 3);      ///< Scroll down.
} // namespace menu

/** Progress bar: draw the track, then a fill over the same rectangle, clipped to the part that is done. */
namespace process
{
inline constexpr Skin skin{VANT_IDB_PROCESS, 352, 20};
inline constexpr Region track = skin.region(0, 0, 32, 20, 1, {4, 4, 4, 4}); ///< Empty bar.
inline constexpr Region running =
    skin.region(32, 0, 32, 20, 1, {4, 5, 4, 5});                              ///< Full bar, while it goes on.
inline constexpr Region done = skin.region(64, 0, 32, 20, 1, {4, 5, 4, 5});   ///< Full bar, succeeded.
inline constexpr Region failed = skin.region(96, 0, 32, 20, 1, {4, 5, 4, 5}); ///< Full bar, failed.
inline constexpr Region paused = skin.region(128, 0, 32, 20, 1, {4, 5, 4, 5}); ///< Full bar, waiting.
inline constexpr Region busy =
    skin.region(160, 0, 32, 20, 1, {0, 5, 0, 5}); ///< Stripes for an unknown duration: repeat it sideways,
                                                  ///< shifted by a pixel per step, 4 inside the track's ends.
inline constexpr Region wheel = skin.region(192, 0, 20, 20, 8); ///< Turning wheel, eight steps.
} // namespace process

/** Glow of the current control: premultiplied alpha, stretched over the control with AlphaBlend. */
namespace glow
{
inline constexpr Skin skin{VANT_IDB_GLOW, 40, 40};
inline constexpr Region all = skin.region(0, 0, 40, 40); ///< The whole image.
} // namespace glow

/** Every skin, by resource number. */
inline constexpr Skin kAll[] = {
    dwnAr::skin,       leds::skin,    grGrad::skin,  grad1::skin,   grad2::skin,     check::skin,
    txt::skin,         toggle::skin,  dial::skin,    left::skin,    right::skin,     slider::skin,
    msgBack::skin,     msgStop::skin, msgWarn::skin, msgInfo::skin, msgYesBtn::skin, msgNoBtn::skin,
    msgBlankBtn::skin, menu::skin,    process::skin, glow::skin,
};

} // namespace vant::skins
