#include "colour/CColTblCb.h"
#include "demo/script/Acts.h"
#include "demo/script/Find.h"

#include <iterator>

namespace demo
{
namespace
{

constexpr int dragLength = 60; // pixels

/** Drags in the palette's bar. @param by  pixels to the right */
void DragBar(Stage& stage, int by)
{
    CPal& pal = stage.colours.Pal();
    const CPoint middle = pal.Dpi().ToPx(pal.barRc.CenterPoint());
    stage.hands.Drag(pal, middle, middle + CSize(by, 0));
}

const Act acts[] = {
    {L"P shows the colours of the depths",
     [](Stage& s) {
         s.bridge.SetFocus();
         if (!IsSeen(s.colours))
             s.hands.Type(L"p");
     },
     [](const Stage& s) { return IsSeen(s.colours); }},

    {L"a key switches to another table",
     [](Stage& s) {
         TablesOf(s).SetFocus();
         s.before = s.colours.Pal().GetCol(s.colours.Pal().end);
         s.hands.Key(VK_DOWN);
     },
     [](const Stage& s) { return s.colours.Pal().GetCol(s.colours.Pal().end) != s.before; }},

    {L"dragging in the bar turns the table",
     [](Stage& s) {
         s.before = s.colours.Pal().offset;
         DragBar(s, dragLength);
     },
     [](const Stage& s) { return s.colours.Pal().offset != s.before && !s.colours.Pal().dragging; },
     L"step-colours.png", true},

    {L"and back", [](Stage& s) { DragBar(s, -dragLength); },
     [](const Stage& s) { return s.colours.Pal().offset == s.before; }},

    {L"the table of the depths comes back",
     [](Stage& s) {
         TablesOf(s).SetFocus();
         s.hands.Key(VK_UP);
     },
     [](const Stage& s) { return s.colours.Pal().master.name == L"Depths"; }},

    {L"Escape leads back to the bridge",
     [](Stage& s) {
         s.colours.Pal().SetFocus();
         s.hands.Key(VK_ESCAPE);
     },
     [](const Stage& s) { return HasFocus(s.bridge); }},
};

} // namespace

std::vector<Act> ColourActs()
{
    return {std::begin(acts), std::end(acts)};
}

} // namespace demo
