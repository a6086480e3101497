#pragma once

#include "resources/Skins.h"

#include <afxwin.h>

#include <array>

namespace vant::detail
{

/** The lines of a message. */
using MsgLines = std::array<CString, 4>;

/** Cuts a text at its line feeds. The fourth line is all that follows the third line feed, deliberately with
 * any further line feeds. */
MsgLines SplitMsg(const CString& text);

/** @name What both message boxes look like
 *  Everything in units; the device contexts take units. A box larger than the skin has more room for its
 * text, everything else keeps its size and its distance from the nearest corner. @{ */

/** Size of the skin, and the least size of a box. */
inline constexpr SIZE msgSize{skins::msgBack::skin.width, skins::msgBack::skin.height};

/** Room for the text in a box of this size. */
CRect MsgTextRc(CSize box);

/** Whether the whole text can be read in a room of this size. */
bool MsgTextFits(CDC& dc, const MsgLines& lines, CSize room);

/** The size of a box for a text in the usual font, in the skin's proportion while it is not wider than
 * `most`, and never higher. */
CSize MsgSizeFor(CDC& dc, const MsgLines& lines, CSize most);

/** Place of a button. @param fromRight  0 for the one that closes the box, then leftwards */
CRect MsgButtonRc(CSize box, int fromRight);

/** Draws background, title, icon and text. @param type  bits of Vant::MsgBox() */
void DrawMsgFace(CDC& dc, CSize box, int type, const MsgLines& lines);

/** Draws a button. @param caption  drawn on Vant::msgBlankBtn, and where there is no skin; the others have
 * theirs */
void DrawMsgButton(CDC& dc, const CRect& r, CDC& skin, const skins::Region& piece, skins::Look look,
                   const CString& caption);
/** @} */

} // namespace vant::detail
